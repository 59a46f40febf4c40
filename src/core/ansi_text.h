// The program's text files are ANSI text: single bytes in the system's ANSI code page, or the
// UTF-8 bytes of the Windows option that makes 65001 the ANSI code page. A character that the
// code page cannot hold is refused, never written as a silent "?" or as a look-alike.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace umbrakit {

// A code page by its Windows number.
using CodePage = unsigned int;
inline constexpr CodePage kWestern = 1252;
inline constexpr CodePage kUtf8 = 65001;

// The ANSI code page of this system. Windows answers for itself; elsewhere the files are
// Windows-1252, as Wine and a Western Windows have them.
CodePage systemCodePage();

// The bytes of text in the code page, or nullopt if a character has none there.
std::optional<std::string> toAnsi(std::u32string_view text, CodePage codePage);

// The text of bytes in the code page. Under 1252 every byte has a character (the five it leaves
// undefined are U+0081, U+008D, U+008F, U+0090 and U+009D), so every byte survives a round
// trip; under UTF-8 a malformed sequence reads as U+FFFD.
std::u32string fromAnsi(std::string_view bytes, CodePage codePage);

// The first character of text that the code page cannot hold, for telling the user.
std::optional<char32_t> firstUnwritable(std::u32string_view text, CodePage codePage);

// The character as a message shows it: itself, or "U+0085" for one that shows nothing (a
// control character, a zero-width one), which between quotes would look like none at all.
std::u32string characterForMessage(char32_t c);

} // namespace umbrakit
