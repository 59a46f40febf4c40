// The toolkit's own share: the work of CheckAll and ClearAll done on the bare window's plain
// check boxes, to set the grid handlers' times against.
#include <QCheckBox>

#include "handler_cases.h"

namespace umbrakit::bench {

namespace {
int ticked(const QList<QCheckBox*>& boxes) {
    int count = 0;
    for (const QCheckBox* box : boxes)
        count += box->isChecked() ? 1 : 0;
    return count;
}

void tickAll(const QList<QCheckBox*>& boxes, bool tick) {
    for (QCheckBox* box : boxes)
        box->setChecked(tick);
}
} // namespace

std::vector<HandlerCase> bareWindowCases(QMainWindow& bare) {
    // The 256 patches: the pass options stand in their frames, one level down.
    const QList<QCheckBox*> patches =
        bare.centralWidget()->findChildren<QCheckBox*>(Qt::FindDirectChildrenOnly);
    for (QCheckBox* patch : patches)
        patch->setEnabled(true);
    std::vector<HandlerCase> cases;
    cases.push_back(
        {"bare window: tick 256 QCheckBox", [patches](int) { tickAll(patches, false); },
         [patches](int) { tickAll(patches, true); },
         [patches] { return ticked(patches) == 256 ? QString() : QString("not all ticked"); }});
    cases.push_back(
        {"bare window: untick 256 QCheckBox", [patches](int) { tickAll(patches, true); },
         [patches](int) { tickAll(patches, false); },
         [patches] { return ticked(patches) == 0 ? QString() : QString("ticks left"); }});
    return cases;
}

} // namespace umbrakit::bench
