#include "core/patch_navigation.h"

#include <algorithm>

namespace umbrakit {

namespace {
int worldRows(WorldSize world) {
    return world.indexBound / kGridSide;
}

// Both clamps keep at least patch 0, which every world holds.
int patchAt(int column, int row, WorldSize world) {
    column = std::clamp(column, 0, std::max(world.columns - 1, 0));
    row = std::clamp(row, 0, std::max(worldRows(world) - 1, 0));
    return row * kGridSide + column;
}
} // namespace

int patchAfterMove(int patch, GridMove move, WorldSize world) {
    const int column = patchColumn(patch);
    const int row = patchRow(patch);
    const int last = kGridSide; // beyond every world; the clamp finds its edge
    switch (move) {
    case GridMove::Left:
        return patchAt(column - 1, row, world);
    case GridMove::Right:
        return patchAt(column + 1, row, world);
    case GridMove::Up:
        return patchAt(column, row + 1, world);
    case GridMove::Down:
        return patchAt(column, row - 1, world);
    case GridMove::RowStart:
        return patchAt(0, row, world);
    case GridMove::RowEnd:
        return patchAt(last, row, world);
    case GridMove::Top:
        return patchAt(column, last, world);
    case GridMove::Bottom:
        return patchAt(column, 0, world);
    case GridMove::TopLeft:
        return patchAt(0, last, world);
    case GridMove::BottomRight:
        return patchAt(last, 0, world);
    }
    return patch;
}

int nearestPatchInWorld(int patch, WorldSize world) {
    return patchAt(patchColumn(patch), patchRow(patch), world);
}

} // namespace umbrakit
