// The export of the ticked patches as lmList.dat, to a file the user chooses.
#include <QCheckBox>

#include "gui/main_window/main_window.h"
#include "core/lmlist_format.h"
#include "platform/form_timer.h"
#include "platform/status_bar.h"

namespace umbrakit {

void Form1::lmList_Button_Click() {
    StatusBar1->setSimpleText("Preparing to Save...");
    cDialog.Filter = "lmList.dat|lmList.dat|All Files (*.*)|*.*";
    cDialog.FileName = "lmList.dat";
    cDialog.InitDir = gamePath + "\\ShadowWork\\bf1942\\levels\\" + levelName + "\\textures";
    cDialog.ShowOpen();

    const QString name = cDialog.FileName;
    if (name.isEmpty()) {
        StatusBar1->setSimpleText("Save Cancled.");
        Timer1->setEnabled(true);
        return;
    }
    if (services.files.exists(name)) {
        const int answer = services.dialogs.msgBox("File Exists, Do you want to overwrite?",
                                                   MsgBoxStyle::YesNo, "File Exists...");
        if (answer != MsgBoxResult::Yes)
            return;
    }

    PatchValues values{};
    for (int index = 0; index < kPatchCount; ++index)
        values[index] = CheckBoxArray[index]->isChecked() ? 1 : 0;
    const std::string records = encodeLmList(values);

    // The old list stays whole until the new one is complete beside it.
    const FileResult written = replaceWhole(services.files, name, name + ".tmp",
                                            QByteArray(records.data(), qsizetype(records.size())));
    if (!written) {
        reportFileFailure("lmList.dat was not saved.", name, written.reason);
        Timer1->setEnabled(true); // the line goes back to rest; "Saved!" was never shown
        return;
    }
    StatusBar1->setSimpleText("Saved!");
    Timer1->setEnabled(true);
}

void Form1::menuRunlmList_Click() {
    lmList_Button_Click();
}

} // namespace umbrakit
