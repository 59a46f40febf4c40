#include "core/text_lines.h"

namespace umbrakit {

std::vector<std::string> splitLines(std::string_view bytes) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < bytes.size()) {
        std::size_t lf = bytes.find('\n', start);
        if (lf == std::string_view::npos) {
            lines.emplace_back(bytes.substr(start));
            break;
        }
        std::size_t end = lf;
        if (end > start && bytes[end - 1] == '\r')
            --end;
        lines.emplace_back(bytes.substr(start, end - start));
        start = lf + 1;
    }
    return lines;
}

std::string joinLines(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    return bytes;
}

} // namespace umbrakit
