// The menu entry (a freedesktop .desktop file) that starts the program: its text made from
// packaging/umbrakit.desktop.in, the one template the package and the program share.
#pragma once

#include <array>
#include <string>

namespace umbrakit {

// The sizes in pixels at which the icon goes to the desktop's icon theme.
constexpr std::array<int, 3> kDesktopIconSizes{32, 48, 256};

// The program as the Exec key's value: one argument that a launcher splits back to exactly
// `program`, quoted and escaped where a launcher would read a character as its own.
std::string desktopExecValue(const std::string& program);

// The template with every "@UMBRAKIT_EXEC@" replaced by desktopExecValue(program) and every
// "@UMBRAKIT_TRY_EXEC@" by the program as a plain string value.
std::string desktopEntryText(const std::string& templateText, const std::string& program);

} // namespace umbrakit
