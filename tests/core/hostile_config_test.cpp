// Hostile config.ini files, as hands and other programs leave them: cut at any byte, records
// too short, more records than the list holds, values that are no number or no Boolean, every
// high byte, NUL bytes, stray CRs and 100 kB lines. The list shows what the readers find,
// every listed row loads its texts whole, and a save afterwards keeps every complete record.
#include "core/config_walk.h"
#include "core/number_text.h"
#include "core/saved_settings.h"
#include "core/text_lines.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace umbrakit;

namespace {

std::string record(const std::string& name, const std::string& value,
                   const std::string& darkness = "1") {
    return "[Save=" + name + "]\r\ngamePath=" + value + "\r\nlevelName=" + value +
           "\r\nmodName=" + value + "\r\nterrainBoolean=True\r\nmergeBoolean=False\r\n" +
           "objectBoolean=True\r\nshadowDarkness=" + darkness + "\r\n";
}

std::vector<std::pair<std::string, std::string>> hostileFiles() {
    const std::string two = record("Wake", "D:\\BF") + record("Midway", "E:\\BF", "2");
    const std::string nul(1, '\0'), big(100000, 'x');
    std::string high, crOnly = two, forty;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        high += char(byte);
    std::ranges::replace(crOnly, '\n', '\r');
    for (int i = 1; i <= 40; ++i)
        forty += record("N" + std::to_string(i), "v");
    std::vector<std::pair<std::string, std::string>> files;
    for (std::size_t size = 0; size <= two.size(); ++size)
        files.emplace_back("cut at byte " + std::to_string(size), two.substr(0, size));
    files.insert(
        files.end(),
        {{"3 value lines", "[Save=Short]\r\ngamePath=a\r\nlevelName=b\r\nmodName=c\r\n" + two},
         {"40 records", forty},
         {"no number, no Boolean",
          "[Save=x]\r\nterrainBoolean=Maybe\r\nmergeBoolean=\r\nshadowDarkness=1,5\r\n\r\n"
          "\r\n\r\n\r\n" +
              two},
         {"bytes 0x80 to 0xFF", record(high, high, high) + two},
         {"NUL bytes", record("a" + nul + "b", nul, "1" + nul) + two},
         {"CR without LF", record("C\rR", "\rg\r") + two},
         {"CR line ends only", crOnly + two},
         {"100 kB lines", record(big, big, big) + big + "\r\n" + two}});
    return files;
}

// The values of a name's record, if all seven lines behind its first head are in the file.
std::optional<RecordValues> completeRecord(const std::string& bytes, const std::string& name) {
    const std::vector<std::string> lines = splitLines(bytes);
    const auto head = std::ranges::find(lines, headFor(name));
    if (head == lines.end() || lines.end() - head <= kValueLinesPerRecord)
        return std::nullopt;
    return findRecordValues(lines, name);
}

std::u32string shownDarkness(const std::string& saved) {
    const std::optional<double> number = textToNumber(saved);
    return fromAnsi(number ? numberText(*number) : saved, kWestern);
}

} // namespace

TEST_CASE("hostile config.ini files") {
    const auto files = hostileFiles();
    int faulty = 0;
    for (const auto& [what, bytes] : files) {
        CAPTURE(what);
        const std::vector<std::string> names = readSavedNames(splitLines(bytes));
        const SavedNameTable table(bytes);
        std::vector<std::string> expected{"(Current)"};
        for (std::size_t i = 0; i < names.size() && i < std::size_t(kSavedNameCapacity); ++i)
            if (!names[i].empty())
                expected.push_back(names[i]);
        bool whole = table.rows() == expected;

        for (std::size_t row = 1; row < table.rows().size(); ++row) {
            const std::string& name = table.rows()[row];
            const RecordValues saved = findRecordValues(splitLines(bytes), name);
            if (!saved.found) // a cut head names no record: the row loads nothing
                continue;
            DialogEntries shown;
            showSaved(shown, bytes, name, kWestern);
            const auto value = [&saved](RecordKey key) { return saved.values[std::size_t(key)]; };
            whole &= shown.settingName == fromAnsi(name, kWestern);
            const std::pair<RecordKey, std::u32string*> boxes[] = {
                {RecordKey::GamePath, &shown.gamePath},
                {RecordKey::LevelName, &shown.levelName},
                {RecordKey::ModName, &shown.modName}};
            for (const auto& [key, box] : boxes)
                whole &= !value(key) || *box == fromAnsi(*value(key), kWestern);
            const auto darkness = value(RecordKey::ShadowDarkness);
            whole &= !darkness || shown.shadowDarkness == shownDarkness(*darkness);
        }

        const SavedRecord added{"Hostile check", "g", "l", "m", {}, "1"};
        const auto plan = planSave(table, added, bytes);
        if (const auto* rewrite = std::get_if<Rewrite>(&plan)) {
            whole &= completeRecord(rewrite->configBytes, added.name).has_value();
            for (const std::string& name : names)
                if (const auto before = completeRecord(bytes, name))
                    whole &= completeRecord(rewrite->configBytes, name) == before;
        } else {
            whole &= std::get<DialogRefusal>(plan).reason == DialogRefusal::NoRoom;
        }
        CHECK(whole);
        faulty += whole ? 0 : 1;
    }
    MESSAGE("hostile files: ", files.size(), ", files with a record lost or misread: ", faulty);
}
