// The main window as the user meets it: the patch grid as it shows the selection, the three
// passes kept in step whichever way they change, the status line's timer, and the end.
#include <QLabel>
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

} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
  private slots:
    // Patch (c, r) stands under the column header reading c and beside the row header reading
    // r, counted from "00" at the left and at the bottom: a click where the headers say ticks
    // that patch, and lmList.dat names it. A mirrored or transposed grid lights other patches.
    // Through the list and the two buttons every box shows its patch as the selection holds it.
    void eachPatchWhereItsHeadersSayAsTheSelectionHoldsIt() {
        TestApp app;
        MainWindow& w = *app.window;
        const PatchGrid& grid = *w.patchGrid;
        const auto shown = [&](int enabled, int ticked) {
            const PatchSelection& selection = grid.selection();
            for (int i = 0; i < kPatchCount; ++i)
                QVERIFY2(grid.patch(i)->isEnabled() == selection.isEnabled(i) &&
                             grid.patch(i)->isChecked() == selection.isTicked(i),
                         qPrintable(QString::number(i)));
            QCOMPARE(int(std::ranges::count(selection.values(), 1)), ticked);
            QCOMPARE(
                int(std::ranges::count_if(grid.findChildren<QCheckBox*>(), &QWidget::isEnabled)),
                enabled);
        };
        shown(16, 0);
        chooseRow(w.worldSizeList, 3); // "32x32"
        QRect boxes;
        for (QCheckBox* box : grid.findChildren<QCheckBox*>())
            boxes |= QRect(box->mapTo(&w, QPoint()), box->size());
        QMap<QString, QPoint> above, beside; // the headers' middles, by their text
        for (QLabel* label : w.findChildren<QLabel*>()) {
            const QPoint middle = label->mapTo(&w, label->rect().center());
            bool number = false;
            label->text().toInt(&number);
            if (number && middle.y() < boxes.top() && middle.x() > boxes.left())
                above.insert(label->text(), middle);
            else if (number && middle.x() < boxes.left() && middle.y() > boxes.top())
                beside.insert(label->text(), middle);
        }
        QCOMPARE(above.size(), kGridSide);
        QCOMPARE(beside.size(), kGridSide);
        const auto header = [](int n) { return QString::number(n).rightJustified(2, '0'); };
        for (int n = 1; n < kGridSide; ++n) { // rightward and upward
            QVERIFY(above.value(header(n)).x() > above.value(header(n - 1)).x());
            QVERIFY(beside.value(header(n)).y() < beside.value(header(n - 1)).y());
        }
        const auto at = [&](int column, int row) {
            return QPoint(above.value(header(column)).x(), beside.value(header(row)).y());
        };
        for (int row = 0; row < kGridSide; ++row)
            for (int column = 0; column < kGridSide; ++column)
                QVERIFY2(w.childAt(at(column, row)) == grid.patch(row * 16 + column),
                         qPrintable(QString("column %1, row %2").arg(column).arg(row)));
        for (const auto& [column, row] : {std::pair{15, 15}, {3, 2}, {0, 0}, {5, 0}})
            QTest::mouseClick(w.windowHandle(), Qt::LeftButton, {}, at(column, row));
        QCOMPARE(grid.selection().lmListRecords(),
                 std::string("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
        chooseRow(w.worldSizeList, 2); // "16x16" is 12 by 12: patch 255 greyed and unticked
        shown(144, 3);
        QTest::mouseClick(w.selectAllButton, Qt::LeftButton);
        shown(144, 144);
        QTest::mouseClick(w.clearSelectionButton, Qt::LeftButton);
        shown(144, 0);
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
