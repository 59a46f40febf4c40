// Each code page is passed, not taken from the system, so the program's own conversion (Linux)
// and Windows' (under Wine) are both held to the same expectations.
#include "core/ansi_text.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>

namespace {
constexpr std::string_view kCp1252Golden =
#include "golden/cp1252.inc"
    ;
} // namespace

using namespace umbrakit;

// Against iconv's table (golden/cp1252.txt, from tools/make-code-page-golden). Its five bytes
// without a character read as the C1 control of their number and write back to it; the other C1
// controls are refused: U+0080 written as 0x80 would read back as the euro sign.
TEST_CASE("Windows-1252 against iconv, every byte and every character up to U+FFFF") {
    std::map<char32_t, char> byteOf; // the characters iconv writes, and the five it does not read
    std::istringstream golden{std::string(kCp1252Golden)};
    int bytesRead = 0;
    for (std::string line; std::getline(golden, line);) {
        std::istringstream words(line);
        std::string kind, from, to;
        words >> kind >> from >> to;
        if (kind == "read") {
            const char byte = char(std::stoi(from, nullptr, 16));
            const char32_t c =
                to == "-" ? char32_t(std::uint8_t(byte)) : std::stoul(to, nullptr, 16);
            CHECK_MESSAGE(fromAnsi(std::string(1, byte), kWestern) == std::u32string(1, c), line);
            byteOf[c] = byte;
            ++bytesRead;
        } else if (kind == "write") {
            byteOf[std::stoul(from, nullptr, 16)] = char(std::stoi(to, nullptr, 16));
        }
    }
    REQUIRE(bytesRead == 128);
    std::string wrong;
    for (char32_t c = 0x80; c < 0x10000; ++c) {
        const auto found = byteOf.find(c);
        const auto expected =
            found == byteOf.end() ? std::nullopt : std::optional(std::string(1, found->second));
        char name[12];
        std::snprintf(name, sizeof name, "U+%04X ", unsigned(c));
        if (toAnsi(std::u32string(1, c), kWestern) != expected && wrong.size() < 80)
            wrong += name;
    }
    CHECK(wrong == "");
}

TEST_CASE("Windows-1252 names the first character without a byte") {
    CHECK(firstUnwritable(U"abЖ日", kWestern) == U'Ж');
    CHECK(firstUnwritable(U"a😀", kWestern) == U'😀');
    CHECK(firstUnwritable(U"Level\u0085\u0080", kWestern) == U'\u0085');
    CHECK_FALSE(firstUnwritable(U"D:\\Spiele\\Über", kWestern));
    CHECK(toAnsi(U"", kWestern) == "");
    // A message names a character that shows nothing by its number.
    CHECK(characterForMessage(U'\u0085') == U"U+0085");
    CHECK(characterForMessage(U'\u200B') == U"U+200B");
    CHECK(characterForMessage(U'Ж') == U"Ж");
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
