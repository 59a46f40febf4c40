// The 16 by 16 patch grid with its axis labels. Its check boxes are the only store of the
// selection: row 0 is at the bottom, column 0 at the left, patch index row * 16 + column.
#pragma once

#include <QWidget>
#include <array>

#include "core/lmlist_format.h"
#include "core/world_size.h"

class QCheckBox;
class QLabel;

namespace umbrakit {

class PatchGrid : public QWidget {
    Q_OBJECT
  public:
    explicit PatchGrid(QWidget* parent);

    QCheckBox* patch(int index) const { return patches_[std::size_t(index)]; }

    // Patches of the world are enabled; those outside it greyed and unticked for good.
    void showWorld(WorldSize world);
    // Every patch of the world ticked, every other one unticked.
    void selectAll(WorldSize world);
    void clear();
    PatchValues values() const;

  private:
    std::array<QCheckBox*, kPatchCount> patches_;
    std::array<QLabel*, 2 * kGridSide> axisLabels_;
};

} // namespace umbrakit
