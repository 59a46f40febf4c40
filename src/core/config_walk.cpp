#include "core/config_walk.h"

#include <algorithm>
#include <cstddef>

namespace umbrakit {

void forEachRecord(const std::vector<std::string>& lines,
                   const std::function<void(std::size_t head, std::size_t end)>& visit) {
    std::size_t i = 0;
    while (i < lines.size()) {
        if (!isRecordHead(lines[i])) {
            ++i;
            continue;
        }
        const std::size_t end = std::min(lines.size(), i + 1 + kValueLinesPerRecord);
        visit(i, end);
        i = end;
    }
}

std::vector<std::string> readSavedNames(const std::vector<std::string>& lines) {
    std::vector<std::string> names;
    forEachRecord(lines,
                  [&](std::size_t head, std::size_t) { names.push_back(nameOfHead(lines[head])); });
    return names;
}

RecordValues findRecordValues(const std::vector<std::string>& lines, std::string_view name) {
    const std::string head = headFor(name);
    RecordValues result;
    int valueLinesRead = 0;
    std::size_t i = 0;
    while (i < lines.size()) {
        if (lines[i++] != head)
            continue;
        result.found = true;
        // Only the first match reads lines; the scan still runs on to the end of the file.
        while (valueLinesRead < kValueLinesPerRecord && i < lines.size()) {
            const std::string& line = lines[i++];
            ++valueLinesRead;
            if (const std::optional<RecordKey> key = keyOfLine(line))
                result.values[static_cast<std::size_t>(*key)] = valueOfLine(line);
        }
    }
    return result;
}

} // namespace umbrakit
