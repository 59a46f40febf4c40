#include <doctest/doctest.h>

#include "core/script_hazards.h"

using namespace umbrakit;

TEST_CASE("characters the batch processor would read otherwise") {
    ScriptValues values{"D:\\Games\\BF1942", "MyLevel", "BF1942", 1.5, true, true, true};
    CHECK(scriptHazards(values).empty());
    values.modName = "Desert Combat"; // a blank is the user's own choice: two words
    CHECK(scriptHazards(values).empty());

    values.levelName = "For\xEAt";
    values.modName = "A&B";
    const auto hazards = scriptHazards(values);
    REQUIRE(hazards.size() == 2);
    CHECK(hazards[0].field == ScriptHazard::LevelName);
    CHECK(hazards[0].character == 0xEA);
    CHECK(hazards[1].field == ScriptHazard::ModName);
    CHECK(hazards[1].character == '&');

    // "&" is harmless inside the quoted paths, "%" is not
    values = {"D:\\R&D\\BF1942", "50%", "BF1942", 1.5, false, false, false};
    REQUIRE(scriptHazards(values).size() == 1);
    CHECK(scriptHazards(values)[0].character == '%');
}
