// The About box and the two retired commands.
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <functional>

#include "gui/about/about_box.h"
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
        QCOMPARE(window->picIcon->pixmap().size(), QSize(32, 32));
        QVERIFY(!window->parent());
        app.form->menuAbout->trigger(); // shown already: the same window
        QCOMPARE(about->window(), window);

        const std::function<void(FrmAboutWindow*)> closings[] = {
            [](FrmAboutWindow* w) { QTest::mouseClick(w->cmdOK, Qt::LeftButton); },
            [](FrmAboutWindow* w) { QTest::keyClick(w, Qt::Key_Return); },
            [](FrmAboutWindow* w) { QTest::keyClick(w, Qt::Key_Escape); },
            [](FrmAboutWindow* w) { w->close(); }};
        for (const auto& close : closings) {
            app.form->menuAbout->trigger();
            QVERIFY(about->isLoaded());
            close(about->window());
            QTRY_VERIFY(!about->isLoaded());
        }
        QCOMPARE(app.form->frmAbout(), about); // the object lives on
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
    }
};

QTEST_MAIN(AboutTest)
#include "about_qtest.moc"
