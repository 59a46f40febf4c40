// The patch selection as the user works it: world sizes chosen, patches clicked, Select All and
// Clear, and the lmList.dat records that follow. Steps: "w1" chooses the world-size list's
// row 1, "c17" clicks patch 17, "A" is Select All under the row last chosen, "C" is Clear.
#include "core/lmlist_format.h"
#include "core/patch_selection.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <ranges>
#include <sstream>

using namespace umbrakit;

namespace {

PatchSelection after(const std::string& steps) {
    PatchSelection selection;
    int listIndex = 0;
    std::istringstream words(steps);
    for (std::string word; words >> word;) {
        const int number = word.size() > 1 ? std::stoi(word.substr(1)) : 0;
        if (word[0] == 'w')
            selection.showWorld(worldSizeFor(listIndex = number));
        else if (word[0] == 'c')
            selection.click(number);
        else if (word == "A")
            selection.selectAll(worldSizeFor(listIndex));
        else
            selection.clear();
    }
    // Whatever happened, no greyed patch stays ticked.
    for (int patch = 0; patch < kPatchCount; ++patch)
        CHECK_MESSAGE(!(selection.isTicked(patch) && !selection.isEnabled(patch)), patch);
    return selection;
}

const std::vector<int> k4x4{0, 1, 2, 3, 16, 17, 18, 19, 32, 33, 34, 35, 48, 49, 50, 51};

} // namespace

TEST_CASE("which patches stay ticked") {
    const struct {
        const char* steps;
        std::vector<int> ticked;
        int enabled;
    } cases[] = {
        {"", {}, 0},                           // every patch greyed until a world is shown
        {"w0", {}, 16},                        // indexes 0-3, 16-19, 32-35, 48-51
        {"w0 c17 w1", {17}, 64},               // growing keeps the ticks, new patches unticked
        {"w1 c17 c100 w0 w1", {17}, 64},       // shrinking loses patch 100 for good
        {"w1 c17 c100 w1", {17, 100}, 64},     // the row already chosen changes nothing
        {"w0 c4 c64 c255 c52", {}, 16},        // a greyed patch ignores the click
        {"w0 c3 c3", {}, 16},                  // a second click unticks
        {"w1 A C", {}, 64},                    // Clear keeps the world
        {"w3 A w0 C c51", {51}, 16},           // and the world's patches can be ticked again
        {"w0 A", k4x4, 16},                    // exactly the 16 of the world
        {"w3 A w0", k4x4, 16},                 // shrinking from everything ticked
        {"w2 c11 c187 w3 w2", {11, 187}, 144}, // "16x16" is 12 by 12, its corner lies in it
        {"w2 c12 c191 c192", {}, 144},         // and these three outside it
        {"w9 c255", {255}, 256},               // a row past the table means the whole grid
        {"w3 c255 c35 c0 c5", {0, 5, 35, 255}, 256}, // ticked in any order, listed ascending
    };
    for (const auto& c : cases) {
        CAPTURE(c.steps);
        const PatchSelection selection = after(c.steps);
        CHECK(selection.tickedPatches() == c.ticked);
        CHECK(std::ranges::count_if(std::views::iota(0, kPatchCount), [&](int patch) {
                  return selection.isEnabled(patch);
              }) == c.enabled);
    }
}

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
    // The ticked patches as they stand: "16x16" has 144, the whole grid 256.
    CHECK(after("w1 A w0").lmListRecords() ==
          std::string("\0\0\1\0\2\0\3\0\0\1\1\1\2\1\3\1\0\2\1\2\2\2\3\2\0\3\1\3\2\3\3\3", 32));
    CHECK(after("w2 A").lmListRecords().size() == 2 * 144);
    const std::string all = after("w3 A").lmListRecords();
    REQUIRE(all.size() == 512);
    CHECK(all.substr(30, 4) == std::string("\x0F\x00\x00\x01", 4)); // row 0 ends, row 1 begins
}
