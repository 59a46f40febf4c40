// The main window as the user meets it: the patch grid under every world size, the three
// passes kept in step whichever way they change, the status line's timer, and the end.
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include "gui/main_window/patch_grid.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
// Ends the running countdown at once, as if its interval had passed.
void elapseNow(FormTimer& timer) {
    auto* countdown = timer.findChild<QTimer*>("countdown");
    countdown->start();
    QMetaObject::invokeMethod(countdown, "timeout");
}

int ticked(const MainWindow& window) {
    return int(std::ranges::count(window.patchGrid->values(), 1));
}

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
  private slots:
    void theGridFollowsTheWorldSize() {
        TestApp app;
        MainWindow& w = *app.window;
        PatchGrid& grid = *w.patchGrid;
        for (int i = 0; i < kPatchCount; ++i)
            QCOMPARE(grid.patch(i)->isEnabled(), i % 16 < 4 && i < 64);
        QCOMPARE(ticked(w), 0);
        QCOMPARE(app.status(), QString("Ready."));

        chooseRow(w.worldSizeList, 1); // "8x8"
        clickBox(grid.patch(17));
        clickBox(grid.patch(100));
        QCOMPARE(ticked(w), 2);
        chooseRow(w.worldSizeList, 0); // shrinking loses patch 100 for good
        QVERIFY(!grid.patch(100)->isEnabled());
        chooseRow(w.worldSizeList, 1);
        chooseRow(w.worldSizeList, 1); // the row already chosen changes nothing
        QVERIFY(grid.patch(17)->isChecked() && !grid.patch(100)->isChecked());

        const int worlds[] = {16, 64, 144, 256};
        for (int row = 0; row < 4; ++row) {
            chooseRow(w.worldSizeList, row);
            QTest::mouseClick(w.selectAllButton, Qt::LeftButton);
            QCOMPARE(ticked(w), worlds[row]);
        }
        chooseRow(w.worldSizeList, 2); // "16x16" is 12 by 12
        QCOMPARE(ticked(w), 144);
        QTest::mouseClick(w.clearSelectionButton, Qt::LeftButton);
        QCOMPARE(ticked(w), 0);
        QVERIFY(grid.patch(187)->isEnabled() && !grid.patch(192)->isEnabled());
    }

    // Every route, twice on every pass: a click, Space, the menu entry, the program setting
    // the other Value and the same Value. One Click per real change, none otherwise, and box,
    // tick and configuration always agree while the other passes never move.
    void everyRouteKeepsThePassInStep() {
        TestApp app;
        MainWindow& w = *app.window;
        PassOptions on; // all off at start
        for (Pass pass : kPasses) {
            ClickCheckBox* box = w.passBoxes[int(pass)];
            for (int route = 0; route < 10; ++route) {
                QSignalSpy clicks(box, &ClickCheckBox::Click);
                switch (route / 2) {
                case 0:
                    clickBox(box);
                    break;
                case 1:
                    QTest::keyClick(box, Qt::Key_Space);
                    break;
                case 2:
                    w.passEntries[int(pass)]->trigger();
                    break;
                case 3:
                    box->setValue(1 - box->Value());
                    break;
                default:
                    box->setValue(box->Value());
                }
                const bool changes = route < 8;
                on[pass] = on[pass] != changes;
                QCOMPARE(clicks.size(), changes ? 1 : 0);
                QCOMPARE(w.configuration().passes, on);
                for (Pass p : kPasses)
                    QVERIFY(w.passBoxes[int(p)]->Value() == int(on[p]) &&
                            w.passEntries[int(p)]->Checked() == on[p]);
            }
            box->setValue(1); // left on while the next is tried
            on[pass] = true;
        }
    }

    // Found by their captions, as a user finds them: each entry of Run, Options ticks itself,
    // moves the box of its pass and no other, and go.bat then runs that pass alone.
    void eachPassEntrySwitchesThePassItNames() {
        TestApp app;
        MainWindow& w = *app.window;
        app.setPaths(U"D:\\BF1942", U"Level", U"BF1942");
        const char* const passes[][3] = {
            {"Generate &TerrainShadows", "Generate &TerrainShadows", "+traceTerrainShadows"},
            {"&Merge TerrainShadows", "&Merge TerrainShadows", "+mergeTerrainShadows"},
            {"&Generate ObjectShadows", "Generate &ObjectShadows", "+traceObjectShadows"}};
        const QList<QAction*> entries = w.findChild<QMenu*>("menuRunOption")->actions();
        const QList<QCheckBox*> boxes = w.findChildren<QCheckBox*>();
        for (const auto& [entryCaption, boxCaption, engineOption] : passes) {
            const auto entry = std::ranges::find(entries, entryCaption, &QAction::text);
            QVERIFY2(entry != entries.end(), entryCaption);
            (*entry)->trigger();
            for (QAction* other : entries)
                QCOMPARE(other->isChecked(), other == *entry);
            QCOMPARE(std::ranges::count_if(boxes, &QCheckBox::isChecked), 1);
            QVERIFY2(std::ranges::find(boxes, boxCaption, &QCheckBox::text) != boxes.end() &&
                         (*std::ranges::find(boxes, boxCaption, &QCheckBox::text))->isChecked(),
                     boxCaption);
            QTest::mouseClick(w.runLightingButton, Qt::LeftButton);
            const QList<QByteArray> lines = app.bytesOf("go.bat").split('\n');
            QVERIFY2(lines.size() == 4 && lines[2].contains(engineOption),
                     lines.value(2).constData());
            (*entry)->trigger();
        }
    }

    // A second outcome during the countdown does not start it again.
    void anOutcomeReturnsToReadyOnce() {
        TestApp app;
        FormTimer& timer = *app.window->statusTimer;
        QVERIFY(!timer.Enabled());
        QCOMPARE(timer.Interval(), 7500);
        timer.setInterval(2000);
        app.window->exportEntry->trigger(); // cancelled: "Save Cancled."
        QTest::qWait(500);
        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
        app.window->exportEntry->trigger();
        QCOMPARE(app.status(), QString("Saved!"));
        QVERIFY2(timer.remainingMs() > 0 && timer.remainingMs() <= 1750,
                 qPrintable(QString::number(timer.remainingMs())));
        elapseNow(timer);
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!timer.Enabled());
    }

    void exitAndClosingTheWindowEndTheProgram() {
        TestApp app;
        app.window->exitEntry->trigger();
        QCOMPARE(app.endCalls, 1);
        app.window->aboutEntry->trigger(); // another window open changes nothing
        app.window->close();
        QCOMPARE(app.endCalls, 2);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_qtest.moc"
