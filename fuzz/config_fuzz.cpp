// Feeds any bytes to the program as config.ini, the way a hand-edited, cut-off or damaged file
// reaches it (lines without "=", CR without LF, NUL bytes, long lines, names repeated), and
// checks what must hold whatever the file holds: what is listed, what a row loads, what a Save
// and a Delete keep, and that a record the program writes loads back as written.
//
// Every check is a single pass or a lookup: the file is split once here, and the core's own
// splits are the only further passes, so the fuzzer spends its time on new inputs.
#include "core/config_rewrite.h"
#include "core/config_walk.h"
#include "core/number_text.h"
#include "core/saved_settings.h"
#include "core/text_lines.h"
#include "fuzz_check.h"

#include <algorithm>
#include <cstdint>
#include <set>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

// A file full of heads is sampled at both ends, where the list begins and where its room ends:
// loading a name costs the core a pass over the file.
constexpr std::size_t kNamesLoadedAtEachEnd = 4;

struct File {
    std::string_view bytes;
    std::vector<std::string> lines;
    std::vector<std::size_t> heads; // the lines that pass the head test, records' or not
};

// wholeFile: the boxes are filled from the whole file. Otherwise from the record alone, its
// head and the lines behind it, which loads the same values without another split of the file.
void checkLoad(const File& file, const std::string& name, bool wholeFile) {
    const std::vector<std::string>& lines = file.lines;
    const RecordValues loaded = findRecordValues(lines, name);
    // An exact head holds "Save", so only the lines that pass the head test can be one.
    const std::string exactHead = headFor(name);
    const auto at = std::ranges::find_if(file.heads, [&](auto i) { return lines[i] == exactHead; });
    require(loaded.found == (at != file.heads.end()), "found exactly when the exact head is there");
    const std::size_t head = loaded.found ? *at : lines.size();
    const std::size_t end = std::min(lines.size(), head + 1 + kValueLinesPerRecord);
    // Only the seven lines behind the first exact head supply values; a later line overwrites
    // an earlier one of the same key.
    RecordValues expected{loaded.found, {}};
    for (std::size_t line = head + 1; line < end; ++line)
        if (const std::optional<RecordKey> key = keyOfLine(lines[line]))
            expected.values[std::size_t(*key)] = valueOfLine(lines[line]);
    require(loaded == expected, "a row loads the values of the lines behind its first head");

    // The boxes show every loaded text whole; a darkness that is a number as its number text.
    DialogEntries shown;
    if (wholeFile)
        showSaved(shown, file.bytes, name, kWestern);
    else
        showSaved(
            shown,
            joinLines({lines.begin() + std::ptrdiff_t(head), lines.begin() + std::ptrdiff_t(end)}),
            name, kWestern);
    const auto value = [&](RecordKey key) { return loaded.values[std::size_t(key)]; };
    const auto darkness = value(RecordKey::ShadowDarkness);
    const auto number = darkness ? textToNumber(*darkness) : std::nullopt;
    require((!value(RecordKey::GamePath) ||
             shown.gamePath == fromAnsi(*value(RecordKey::GamePath), kWestern)) &&
                (!value(RecordKey::ModName) ||
                 shown.modName == fromAnsi(*value(RecordKey::ModName), kWestern)) &&
                (!darkness || shown.shadowDarkness ==
                                  fromAnsi(number ? numberText(*number) : *darkness, kWestern)),
            "a row's texts reach the boxes whole");
}

void checkSave(std::string_view bytes, const SavedNameTable& table,
               const std::vector<std::string>& names) {
    const SavedRecord record{"fuzz Save", "D:\\BF", "L", "M", {}, "1.5"};
    const auto plan = planSave(table, record, bytes);
    const auto* rewrite = std::get_if<Rewrite>(&plan);
    require(rewrite || !table.hasRoomFor(record.name), "a save is refused only for want of room");
    if (!rewrite || std::ranges::find(names, record.name) != names.end())
        return;
    std::vector<std::string> withSaved = names;
    withSaved.push_back(record.name);
    require(readSavedNames(splitLines(rewrite->configBytes)) == withSaved,
            "a save adds its name last and loses none");
}

// A delete takes the selected row and the last other row of that name off the list. The
// records of that name go once no row shows it, unless the list had no room for one.
void checkDelete(std::string_view bytes, const SavedNameTable& table,
                 const std::vector<std::string>& names) {
    const auto plan = planDelete(table, 1, bytes);
    const auto* rewrite = std::get_if<Rewrite>(&plan);
    if (!rewrite)
        return;
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
    const bool beyondRoom =
        names.size() > std::size_t(kSavedNameCapacity) &&
        std::find(names.begin() + kSavedNameCapacity, names.end(), gone) != names.end();
    require(rowsOfGone(rewrite->names) > 0 || beyondRoom ||
                std::ranges::find(after, gone) == after.end(),
            "the records of a name no row shows go");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    File file{{reinterpret_cast<const char*>(data), size}, {}, {}};
    file.lines = splitLines(file.bytes);
    const std::vector<std::string>& lines = file.lines;
    require(splitLines(joinLines(lines)) == lines, "lines survive a write and a read");

    const std::vector<std::string> names = readSavedNames(lines);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (isRecordHead(lines[i]))
            file.heads.push_back(i);
    // A record spans at most eight lines, so every head line lies in one of the records found.
    require(file.heads.size() >= names.size() &&
                file.heads.size() <= names.size() * (1 + kValueLinesPerRecord),
            "a name for each record's head, and no head line left unwalked");
    const SavedNameTable table{file.bytes};
    std::vector<std::string> listed{std::string(kCurrentRow)};
    for (std::size_t i = 0; i < names.size() && i < std::size_t(kSavedNameCapacity); ++i)
        if (!names[i].empty())
            listed.push_back(names[i]);
    require(table.rows() == listed, "the list shows the first 30 names that are not empty");

    std::set<std::string_view> seen;
    std::vector<std::string_view> distinct;
    for (const std::string& name : names)
        if (seen.insert(name).second)
            distinct.push_back(name);
    for (std::size_t i = 0; i < distinct.size(); ++i)
        if (i < kNamesLoadedAtEachEnd || i + kNamesLoadedAtEachEnd >= distinct.size())
            checkLoad(file, std::string(distinct[i]), i == 0);
    if (!lines.empty())
        checkLoad(file, lines.back(), true); // a name the file need not hold as a head

    const std::string kept = rewriteConfig(file.bytes, table, std::nullopt);
    const std::vector<std::string> keptLines = splitLines(kept);
    require(readSavedNames(keptLines) == names, "a rewrite keeps every name of the file");
    require(keptLines.size() == names.size() * (1 + kValueLinesPerRecord),
            "a rewrite writes whole records only");
    // The kept file lists the same names, so the same table reads it.
    require(rewriteConfig(kept, table, std::nullopt) == kept,
            "a rewritten file rewrites to itself");

    checkSave(file.bytes, table, names);
    checkDelete(file.bytes, table, names);
    return 0;
}
