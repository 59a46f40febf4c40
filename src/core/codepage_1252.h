// Conversion between the UTF-8 of the user interface and the Windows-1252 bytes of the files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace umbrakit {

// The Windows-1252 bytes of UTF-8 text, or nullopt if the text is malformed or holds a
// character without a byte in that code page; a file never gets a silent '?' instead.
// The five bytes the code page leaves undefined stand for U+0081, U+008D, U+008F, U+0090 and
// U+009D, as in Windows' own conversion, so every byte survives a round trip.
std::optional<std::string> utf8ToWindows1252(std::string_view utf8);

// The UTF-8 text of Windows-1252 bytes; every byte has a character.
std::string windows1252ToUtf8(std::string_view bytes);

// The first character that utf8ToWindows1252 cannot write, for an error message; U+FFFD for
// malformed UTF-8. nullopt if the whole text can be written.
std::optional<char32_t> firstUnrepresentable(std::string_view utf8);

} // namespace umbrakit
