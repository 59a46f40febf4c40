// What the user does on the main window: the world size, the grid commands, a patch, a pass,
// the export of a full grid, the lighting run and the About box.
// Everything goes through the window's own controls, as a click or a key would.
#include <QCheckBox>
#include <QFileInfo>
#include <QPushButton>

#include "gui/about/about_box.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/status_bar.h"
#include "user_actions.h"

namespace umbrakit::bench {

namespace {
constexpr int k4x4 = 0;
constexpr int k32x32 = 3;

int tickedPatches(const MainWindow& form) {
    int ticked = 0;
    for (const QCheckBox* patch : form.findChildren<QCheckBox*>())
        ticked += patch->objectName().startsWith("CheckBoxArray") && patch->isChecked();
    return ticked;
}

void chooseWorld(MainWindow& form, int index) {
    if (form.worldSizeList->ListIndex() != index)
        form.worldSizeList->setListIndex(index);
}

// The 32x32 world with every patch ticked or none.
void fullWorld(MainWindow& form, bool ticked) {
    chooseWorld(form, k32x32);
    (ticked ? form.selectAllButton : form.clearSelectionButton)->click();
}
} // namespace

std::vector<UserAction> mainWindowActions(BenchApp& app) {
    MainWindow& form = *app.window;
    const auto status = [&form](const char* text) { return form.statusLine->SimpleText() == text; };
    QCheckBox* patch = form.findChild<QCheckBox*>("CheckBoxArray_17");
    const QString lmList = app.dir.filePath("lmList.dat");
    // A configuration that can run the lighting; the actions tick its passes themselves.
    form.applyConfiguration(
        {U"C:\\Program Files\\EA GAMES\\Battlefield 1942", U"Berlin", U"BF1942", 1.5, {}});

    return {
        {"choose the 32x32 world", [&form] { chooseWorld(form, k4x4); },
         [&form] { form.worldSizeList->setListIndex(k32x32); },
         [&form] { return form.findChild<QCheckBox*>("CheckBoxArray_255")->isEnabled(); }, true},
        {"choose the 4x4 world, 32x32 all ticked", [&form] { fullWorld(form, true); },
         [&form] { form.worldSizeList->setListIndex(k4x4); },
         [&form] { return tickedPatches(form) == 16; }, true},
        {"Select All on 32x32", [&form] { fullWorld(form, false); },
         [&form] { form.selectAllButton->click(); }, [&form] { return tickedPatches(form) == 256; },
         true},
        {"Clear Selection on 32x32", [&form] { fullWorld(form, true); },
         [&form] { form.clearSelectionButton->click(); },
         [&form] { return tickedPatches(form) == 0; }, true},
        {"tick a patch", [&form] { fullWorld(form, false); }, [patch] { patch->click(); },
         [&form] { return tickedPatches(form) == 1; }, true},
        {"tick a pass box", [&form] { form.passBoxes[0]->setValue(0); },
         [&form] { form.passBoxes[0]->click(); },
         [&form] { return form.passEntries[0]->Checked(); }},
        {"export 256 patches over the old lmList.dat",
         [&app, &form, lmList] {
             if (tickedPatches(form) != 256)
                 fullWorld(form, true);
             app.dialogs.fileAnswers.enqueue(lmList);
             app.dialogs.boxAnswers.enqueue(MsgBoxAnswer::Yes); // replace the old file
             form.statusTimer->setEnabled(false);
         },
         [&form] { form.exportButton->click(); },
         [status, lmList] { return status("Saved!") && QFileInfo(lmList).size() == 512; }},
        {"Run Lighting with three passes",
         [&form] {
             for (ClickCheckBox* pass : form.passBoxes)
                 pass->setValue(1);
         },
         [&form] { form.runLightingButton->click(); },
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
    };
}

} // namespace umbrakit::bench
