// The About box and the two retired commands.
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "peripheral/frm_about.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

class AboutTest : public QObject {
    Q_OBJECT
  private slots:
    void opensOnceAndClosesByOkEnterEscOrBorder() {
        TestApp app;
        app.form->menuAbout->trigger();
        FrmAbout* about = app.form->frmAbout();
        QVERIFY(about && about->isLoaded());
        FrmAboutWindow* window = about->window();
        QCOMPARE(window->windowTitle(), QString("About..."));
        QCOMPARE(window->size(), QSize(331, 110));
        QCOMPARE(window->lblVersion->text(), QString("Version 1.2  Released 12/12/2003"));
        QCOMPARE(window->cmdOK->geometry(), QRect(126, 84, 84, 23));
        QCOMPARE(window->picIcon->pixmap().size(), QSize(32, 32));
        QCOMPARE(window->picIcon->size(), QSize(32, 32));
        QVERIFY(!window->parent());

        app.form->menuAbout->trigger(); // shown already: the same window
        QCOMPARE(about->window(), window);
        QTest::mouseClick(window->cmdOK, Qt::LeftButton);
        QTRY_VERIFY(!about->isLoaded());

        for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            app.form->menuAbout_Click();
            QVERIFY(about->isLoaded());
            QTest::keyClick(about->window(), key);
            QTRY_VERIFY(!about->isLoaded());
        }
        app.form->menuAbout_Click();
        about->window()->close();
        QTRY_VERIFY(!about->isLoaded());
        QCOMPARE(app.form->frmAbout(), about); // the object lives on
        QCOMPARE(app.status(), QString("Ready."));
    }

    void retiredCommandsSendTheUserToThePathsDialog() {
        TestApp app;
        app.form->menuFileSave->trigger();
        app.form->menuFileLoad->trigger();
        QCOMPARE(app.dialogs.boxes.size(), 2);
        for (const AskedBox& box : app.dialogs.boxes) {
            QCOMPARE(box.prompt,
                     QString("Please Use the Paths Dialog to manage saved configurations"));
            QCOMPARE(box.buttons, 64);
            QCOMPARE(box.title, QString("Depreciated"));
        }
        QVERIFY(!app.form->pathsDialog());
        QVERIFY(!QFile::exists(app.path("config.ini")));
        QCOMPARE(app.status(), QString("Ready."));
    }

    void theRetiredShortcutsAnswerToo() {
        TestApp app;
        app.form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(app.form.get()));
        QTest::keyClick(app.form.get(), Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(app.form.get(), Qt::Key_L, Qt::ControlModifier);
        QCOMPARE(app.dialogs.boxes.size(), 2);
    }
};

QTEST_MAIN(AboutTest)
#include "about_qtest.moc"
