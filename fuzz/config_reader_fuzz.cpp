// Feeds any bytes to the readers of config.ini, the way a hand-edited, cut-off or damaged file
// reaches them (lines without "=", CR without LF, NUL bytes, very long lines), and checks what
// must hold whatever the file holds.
#include "core/config_format.h"
#include "core/config_rewrite.h"
#include "core/config_walk.h"
#include "core/saved_settings.h"
#include "core/text_lines.h"
#include "fuzz_check.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

// Loading a name costs a pass over the file, so a file full of heads is sampled.
constexpr std::size_t kNamesLoaded = 64;

void checkLine(const std::string& line, std::size_t turn) {
    const std::string value = valueOfLine(line);
    require(line.ends_with(value), "a value is the end of its line");
    require(value.empty() || line.find('=') != std::string::npos, "a value needs an =");
    require(valueOfLine("key=" + line) == line, "further = stay in the value");

    require(nameOfHead(headFor(line)) == line, "any text comes back from its own head");
    const std::string name = nameOfHead(line);
    require(name.size() < std::max<std::size_t>(line.size(), 1) &&
                line.find(name) != std::string::npos,
            "a name is a piece of its head");

    // A line behind a key word is read as the earlier of the two key words. One key word per
    // line, taking turns, keeps a long file quick to check.
    const std::optional<RecordKey> key = keyOfLine(line);
    const std::size_t k = turn % kKeyWords.size();
    const std::size_t expected =
        key && static_cast<std::size_t>(*key) < k ? static_cast<std::size_t>(*key) : k;
    const std::optional<RecordKey> joined = keyOfLine(std::string(kKeyWords[k]) + line);
    require(joined && static_cast<std::size_t>(*joined) == expected,
            "the first key word in test order decides");
    if (key)
        require(line.find(kKeyWords[static_cast<std::size_t>(*key)]) != std::string::npos,
                "a key comes from a word in the line");

    require(textToBoolean(value) == textToBoolean(" \t" + value + "\t "),
            "blanks around a Boolean change nothing");
}

void checkNames(const std::vector<std::string>& lines, const std::vector<std::string>& names) {
    std::set<std::string> headNames;
    std::size_t heads = 0;
    std::optional<std::string> firstHead;
    for (const std::string& line : lines) {
        if (!isRecordHead(line))
            continue;
        ++heads;
        headNames.insert(nameOfHead(line));
        if (!firstHead)
            firstHead = nameOfHead(line);
    }
    for (const std::string& name : names)
        require(headNames.contains(name), "every name comes from a head line");
    require(names.size() <= heads, "no more names than head lines");
    // A record spans at most eight lines, so every head line lies in one of the records found.
    require(heads <= names.size() * (1 + kValueLinesPerRecord), "no head line left unwalked");
    require(!firstHead || names.front() == *firstHead, "the first head is the first name");
}

void checkLoad(const std::vector<std::string>& lines, const std::string& name) {
    const RecordValues loaded = findRecordValues(lines, name);
    const auto head = std::ranges::find(lines, headFor(name));
    require(loaded.found == (head != lines.end()), "found exactly when the exact head is there");
    if (!loaded.found) {
        for (const std::optional<std::string>& value : loaded.values)
            require(!value, "nothing is loaded without a head");
        return;
    }
    // Only the seven lines behind the first exact head supply values.
    const auto begin = head + 1;
    const auto end = begin + std::min<std::ptrdiff_t>(kValueLinesPerRecord, lines.end() - begin);
    std::array<bool, 7> keyed{};
    for (auto line = begin; line != end; ++line) {
        if (const std::optional<RecordKey> key = keyOfLine(*line))
            keyed[static_cast<std::size_t>(*key)] = true;
    }
    for (std::size_t k = 0; k < keyed.size(); ++k) {
        const std::optional<std::string>& value = loaded.values[k];
        require(keyed[k] == value.has_value(), "a key is loaded exactly when its line is there");
        if (value)
            require(std::any_of(begin, end,
                                [&](const std::string& line) {
                                    return keyOfLine(line) &&
                                           static_cast<std::size_t>(*keyOfLine(line)) == k &&
                                           valueOfLine(line) == *value;
                                }),
                    "a loaded value is the value of one of the record's lines");
    }
}

// What a save or a delete through the list does to this file: every record whose name the
// list keeps survives, whole or padded.
void checkRewrites(std::string_view bytes, const std::vector<std::string>& names) {
    const SavedNameTable table{bytes};
    const std::string kept = rewriteConfig(bytes, table, std::nullopt);
    const std::vector<std::string> keptLines = splitLines(kept);
    require(readSavedNames(keptLines) == names, "a rewrite keeps every name of the file");
    require(keptLines.size() == names.size() * (1 + kValueLinesPerRecord),
            "a rewrite writes whole records only");
    require(rewriteConfig(kept, SavedNameTable(kept), std::nullopt) == kept,
            "a rewritten file rewrites to itself");

    if (std::ranges::find(names, "fuzz") == names.end()) {
        const auto saved = planSave(table, {"fuzz", "D:\\BF", "L", "M", {}, "1.5"}, bytes);
        std::vector<std::string> withAdded = names;
        withAdded.push_back("fuzz");
        if (const auto* rewrite = std::get_if<Rewrite>(&saved))
            require(readSavedNames(splitLines(rewrite->configBytes)) == withAdded,
                    "a save adds its name last and loses none");
        else
            require(!table.hasRoomFor("fuzz"), "a save is refused only for want of room");
    }

    // A delete takes the selected row and the last other row of that name off the list. The
    // records of that name go once no row shows it, unless the list had no room for one.
    const auto deleted = planDelete(table, 1, bytes);
    if (const auto* rewrite = std::get_if<Rewrite>(&deleted)) {
        const std::string gone = table.rows()[1];
        const auto rowsOfGone = [&](const SavedNameTable& t) {
            return std::ranges::count(t.rows(), gone);
        };
        require(rowsOfGone(rewrite->names) == std::max<std::ptrdiff_t>(0, rowsOfGone(table) - 2),
                "a delete takes two rows of the name at most");
        const auto others = [&](std::vector<std::string> list) {
            std::erase(list, gone);
            return list;
        };
        const std::vector<std::string> after = readSavedNames(splitLines(rewrite->configBytes));
        require(others(after) == others(names), "a delete keeps every other name");
        const bool beyondRoom = names.size() > std::size_t(kSavedNameCapacity) &&
                                std::find(names.begin() + kSavedNameCapacity, names.end(), gone) !=
                                    names.end();
        require(rowsOfGone(rewrite->names) > 0 || beyondRoom ||
                    std::ranges::find(after, gone) == after.end(),
                "the records of a name no row shows go");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = splitLines(bytes);
    require(splitLines(joinLines(lines)) == lines, "lines survive a write and a read");

    const std::vector<std::string> names = readSavedNames(lines);
    checkNames(lines, names);
    for (std::size_t i = 0; i < lines.size(); ++i)
        checkLine(lines[i], i);

    std::set<std::string> loaded;
    for (const std::string& name : names) {
        if (loaded.size() == kNamesLoaded)
            break;
        if (loaded.insert(name).second)
            checkLoad(lines, name);
    }
    // Names the file does not have to hold as heads: whole lines of the input.
    if (!lines.empty()) {
        checkLoad(lines, lines.front());
        checkLoad(lines, lines.back());
    }

    checkRewrites(bytes, names);
    return 0;
}
