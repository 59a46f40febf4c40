// The handlers of the main window: the world size, the two grid commands, the export of a full
// grid and the lighting run.
#include <QCheckBox>
#include <QFileInfo>
#include <QPushButton>

#include "gui/main_window/patch_grid.h"
#include "handler_cases.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/status_bar.h"

namespace umbrakit::bench {

namespace {
constexpr int k4x4 = 0;
constexpr int k32x32 = 3;

int tickedPatches(const MainWindow& form) {
    int ticked = 0;
    for (int i = 0; i < kPatchCount; ++i)
        ticked += form.patchGrid->patch(i)->isChecked() ? 1 : 0;
    return ticked;
}

void chooseWorld(MainWindow& form, int index) {
    if (form.worldSizeList->ListIndex() != index)
        form.worldSizeList->setListIndex(index);
}

QString expect(bool holds, const char* otherwise) {
    return holds ? QString() : QString(otherwise);
}

// A configuration that runs all three passes.
void completeConfiguration(MainWindow& form) {
    form.applyConfiguration({U"C:\\Program Files\\EA GAMES\\Battlefield 1942",
                             U"Berlin",
                             U"BF1942",
                             1.5,
                             {true, true, true}});
}
} // namespace

std::vector<HandlerCase> mainWindowCases(BenchApp& app) {
    MainWindow& form = *app.window;
    std::vector<HandlerCase> cases;

    cases.push_back({"Combo1_Click 4x4 -> 32x32", [&form](int) { chooseWorld(form, k4x4); },
                     [&form](int) { form.worldSizeList->setListIndex(k32x32); },
                     [&form] {
                         return expect(form.patchGrid->patch(255)->isEnabled(),
                                       "32x32 left the far corner disabled");
                     }});
    cases.push_back({"Combo1_Click 32x32 -> 4x4, all ticked",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.selectAllButton->click();
                     },
                     [&form](int) { form.worldSizeList->setListIndex(k4x4); },
                     [&form] {
                         return expect(tickedPatches(form) == 16,
                                       "4x4 kept other ticks than its 16 patches");
                     }});
    cases.push_back({"CheckAll_Click, 32x32",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.clearSelectionButton->click();
                     },
                     [&form](int) { form.selectAllButton->click(); },
                     [&form] { return expect(tickedPatches(form) == 256, "not all ticked"); }});
    cases.push_back({"ClearAll_Click, 32x32",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.selectAllButton->click();
                     },
                     [&form](int) { form.clearSelectionButton->click(); },
                     [&form] { return expect(tickedPatches(form) == 0, "ticks were left"); }});

    const QString lmList = app.dir.filePath("lmList.dat");
    cases.push_back({"lmList_Button_Click, 256 records, overwrite",
                     [&app, &form, lmList](int) {
                         chooseWorld(form, k32x32);
                         if (tickedPatches(form) != 256)
                             form.selectAllButton->click();
                         app.dialogs.boxes.clear();
                         app.dialogs.fileRequests.clear();
                         app.dialogs.fileAnswers.enqueue(lmList);
                         app.dialogs.boxAnswers.enqueue(MsgBoxAnswer::Yes);
                         form.statusTimer->setEnabled(false);
                     },
                     [&form](int) { form.exportButton->click(); },
                     [&app, &form, lmList] {
                         return expect(form.statusLine->SimpleText() == "Saved!" &&
                                           QFileInfo(lmList).size() == 512 &&
                                           app.dialogs.boxes.size() == 1,
                                       "the export did not overwrite the list with 256 records");
                     }});

    cases.push_back({"Go_Button_Click, three passes",
                     [&form](int) {
                         completeConfiguration(form);
                         form.statusTimer->setEnabled(false);
                     },
                     [&form](int) { form.runLightingButton->click(); },
                     [&app, &form] {
                         return expect(form.statusLine->SimpleText() ==
                                               "Running batch lighting... You may exit." &&
                                           QFileInfo(app.dir.filePath("go.bat")).size() > 0,
                                       "go.bat was not written and started");
                     }});
    return cases;
}

} // namespace umbrakit::bench
