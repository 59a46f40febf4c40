// The handlers of the paths dialog on a config.ini of 30 saved configurations: a Save that
// replaces one of them, and the loading of a saved row.
#include <QFile>
#include <QLineEdit>

#include <QPushButton>

#include "core/config_format.h"
#include "core/text_lines.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "handler_cases.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"

namespace umbrakit::bench {

namespace {
constexpr int kRecords = 30;

QString nameOf(int record) {
    return QString("Level %1").arg(record + 1, 2, 10, QChar('0'));
}

std::string thirtyRecords() {
    std::vector<std::string> lines;
    for (int i = 0; i < kRecords; ++i) {
        const SavedRecord record{nameOf(i).toStdString(),
                                 "C:\\Program Files\\EA GAMES\\Battlefield 1942",
                                 "level_" + std::to_string(i + 1),
                                 "BF1942",
                                 {i % 2 == 0, i % 3 == 0, i % 5 == 0},
                                 "1." + std::to_string(i % 10)};
        for (std::string& line : recordLines(record))
            lines.push_back(std::move(line));
    }
    return joinLines(lines);
}

// The dialog open on the 30 records, as a user finds it after "Set Paths".
PathsDialogWindow& openOnThirtyRecords(BenchApp& app) {
    if (!app.window->pathsDialog() || !app.window->pathsDialog()->isLoaded()) {
        QFile config(app.services.appFile("config.ini"));
        const std::string bytes = thirtyRecords();
        if (config.open(QIODevice::WriteOnly))
            config.write(bytes.data(), qint64(bytes.size()));
        config.close();
        app.window->setPathsEntry->trigger();
    }
    return *app.window->pathsDialog()->window();
}

int headsInConfig(const BenchApp& app) {
    QFile config(app.services.appFile("config.ini"));
    if (!config.open(QIODevice::ReadOnly))
        return -1;
    return int(config.readAll().count("[Save="));
}
} // namespace

std::vector<HandlerCase> pathsDialogCases(BenchApp& app) {
    std::vector<HandlerCase> cases;
    cases.push_back({"Save_Click: RewriteConfig, 30 records",
                     [&app](int) {
                         openOnThirtyRecords(app).nameBox->setText(nameOf(kRecords - 1));
                         app.dialogs.boxes.clear();
                     },
                     [&app](int) { app.window->pathsDialog()->window()->saveButton->click(); },
                     [&app] {
                         return app.dialogs.boxes.isEmpty() && headsInConfig(app) == kRecords
                                    ? QString()
                                    : QString("config.ini does not hold the 30 records");
                     }});
    cases.push_back({"SavedSettings_Click: load a saved row",
                     [&app](int) { openOnThirtyRecords(app); },
                     // Rows 1 to 29 in turn: the last record is the one Save rewrites.
                     [&app](int i) {
                         app.window->pathsDialog()->window()->savedList->setListIndex(
                             1 + (i + kRecords) % (kRecords - 1));
                     },
                     [&app] {
                         const PathsDialogWindow& w = *app.window->pathsDialog()->window();
                         const int row = w.savedList->ListIndex();
                         return w.nameBox->text() == nameOf(row - 1) &&
                                        w.levelBox->text() == QString("level_%1").arg(row)
                                    ? QString()
                                    : QString("the saved row was not loaded");
                     }});
    return cases;
}

} // namespace umbrakit::bench
