#include "core/number_text.h"

#include <doctest/doctest.h>

#include <clocale>
#include <cstdio>
#include <limits>
#include <locale>
#include <stdexcept>
#include <string>

using umbrakit::numberText;
using umbrakit::textToNumber;

TEST_CASE("number text") {
    constexpr double inf = std::numeric_limits<double>::infinity();
    for (auto [value, text] : {std::pair{1.5, "1.5"},
                               {2.0, "2"},
                               {0.1 + 0.2, "0.3"},
                               {-0.0, "0"},
                               {2.0 / 3, "0.666666666666667"},
                               {999999999999999.0, "999999999999999"},
                               {0.0001, "0.0001"},
                               {1.5e-7, "1.5E-07"},
                               {1e15, "1E+15"},
                               {-123456789012345678.0, "-1.23456789012346E+17"},
                               {inf - inf, "NaN"},
                               {-inf, "-Inf"}})
        CHECK(numberText(value) == text);

    CHECK(textToNumber(" \t-1.5E-07 \t") == -1.5e-7);
    CHECK(textToNumber("+.5") == 0.5);
    CHECK(textToNumber("5.") == 5.0);
    for (const char* text : {"", " ", "1,5", "nan", "inf", "0x10", "1e999", ".", "-", "1e", "1.5x"})
        CHECK_MESSAGE(!textToNumber(text), "'", text, "'");
    for (double value : {0.35, 1e-5, 1e300, 4.9e-324, std::numeric_limits<double>::max()})
        CHECK(textToNumber(numberText(value)).has_value());
}

// Under a German locale, glibc's or the Windows C runtime's, the C library writes a comma.
TEST_CASE("a comma locale changes nothing") {
    const std::string oldC = std::setlocale(LC_ALL, nullptr);
    const char* german =
        std::setlocale(LC_ALL, "de_DE.UTF-8") ? "de_DE.UTF-8" : "German_Germany.1252";
    REQUIRE_MESSAGE(std::setlocale(LC_ALL, german), "no German locale installed");
    try {
        std::locale::global(std::locale(german));
    } catch (const std::runtime_error&) {
        // MinGW's libstdc++ has no named C++ locales; the C runtime's is set all the same.
    }
    char cText[8];
    std::snprintf(cText, sizeof cText, "%g", 1.5);
    CHECK(std::string(cText) == "1,5");
    CHECK(numberText(1.5) == "1.5");
    CHECK(textToNumber("1.5") == 1.5);
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, oldC.c_str());
}
