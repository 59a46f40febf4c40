// The behaviour of lists, check boxes, timers and menu entries that the handlers rest on,
// where a plain Qt widget behaves otherwise.
#include <QAbstractItemView>
#include <QSignalSpy>
#include <QtTest>

#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"

using namespace umbrakit;

namespace {
void chooseRow(QComboBox* combo, int row) {
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(rect.left() + 4, rect.center().y()));
}
} // namespace

class ControlsTest : public QObject {
    Q_OBJECT
  private slots:
    void aListSelectsOnlyWhenTold() {
        ComboList list;
        QSignalSpy clicks(&list, &ComboList::Click);
        list.AddItem("(Current)"); // a plain QComboBox would select this row by itself
        list.AddItem("a");
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(clicks.count(), 0);

        list.setListIndex(1);
        list.setListIndex(1); // the same row again still raises Click
        QCOMPARE(clicks.count(), 2);
        QCOMPARE(list.Text(), QString("a"));

        list.AddItem("b");
        list.RemoveItem(0); // a row before the selection: the selection moves with its row
        QCOMPARE(list.Text(), QString("a"));
        list.RemoveItem(0); // the selected row: nothing is selected, nothing raised
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(list.ListCount(), 1);
        QCOMPARE(clicks.count(), 2);

        QCOMPARE(list.List(0), QString("b"));
        QCOMPARE(list.List(1), QString());
        QCOMPARE(list.List(29), QString());
        list.setListIndex(0);
        list.Clear();
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(list.ListCount(), 0);
        QCOMPARE(clicks.count(), 3);
    }

    void theUserChoosingARowRaisesClickEvenForTheChosenOne() {
        ComboList list;
        for (const char* row : {"4x4", "8x8", "16x16"})
            list.AddItem(row);
        list.setListIndex(0);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QSignalSpy clicks(&list, &ComboList::Click);
        chooseRow(&list, 2);
        QCOMPARE(list.ListIndex(), 2);
        chooseRow(&list, 2);
        QCOMPARE(clicks.count(), 2);
        QTest::keyClick(&list, Qt::Key_Up);
        QCOMPARE(list.ListIndex(), 1);
        QCOMPARE(clicks.count(), 3);
    }

    void aListThatTakesTypedTextKeepsItWhenRowsArrive() {
        ComboList mods;
        mods.setEditable(true);
        mods.setText("MyMod");
        for (const char* row : {"BF1942", "DesertCombat", "EoD"})
            mods.AddItem(row);
        QCOMPARE(mods.Text(), QString("MyMod"));
        mods.setText("Not a row");
        QCOMPARE(mods.Text(), QString("Not a row"));
    }

    void aCheckBoxRaisesClickOncePerRealChange() {
        ClickCheckBox box("&Merge TerrainShadows");
        box.show();
        QSignalSpy clicks(&box, &ClickCheckBox::Click);
        box.setValue(0); // no change
        QCOMPARE(clicks.count(), 0);
        box.setValue(1);
        box.setValue(1);
        QCOMPARE(clicks.count(), 1);
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
        QCOMPARE(box.Value(), 0);
        QTest::keyClick(&box, Qt::Key_Space);
        QCOMPARE(box.Value(), 1);
        QCOMPARE(clicks.count(), 3);
    }

    void aSecondStartDoesNotPutTheCountdownBack() {
        FormTimer timer(1000);
        QSignalSpy fired(&timer, &FormTimer::Timer);
        timer.setEnabled(true);
        QTest::qWait(400);
        timer.setEnabled(true);
        QVERIFY(timer.remainingMs() <= 650);
        timer.elapseNow(); // a test need not wait for the countdown
        QCOMPARE(fired.count(), 1);
        QVERIFY(timer.Enabled()); // countdowns follow each other while enabled
        timer.setEnabled(false);
        timer.elapseNow();
        QCOMPARE(fired.count(), 1);
        timer.setInterval(50);
        timer.setEnabled(true);
        QTRY_COMPARE(fired.count(), 2);
    }

    void aMenuEntryLeavesItsTickToTheProgram() {
        MenuEntry entry("menuRunTerrain", "Generate &TerrainShadows", nullptr);
        entry.setShowsTick(true);
        QSignalSpy clicks(&entry, &MenuEntry::Click);
        entry.trigger();
        QCOMPARE(clicks.count(), 1);
        QVERIFY(!entry.Checked());
        entry.setChecked(true);
        entry.trigger();
        QVERIFY(entry.Checked());
        QCOMPARE(clicks.count(), 2);
    }
};

QTEST_MAIN(ControlsTest)
#include "controls_qtest.moc"
