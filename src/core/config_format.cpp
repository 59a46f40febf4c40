#include "core/config_format.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace umbrakit {

bool isRecordHead(std::string_view line) {
    return line.find("Save") != std::string_view::npos;
}

std::string nameOfHead(std::string_view head) {
    const std::size_t eq = head.find('=');
    // The name ends one character before the line does; without room for it there is none.
    if (eq == std::string_view::npos || eq + 2 >= head.size())
        return {};
    return std::string(head.substr(eq + 1, head.size() - eq - 2));
}

std::string valueOfLine(std::string_view line) {
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos)
        return {};
    return std::string(line.substr(eq + 1));
}

std::string headFor(std::string_view name) {
    std::string head = "[Save=";
    head += name;
    head += ']';
    return head;
}

namespace {

std::string booleanLine(std::string_view key, bool value) {
    std::string line(key);
    line += value ? "True" : "False";
    return line;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

} // namespace

std::vector<std::string> recordLines(const SavedRecord& record) {
    return {
        headFor(record.name),
        "gamePath=" + record.gamePath,
        "levelName=" + record.levelName,
        "modName=" + record.modName,
        booleanLine("terrainBoolean=", record.passes.terrain),
        booleanLine("mergeBoolean=", record.passes.merge),
        booleanLine("objectBoolean=", record.passes.object),
        "shadowDarkness=" + record.shadowDarknessText,
    };
}

std::optional<bool> textToBoolean(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);

    if (equalsIgnoringCase(text, "True"))
        return true;
    if (equalsIgnoringCase(text, "False"))
        return false;

    if (!text.empty() && (text.front() == '+' || text.front() == '-'))
        text.remove_prefix(1);
    if (text.empty() || !std::ranges::all_of(text, [](unsigned char c) { return std::isdigit(c); }))
        return std::nullopt;
    // Only zero or not matters, so the digits are never converted and cannot overflow.
    return std::ranges::any_of(text, [](char c) { return c != '0'; });
}

std::optional<RecordKey> keyOfLine(std::string_view line) {
    for (std::size_t key = 0; key < kKeyWords.size(); ++key) {
        if (line.find(kKeyWords[key]) != std::string_view::npos)
            return static_cast<RecordKey>(key);
    }
    return std::nullopt;
}

} // namespace umbrakit
