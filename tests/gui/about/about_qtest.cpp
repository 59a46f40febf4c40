// The About box and the two retired commands.
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "gui/about/about_box.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

class AboutTest : public QObject {
    Q_OBJECT
  private slots:
    // About unloads by OK, Enter, Esc or the border; the retired commands tell and touch nothing.
    void aboutAndTheRetiredCommands() {
        TestApp app;
        for (int closing = 0; closing < 4; ++closing) {
            app.window->aboutEntry->trigger();
            AboutWindow* w = app.window->aboutBox()->window();
            app.window->aboutEntry->trigger(); // shown already: the same window
            QVERIFY(w == app.window->aboutBox()->window() && w->isVisible() && !w->parent() &&
                    w->icon->pixmap().size() == QSize(32, 32));
            if (closing == 0)
                QTest::mouseClick(w->okButton, Qt::LeftButton);
            else if (closing == 3)
                w->close();
            else
                QTest::keyClick(w, closing == 1 ? Qt::Key_Return : Qt::Key_Escape);
            QTRY_VERIFY(!app.window->aboutBox()->isLoaded());
        }
        app.window->retiredSaveEntry->trigger();
        app.window->retiredLoadEntry->trigger();
        QCOMPARE(app.dialogs.boxes.size(), 2);
        for (const AskedBox& box : app.dialogs.boxes) {
            QCOMPARE(box.prompt + "|" + box.title,
                     "Please Use the Paths Dialog to manage saved configurations|Depreciated");
            QVERIFY(box.style == (MsgBoxStyle{MsgBoxButtons::Ok, MsgBoxIcon::Information}));
        }
        QVERIFY(!app.window->pathsDialog() && !QFile::exists(app.path("config.ini")));
    }
};

QTEST_MAIN(AboutTest)
#include "about_qtest.moc"
