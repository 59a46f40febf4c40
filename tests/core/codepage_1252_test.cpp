#include "core/codepage_1252.h"

#include <doctest/doctest.h>

#include <string>

using umbrakit::firstUnrepresentable;
using umbrakit::utf8ToWindows1252;
using umbrakit::windows1252ToUtf8;

TEST_CASE("Windows-1252") {
    SUBCASE("every byte survives a round trip") {
        for (int b = 0; b < 256; ++b) {
            std::string byte(1, static_cast<char>(b));
            CHECK_MESSAGE(utf8ToWindows1252(windows1252ToUtf8(byte)) == byte, "byte ", b);
        }
        CHECK(windows1252ToUtf8("\x80\x9f\xe9\x81") == "€Ÿé\u0081");
        CHECK(utf8ToWindows1252("Ü € – “”") == "\xdc \x80 \x96 \x93\x94");
    }
    SUBCASE("characters without a byte") {
        CHECK_FALSE(utf8ToWindows1252("Ж"));
        CHECK(firstUnrepresentable("abЖ日") == U'Ж');
        CHECK(firstUnrepresentable("a😀") == U'😀');
        CHECK(firstUnrepresentable("\u0080") == U'\u0080'); // 0x80 is the euro sign
        CHECK_FALSE(firstUnrepresentable("D:\\Spiele\\Über"));
    }
    SUBCASE("malformed UTF-8") {
        for (const char* text : {"\x80", "a\xc3", "\xc3(", "\xc0\xaf", "\xe0\x80\xaf",
                                 "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xff"}) {
            CHECK_FALSE(utf8ToWindows1252(text));
            CHECK(firstUnrepresentable(text) == U'\uFFFD');
        }
    }
}
