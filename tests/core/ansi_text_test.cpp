// The same expectations hold on Linux, where the conversion is the program's own, and under
// Wine, where Windows' conversion functions do it: each code page is passed, not taken from
// the system, so both paths run on every system.
#include "core/ansi_text.h"

#include <doctest/doctest.h>

#include <string>

using namespace umbrakit;

TEST_CASE("Windows-1252") {
    SUBCASE("every byte survives a round trip") {
        for (int b = 0; b < 256; ++b) {
            const std::string byte(1, static_cast<char>(b));
            CHECK_MESSAGE(toAnsi(fromAnsi(byte, kWestern), kWestern) == byte, "byte ", b);
        }
        CHECK(fromAnsi("\x80\x9f\xe9\x81", kWestern) == U"€Ÿé\u0081");
        CHECK(toAnsi(U"Ü € – “”", kWestern) == "\xdc \x80 \x96 \x93\x94");
    }
    SUBCASE("characters without a byte are refused, never given a look-alike") {
        CHECK_FALSE(toAnsi(U"Ж", kWestern));
        CHECK_FALSE(toAnsi(U"ā", kWestern)); // best fit would make it "a"
        CHECK(firstUnwritable(U"abЖ日", kWestern) == U'Ж');
        CHECK(firstUnwritable(U"a😀", kWestern) == U'😀');
        CHECK_FALSE(firstUnwritable(U"D:\\Spiele\\Über", kWestern));
        CHECK(toAnsi(U"", kWestern) == "");
    }
}

TEST_CASE("a system whose ANSI code page is UTF-8") {
    CHECK(toAnsi(U"Forêt Ж 😀", kUtf8) == "For\xC3\xAAt \xD0\x96 \xF0\x9F\x98\x80");
    CHECK(fromAnsi("For\xC3\xAAt \xD0\x96 \xF0\x9F\x98\x80", kUtf8) == U"Forêt Ж 😀");
    CHECK_FALSE(firstUnwritable(U"日本 Über", kUtf8));
    CHECK(firstUnwritable(U"a\xD800", kUtf8) == U'\xD800'); // a lone surrogate is no character
    CHECK(fromAnsi(std::string("a\xFF") + "b", kUtf8) == U"a\uFFFDb");
    // An overlong form is no character, or "/" could hide in a name as three other bytes.
    CHECK(fromAnsi("\xE0\x80\xAF", kUtf8).find(U'/') == std::u32string::npos);
}
