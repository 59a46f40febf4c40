#include "lighting/number_text.h"

#include <doctest/doctest.h>

#include <clocale>
#include <limits>
#include <locale>
#include <string>
#include <utility>

using umbrakit::numberText;
using umbrakit::textToNumber;

TEST_CASE("number text") {
    SUBCASE("15 digits, plain or with exponent") {
        constexpr double inf = std::numeric_limits<double>::infinity();
        for (auto [value, text] : {std::pair{1.5, "1.5"},
                                   {2.0, "2"},
                                   {0.35, "0.35"},
                                   {0.1 + 0.2, "0.3"},
                                   {-0.0, "0"},
                                   {2.0 / 3, "0.666666666666667"},
                                   {999999999999999.0, "999999999999999"},
                                   {0.0001, "0.0001"},
                                   {1e-5, "1E-05"},
                                   {1.5e-7, "1.5E-07"},
                                   {1e15, "1E+15"},
                                   {-123456789012345678.0, "-1.23456789012346E+17"},
                                   {inf - inf, "NaN"},
                                   {-inf, "-Inf"}})
            CHECK(numberText(value) == text);
    }
    SUBCASE("read back") {
        CHECK(textToNumber(" \t-1.5E-07 \t") == -1.5e-7);
        CHECK(textToNumber("+.5") == 0.5);
        CHECK(textToNumber("5.") == 5.0);
        for (const char* text :
             {"", " ", "1,5", "nan", "inf", "0x10", "1e999", ".", "-", "1e", "1.5x", "1 5", "\n1"})
            CHECK_MESSAGE(!textToNumber(text), "'", text, "'");
        for (double value : {1.5, -2.0, 0.35, 1e-5, 1e15, 1e300, 4.9e-324})
            CHECK(textToNumber(numberText(value)) == value);
    }
    SUBCASE("a comma locale changes nothing") {
        std::string oldC = std::setlocale(LC_ALL, nullptr);
        std::locale oldCpp;
        if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) {
            MESSAGE("locale de_DE.UTF-8 missing, not tested");
            return;
        }
        std::locale::global(std::locale("de_DE.UTF-8"));
        CHECK(numberText(1.5) == "1.5");
        CHECK(textToNumber("1.5") == 1.5);
        std::locale::global(oldCpp);
        std::setlocale(LC_ALL, oldC.c_str());
    }
}
