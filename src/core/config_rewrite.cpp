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
    std::vector<std::string> out;
    forEachRecord(lines, [&](std::size_t head, std::size_t end) {
        if (!names.keeps(nameOfHead(lines[head]), savedName))
            return;
        // A kept record cut short by the end of the file is padded with empty lines to its
        // seven: an empty line holds no key word, so loading it changes nothing, and a record
        // saved behind it keeps a head of its own instead of falling among its value lines.
        out.insert(out.end(), lines.begin() + std::ptrdiff_t(head),
                   lines.begin() + std::ptrdiff_t(end));
        out.resize(out.size() + (head + 1 + kValueLinesPerRecord - end));
    });
    if (savedRecord)
        for (std::string& line : recordLines(*savedRecord))
            out.push_back(std::move(line));
    return joinLines(out);
}

} // namespace umbrakit
