// The grid as one tab stop: only the focused patch takes Tab; the keys move the focus among
// the enabled patches, and the grid draws a focus ring a 16 pixel box could not show clearly.
#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <optional>

#include "gui/main_window/patch_grid.h"

namespace umbrakit {

namespace {
// Home and End keep the row and Page Up and Page Down the column, as in a text or a list;
// with Ctrl, Home and End go to the world's first and last patch on the screen.
std::optional<GridMove> moveFor(const QKeyEvent& key) {
    const bool control = key.modifiers().testFlag(Qt::ControlModifier);
    switch (key.key()) {
    case Qt::Key_Left:
        return GridMove::Left;
    case Qt::Key_Right:
        return GridMove::Right;
    case Qt::Key_Up:
        return GridMove::Up;
    case Qt::Key_Down:
        return GridMove::Down;
    case Qt::Key_Home:
        return control ? GridMove::TopLeft : GridMove::RowStart;
    case Qt::Key_End:
        return control ? GridMove::BottomRight : GridMove::RowEnd;
    case Qt::Key_PageUp:
        return GridMove::Top;
    case Qt::Key_PageDown:
        return GridMove::Bottom;
    default:
        return std::nullopt;
    }
}

// The ring fills the 2 pixel margin around a patch, clear of its neighbours' rings.
QRect ringAround(const QWidget* patch) {
    return patch->geometry().adjusted(-2, -2, 2, 2);
}
} // namespace

void PatchGrid::moveTabStop(int patch, bool focus) {
    if (patch != focusedPatch_) {
        patches_[std::size_t(focusedPatch_)]->setFocusPolicy(Qt::ClickFocus);
        patches_[std::size_t(patch)]->setFocusPolicy(Qt::StrongFocus);
        focusedPatch_ = patch;
    }
    if (focus)
        patches_[std::size_t(patch)]->setFocus(Qt::OtherFocusReason);
}

bool PatchGrid::moveFocusByKey(const QKeyEvent& key) {
    const std::optional<GridMove> move = moveFor(key);
    if (!move)
        return false; // Space, Tab and the rest go to the check box as always
    moveTabStop(patchAfterMove(focusedPatch_, *move, selection_.world()), true);
    return true;
}

// A click gives a patch the focus too; the tab stop follows it.
void PatchGrid::followFocus(int patch, bool focused) {
    if (focused)
        moveTabStop(patch, false);
    update(ringAround(patches_[std::size_t(patch)]));
}

void PatchGrid::paintEvent(QPaintEvent*) {
    const QCheckBox* focused = patches_[std::size_t(focusedPatch_)];
    if (!focused->hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(ringAround(focused)).adjusted(1, 1, -1, -1));
}

} // namespace umbrakit
