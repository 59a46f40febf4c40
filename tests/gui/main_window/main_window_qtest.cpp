// The main window as the user meets it: layout spot checks, captions, menu, tab order,
// accessible names, and the patch grid under every world size.
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QtTest>
#include <algorithm>

#include "platform/accessible_names.h"
#include "platform/classic_frame.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/status_bar.h"
#include "support/test_app.h"
#include "support/user_input.h"

using namespace umbrakit;

namespace {
int ticked(const Form1& form) {
    return int(std::count_if(form.CheckBoxArray.begin(), form.CheckBoxArray.end(),
                             [](QCheckBox* patch) { return patch->isChecked(); }));
}

// The room the style gives the caption holds all of it.
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

// The menu tree as "name:caption:shortcut", submenus in braces.
QString menuTree(const QList<QAction*>& actions) {
    QStringList entries;
    for (QAction* a : actions)
        entries << (a->menu() ? a->menu()->objectName() + ":" + a->text() + "{" +
                                    menuTree(a->menu()->actions()) + "}"
                              : a->objectName() + ":" + a->text() + ":" + a->shortcut().toString());
    return entries.join(' ');
}
} // namespace

class MainWindowTest : public QObject {
    Q_OBJECT
  private slots:
    void layoutCaptionsMenuTabOrderAndNames() {
        TestApp app;
        Form1& form = *app.form;
        QCOMPARE(form.windowTitle(), QString("Umbrakit"));
        QCOMPARE(form.centralWidget()->size(), QSize(330, 471));
        QCOMPARE(form.StatusBar1->height(), 19);
        // a few places, and the rule of the grid: bottom left is patch 0, top right patch 255
        const std::pair<QWidget*, QRect> places[] = {
            {form.Combo1, {2, 34, 69, 21}},
            {form.Go_Button, {14, 46, 134, 25}},
            {form.CheckBoxArray[0], {15, 374, 16, 16}},
            {form.CheckBoxArray[15], {315, 374, 16, 16}},
            {form.CheckBoxArray[240], {15, 74, 16, 16}},
            {form.CheckBoxArray[255], {315, 74, 16, 16}},
            {form.Label[15], {315, 59, 16, 16}}, // Label16, the last column's
            {form.Label[16], {0, 74, 16, 16}},   // Label17: rows count upward from "00"
            {form.Label[31], {0, 374, 16, 16}}}; // Label32
        for (const auto& [widget, place] : places)
            QCOMPARE(widget->geometry(), place);
        QCOMPARE(form.Label[15]->text() + form.Label[16]->text() + form.Label[31]->text(),
                 QString("151500"));
        QVERIFY(form.findChild<QLabel*>("Label17") == form.Label[16] &&
                form.findChild<QCheckBox*>("CheckBoxArray_255") == form.CheckBoxArray[255]);
        QCOMPARE(form.Go_Button->palette().color(QPalette::Button), QColor(0, 255, 0));

        for (QAbstractButton* button : form.findChildren<QAbstractButton*>())
            QVERIFY2(button->text().isEmpty() || captionFits(button),
                     qPrintable(button->objectName()));
        QVERIFY(form.TitleLabel->fontMetrics()
                    .boundingRect(form.TitleLabel->rect(), Qt::TextWordWrap | Qt::AlignCenter,
                                  form.TitleLabel->text())
                    .height() <= form.TitleLabel->height());

        QCOMPARE(menuTree(form.menuBar()->actions()),
                 QString("menuFile:&File{menuFileSave:&Save:Ctrl+S menuFileLoad:&Load:Ctrl+L "
                         "seperator1:: menuFilePaths:Set &Paths:Ctrl+P seperator2:: "
                         "menuFileExit:E&xit:} menuRun:&Run{menuRunlmList:Export &lmList.dat:"
                         "Ctrl+E seperator3:: menuRunOption:&Options{menuRunTerrain:Generate "
                         "&TerrainShadows: menuRunMerge:&Merge TerrainShadows: menuRunObject:"
                         "&Generate ObjectShadows:} seperator4:: menuRunGo:&Go!:Ctrl+G} "
                         "menuAbout:&About:"));

        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        // disabled patches are passed over: patch 3 is the last of row 0 under "4x4"
        QList<QWidget*> order{form.Combo1,        form.CheckAll,   form.ClearAll,
                              form.TerrainCheck,  form.MergeCheck, form.ObjectCheck,
                              form.lmList_Button, form.Go_Button};
        for (int patch : {0, 1, 2, 3, 16})
            order << form.CheckBoxArray[patch];
        for (int i = 0; i < order.size(); ++i) {
            if (i > 0)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), order[i]);
        }
        QCOMPARE(form.CheckAll->accessibleName(), QString("Select All"));
        QCOMPARE(form.Go_Button->accessibleName(), QString("Run Lighting"));
        QCOMPARE(form.Frame1->accessibleName(), QString("Options"));
        QCOMPARE(form.CheckBoxArray[35]->accessibleName(), QString("Patch column 3, row 2"));
    }

    void startsAtFourByFourAndFollowsTheWorldSize() {
        TestApp app;
        Form1& form = *app.form;
        QCOMPARE(form.Combo1->Text(), QString("4x4"));
        QCOMPARE(form.shadowDarkness, 1.5);
        QVERIFY(form.gamePath.isEmpty() && form.levelName.isEmpty() && form.modName.isEmpty());
        for (int i = 0; i < 256; ++i)
            QCOMPARE(form.CheckBoxArray[i]->isEnabled(), i % 16 < 4 && i < 64);
        QCOMPARE(ticked(form), 0);
        QCOMPARE(form.StatusBar1->findChild<QLabel*>()->text(), QString("Ready."));

        chooseRow(form.Combo1, 1); // "8x8"
        clickBox(form.CheckBoxArray[17]);
        clickBox(form.CheckBoxArray[100]);
        QCOMPARE(ticked(form), 2);
        chooseRow(form.Combo1, 0); // shrinking loses patch 100 for good
        QVERIFY(!form.CheckBoxArray[100]->isEnabled());
        chooseRow(form.Combo1, 1);
        chooseRow(form.Combo1, 1); // the row already chosen changes nothing
        QVERIFY(form.CheckBoxArray[17]->isChecked() && !form.CheckBoxArray[100]->isChecked());
        QCOMPARE(ticked(form), 1);

        const int worlds[] = {16, 64, 144, 256};
        for (int row = 0; row < 4; ++row) {
            chooseRow(form.Combo1, row);
            QTest::mouseClick(form.CheckAll, Qt::LeftButton);
            QCOMPARE(ticked(form), worlds[row]);
        }
        chooseRow(form.Combo1, 2); // "16x16" is 12 by 12
        QCOMPARE(ticked(form), 144);
        QTest::mouseClick(form.ClearAll, Qt::LeftButton);
        QCOMPARE(ticked(form), 0);
        QVERIFY(form.CheckBoxArray[187]->isEnabled() && !form.CheckBoxArray[192]->isEnabled());
        QCOMPARE(form.Combo1->ListIndex(), 2);
    }
};

QTEST_MAIN(MainWindowTest)
#include "main_window_qtest.moc"
