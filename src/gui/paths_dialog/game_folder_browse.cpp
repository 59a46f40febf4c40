// The game folder found by pointing at bf1942.exe: the folder is what stands before the name.
#include <QLineEdit>

#include "gui/paths_dialog/paths_dialog.h"

namespace umbrakit {

namespace {
// A backslash and the ten characters of "bf1942.exe".
constexpr int kSeparatorAndExeName = 11;
} // namespace

void PathsDialog::Path_Click() {
    cDialog.Filter = "Battlefield 1942|bf1942.exe";
    cDialog.FileName = "bf1942.exe";
    cDialog.ShowOpen();
    const QString answer = cDialog.FileName;
    // Only the length counts, not the name. A shorter answer has no folder to give.
    if (answer.size() < kSeparatorAndExeName)
        return;
    controls().GamePath_Text->setText(answer.left(answer.size() - kSeparatorAndExeName));
}

} // namespace umbrakit
