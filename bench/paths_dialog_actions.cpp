// What the user does in the paths dialog, on a config.ini of 30 saved settings: opening it,
// loading a row, Save, Delete and OK.
#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include "gui/paths_dialog/paths_dialog.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "user_actions.h"

namespace umbrakit::bench {

namespace {
constexpr int kRecords = 30;

QString nameOf(int record) {
    return QString("Level %1").arg(record + 1, 2, 10, QChar('0'));
}

QByteArray thirtyRecords() {
    QString config;
    for (int i = 0; i < kRecords; ++i) {
        config += QString("[Save=%1]\r\ngamePath=C:\\Program Files\\EA GAMES\\Battlefield 1942\r\n"
                          "levelName=level_%2\r\nmodName=BF1942\r\nterrainBoolean=True\r\n"
                          "mergeBoolean=False\r\nobjectBoolean=True\r\nshadowDarkness=1.%3\r\n")
                      .arg(nameOf(i))
                      .arg(i + 1)
                      .arg(i % 10);
    }
    return config.toLatin1();
}

int savedInConfig(const BenchApp& app) {
    QFile config(app.services.appFile("config.ini"));
    return config.open(QIODevice::ReadOnly) ? int(config.readAll().count("[Save=")) : -1;
}

// The dialog shown on the 30 saved settings, as a user finds it after "Set Paths"; a file that
// an earlier action changed is written anew and the dialog opened on it again.
PathsDialogWindow& shownOnThirty(BenchApp& app) {
    if (savedInConfig(app) != kRecords) {
        QFile config(app.services.appFile("config.ini"));
        if (config.open(QIODevice::WriteOnly))
            config.write(thirtyRecords());
        if (app.window->pathsDialog())
            app.window->pathsDialog()->unload();
    }
    app.window->setPathsEntry->trigger();
    return *app.window->pathsDialog()->window();
}

PathsDialogWindow& dialog(BenchApp& app) {
    return *app.window->pathsDialog()->window();
}

bool isLoaded(BenchApp& app) {
    return app.window->pathsDialog() && app.window->pathsDialog()->isLoaded();
}
} // namespace

std::vector<UserAction> pathsDialogActions(BenchApp& app) {
    return {
        {"open Set Paths on 30 saved settings",
         [&app] {
             shownOnThirty(app);
             app.window->pathsDialog()->unload();
         },
         [&app] { app.window->setPathsEntry->trigger(); },
         [&app] { return isLoaded(app) && dialog(app).savedList->ListCount() == kRecords + 1; }},
        {"pick a saved setting", [&app] { shownOnThirty(app).savedList->setListIndex(0); },
         [&app] { dialog(app).savedList->setListIndex(15); },
         [&app] { return dialog(app).levelBox->text() == "level_15"; }},
        {"save a setting over an existing name",
         [&app] {
             shownOnThirty(app).nameBox->setText(nameOf(kRecords - 1));
             app.dialogs.boxes.clear();
         },
         [&app] { dialog(app).saveButton->click(); },
         [&app] { return app.dialogs.boxes.isEmpty() && savedInConfig(app) == kRecords; }},
        {"delete a saved setting",
         [&app] {
             ComboList& list = *shownOnThirty(app).savedList;
             list.setListIndex(list.ListCount() - 1);
         },
         [&app] { dialog(app).deleteButton->click(); },
         [&app] { return savedInConfig(app) == kRecords - 1; }},
        {"OK in Set Paths", [&app] { shownOnThirty(app).savedList->setListIndex(0); },
         [&app] { dialog(app).okButton->click(); }, [&app] { return !isLoaded(app); }},
    };
}

} // namespace umbrakit::bench
