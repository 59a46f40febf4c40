// The 16 by 16 patch grid with its axis labels: row 0 is at the bottom, column 0 at the left,
// patch index row * 16 + column. Its check boxes show the patch selection; a click, Space or
// a drag goes to the selection, and the box then shows what the selection holds.
//
// The grid is one tab stop: only its focused patch takes Tab, the arrow keys and Home, End,
// Page Up and Page Down move the focus inside the world, and Space ticks as on any check box.
// Dragging from a patch gives every patch passed over the new state of the first.
#pragma once

#include <QPoint>
#include <QWidget>
#include <array>

#include "core/patch_navigation.h"
#include "core/patch_selection.h"

class QCheckBox;
class QKeyEvent;
class QLabel;
class QMouseEvent;

namespace umbrakit {

class PatchGrid : public QWidget {
    Q_OBJECT
  public:
    explicit PatchGrid(QWidget* parent);

    QCheckBox* patch(int index) const { return patches_[std::size_t(index)]; }
    const PatchSelection& selection() const { return selection_; }

    // Patches of the world are enabled; those outside it greyed and unticked for good.
    void showWorld(WorldSize world);
    // Every patch of the world ticked, every other one unticked.
    void selectAll(WorldSize world);
    void clear();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int indexOf(const QObject* object) const;
    void clickPatch(int patch);
    void showTicks();

    // Keys and focus (patch_grid_focus.cpp).
    void moveTabStop(int patch, bool focus);
    bool moveFocusByKey(const QKeyEvent& key);
    void followFocus(int patch, bool focused);

    // Dragging with the mouse (patch_grid_drag.cpp).
    struct DragState {
        int origin = -1;        // the pressed patch, -1 while no drag is under way
        bool ticks = false;     // the state the drag gives
        bool spreading = false; // the pointer has reached another patch
        QPoint last;            // the pointer's last place, in grid coordinates
    };
    bool followDrag(int patch, QMouseEvent& mouse);
    void spreadAlong(QPoint from, QPoint to);
    void giveDragState(int patch);

    std::array<QCheckBox*, kPatchCount> patches_;
    std::array<QLabel*, 2 * kGridSide> axisLabels_;
    PatchSelection selection_;
    int focusedPatch_ = 0; // holds the tab stop, focus or not; patch 0 lies in every world
    DragState dragState_;
};

} // namespace umbrakit
