// The world sizes of the patch grid and which patches lie in a world.
#pragma once

namespace umbrakit {

constexpr int kPatchCount = 256;
constexpr int kGridSide = 16;

inline int patchColumn(int patch) {
    return patch % kGridSide;
}
inline int patchRow(int patch) {
    return patch / kGridSide;
}

struct WorldSize {
    int columns;    // patches along a side
    int indexBound; // first patch index above the world
};

// The row of the world-size table for a list index of the world-size list. The captions are
// never parsed: "16x16" stands for 12 by 12 patches, and any index past 2 means the whole grid.
WorldSize worldSizeFor(int listIndex);

bool isInWorld(int patch, WorldSize world);

} // namespace umbrakit
