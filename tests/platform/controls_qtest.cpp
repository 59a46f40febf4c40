// Where the handlers rely on a list behaving otherwise than a plain Qt combo box. The check
// box's one Click per real change, the menu tick that only the program sets and the timer that
// a second start does not put back are tested through the main window.
#include <QtTest>

#include "platform/combo_list.h"

using namespace umbrakit;

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
        list.AddItem("b");
        list.RemoveItem(0); // a row before the selection: the selection moves with its row
        QCOMPARE(list.Text(), QString("a"));
        list.RemoveItem(0); // the selected row: nothing is selected, nothing raised
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(clicks.count(), 2);
        QCOMPARE(list.List(0) + "|" + list.List(1) + "|" + list.List(29), QString("b||"));

        list.setListIndex(0);
        list.Clear();
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(list.ListCount(), 0);
        QCOMPARE(clicks.count(), 3);
    }
};

QTEST_MAIN(ControlsTest)
#include "controls_qtest.moc"
