// The program's text files are single-byte text: the system's ANSI code page on Windows,
// Windows-1252 elsewhere. A character that the code page cannot hold is refused, never
// written as a silent "?".
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace umbrakit {

std::optional<std::string> toAnsi(const QString& text);
QString fromAnsi(std::string_view bytes);

// The first character of `text` that the code page cannot hold, for telling the user.
QString firstUnwritableCharacter(const QString& text);

} // namespace umbrakit
