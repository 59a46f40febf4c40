#include "core/batch_script.h"
#include "core/script_hazards.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <vector>

using namespace umbrakit;
using Lines = std::vector<std::u32string>;

namespace {

const Configuration example{U"D:\\Games\\BF1942", U"MyLevel", U"BF1942", 1.5, {}};
const std::u32string head = UR"("D:\Games\BF1942\BF1942.exe" +game BF1942 +workingFolder )"
                            UR"("D:\Games\BF1942\ShadowWork\")";
const std::u32string terrain =
    head + UR"( +traceTerrainShadows "bf1942\levels\MyLevel\" "MyLevel\lmList.dat" )"
           UR"("D:\Games\BF1942\ShadowWork\bf1942\levels\MyLevel\textures")";
const std::u32string merge = head + UR"( +mergeTerrainShadows "bf1942\levels\MyLevel\ 1.5 0.4")";
const std::u32string object = head + UR"( +traceObjectShadows "bf1942\levels\MyLevel\")";

} // namespace

TEST_CASE("go.bat, byte for byte: every subset of passes keeps their order, no empty line") {
    Configuration c = example;
    for (int mask = 0; mask < 8; ++mask) {
        c.passes = {bool(mask & 1), bool(mask & 2), bool(mask & 4)};
        std::string expected = "@cd D:\\Games\\BF1942\r\n@D:\r\n";
        for (auto [on, line] : {std::pair{c.passes.terrain, terrain},
                                {c.passes.merge, merge},
                                {c.passes.object, object}})
            if (on)
                expected += std::string(line.begin(), line.end()) + "\r\n";
        CHECK(std::get<std::string>(scriptBytes(c, kWestern)) == expected);
    }
}

TEST_CASE("go.bat: texts go in as they are, unless the code page cannot hold them") {
    Configuration c{U"C:\\BF\\", U"MyLevel", U"Desert Combat", 2.0, {false, true, false}};
    CHECK(composeScriptLines(c) ==
          Lines{U"@cd C:\\BF\\", U"@C:",
                UR"("C:\BF\\BF1942.exe" +game Desert Combat +workingFolder "C:\BF\\ShadowWork\")"
                UR"( +mergeTerrainShadows "bf1942\levels\MyLevel\ 2 0.4")"});
    c.gamePath = U"X";
    CHECK(composeScriptLines(c)[1] == U"@X");
    c.gamePath = U"";
    CHECK(composeScriptLines(c)[1] == U"@");

    // The first field the code page cannot hold is named; under UTF-8 everything is written.
    c = example;
    c.levelName = U"Forêt Ω";
    c.modName = U"Ж";
    CHECK(std::get<UnwritableText>(scriptBytes(c, kWestern)) ==
          UnwritableText{TextField::LevelName, U'Ω'});
    CHECK(std::get<std::string>(scriptBytes(c, kUtf8)).starts_with("@cd D:"));
    c.levelName = U"Forêt";
    c.modName = U"BF1942";
    c.passes.object = true;
    CHECK(std::get<std::string>(scriptBytes(c, kWestern)).find("levels\\For\xEAt\\\"\r\n") !=
          std::string::npos);
}

TEST_CASE("completeness for a run: a darkness above 0 and three texts, blanks being text") {
    for (const auto& [c, complete] :
         {std::pair{Configuration{U" ", U" ", U" ", 0.1, {}}, true},
          {Configuration{U"g", U"l", U"m", std::numeric_limits<double>::quiet_NaN(), {}}, false},
          {Configuration{U"g", U"", U"m", 1.5, {}}, false},
          {Configuration{U"g", U"l", U"m", 0.0, {}}, false}})
        CHECK(isCompleteForRun(c) == complete);
}

TEST_CASE("characters the batch processor would read otherwise") {
    Configuration c = example;
    c.modName = U"Desert Combat"; // a blank is the user's own choice: two words
    CHECK(scriptHazards(c).empty());
    c.levelName = U"For\u0080t"; // beyond ASCII: the console's code page reads another letter
    c.modName = U"A&B";
    CHECK(scriptHazards(c) ==
          std::vector<ScriptHazard>{{TextField::LevelName, U'\u0080'}, {TextField::ModName, U'&'}});
    c.levelName = U"MyLevel";
    for (char32_t own : std::u32string_view(U"%\"^&|<>")) {
        c.modName = std::u32string(U"Mod") + own; // unquoted: all of them are cmd's own
        CHECK(scriptHazards(c) == std::vector<ScriptHazard>{{TextField::ModName, own}});
    }
    // Inside the quoted paths only "%" and a quote are
    c = {U"D:\\R&D^<|>\\BF1942", U"50%", U"BF1942", 1.5, {}};
    CHECK(scriptHazards(c) == std::vector<ScriptHazard>{{TextField::LevelName, U'%'}});
    c.gamePath = U"a\"b";
    CHECK(scriptHazards(c).front() == ScriptHazard{TextField::GamePath, U'"'});
}
