// The window of the paths dialog: captions, names, keys and the tab order.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QSignalSpy>

#include "paths_dialog/dialog_driver.h"
#include "platform/accessible_names.h"
#include "platform/classic_font.h"
#include "platform/twips.h"

using namespace umbrakit;

class PathsDialogLayoutTest : public QObject {
    Q_OBJECT
  private slots:
    void captionsFitAndEveryControlIsNamed();
    void keysFollowTheTabOrderAndOnlyEnabledButtonsTakeThem();
};

void PathsDialogLayoutTest::captionsFitAndEveryControlIsNamed() {
    TestApp app;
    PathsDialogWindow& w = openPaths(app);
    QCOMPARE(w.geometry().size(), QSize(twips(6630), twips(2970)));
    QCOMPARE(w.maximumSize(), w.minimumSize());
    QVERIFY(!(w.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)));
    QVERIFY(!w.parentWidget() && !w.isModal() && w.OKButton->isDefault());
    QCOMPARE(w.ObjectCheck->geometry(), twipsRect(4305, 2310, 2220, 225));
    QCOMPARE(w.Delete->geometry(), twipsRect(5670, 0, 960, 330));

    const QList<QLabel*> labels =
        w.findChildren<QLabel*>(QRegularExpression("^Label[1-6]$"), Qt::FindChildrenRecursively);
    QCOMPARE(labels.size(), 6);
    for (const QLabel* label : labels) {
        QVERIFY2(label->sizeHint().width() <= label->width(), qPrintable(label->text()));
        QCOMPARE(label->font().pointSizeF(), labelFont().pointSizeF());
    }
    for (const QAbstractButton* button : w.findChildren<QAbstractButton*>()) {
        const QString caption = captionWithoutAccessKey(button->text());
        const int needed = qobject_cast<const QCheckBox*>(button)
                               ? button->sizeHint().width()
                               : button->fontMetrics().horizontalAdvance(caption) + 6;
        QVERIFY2(needed <= button->width(), qPrintable(caption));
        QCOMPARE(button->accessibleName(), caption);
        QCOMPARE(button->isEnabled(), !qobject_cast<const QCheckBox*>(button));
    }
    // A box is named after the label at its left.
    for (QWidget* box :
         {(QWidget*)w.SavedSettings, (QWidget*)w.SettingName_Text, (QWidget*)w.GamePath_Text,
          (QWidget*)w.LevelName_Text, (QWidget*)w.ModName_Text, (QWidget*)w.shadow_Text}) {
        const auto* label =
            qobject_cast<QLabel*>(box->parentWidget()->childAt(twips(105) + 2, box->y() + 2));
        QVERIFY2(label, qPrintable(box->objectName()));
        QCOMPARE(box->accessibleName() + ":", label->text());
    }
    QVERIFY(!w.SavedSettings->isEditable() && w.ModName_Text->isEditable());
}

void PathsDialogLayoutTest::keysFollowTheTabOrderAndOnlyEnabledButtonsTakeThem() {
    TestApp app;
    PathsDialogWindow& w = openPaths(app);
    QVERIFY(QTest::qWaitForWindowActive(&w));
    QCOMPARE(QApplication::focusWidget(), w.SavedSettings);
    for (const char* name :
         {"SettingName_Text", "Save", "GamePath_Text", "Path", "LevelName_Text", "ModName_Text",
          "shadow_Text", "OKButton", "CancelButton", "Delete", "SavedSettings"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* next = w.findChild<QWidget*>(name);
        QVERIFY2(next->isAncestorOf(QApplication::focusWidget()) ||
                     next == QApplication::focusWidget(),
                 name);
    }
    QSignalSpy okPressed(w.OKButton, &QPushButton::clicked);
    QTest::keyClick(w.LevelName_Text, Qt::Key_Escape);
    QVERIFY(w.isVisible() && app.form->pathsDialog()->isLoaded());

    // From a text box and from the typing box of the mod list, Enter is OK, which finds the
    // entries empty and says so; the mod list gets no row from it.
    QTest::keyClick(w.LevelName_Text, Qt::Key_Return);
    QTest::keyClick(w.ModName_Text->lineEdit(), Qt::Key_Enter);
    QCOMPARE(okPressed.count(), 2);
    QCOMPARE(app.dialogs.boxes.last().prompt, QString("Please complete all entries."));
    QCOMPARE(w.ModName_Text->ListCount(), 3);

    // A button pressed by its access key clicks a moment later, once it has been seen down.
    QTest::keyClick(&w, Qt::Key_O, Qt::AltModifier); // the disabled ObjectCheck takes no O
    QTRY_COMPARE(okPressed.count(), 3);
    QTest::keyClick(&w, Qt::Key_T, Qt::AltModifier);
    QTest::keyClick(&w, Qt::Key_C, Qt::AltModifier);
    QTRY_VERIFY(!w.isVisible());
    QCOMPARE(boxesOn(w), 0);
    QVERIFY(app.form->pathsDialog()->isLoaded()); // Cancel only hides
}

QTEST_MAIN(PathsDialogLayoutTest)
#include "paths_dialog_layout_qtest.moc"
