#include "core/config_format.h"

#include "core/text_lines.h"

#include <doctest/doctest.h>

using namespace umbrakit;

TEST_CASE("names and values are what stands behind the first '='") {
    CHECK(nameOfHead("[Save=a=b]]") == "a=b]");
    CHECK(nameOfHead("[Save=cut") == "cu"); // the last character goes, "]" or not
    for (const char* odd : {"", "[Save]", "[Save=", "[Save=]", "x="})
        CHECK(nameOfHead(odd).empty());
    CHECK(valueOfLine("gamePath=C:\\a=b") == "C:\\a=b");
    CHECK(valueOfLine("gamePath").empty());
}

TEST_CASE("textToBoolean") {
    for (const char* yes : {"True", "TRUE", " true\t", "-1", "+01", "99999999999999999999"})
        CHECK(textToBoolean(yes) == true);
    for (const char* no : {"False", "fAlSe ", "0", "-0", "000"})
        CHECK(textToBoolean(no) == false);
    for (const char* neither : {"", " ", "Yes", "1.5", "-", "Tr ue", "99999999999999999999x"})
        CHECK_FALSE(textToBoolean(neither).has_value());
}

TEST_CASE("keyOfLine takes the first key word anywhere in the line") {
    CHECK(keyOfLine("levelName=my gamePath map") == RecordKey::GamePath);
    CHECK(keyOfLine("shadowDarkness=levelName") == RecordKey::LevelName);
    CHECK(keyOfLine("objectBoolean=True") == RecordKey::ObjectBoolean);
    CHECK(keyOfLine("shadowDarkness") == RecordKey::ShadowDarkness);
    CHECK_FALSE(keyOfLine("GamePath=x").has_value());
}

TEST_CASE("recordLines writes the eight lines in order") {
    CHECK(joinLines(recordLines({"n", "g", "l", "m", true, false, true, "1.50"})) ==
          "[Save=n]\r\ngamePath=g\r\nlevelName=l\r\nmodName=m\r\nterrainBoolean=True\r\n"
          "mergeBoolean=False\r\nobjectBoolean=True\r\nshadowDarkness=1.50\r\n");
}
