// What the user does: on the main window the world size, the grid commands, a patch, a pass,
// the export of a full grid, the lighting run and the About box; in the paths dialog, on a
// config.ini of 30 saved settings, opening it, loading a row, Save, Delete and OK. Everything
// goes through the windows' own controls, as a click or a key would.
#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "gui/about/about_box.h"
#include "gui/main_window/patch_grid.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/status_bar.h"
#include "support/dialog_driver.h"
#include "user_actions.h"

namespace umbrakit::bench {

namespace {
constexpr int k4x4 = 0, k32x32 = 3, kRecords = 30;

bool allAre(const QList<QCheckBox*>& boxes, bool ticked) {
    return std::all_of(boxes.begin(), boxes.end(),
                       [ticked](QCheckBox* box) { return box->isChecked() == ticked; });
}

// As the user sees them: the ticks of the grid's check boxes.
int tickedPatches(const MainWindow& form) {
    int ticked = 0;
    for (int patch = 0; patch < kPatchCount; ++patch)
        ticked += form.patchGrid->patch(patch)->isChecked();
    return ticked;
}

// The 32x32 world with every patch ticked or none.
void showFullWorld(MainWindow& form, bool ticked) {
    form.worldSizeList->setListIndex(k32x32);
    (ticked ? form.selectAllButton : form.clearSelectionButton)->click();
}

int savedInConfig(const BenchApp& app) {
    QFile config(app.services.appFile("config.ini"));
    return config.open(QIODevice::ReadOnly) ? int(config.readAll().count("[Save=")) : -1;
}

// The dialog shown on the 30 saved settings, as a user finds it after "Set Paths"; a file that
// an earlier action changed is written anew and the dialog opened on it again.
PathsDialogWindow& shownOnThirty(BenchApp& app) {
    if (savedInConfig(app) != kRecords) {
        QByteArray config;
        for (int i = 0; i < kRecords; ++i)
            config += record("Level " + QByteArray::number(10 + i),
                             "C:\\Program Files\\EA GAMES\\Battlefield 1942",
                             "level_" + QByteArray::number(i + 1), "BF1942", "101",
                             "1." + QByteArray::number(i % 10));
        QFile file(app.services.appFile("config.ini"));
        if (file.open(QIODevice::WriteOnly))
            file.write(config);
        if (app.window->pathsDialog())
            app.window->pathsDialog()->unload();
    }
    app.window->setPathsEntry->trigger();
    return *app.window->pathsDialog()->window();
}
} // namespace

std::vector<UserAction> userActions(BenchApp& app, QMainWindow& bareWindow) {
    MainWindow& form = *app.window;
    // The table's words: a click, a grid state to start from, a count of ticked patches.
    const auto click = [](auto* control) { return [control] { control->click(); }; };
    const auto fullWorld = [&form](bool ticked) {
        return [&form, ticked] { showFullWorld(form, ticked); };
    };
    const auto ticked = [&form](int count) {
        return [&form, count] { return tickedPatches(form) == count; };
    };
    const auto status = [&form](const char* text) { return form.statusLine->SimpleText() == text; };
    const auto dialog = [&form]() -> PathsDialogWindow& { return *form.pathsDialog()->window(); };
    const auto dialogLoaded = [&form] {
        return form.pathsDialog() && form.pathsDialog()->isLoaded();
    };
    const QString lmList = app.dir.filePath("lmList.dat");
    // A configuration that can run the lighting; the actions tick its passes themselves.
    form.applyConfiguration(
        {U"C:\\Program Files\\EA GAMES\\Battlefield 1942", U"Berlin", U"BF1942", 1.5, {}});
    // The bare window's 256 patches; the pass boxes stand in their frames, one level down.
    const QList<QCheckBox*> boxes =
        bareWindow.centralWidget()->findChildren<QCheckBox*>(Qt::FindDirectChildrenOnly);
    const auto tickAll = [boxes](bool tick) {
        return [boxes, tick] {
            for (QCheckBox* box : boxes)
                box->setChecked(tick);
        };
    };
    for (QCheckBox* box : boxes)
        box->setEnabled(true);

    return {
        {"choose the 32x32 world", [&form] { form.worldSizeList->setListIndex(k4x4); },
         [&form] { form.worldSizeList->setListIndex(k32x32); },
         [&form] { return form.patchGrid->patch(255)->isEnabled(); }},
        {"choose the 4x4 world, 32x32 all ticked", fullWorld(true),
         [&form] { form.worldSizeList->setListIndex(k4x4); }, ticked(16)},
        {"Select All on 32x32", fullWorld(false), click(form.selectAllButton), ticked(256), true},
        {"Clear Selection on 32x32", fullWorld(true), click(form.clearSelectionButton), ticked(0),
         true},
        {"tick a patch", fullWorld(false), click(form.patchGrid->patch(17)), ticked(1)},
        {"tick a pass box", [&form] { form.passBoxes[0]->setValue(0); }, click(form.passBoxes[0]),
         [&form] { return form.passEntries[0]->Checked(); }},
        {"export 256 patches over the old lmList.dat",
         [&app, &form, lmList] {
             showFullWorld(form, true);
             app.dialogs.fileAnswers.enqueue(lmList);
             app.dialogs.boxAnswers.enqueue(MsgBoxAnswer::Yes); // replace the old file
             form.statusTimer->setEnabled(false); // restarted by each call: ends after the check
         },
         click(form.exportButton),
         [status, lmList] { return status("Saved!") && QFileInfo(lmList).size() == 512; }},
        {"Run Lighting with three passes",
         [&form] {
             for (ClickCheckBox* pass : form.passBoxes)
                 pass->setValue(1);
             form.statusTimer->setEnabled(false); // restarted by each call: ends after the check
         },
         click(form.runLightingButton),
         [&app, status] {
             return status("Running batch lighting... You may exit.") &&
                    QFileInfo(app.dir.filePath("go.bat")).size() > 0;
         }},
        {"open the About box",
         [&form] {
             if (form.aboutBox())
                 form.aboutBox()->unload();
         },
         [&form] { form.aboutEntry->trigger(); }, [&form] { return form.aboutBox()->isLoaded(); }},
        {"open Set Paths on 30 saved settings",
         [&app, &form] {
             shownOnThirty(app);
             form.pathsDialog()->unload();
         },
         [&form] { form.setPathsEntry->trigger(); },
         [=] { return dialogLoaded() && dialog().savedList->ListCount() == kRecords + 1; }},
        {"pick a saved setting", [&app] { shownOnThirty(app).savedList->setListIndex(0); },
         [=] { dialog().savedList->setListIndex(15); },
         [=] { return dialog().levelBox->text() == "level_15"; }},
        {"save a setting over an existing name",
         [&app] {
             shownOnThirty(app).nameBox->setText("Level 39");
             app.dialogs.boxes.clear();
         },
         [=] { dialog().saveButton->click(); },
         [&app] { return app.dialogs.boxes.isEmpty() && savedInConfig(app) == kRecords; }},
        {"delete a saved setting",
         [&app] {
             ComboList& list = *shownOnThirty(app).savedList;
             list.setListIndex(list.ListCount() - 1);
         },
         [=] { dialog().deleteButton->click(); },
         [&app] { return savedInConfig(app) == kRecords - 1; }},
        {"OK in Set Paths", [&app] { shownOnThirty(app).savedList->setListIndex(0); },
         [=] { dialog().okButton->click(); }, [=] { return !dialogLoaded(); }},
        {"yardstick: tick 256 plain QCheckBox", tickAll(false), tickAll(true),
         [=] { return allAre(boxes, true); }, true},
        {"yardstick: untick 256 plain QCheckBox", tickAll(true), tickAll(false),
         [=] { return allAre(boxes, false); }, true},
    };
}

} // namespace umbrakit::bench
