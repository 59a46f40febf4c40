// Ticking by dragging: pressing on an enabled patch and moving across others gives every
// enabled patch passed over the state the pressed patch takes. Each change is the box's own
// click, so everything that follows a click follows a drag too.
#include <QCheckBox>
#include <QMouseEvent>

#include "gui/main_window/patch_grid.h"

namespace umbrakit {

namespace {
// Closer than the 4 pixel gap between two patches, so that no patch is jumped over.
constexpr int kStep = 2;
} // namespace

// The pressed patch holds the mouse until the release, so every event of a drag comes here
// through it. Until the pointer reaches another patch the box acts alone, as on a click.
bool PatchGrid::followDrag(int patch, QMouseEvent& mouse) {
    QCheckBox* box = patches_[std::size_t(patch)];
    const QPoint point = box->mapToParent(mouse.position().toPoint());
    switch (mouse.type()) {
    case QEvent::MouseButtonPress:
        if (mouse.button() == Qt::LeftButton && selection_.isEnabled(patch))
            dragState_ = {patch, !selection_.isTicked(patch), false, point};
        return false;
    case QEvent::MouseMove:
        if (dragState_.origin != patch || !mouse.buttons().testFlag(Qt::LeftButton))
            return false;
        spreadAlong(dragState_.last, point);
        dragState_.last = point;
        return dragState_.spreading; // the pressed box must not go down again
    case QEvent::MouseButtonRelease:
        // The box was let up when the drag spread, so its release clicks nothing.
        if (mouse.button() == Qt::LeftButton)
            dragState_ = {};
        return false;
    default:
        return false;
    }
}

void PatchGrid::spreadAlong(QPoint from, QPoint to) {
    const QPoint way = to - from;
    const int steps = std::max(std::abs(way.x()), std::abs(way.y())) / kStep + 1;
    for (int step = 1; step <= steps; ++step) {
        const int under = indexOf(childAt(from + way * step / steps));
        if (under < 0 || under == dragState_.origin)
            continue;
        if (!dragState_.spreading) {
            dragState_.spreading = true;
            patches_[std::size_t(dragState_.origin)]->setDown(false);
            giveDragState(dragState_.origin);
        }
        giveDragState(under);
    }
}

void PatchGrid::giveDragState(int patch) {
    if (selection_.isEnabled(patch) && selection_.isTicked(patch) != dragState_.ticks)
        patches_[std::size_t(patch)]->click();
}

} // namespace umbrakit
