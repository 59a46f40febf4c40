// The export of the ticked patches as lmList.dat, to a file the user chooses.
#include "gui/main_window/main_window.h"
#include "gui/main_window/patch_grid.h"
#include "platform/form_timer.h"
#include "platform/qt_text.h"
#include "platform/status_bar.h"

namespace umbrakit {

void MainWindow::exportPatchList() {
    statusLine->setSimpleText("Preparing to Save...");
    // Set afresh every time: the dialog opens in the level's textures folder and remembers no
    // earlier answer.
    fileDialog_.Filter = "lmList.dat|lmList.dat|All Files (*.*)|*.*";
    fileDialog_.FileName = "lmList.dat";
    fileDialog_.InitDir = toQString(configuration_.gamePath) + "\\ShadowWork\\bf1942\\levels\\" +
                          toQString(configuration_.levelName) + "\\textures";
    fileDialog_.ShowOpen();

    const QString name = fileDialog_.FileName;
    if (name.isEmpty()) {
        report("Save Cancled.");
        return;
    }
    // Any answer but Yes leaves the old file and the status line as they are.
    if (services.files.exists(name) &&
        services.dialogs.msgBox("File Exists, Do you want to overwrite?", {MsgBoxButtons::YesNo},
                                "File Exists...") != MsgBoxAnswer::Yes)
        return;

    const std::string records = patchGrid->selection().lmListRecords();
    // The old list stays whole until the new one is complete beside it.
    const FileResult written = replaceWhole(services.files, name, name + ".tmp",
                                            QByteArray(records.data(), qsizetype(records.size())));
    if (!written) {
        tellFileFailure("lmList.dat was not saved.", name, written.reason);
        statusTimer->setEnabled(true); // the line goes back to rest; "Saved!" was never shown
        return;
    }
    report("Saved!");
}

} // namespace umbrakit
