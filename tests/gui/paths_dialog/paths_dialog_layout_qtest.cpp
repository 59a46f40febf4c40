// The window of the paths dialog: a few places, captions that fit, names, keys, tab order.
#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>

#include "support/dialog_driver.h"
#include "platform/accessible_names.h"
#include "platform/classic_font.h"
#include "platform/twips.h"

using namespace umbrakit;

class PathsDialogLayoutTest : public QObject {
    Q_OBJECT
  private slots:
    void captionsFitAndEveryControlIsNamed() {
        TestApp app;
        PathsDialogWindow& w = openPaths(app);
        QCOMPARE(w.geometry().size(), QSize(twips(6630), twips(2970)));
        QCOMPARE(w.maximumSize(), w.minimumSize());
        QVERIFY(!(w.windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint)));
        QVERIFY(!w.parentWidget() && !w.isModal() && w.OKButton->isDefault());
        QCOMPARE(w.ObjectCheck->geometry(), twipsRect(4305, 2310, 2220, 225));
        QCOMPARE(w.Delete->geometry(), twipsRect(5670, 0, 960, 330));
        QVERIFY(!w.SavedSettings->isEditable() && w.ModName_Text->isEditable());

        for (const QAbstractButton* button : w.findChildren<QAbstractButton*>()) {
            const bool isCheck = qobject_cast<const QCheckBox*>(button);
            const QString caption = captionWithoutAccessKey(button->text());
            const int needed = isCheck ? button->sizeHint().width()
                                       : button->fontMetrics().horizontalAdvance(caption) + 6;
            QVERIFY2(needed <= button->width(), qPrintable(caption));
            QCOMPARE(button->accessibleName(), caption);
            QCOMPARE(button->isEnabled(), !isCheck);
        }
        // Each box has its label at its left, in the label font, fitting, and is named after it.
        for (QWidget* box :
             std::initializer_list<QWidget*>{w.SavedSettings, w.SettingName_Text, w.GamePath_Text,
                                             w.LevelName_Text, w.ModName_Text, w.shadow_Text}) {
            const auto* label =
                qobject_cast<QLabel*>(box->parentWidget()->childAt(twips(105) + 2, box->y() + 2));
            QVERIFY2(label && box->accessibleName() + ":" == label->text(),
                     qPrintable(box->objectName()));
            QVERIFY2(label->sizeHint().width() <= label->width(), qPrintable(label->text()));
            QCOMPARE(label->font().pointSizeF(), labelFont().pointSizeF());
        }
    }

    void keysFollowTheTabOrderAndOnlyEnabledButtonsTakeThem() {
        TestApp app;
        PathsDialogWindow& w = openPaths(app);
        QVERIFY(QTest::qWaitForWindowActive(&w));
        QCOMPARE(QApplication::focusWidget(), w.SavedSettings);
        for (const char* name :
             {"SettingName_Text", "Save", "GamePath_Text", "Path", "LevelName_Text", "ModName_Text",
              "shadow_Text", "OKButton", "CancelButton", "Delete", "SavedSettings"}) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* next = w.findChild<QWidget*>(name);
            QVERIFY2(next == QApplication::focusWidget() ||
                         next->isAncestorOf(QApplication::focusWidget()),
                     name);
        }
        QSignalSpy okPressed(w.OKButton, &QPushButton::clicked);
        QTest::keyClick(w.LevelName_Text, Qt::Key_Escape); // no way out
        QVERIFY(w.isVisible() && app.form->pathsDialog()->isLoaded());

        // Enter is OK, from a text box and from the mod list's typing box, which gets no row.
        QTest::keyClick(w.LevelName_Text, Qt::Key_Return);
        QTest::keyClick(w.ModName_Text->lineEdit(), Qt::Key_Enter);
        QCOMPARE(okPressed.count(), 2);
        QCOMPARE(app.dialogs.boxes.last().prompt, QString("Please complete all entries."));
        QCOMPARE(w.ModName_Text->ListCount(), 3);

        // Access keys: the disabled pass boxes take neither O nor T; C is Cancel, which hides.
        QTest::keyClick(&w, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(okPressed.count(), 3);
        QTest::keyClick(&w, Qt::Key_T, Qt::AltModifier);
        QTest::keyClick(&w, Qt::Key_C, Qt::AltModifier);
        QTRY_VERIFY(!w.isVisible());
        QVERIFY(texts(w).endsWith("|000") && app.form->pathsDialog()->isLoaded());
    }
};

QTEST_MAIN(PathsDialogLayoutTest)
#include "paths_dialog_layout_qtest.moc"
