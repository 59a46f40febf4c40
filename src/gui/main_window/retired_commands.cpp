// The About entry and the two retired File commands, which send the user to the paths dialog.
#include "gui/main_window/main_window.h"
#include "gui/about/about_box.h"

namespace umbrakit {

namespace {
void pointToPathsDialog(Dialogs& dialogs) {
    dialogs.msgBox("Please Use the Paths Dialog to manage saved configurations",
                   MsgBoxStyle::Information, "Depreciated");
}
} // namespace

void Form1::menuFileSave_Click() {
    pointToPathsDialog(services.dialogs);
}

void Form1::menuFileLoad_Click() {
    pointToPathsDialog(services.dialogs);
}

void Form1::menuAbout_Click() {
    if (!frmAbout_)
        frmAbout_ = std::make_unique<FrmAbout>();
    frmAbout_->Show();
}

} // namespace umbrakit
