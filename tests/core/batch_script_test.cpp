#include "core/batch_script.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

using umbrakit::composeScript;
using umbrakit::composeScriptLines;
using umbrakit::isCompleteForRun;
using umbrakit::ScriptValues;
using Lines = std::vector<std::string>;

namespace {

const ScriptValues example{"D:\\Games\\BF1942", "MyLevel", "BF1942", 1.5, false, false, false};
const std::string head = R"("D:\Games\BF1942\BF1942.exe" +game BF1942 +workingFolder )"
                         R"("D:\Games\BF1942\ShadowWork\")";
const std::string terrain =
    head + R"( +traceTerrainShadows "bf1942\levels\MyLevel\" "MyLevel\lmList.dat" )"
           R"("D:\Games\BF1942\ShadowWork\bf1942\levels\MyLevel\textures")";
const std::string merge = head + R"( +mergeTerrainShadows "bf1942\levels\MyLevel\ 1.5 0.4")";
const std::string object = head + R"( +traceObjectShadows "bf1942\levels\MyLevel\")";

} // namespace

TEST_CASE("script text") {
    ScriptValues v = example;
    SUBCASE("all passes, byte for byte") {
        v.terrain = v.merge = v.object = true;
        CHECK(composeScript(v) == "@cd D:\\Games\\BF1942\r\n@D:\r\n" + terrain + "\r\n" + merge +
                                      "\r\n" + object + "\r\n");
    }
    SUBCASE("every subset keeps the order and leaves no empty line") {
        for (int mask = 0; mask < 8; ++mask) {
            v.terrain = mask & 1, v.merge = mask & 2, v.object = mask & 4;
            Lines expected = {"@cd D:\\Games\\BF1942", "@D:"};
            for (auto [on, line] :
                 {std::pair{v.terrain, terrain}, {v.merge, merge}, {v.object, object}})
                if (on)
                    expected.push_back(line);
            CHECK(composeScriptLines(v) == expected);
        }
    }
    SUBCASE("fields go in as they are") {
        v = {"C:\\BF\\", "MyLevel", "Desert Combat", 2.0, false, true, false};
        CHECK(composeScriptLines(v) ==
              Lines{"@cd C:\\BF\\", "@C:",
                    R"("C:\BF\\BF1942.exe" +game Desert Combat +workingFolder "C:\BF\\ShadowWork\")"
                    R"( +mergeTerrainShadows "bf1942\levels\MyLevel\ 2 0.4")"});
        v.gamePath = std::string(1, 'X'); // not = "X": GCC 12 warns wrongly of an overlap
        CHECK(composeScriptLines(v)[1] == "@X");
        v.gamePath = "";
        CHECK(composeScriptLines(v)[1] == "@");
    }
}

TEST_CASE("completeness for a run") {
    ScriptValues v{" ", " ", " ", 0.1, false, false, false};
    CHECK(isCompleteForRun(v));
    for (double d : {0.0, -1.5, std::numeric_limits<double>::quiet_NaN()}) {
        ScriptValues w = v;
        w.shadowDarkness = d;
        CHECK_FALSE(isCompleteForRun(w));
    }
    for (auto field : {&ScriptValues::gamePath, &ScriptValues::levelName, &ScriptValues::modName}) {
        ScriptValues w = v;
        w.*field = "";
        CHECK_FALSE(isCompleteForRun(w));
    }
}
