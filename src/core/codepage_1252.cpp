#include "core/codepage_1252.h"

#include <array>

namespace umbrakit {

namespace {

// Characters of the bytes 0x80 to 0x9F; all other bytes are their own code point.
constexpr std::array<char32_t, 32> high = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t malformed = 0xFFFD;

char32_t charOfByte(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? high[byte - 0x80] : byte;
}

std::optional<unsigned char> byteOfChar(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<unsigned char>(c);
    for (std::size_t i = 0; i < high.size(); ++i)
        if (high[i] == c)
            return static_cast<unsigned char>(0x80 + i);
    return std::nullopt;
}

// Decodes the character at pos and moves past it. Overlong forms, surrogates, values above
// U+10FFFF and cut-off sequences give nullopt.
std::optional<char32_t> decodeNext(std::string_view text, std::size_t& pos) {
    auto lead = static_cast<unsigned char>(text[pos++]);
    if (lead < 0x80)
        return lead;
    int extra = 0;
    char32_t least = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        extra = 1;
        least = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        extra = 2;
        least = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        extra = 3;
        least = 0x10000;
    } else {
        return std::nullopt;
    }
    char32_t c = lead & (0x3F >> extra);
    for (; extra > 0; --extra) {
        if (pos >= text.size())
            return std::nullopt;
        auto next = static_cast<unsigned char>(text[pos]);
        if ((next & 0xC0) != 0x80)
            return std::nullopt;
        c = (c << 6) | (next & 0x3F);
        ++pos;
    }
    if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
        return std::nullopt;
    return c;
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        // Windows-1252 needs nothing beyond the Basic Multilingual Plane.
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

} // namespace

std::optional<std::string> utf8ToWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t pos = 0; pos < utf8.size();) {
        std::optional<char32_t> c = decodeNext(utf8, pos);
        std::optional<unsigned char> byte = c ? byteOfChar(*c) : std::nullopt;
        if (!byte)
            return std::nullopt;
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

std::string windows1252ToUtf8(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (char byte : bytes)
        appendUtf8(utf8, charOfByte(static_cast<unsigned char>(byte)));
    return utf8;
}

std::optional<char32_t> firstUnrepresentable(std::string_view utf8) {
    for (std::size_t pos = 0; pos < utf8.size();) {
        std::optional<char32_t> c = decodeNext(utf8, pos);
        if (!c)
            return malformed;
        if (!byteOfChar(*c))
            return c;
    }
    return std::nullopt;
}

} // namespace umbrakit
