#include "core/config_walk.h"

#include <algorithm>
#include <cstddef>

namespace umbrakit {

std::size_t endOfRecord(const std::vector<std::string>& lines, std::size_t head) {
    return std::min(lines.size(), head + 1 + kValueLinesPerRecord);
}

std::vector<std::string> readSavedNames(const std::vector<std::string>& lines) {
    std::vector<std::string> names;
    std::size_t i = 0;
    while (i < lines.size()) {
        if (!isRecordHead(lines[i])) {
            ++i;
            continue;
        }
        names.push_back(nameOfHead(lines[i]));
        i = endOfRecord(lines, i);
    }
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
