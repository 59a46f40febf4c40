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
        app.window->aboutEntry->trigger();
        AboutBox* about = app.window->aboutBox();
        QVERIFY(about && about->isLoaded());
        AboutWindow* window = about->window();
        QCOMPARE(window->icon->pixmap().size(), QSize(32, 32));
        QVERIFY(!window->parent());
        app.window->aboutEntry->trigger(); // shown already: the same window
        QCOMPARE(about->window(), window);

        const std::function<void(AboutWindow*)> closings[] = {
            [](AboutWindow* w) { QTest::mouseClick(w->okButton, Qt::LeftButton); },
            [](AboutWindow* w) { QTest::keyClick(w, Qt::Key_Return); },
            [](AboutWindow* w) { QTest::keyClick(w, Qt::Key_Escape); },
            [](AboutWindow* w) { w->close(); }};
        for (const auto& close : closings) {
            app.window->aboutEntry->trigger();
            QVERIFY(about->isLoaded());
            close(about->window());
            QTRY_VERIFY(!about->isLoaded());
        }
        QCOMPARE(app.window->aboutBox(), about); // the object lives on
    }

    void retiredCommandsSendTheUserToThePathsDialog() {
        TestApp app;
        app.window->retiredSaveEntry->trigger();
        app.window->retiredLoadEntry->trigger();
        QCOMPARE(app.dialogs.boxes.size(), 2);
        for (const AskedBox& box : app.dialogs.boxes) {
            QCOMPARE(box.prompt + "|" + box.title,
                     "Please Use the Paths Dialog to manage saved configurations|Depreciated");
            QVERIFY(box.style == (MsgBoxStyle{MsgBoxButtons::Ok, MsgBoxIcon::Information}));
        }
        QVERIFY(!app.window->pathsDialog());
        QVERIFY(!QFile::exists(app.path("config.ini")));
    }
};

QTEST_MAIN(AboutTest)
#include "about_qtest.moc"
