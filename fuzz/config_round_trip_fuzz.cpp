// Writes records made from the fuzz bytes the way a save does, reads the file back and checks
// that every record comes back with the values it was written with.
//
// Only records the format can hold are written:
// - A name is one line: no CR, no LF. It is neither empty nor "(Current)", which a save refuses.
//   It may hold "=", "]", "Save" and key words: the head line is never tested for key words.
// - A value holds no LF, which would end its line. A lone CR is kept: only a CR right before
//   LF belongs to the line end.
// - A value holds no key word of an earlier loading test: loading applies a line to the first
//   key word it finds, so "levelName=my gamePath" goes to the game path by the file's own rule.
// - A value may hold "Save". Readers step over the seven lines behind a head unseen, so such a
//   value never becomes a head; this target is where that is proved.
#include "fuzz_check.h"
#include "core/text_lines.h"
#include "core/config_format.h"
#include "core/config_walk.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

// Above the 30 names of the table: the file itself has no limit.
constexpr int kMostRecords = 40;
constexpr std::size_t kLongestText = 300;

std::string without(std::string text, std::string_view bytes) {
    std::erase_if(text, [&](char c) { return bytes.find(c) != std::string_view::npos; });
    return text;
}

bool holdsKeyWordBefore(std::string_view value, RecordKey key) {
    for (std::size_t k = 0; k < static_cast<std::size_t>(key); ++k)
        if (value.find(kKeyWords[k]) != std::string_view::npos)
            return true;
    return false;
}

// The record as loading sees it: the text of each value line, indexed by RecordKey.
std::array<std::string, 7> expectedValues(const SavedRecord& r) {
    const auto word = [](bool b) { return std::string(b ? "True" : "False"); };
    return {
        r.gamePath,           r.levelName,           r.modName,           word(r.terrainBoolean),
        word(r.mergeBoolean), word(r.objectBoolean), r.shadowDarknessText};
}

bool isWritable(const SavedRecord& r) {
    const std::array<std::string, 7> values = expectedValues(r);
    for (std::size_t k = 0; k < values.size(); ++k)
        if (holdsKeyWordBefore(values[k], static_cast<RecordKey>(k)))
            return false;
    return !r.name.empty() && r.name != "(Current)";
}

std::vector<SavedRecord> recordsFrom(FuzzedDataProvider& in) {
    std::vector<SavedRecord> records;
    const int count = in.ConsumeIntegralInRange(1, kMostRecords);
    while (static_cast<int>(records.size()) < count && in.remaining_bytes() > 0) {
        SavedRecord r;
        // Reusing an earlier name is how a file gets a name twice.
        if (!records.empty() && in.ConsumeIntegralInRange(0, 3) == 0)
            r.name = records[in.ConsumeIntegralInRange<std::size_t>(0, records.size() - 1)].name;
        else
            r.name = without(in.ConsumeRandomLengthString(kLongestText), "\r\n");
        r.gamePath = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        r.levelName = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        r.modName = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        r.terrainBoolean = in.ConsumeBool();
        r.mergeBoolean = in.ConsumeBool();
        r.objectBoolean = in.ConsumeBool();
        r.shadowDarknessText = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        if (isWritable(r))
            records.push_back(std::move(r));
    }
    return records;
}

void checkLoads(const std::vector<std::string>& lines, const SavedRecord& r) {
    const RecordValues loaded = findRecordValues(lines, r.name);
    require(loaded.found, "a written record is found by its name");
    const std::array<std::string, 7> expected = expectedValues(r);
    for (std::size_t k = 0; k < expected.size(); ++k)
        require(loaded.values[k] == expected[k], "every value comes back as written");
    for (std::size_t k = 3; k < 6; ++k)
        require(textToBoolean(*loaded.values[k]) == (expected[k] == "True"),
                "a written Boolean reads back");
}

// The file after the saves in turn, each replacing a record of its name as a save does.
std::vector<SavedRecord> afterSaves(const std::vector<SavedRecord>& records, std::string& file) {
    std::vector<SavedRecord> live;
    for (const SavedRecord& r : records) {
        file = rewrittenConfig(
            splitLines(file), [&](std::string_view name) { return name != r.name; }, r);
        std::erase_if(live, [&](const SavedRecord& old) { return old.name == r.name; });
        live.push_back(r);
    }
    return live;
}

std::vector<std::string> namesOf(const std::vector<SavedRecord>& records) {
    std::vector<std::string> names;
    for (const SavedRecord& r : records)
        names.push_back(r.name);
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    const std::vector<SavedRecord> records = recordsFrom(in);
    if (records.empty())
        return -1; // nothing the format can hold; not worth keeping in the corpus

    std::vector<std::string> written;
    for (const SavedRecord& r : records)
        for (std::string& line : recordLines(r))
            written.push_back(std::move(line));
    const std::string file = joinLines(written);
    const std::vector<std::string> lines = splitLines(file);
    require(lines == written, "the lines read are the lines written");
    require(readSavedNames(lines) == namesOf(records), "the names read are the names written");

    // A name written twice loads the first record of that name.
    for (auto r = records.begin(); r != records.end(); ++r)
        if (std::none_of(records.begin(), r,
                         [&](const SavedRecord& o) { return o.name == r->name; }))
            checkLoads(lines, *r);

    // The same file grows through rewrites with everything listed, one new record each time.
    std::string grown;
    for (const SavedRecord& r : records)
        grown = rewrittenConfig(
            splitLines(grown), [](std::string_view) { return true; }, r);
    require(grown == file, "saving one record after another writes the same file");

    std::string saved;
    const std::vector<SavedRecord> live = afterSaves(records, saved);
    const std::vector<std::string> savedLines = splitLines(saved);
    require(readSavedNames(savedLines) == namesOf(live),
            "a save of a listed name replaces it and puts it last");
    for (const SavedRecord& r : live)
        checkLoads(savedLines, r);
    return 0;
}
