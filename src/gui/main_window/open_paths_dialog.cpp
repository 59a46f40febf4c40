// "Set Paths": the dialog opens modeless beside the main window, created at first use.
#include "gui/main_window/main_window.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/status_bar.h"

namespace umbrakit {

void Form1::menuFilePaths_Click() {
    StatusBar1->setSimpleText("Configuring Paths...");
    if (!pathsDialog_)
        pathsDialog_ = std::make_unique<PathsDialog>(*this);
    pathsDialog_->Show();
    StatusBar1->setSimpleText("Ready.");
}

} // namespace umbrakit
