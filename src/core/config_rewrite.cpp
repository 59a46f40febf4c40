#include "core/config_rewrite.h"

#include "core/config_walk.h"
#include "core/text_lines.h"

namespace umbrakit {

std::string rewriteConfig(std::string_view oldBytes, const SavedNameTable& names,
                          const std::optional<SavedRecord>& savedRecord) {
    const std::vector<std::string> lines = splitLines(oldBytes);
    std::optional<std::string_view> savedName;
    if (savedRecord)
        savedName = savedRecord->name;
    // The lines go straight into the new file's bytes, each ended by CR LF.
    std::string out;
    const auto write = [&out](std::string_view line) {
        out += line;
        out += "\r\n";
    };
    forEachRecord(lines, [&](std::size_t head, std::size_t end) {
        if (!names.keeps(nameOfHead(lines[head]), savedName))
            return;
        // A kept record cut short by the end of the file is padded with empty lines to its
        // seven: an empty line holds no key word, so loading it changes nothing, and a record
        // saved behind it keeps a head of its own instead of falling among its value lines.
        for (std::size_t line = head; line < head + 1 + kValueLinesPerRecord; ++line)
            write(line < end ? std::string_view(lines[line]) : std::string_view());
    });
    if (savedRecord)
        for (const std::string& line : recordLines(*savedRecord))
            write(line);
    return out;
}

} // namespace umbrakit
