#include "gui/main_window/program_folder_notice.h"

#include <QDir>

#include "platform/services.h"
#include "platform/writable_folder.h"

namespace umbrakit {

void tellIfProgramFolderIsReadOnly(Services& services) {
    if (programFolderIsWritable(services.appPath))
        return;
    services.dialogs.msgBox(
        "Umbrakit cannot write to its folder:\n\n" + QDir::toNativeSeparators(services.appPath) +
            "\n\nSaved Configs (config.ini) and the lighting script (go.bat) are kept beside the "
            "program, so none can be saved now. To save them, move the program's folder "
            "somewhere you can write.",
        {MsgBoxButtons::Ok, MsgBoxIcon::Exclamation}, "Read-Only Folder");
}

} // namespace umbrakit
