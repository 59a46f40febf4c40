// The handlers of the main window: the world size, the two grid commands, the export of a full
// grid and the lighting run.
#include <QCheckBox>
#include <QFileInfo>

#include "handler_cases.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/status_bar.h"

namespace umbrakit::bench {

namespace {
constexpr int k4x4 = 0;
constexpr int k32x32 = 3;

int tickedPatches(const Form1& form) {
    int ticked = 0;
    for (const QCheckBox* patch : form.CheckBoxArray)
        ticked += patch->isChecked() ? 1 : 0;
    return ticked;
}

void chooseWorld(Form1& form, int index) {
    if (form.Combo1->ListIndex() != index)
        form.Combo1->setListIndex(index);
}

QString expect(bool holds, const char* otherwise) {
    return holds ? QString() : QString(otherwise);
}

// A configuration that runs all three passes.
void completeConfiguration(Form1& form) {
    form.gamePath = "C:\\Program Files\\EA GAMES\\Battlefield 1942";
    form.levelName = "Berlin";
    form.modName = "BF1942";
    form.TerrainCheck->setValue(1);
    form.MergeCheck->setValue(1);
    form.ObjectCheck->setValue(1);
}
} // namespace

std::vector<HandlerCase> mainWindowCases(BenchApp& app) {
    Form1& form = *app.form;
    std::vector<HandlerCase> cases;

    cases.push_back({"Combo1_Click 4x4 -> 32x32", [&form](int) { chooseWorld(form, k4x4); },
                     [&form](int) { form.Combo1->setListIndex(k32x32); },
                     [&form] {
                         return expect(form.CheckBoxArray[255]->isEnabled(),
                                       "32x32 left the far corner disabled");
                     }});
    cases.push_back({"Combo1_Click 32x32 -> 4x4, all ticked",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.CheckAll_Click();
                     },
                     [&form](int) { form.Combo1->setListIndex(k4x4); },
                     [&form] {
                         return expect(tickedPatches(form) == 16,
                                       "4x4 kept other ticks than its 16 patches");
                     }});
    cases.push_back({"CheckAll_Click, 32x32",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.ClearAll_Click();
                     },
                     [&form](int) { form.CheckAll_Click(); },
                     [&form] { return expect(tickedPatches(form) == 256, "not all ticked"); }});
    cases.push_back({"ClearAll_Click, 32x32",
                     [&form](int) {
                         chooseWorld(form, k32x32);
                         form.CheckAll_Click();
                     },
                     [&form](int) { form.ClearAll_Click(); },
                     [&form] { return expect(tickedPatches(form) == 0, "ticks were left"); }});

    const QString lmList = app.dir.filePath("lmList.dat");
    cases.push_back({"lmList_Button_Click, 256 records, overwrite",
                     [&app, &form, lmList](int) {
                         chooseWorld(form, k32x32);
                         if (tickedPatches(form) != 256)
                             form.CheckAll_Click();
                         app.dialogs.boxes.clear();
                         app.dialogs.fileRequests.clear();
                         app.dialogs.fileAnswers.enqueue(lmList);
                         app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes);
                         form.Timer1->setEnabled(false);
                     },
                     [&form](int) { form.lmList_Button_Click(); },
                     [&app, &form, lmList] {
                         return expect(form.StatusBar1->SimpleText() == "Saved!" &&
                                           QFileInfo(lmList).size() == 512 &&
                                           app.dialogs.boxes.size() == 1,
                                       "the export did not overwrite the list with 256 records");
                     }});

    cases.push_back({"Go_Button_Click, three passes",
                     [&form](int) {
                         completeConfiguration(form);
                         form.Timer1->setEnabled(false);
                     },
                     [&form](int) { form.Go_Button_Click(); },
                     [&app, &form] {
                         return expect(form.StatusBar1->SimpleText() ==
                                               "Running batch lighting... You may exit." &&
                                           QFileInfo(app.dir.filePath("go.bat")).size() > 0,
                                       "go.bat was not written and started");
                     }});
    return cases;
}

} // namespace umbrakit::bench
