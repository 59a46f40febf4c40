// Line handling of the program's text files: single-byte text, every line ended by CR LF.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace umbrakit {

// Splits file bytes into lines without their ends. A line ends at LF, and a CR right before
// that LF belongs to the end; a CR anywhere else stays in the line. A last line without an
// end still counts; an empty file has no lines.
std::vector<std::string> splitLines(std::string_view bytes);

// Joins lines into file bytes, each line followed by CR LF, the last one too.
std::string joinLines(const std::vector<std::string>& lines);

} // namespace umbrakit
