// Feeds any bytes to the program as config.ini, the way a hand-edited, cut-off or damaged file
// reaches it (lines without "=", CR without LF, NUL bytes, names repeated, more than 30
// records), and checks what must hold whatever the file holds: what is listed, what a row
// loads, what a rewrite, a Save and a Delete keep. The file is split once here; each further
// pass is one of the core's own.
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

// A load costs the core a pass over the file, so of a file full of heads the names at both
// ends are loaded: where the list begins and where its room ends.
constexpr std::size_t kNamesLoadedAtEachEnd = 4;

// wholeFile: the boxes are filled from the whole file; otherwise from the record's own lines,
// which load the same values without another split of the file.
void checkLoad(std::string_view bytes, const std::vector<std::string>& lines,
               const std::string& name, bool wholeFile) {
    const RecordValues loaded = findRecordValues(lines, name);
    const auto at = std::ranges::find(lines, headFor(name));
    require(loaded.found == (at != lines.end()), "found exactly when the exact head is there");
    // Only the seven lines behind the first exact head supply values, a later line of a key
    // overwriting an earlier one.
    const auto end = at + std::min<std::ptrdiff_t>(lines.end() - at, 1 + kValueLinesPerRecord);
    RecordValues expected{loaded.found, {}};
    for (auto line = at + (at != end); line != end; ++line)
        if (const std::optional<RecordKey> key = keyOfLine(*line))
            expected.values[std::size_t(*key)] = valueOfLine(*line);
    require(loaded == expected, "a row loads the values of the lines behind its first head");

    // The boxes show every loaded text whole; a darkness that is a number as its number text.
    DialogEntries shown;
    showSaved(shown, wholeFile ? bytes : std::string_view(joinLines({at, end})), name, kWestern);
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
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> lines = splitLines(bytes);
    require(splitLines(joinLines(lines)) == lines, "lines survive a write and a read");

    const std::vector<std::string> names = readSavedNames(lines);
    const auto heads = std::ranges::count_if(lines, [](auto& line) { return isRecordHead(line); });
    // A record spans at most eight lines, so every head line lies in one of the records found.
    require(std::size_t(heads) >= names.size() &&
                std::size_t(heads) <= names.size() * (1 + kValueLinesPerRecord),
            "a name for each record's head, and no head line left unwalked");
    const SavedNameTable table{bytes};
    std::vector<std::string> listed{std::string(kCurrentRow)};
    for (std::size_t i = 0; i < names.size() && i < std::size_t(kSavedNameCapacity); ++i)
        if (!names[i].empty())
            listed.push_back(names[i]);
    require(table.rows() == listed, "the list shows the first 30 names that are not empty");

    std::vector<std::string> distinct;
    for (std::set<std::string_view> seen; const std::string& name : names)
        if (seen.insert(name).second)
            distinct.push_back(name);
    for (std::size_t i = 0; i < distinct.size(); ++i)
        if (i < kNamesLoadedAtEachEnd || i + kNamesLoadedAtEachEnd >= distinct.size())
            checkLoad(bytes, lines, distinct[i], i == 0);
    if (!lines.empty())
        checkLoad(bytes, lines, lines.back(), true); // a name the file need not hold as a head

    const std::string kept = rewriteConfig(bytes, table, std::nullopt);
    const std::vector<std::string> keptLines = splitLines(kept);
    require(readSavedNames(keptLines) == names, "a rewrite keeps every name of the file");
    require(keptLines.size() == names.size() * (1 + kValueLinesPerRecord),
            "a rewrite writes whole records only");
    // The kept file lists the same names, so the same table reads it.
    require(rewriteConfig(kept, table, std::nullopt) == kept,
            "a rewritten file rewrites to itself");

    checkSave(bytes, table, names);
    checkDelete(bytes, table, names);
    return 0;
}
