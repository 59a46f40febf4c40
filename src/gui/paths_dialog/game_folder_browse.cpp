// The game folder found by pointing at bf1942.exe: the folder is what stands before the name.
#include <QLineEdit>

#include "gui/paths_dialog/paths_dialog.h"

namespace umbrakit {

namespace {
// A backslash and the ten characters of "bf1942.exe".
constexpr int kSeparatorAndExeName = 11;
} // namespace

void PathsDialog::browseForGame() {
    fileDialog_.Filter = "Battlefield 1942|bf1942.exe";
    fileDialog_.FileName = "bf1942.exe";
    fileDialog_.ShowOpen();
    const QString answer = fileDialog_.FileName;
    // Only the length counts, not the name. A shorter answer has no folder to give.
    if (answer.size() < kSeparatorAndExeName)
        return;
    controls().gamePathBox->setText(answer.left(answer.size() - kSeparatorAndExeName));
}

} // namespace umbrakit
