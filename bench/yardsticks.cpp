#include <QCheckBox>
#include <QFile>
#include <QMainWindow>
#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

#include "user_actions.h"

namespace umbrakit::bench {

namespace {
void tickAll(const QList<QCheckBox*>& boxes, bool tick) {
    for (QCheckBox* box : boxes)
        box->setChecked(tick);
}

bool allTicked(const QList<QCheckBox*>& boxes, bool tick) {
    return std::all_of(boxes.begin(), boxes.end(),
                       [tick](auto* box) { return box->isChecked() == tick; });
}

// lmList.dat's 512 bytes written beside the old file, flushed to the disk and renamed over it.
bool replaceDurably(const QByteArray& path) {
    const QByteArray temporary = path + ".tmp";
    const QByteArray bytes(512, '\0');
    const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0)
        return false;
    const bool written = ::write(file, bytes.constData(), 512) == 512 && ::fsync(file) == 0;
    return ::close(file) == 0 && written && ::rename(temporary.constData(), path.constData()) == 0;
}
} // namespace

std::vector<UserAction> yardsticks(QMainWindow& bareWindow, const QString& folder) {
    // The 256 patches; the pass boxes stand in their frames, one level down.
    const QList<QCheckBox*> patches =
        bareWindow.centralWidget()->findChildren<QCheckBox*>(Qt::FindDirectChildrenOnly);
    for (QCheckBox* patch : patches)
        patch->setEnabled(true);
    const QByteArray path = QFile::encodeName(folder + "/system.dat");
    auto replaced = std::make_shared<bool>(true);
    return {
        {"yardstick: tick 256 plain QCheckBox", [patches] { tickAll(patches, false); },
         [patches] { tickAll(patches, true); }, [patches] { return allTicked(patches, true); }},
        {"yardstick: untick 256 plain QCheckBox", [patches] { tickAll(patches, true); },
         [patches] { tickAll(patches, false); }, [patches] { return allTicked(patches, false); }},
        {"yardstick: write 512 bytes, flush, rename over", nullptr,
         [path, replaced] { *replaced = replaceDurably(path) && *replaced; },
         [replaced] { return *replaced; }},
    };
}

} // namespace umbrakit::bench
