// Moving through the patch grid by keys. The world is the square of enabled patches in the
// bottom-left corner; row 0 is at the bottom of the screen, so "up" means a higher row.
#pragma once

#include "core/world_size.h"

namespace umbrakit {

enum class GridMove {
    Left,
    Right,
    Up,          // one row up on the screen: row + 1
    Down,        // row - 1
    RowStart,    // the left edge of the world, same row
    RowEnd,      // the right edge of the world, same row
    Top,         // the top edge of the world, same column
    Bottom,      // the bottom edge of the world (row 0), same column
    TopLeft,     // the world's first patch in reading order
    BottomRight, // the world's last patch in reading order
};

// The patch a move leads to; a move beyond the world's edge stays at the edge.
int patchAfterMove(int patch, GridMove move, WorldSize world);

// The patch of the world nearest to the given one (itself if it lies in the world).
int nearestPatchInWorld(int patch, WorldSize world);

} // namespace umbrakit
