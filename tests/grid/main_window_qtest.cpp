// The main window as the user meets it: places and sizes, captions, menu, tab order,
// accessible names, and the patch grid under every world size.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QtTest>

#include "platform/accessible_names.h"
#include "platform/classic_frame.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "platform/status_bar.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
int ticked(const Form1& form) {
    int count = 0;
    for (QCheckBox* patch : form.CheckBoxArray)
        count += patch->isChecked() ? 1 : 0;
    return count;
}

// Chooses a row the way a user does: open the list and click the row.
void chooseRow(QComboBox* combo, int row) {
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(rect.left() + 4, rect.center().y()));
}

// The caption is drawn whole: the room the style gives the text holds all of it.
bool captionFits(QAbstractButton* button) {
    const int text =
        button->fontMetrics().horizontalAdvance(captionWithoutAccessKey(button->text()));
    if (auto* box = qobject_cast<QCheckBox*>(button)) {
        QStyleOptionButton option;
        option.initFrom(box);
        option.text = box->text();
        return box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width() >=
               text;
    }
    return button->width() >= text + 6; // a few pixels of bevel on either side
}

void tick(QCheckBox* patch) {
    QTest::mouseClick(patch, Qt::LeftButton, {}, QPoint(8, 8));
}
} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
  private slots:
    void placesAndSizesFollowTheTwipsTables() {
        TestApp app;
        Form1& form = *app.form;
        QCOMPARE(form.centralWidget()->size(), QSize(330, 471));
        QCOMPARE(form.StatusBar1->height(), 19);
        QCOMPARE(form.windowTitle(), QString("Umbrakit"));
        QCOMPARE(form.TitleLabel->geometry(), QRect(1, 0, 327, 31));
        QCOMPARE(form.Combo1->geometry(), QRect(2, 34, 69, 21));
        QCOMPARE(form.CheckAll->geometry(), QRect(77, 34, 117, 21));
        QCOMPARE(form.ClearAll->geometry(), QRect(200, 34, 131, 21));
        QCOMPARE(form.Go_Button->geometry(), QRect(14, 46, 134, 25));
        QCOMPARE(form.ObjectCheck->geometry(), QRect(7, 56, 148, 15));
        // the rule of the grid: bottom left is patch 0, top right patch 255
        QCOMPARE(form.CheckBoxArray[0]->geometry(), QRect(15, 374, 16, 16));
        QCOMPARE(form.CheckBoxArray[15]->geometry(), QRect(315, 374, 16, 16));
        QCOMPARE(form.CheckBoxArray[240]->geometry(), QRect(15, 74, 16, 16));
        QCOMPARE(form.CheckBoxArray[255]->geometry(), QRect(315, 74, 16, 16));
        // column labels along the top, row labels counting upward on the left
        QCOMPARE(form.findChild<QLabel*>("Label1")->text(), QString("00"));
        QCOMPARE(form.findChild<QLabel*>("Label16")->geometry().left(), 315);
        QCOMPARE(form.findChild<QLabel*>("Label32")->text(), QString("00"));
        QCOMPARE(form.findChild<QLabel*>("Label32")->geometry().top(), 374);
        QCOMPARE(form.findChild<QLabel*>("Label17")->text(), QString("15"));
        QCOMPARE(form.findChild<QLabel*>("Label17")->geometry().top(), 74);
        QVERIFY(form.findChild<QCheckBox*>("CheckBoxArray_255"));
        QCOMPARE(form.Go_Button->palette().color(QPalette::Button), QColor(0, 255, 0));
    }

    void everyCaptionFitsItsControl() {
        TestApp app;
        Form1& form = *app.form;
        for (QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
            if (button->text().isEmpty())
                continue;
            QVERIFY2(captionFits(button), qPrintable(button->objectName()));
        }
        const QRect title = form.TitleLabel->fontMetrics().boundingRect(
            form.TitleLabel->rect(), Qt::TextWordWrap | Qt::AlignCenter, form.TitleLabel->text());
        QVERIFY(title.height() <= form.TitleLabel->height());
    }

    void theMenuTreeHasItsCaptionsAndShortcuts() {
        TestApp app;
        Form1& form = *app.form;
        const QList<QAction*> bar = form.menuBar()->actions();
        QCOMPARE(bar.size(), 3);
        QCOMPARE(bar[0]->text(), QString("&File"));
        QCOMPARE(bar[1]->text(), QString("&Run"));
        QCOMPARE(bar[2]->text(), QString("&About"));
        QVERIFY(!bar[2]->menu());
        QStringList file;
        for (QAction* action : form.menuFile->actions())
            file << action->objectName() + ":" + action->text() + ":" +
                        action->shortcut().toString();
        QCOMPARE(file, QStringList({"menuFileSave:&Save:Ctrl+S", "menuFileLoad:&Load:Ctrl+L",
                                    "seperator1::", "menuFilePaths:Set &Paths:Ctrl+P",
                                    "seperator2::", "menuFileExit:E&xit:"}));
        QStringList run;
        for (QAction* action : form.menuRun->actions())
            run << action->text() + ":" + action->shortcut().toString();
        QCOMPARE(run,
                 QStringList({"Export &lmList.dat:Ctrl+E", ":", "&Options:", ":", "&Go!:Ctrl+G"}));
        QCOMPARE(form.menuRunObject->text(), QString("&Generate ObjectShadows"));
        QCOMPARE(form.ObjectCheck->text(), QString("Generate &ObjectShadows"));
    }

    void tabOrderAndAccessibleNames() {
        TestApp app;
        Form1& form = *app.form;
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(QApplication::focusWidget(), form.Combo1);
        QList<QWidget*> expected{form.CheckAll,   form.ClearAll,         form.TerrainCheck,
                                 form.MergeCheck, form.ObjectCheck,      form.lmList_Button,
                                 form.Go_Button,  form.CheckBoxArray[0], form.CheckBoxArray[1]};
        for (QWidget* next : expected) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), next);
        }
        // patch 3 is the last of row 0 under "4x4"; disabled patches are passed over
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), form.CheckBoxArray[16]);

        QCOMPARE(form.CheckAll->accessibleName(), QString("Select All"));
        QCOMPARE(form.Go_Button->accessibleName(), QString("Run Lighting"));
        QCOMPARE(form.Frame1->accessibleName(), QString("Options"));
        QCOMPARE(form.CheckBoxArray[35]->accessibleName(), QString("Patch column 3, row 2"));
        QCOMPARE(form.StatusBar1->findChild<QLabel*>()->text(), QString("Ready."));
    }

    void startsAtFourByFourWithNothingSelected() {
        TestApp app;
        Form1& form = *app.form;
        QCOMPARE(form.Combo1->ListCount(), 4);
        QCOMPARE(form.Combo1->Text(), QString("4x4"));
        QCOMPARE(form.shadowDarkness, 1.5);
        QVERIFY(form.gamePath.isEmpty() && form.levelName.isEmpty() && form.modName.isEmpty());
        for (int i = 0; i < 256; ++i) {
            const bool inWorld = i % 16 < 4 && i < 64;
            QCOMPARE(form.CheckBoxArray[i]->isEnabled(), inWorld);
            QVERIFY(!form.CheckBoxArray[i]->isChecked());
        }
        QCOMPARE(app.status(), QString("Ready."));
    }

    void worldSizesKeepWhatFitsAndLoseTheRest() {
        TestApp app;
        Form1& form = *app.form;
        chooseRow(form.Combo1, 1); // "8x8"
        tick(form.CheckBoxArray[17]);
        tick(form.CheckBoxArray[100]);
        QVERIFY(form.CheckBoxArray[100]->isChecked());
        chooseRow(form.Combo1, 0); // shrink: patch 100 falls out for good
        QVERIFY(!form.CheckBoxArray[100]->isChecked());
        QVERIFY(!form.CheckBoxArray[100]->isEnabled());
        chooseRow(form.Combo1, 1);
        QVERIFY(!form.CheckBoxArray[100]->isChecked());
        QVERIFY(form.CheckBoxArray[17]->isChecked());
        QCOMPARE(ticked(form), 1);
        chooseRow(form.Combo1, 1); // the entry already chosen changes nothing
        QCOMPARE(ticked(form), 1);
        tick(form.CheckBoxArray[200]); // a greyed patch ignores the click
        QVERIFY(!form.CheckBoxArray[200]->isChecked());
    }

    void selectAllFollowsTheWorldAndClearKeepsIt() {
        TestApp app;
        Form1& form = *app.form;
        const int expected[] = {16, 64, 144, 256};
        for (int row = 0; row < 4; ++row) {
            chooseRow(form.Combo1, row);
            QTest::mouseClick(form.CheckAll, Qt::LeftButton);
            QCOMPARE(ticked(form), expected[row]);
        }
        chooseRow(form.Combo1, 2); // "16x16" is 12 by 12
        QVERIFY(form.CheckBoxArray[11]->isChecked() && form.CheckBoxArray[187]->isChecked());
        QVERIFY(!form.CheckBoxArray[12]->isChecked() && !form.CheckBoxArray[191]->isChecked());
        QVERIFY(!form.CheckBoxArray[192]->isEnabled());
        QTest::mouseClick(form.ClearAll, Qt::LeftButton);
        QCOMPARE(ticked(form), 0);
        QCOMPARE(form.Combo1->ListIndex(), 2);
        QVERIFY(form.CheckBoxArray[187]->isEnabled() && !form.CheckBoxArray[192]->isEnabled());
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_qtest.moc"
