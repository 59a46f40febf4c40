// Saves records made from the fuzz bytes one after another, as the paths dialog does, and
// checks that the file holds the records last saved under each name, in the order of their
// saves, each loading with the values it was written with.
//
// Only records the format can hold are saved:
// - A name is one line: no CR, no LF. A save refuses the empty name and "(Current)".
// - A value holds no LF, which would end its line. A lone CR is kept: only a CR right before
//   LF belongs to the line end.
// - A value holds no key word of an earlier loading test: loading applies a line to the first
//   key word it finds, so "levelName=my gamePath" goes to the game path by the file's own rule.
// - A value may hold "Save". Readers step over the seven lines behind a head unseen, so such a
//   value never becomes a head; this target is where that is proved.
#include "core/config_walk.h"
#include "core/saved_settings.h"
#include "core/text_lines.h"
#include "fuzz_check.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cstdint>

using namespace umbrakit;
using umbrakit::fuzz::require;

namespace {

// Above the 30 names of the list, so that a full list is reached.
constexpr int kMostRecords = 40;
constexpr std::size_t kLongestText = 300;

std::string without(std::string text, std::string_view bytes) {
    std::erase_if(text, [&](char c) { return bytes.find(c) != std::string_view::npos; });
    return text;
}

// The record as loading sees it: the text of each value line, indexed by RecordKey.
std::array<std::string, 7> expectedValues(const SavedRecord& r) {
    const auto word = [](bool b) { return std::string(b ? "True" : "False"); };
    return {r.gamePath,           r.levelName,        r.modName, word(r.passes.terrain),
            word(r.passes.merge), word(r.passes.object), r.shadowDarknessText};
}

bool isWritable(const SavedRecord& r) {
    const std::array<std::string, 7> values = expectedValues(r);
    for (std::size_t k = 0; k < values.size(); ++k)
        for (std::size_t earlier = 0; earlier < k; ++earlier)
            if (values[k].find(kKeyWords[earlier]) != std::string::npos)
                return false;
    return !r.name.empty() && r.name != "(Current)";
}

std::vector<SavedRecord> recordsFrom(FuzzedDataProvider& in) {
    std::vector<SavedRecord> records;
    const int count = in.ConsumeIntegralInRange(1, kMostRecords);
    while (int(records.size()) < count && in.remaining_bytes() > 0) {
        SavedRecord r;
        // Reusing an earlier name is how a save replaces a record.
        if (!records.empty() && in.ConsumeIntegralInRange(0, 3) == 0)
            r.name = records[in.ConsumeIntegralInRange<std::size_t>(0, records.size() - 1)].name;
        else
            r.name = without(in.ConsumeRandomLengthString(kLongestText), "\r\n");
        for (std::string* value : {&r.gamePath, &r.levelName, &r.modName})
            *value = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        r.passes = {in.ConsumeBool(), in.ConsumeBool(), in.ConsumeBool()};
        r.shadowDarknessText = without(in.ConsumeRandomLengthString(kLongestText), "\n");
        if (isWritable(r))
            records.push_back(std::move(r));
    }
    return records;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    const std::vector<SavedRecord> records = recordsFrom(in);
    if (records.empty())
        return -1; // nothing the format can hold; not worth keeping in the corpus

    std::string file;
    SavedNameTable names{file};
    std::vector<SavedRecord> live;
    for (const SavedRecord& r : records) {
        const auto plan = planSave(names, r, file);
        const auto* rewrite = std::get_if<Rewrite>(&plan);
        const bool listed = std::ranges::any_of(live, [&](auto& o) { return o.name == r.name; });
        require(rewrite || (!listed && live.size() == std::size_t(kSavedNameCapacity)),
                "a save is refused only for a new name when 30 are listed");
        if (!rewrite)
            continue;
        file = rewrite->configBytes;
        names = rewrite->names;
        std::erase_if(live, [&](const SavedRecord& old) { return old.name == r.name; });
        live.push_back(r);
        require(names.rows().back() == r.name && rewrite->selectedRow == int(live.size()),
                "the saved name is the last row, selected");
    }

    std::vector<std::string> lines, liveNames;
    for (const SavedRecord& r : live) {
        liveNames.push_back(r.name);
        for (std::string& line : recordLines(r))
            lines.push_back(std::move(line));
    }
    require(file == joinLines(lines), "the file holds the live records in the order saved");
    const std::vector<std::string> read = splitLines(file);
    require(read == lines, "the lines read are the lines written");
    require(readSavedNames(read) == liveNames, "the names read are the names saved");
    for (const SavedRecord& r : live) {
        const RecordValues loaded = findRecordValues(read, r.name);
        const std::array<std::string, 7> expected = expectedValues(r);
        require(loaded.found, "a saved record is found by its name");
        for (std::size_t k = 0; k < expected.size(); ++k)
            require(loaded.values[k] == expected[k], "every value comes back as written");
        require(textToBoolean(*loaded.values[3]) == r.passes.terrain,
                "a written Boolean reads back");
    }
    return 0;
}
