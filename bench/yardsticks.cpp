#include <QCheckBox>
#include <QMainWindow>
#include <algorithm>

#include "user_actions.h"

namespace umbrakit::bench {

std::vector<UserAction> yardsticks(QMainWindow& bareWindow) {
    // The 256 patches; the pass boxes stand in their frames, one level down.
    const QList<QCheckBox*> boxes =
        bareWindow.centralWidget()->findChildren<QCheckBox*>(Qt::FindDirectChildrenOnly);
    const auto tickAll = [boxes](bool tick) {
        for (QCheckBox* box : boxes)
            box->setChecked(tick);
    };
    const auto allAre = [boxes](bool ticked) {
        return std::all_of(boxes.begin(), boxes.end(),
                           [ticked](QCheckBox* box) { return box->isChecked() == ticked; });
    };
    for (QCheckBox* box : boxes)
        box->setEnabled(true);
    return {
        {"yardstick: tick 256 plain QCheckBox", [=] { tickAll(false); }, [=] { tickAll(true); },
         [=] { return allAre(true); }, true},
        {"yardstick: untick 256 plain QCheckBox", [=] { tickAll(true); }, [=] { tickAll(false); },
         [=] { return allAre(false); }, true},
    };
}

} // namespace umbrakit::bench
