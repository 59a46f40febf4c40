#include "core/ansi_text.h"

#include <array>
#include <cstdio>
#include <cstring>

#ifdef _WIN32
#include <windows.h>
#endif

namespace umbrakit {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isScalarValue(char32_t c) {
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

#ifdef _WIN32

std::optional<std::wstring> toUtf16(std::u32string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (char32_t c : text) {
        if (!isScalarValue(c))
            return std::nullopt;
        if (c < 0x10000) {
            wide += static_cast<wchar_t>(c);
        } else {
            wide += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
            wide += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return wide;
}

std::u32string fromUtf16(std::wstring_view wide) {
    std::u32string text;
    for (std::size_t i = 0; i < wide.size(); ++i) {
        const char32_t unit = wide[i];
        const bool pair = unit >= 0xD800 && unit <= 0xDBFF && i + 1 < wide.size() &&
                          wide[i + 1] >= 0xDC00 && wide[i + 1] <= 0xDFFF;
        if (pair) {
            text += 0x10000 + ((unit - 0xD800) << 10) + (char32_t(wide[i + 1]) - 0xDC00);
            ++i;
        } else {
            text += unit >= 0xD800 && unit <= 0xDFFF ? kReplacement : unit;
        }
    }
    return text;
}

// WideCharToMultiByte refuses WC_NO_BEST_FIT_CHARS for UTF-8, UTF-7 and the code pages below,
// and a used-default pointer for UTF-8 and UTF-7: asking with them would fail every
// conversion on a system whose ANSI code page is UTF-8.
DWORD conversionFlags(CodePage codePage) {
    if (codePage == CP_UTF8 || codePage == 54936)
        return WC_ERR_INVALID_CHARS;
    if (codePage == 42 || codePage == CP_UTF7 || (codePage >= 50220 && codePage <= 50229) ||
        (codePage >= 57002 && codePage <= 57011))
        return 0;
    return WC_NO_BEST_FIT_CHARS;
}

bool reportsUsedDefault(CodePage codePage) {
    return codePage != CP_UTF8 && codePage != CP_UTF7;
}

std::wstring wideOf(std::string_view bytes, CodePage codePage) {
    if (bytes.empty())
        return {};
    const int size = MultiByteToWideChar(codePage, 0, bytes.data(), int(bytes.size()), nullptr, 0);
    std::wstring wide(std::size_t(size > 0 ? size : 0), L'\0');
    if (size > 0)
        MultiByteToWideChar(codePage, 0, bytes.data(), int(bytes.size()), wide.data(), size);
    return wide;
}

#else

// Characters of the bytes 0x80 to 0x9F in Windows-1252; every other byte is its own character.
constexpr std::array<char32_t, 32> kWestern80To9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t westernChar(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kWestern80To9F[byte - 0x80] : byte;
}

std::optional<char> westernByte(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < kWestern80To9F.size(); ++i)
        if (kWestern80To9F[i] == c)
            return static_cast<char>(0x80 + i);
    return std::nullopt;
}

bool appendUtf8(std::string& out, char32_t c) {
    if (!isScalarValue(c))
        return false;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
    return true;
}

// Decodes the character at pos and moves past it. Overlong forms, surrogates, values above
// U+10FFFF and cut-off sequences give U+FFFD and move one byte on.
char32_t decodeUtf8(std::string_view bytes, std::size_t& pos) {
    const auto lead = static_cast<unsigned char>(bytes[pos++]);
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
        return kReplacement;
    }
    const std::size_t start = pos;
    char32_t c = lead & (0x3F >> extra);
    for (; extra > 0; --extra, ++pos) {
        if (pos >= bytes.size() || (static_cast<unsigned char>(bytes[pos]) & 0xC0) != 0x80) {
            pos = start;
            return kReplacement;
        }
        c = (c << 6) | (static_cast<unsigned char>(bytes[pos]) & 0x3F);
    }
    if (c < least || !isScalarValue(c)) {
        pos = start;
        return kReplacement;
    }
    return c;
}

#endif

} // namespace

#ifdef _WIN32

CodePage systemCodePage() {
    return GetACP();
}

std::optional<std::string> toAnsi(std::u32string_view text, CodePage codePage) {
    const std::optional<std::wstring> wide = toUtf16(text);
    if (!wide)
        return std::nullopt;
    if (wide->empty())
        return std::string();
    const DWORD flags = conversionFlags(codePage);
    BOOL usedDefault = FALSE;
    BOOL* const usedDefaultAnswer = reportsUsedDefault(codePage) ? &usedDefault : nullptr;
    const int size = WideCharToMultiByte(codePage, flags, wide->data(), int(wide->size()), nullptr,
                                         0, nullptr, usedDefaultAnswer);
    if (size <= 0)
        return std::nullopt;
    std::string bytes(std::size_t(size), '\0');
    WideCharToMultiByte(codePage, flags, wide->data(), int(wide->size()), bytes.data(), size,
                        nullptr, usedDefaultAnswer);
    // Where no flag can forbid a look-alike, only reading the bytes back tells.
    if (usedDefault || wideOf(bytes, codePage) != *wide)
        return std::nullopt;
    return bytes;
}

std::u32string fromAnsi(std::string_view bytes, CodePage codePage) {
    return fromUtf16(wideOf(bytes, codePage));
}

#else

CodePage systemCodePage() {
    return kWestern;
}

// Only UTF-8 and Windows-1252 are known here; any other number reads as Windows-1252.
std::optional<std::string> toAnsi(std::u32string_view text, CodePage codePage) {
    std::string bytes;
    bytes.reserve(text.size());
    for (char32_t c : text) {
        if (codePage == kUtf8) {
            if (!appendUtf8(bytes, c))
                return std::nullopt;
        } else if (const std::optional<char> byte = westernByte(c)) {
            bytes += *byte;
        } else {
            return std::nullopt;
        }
    }
    return bytes;
}

std::u32string fromAnsi(std::string_view bytes, CodePage codePage) {
    std::u32string text;
    text.reserve(bytes.size());
    for (std::size_t pos = 0; pos < bytes.size();)
        text += codePage == kUtf8 ? decodeUtf8(bytes, pos)
                                  : westernChar(static_cast<unsigned char>(bytes[pos++]));
    return text;
}

#endif

std::optional<char32_t> firstUnwritable(std::u32string_view text, CodePage codePage) {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!toAnsi(text.substr(i, 1), codePage))
            return text[i];
    return std::nullopt;
}

std::u32string characterForMessage(char32_t c) {
    const bool showsNothing = c < 0x20 || (c >= 0x7F && c <= 0x9F) ||
                              (c >= 0x200B && c <= 0x200F) || c == 0x2028 || c == 0x2029 ||
                              c == 0xFEFF;
    if (!showsNothing)
        return std::u32string(1, c);
    char name[8];
    std::snprintf(name, sizeof name, "U+%04X", unsigned(c));
    return std::u32string(name, name + std::strlen(name));
}

} // namespace umbrakit
