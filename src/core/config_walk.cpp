#include "core/config_walk.h"

#include "core/text_lines.h"

#include <algorithm>
#include <cstddef>

namespace umbrakit {

namespace {

// The index behind the value lines of the head at `head`. A record cut short by the end of
// the file simply ends there.
std::size_t endOfRecord(const std::vector<std::string>& lines, std::size_t head) {
    return std::min(lines.size(), head + 1 + kValueLinesPerRecord);
}

} // namespace

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

std::vector<std::string>
survivingRecordLines(const std::vector<std::string>& lines,
                     const std::function<bool(std::string_view name)>& isListed) {
    std::vector<std::string> kept;
    std::size_t i = 0;
    while (i < lines.size()) {
        if (!isRecordHead(lines[i])) {
            ++i;
            continue;
        }
        const std::size_t end = endOfRecord(lines, i);
        // A listed record cut short by the end of the file is padded with empty lines to its
        // seven: an empty line holds no key word, so loading it changes nothing, and a record
        // saved behind it keeps a head of its own instead of falling among its value lines.
        if (isListed(nameOfHead(lines[i]))) {
            kept.insert(kept.end(), lines.begin() + static_cast<std::ptrdiff_t>(i),
                        lines.begin() + static_cast<std::ptrdiff_t>(end));
            kept.resize(kept.size() + (i + 1 + kValueLinesPerRecord - end));
        }
        i = end;
    }
    return kept;
}

std::string rewrittenConfig(const std::vector<std::string>& lines,
                            const std::function<bool(std::string_view name)>& isListed,
                            const std::optional<SavedRecord>& newRecord) {
    std::vector<std::string> out = survivingRecordLines(lines, isListed);
    if (newRecord) {
        std::vector<std::string> added = recordLines(*newRecord);
        out.insert(out.end(), added.begin(), added.end());
    }
    return joinLines(out);
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
