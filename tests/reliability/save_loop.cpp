// The writer that kill_mid_save_qtest kills: the program's paths dialog on real files, saving
// one record again and again through Save, each time as the other of its two variants, until
// it is killed. Prints "saving" when the loop starts and "saved" after every save.
// Usage: save_loop <program folder>
#include <QApplication>
#include <QLineEdit>
#include <cstdio>

#include "grid/form1.h"
#include "paths_dialog/paths_dialog.h"
#include "platform/combo_list.h"
#include "platform/disk_file_ops.h"
#include "platform/menu_entry.h"
#include "platform/scripted_dialogs.h"
#include "reliability/saved_states.h"
#include "support/fake_launcher.h"

using namespace umbrakit;

int main(int argc, char* argv[]) {
    if (argc != 2)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DiskFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Services services{QString::fromLocal8Bit(argv[1]), files, dialogs, launcher, [] {}};
    const auto form = Form1::start(services);
    form->menuFilePaths->trigger();
    PathsDialog& dialog = *form->pathsDialog();
    PathsDialogWindow& w = *dialog.window();

    std::puts("saving");
    std::fflush(stdout);
    for (int variant = 0;; variant = 1 - variant) {
        const SavedRecord record = reliability::savedRecord(variant);
        w.SettingName_Text->setText(QString::fromStdString(record.name));
        w.GamePath_Text->setText(QString::fromStdString(record.gamePath));
        w.LevelName_Text->setText(QString::fromStdString(record.levelName));
        w.ModName_Text->setText(QString::fromStdString(record.modName));
        w.shadow_Text->setText(QString::fromStdString(record.shadowDarknessText));
        dialog.terrainBoolean = record.terrainBoolean ? -1 : 0;
        dialog.mergeBoolean = record.mergeBoolean ? -1 : 0;
        dialog.objectBoolean = record.objectBoolean ? -1 : 0;
        dialog.Save_Click();
        if (!dialogs.boxes.isEmpty()) { // a save that failed: no state the test could expect
            std::fprintf(stderr, "%s\n", qPrintable(dialogs.boxes.first().prompt));
            return 1;
        }
        std::puts("saved");
        std::fflush(stdout);
    }
}
