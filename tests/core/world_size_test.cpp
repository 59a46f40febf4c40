#include <doctest/doctest.h>

#include "core/world_size.h"

using namespace umbrakit;

namespace {
int countInWorld(int listIndex) {
    int count = 0;
    for (int patch = 0; patch < kPatchCount; ++patch)
        count += isInWorld(patch, worldSizeFor(listIndex)) ? 1 : 0;
    return count;
}
} // namespace

TEST_CASE("each world is a square block in the bottom left corner") {
    CHECK(countInWorld(0) == 16);
    CHECK(countInWorld(1) == 64);
    CHECK(countInWorld(2) == 144); // "16x16" is 12 by 12
    CHECK(countInWorld(3) == 256);
    CHECK(countInWorld(7) == 256); // anything past the table is the whole grid
    for (int listIndex = 0; listIndex < 4; ++listIndex) {
        const WorldSize world = worldSizeFor(listIndex);
        for (int patch = 0; patch < kPatchCount; ++patch) {
            const bool square = patchColumn(patch) < world.columns && patchRow(patch) < world.columns;
            CHECK(isInWorld(patch, world) == square);
        }
    }
}

TEST_CASE("the boundaries of the 16x16 world") {
    const WorldSize world = worldSizeFor(2);
    CHECK(isInWorld(11, world));
    CHECK(isInWorld(187, world));
    CHECK_FALSE(isInWorld(12, world));
    CHECK_FALSE(isInWorld(191, world));
    CHECK_FALSE(isInWorld(192, world));
    CHECK(isInWorld(3, worldSizeFor(0)));
    CHECK_FALSE(isInWorld(4, worldSizeFor(0)));
    CHECK_FALSE(isInWorld(64, worldSizeFor(0)));
}
