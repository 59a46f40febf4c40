// The main window: the grid as it shows the selection, the passes in step, the timer, the end.
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "gui/main_window/patch_grid.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

class MainWindowTest : public QObject {
    Q_OBJECT
  private slots:
    // Patch (c, r): under headers c and r ("00" bottom left), ticked by a click, shown as held.
    void eachPatchWhereItsHeadersSayAsTheSelectionHoldsIt() {
        TestApp app;
        MainWindow& w = *app.window;
        const PatchGrid& grid = *w.patchGrid;
        const auto shown = [&](qsizetype enabled, qsizetype ticked) {
            for (int i = 0; i < kPatchCount; ++i)
                QVERIFY2(grid.patch(i)->isEnabled() == grid.selection().isEnabled(i) &&
                             grid.patch(i)->isChecked() == grid.selection().isTicked(i),
                         qPrintable(QString::number(i)));
            QCOMPARE(std::ranges::count(grid.selection().values(), 1), ticked);
            QCOMPARE(std::ranges::count_if(grid.findChildren<QCheckBox*>(), &QWidget::isEnabled),
                     enabled);
        };
        shown(16, 0);
        chooseRow(w.worldSizeList, 3);    // "32x32"
        QMap<int, QString> above, beside; // the headers' texts, rightward and upward
        for (QLabel* label : grid.findChildren<QLabel*>()) {
            const QPoint middle = label->mapTo(&w, label->rect().center());
            if (middle.y() < grid.patch(kPatchCount - 1)->mapTo(&w, QPoint()).y()) // the top row
                above.insert(middle.x(), label->text());
            else if (middle.x() < grid.patch(0)->mapTo(&w, QPoint()).x())
                beside.insert(-middle.y(), label->text());
        }
        const QString headers = "00 01 02 03 04 05 06 07 08 09 10 11 12 13 14 15";
        QCOMPARE(above.values().join(' '), headers);
        QCOMPARE(beside.values().join(' '), headers);
        const auto at = [&](int c, int r) { return QPoint(above.keys()[c], -beside.keys()[r]); };
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

    // Each route twice on each pass: one Click per real change; box, tick and configuration agree.
    void everyRouteKeepsThePassInStep() {
        TestApp app;
        MainWindow& w = *app.window;
        PassOptions on; // all off at start
        for (Pass pass : kPasses) {
            ClickCheckBox* box = w.passBoxes[int(pass)];
            for (int route = 0; route < 10; ++route) {
                QSignalSpy clicks(box, &ClickCheckBox::Click);
                const bool changes = route < 8;
                if (route < 2)
                    clickBox(box);
                else if (route < 4)
                    QTest::keyClick(box, Qt::Key_Space);
                else if (route < 6)
                    w.passEntries[int(pass)]->trigger();
                else
                    box->setValue(changes ? 1 - box->Value() : box->Value());
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

    // A second outcome during the countdown does not start it again; then the end.
    void anOutcomeReturnsToReadyOnceAndTheEnd() {
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
        QMetaObject::invokeMethod(timer.findChild<QTimer*>("countdown"), "timeout"); // ends now
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!timer.Enabled());
        app.window->exitEntry->trigger(); // Exit and the close box end the program
        QCOMPARE(app.endCalls, 1);
        app.window->aboutEntry->trigger(); // another window open changes nothing
        app.window->close();
        QCOMPARE(app.endCalls, 2);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_qtest.moc"
