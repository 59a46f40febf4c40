// The world sizes and the patch list lmList.dat.
#include <doctest/doctest.h>

#include "core/lmlist_format.h"

using namespace umbrakit;

TEST_CASE("each world is a square block in the bottom left corner") {
    const int sides[] = {4, 8, 12, 16, 16}; // "16x16" is 12 by 12; past the table, the whole grid
    for (int listIndex = 0; listIndex < 5; ++listIndex)
        for (int patch = 0; patch < kPatchCount; ++patch)
            CHECK(isInWorld(patch, worldSizeFor(listIndex)) ==
                  (patchColumn(patch) < sides[listIndex] && patchRow(patch) < sides[listIndex]));
}

TEST_CASE("lmList.dat: column then row of each patch whose value is exactly 1") {
    PatchValues values{};
    CHECK(encodeLmList(values).empty());
    values[0] = values[5] = values[35] = values[255] = 1; // the worked example
    values[1] = 2;
    values[2] = -1;
    CHECK(encodeLmList(values) == std::string("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
    values.fill(1);
    const std::string all = encodeLmList(values);
    REQUIRE(all.size() == 512);
    CHECK(all.substr(30, 4) == std::string("\x0F\x00\x00\x01", 4)); // row 0 ends, row 1 begins
}
