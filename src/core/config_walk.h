// The walks over the lines of config.ini: listing the names and loading one record. Lines
// come from splitLines; a missing file is simply no lines.
#pragma once

#include "core/config_format.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace umbrakit {

// Calls visit(head, end) for each record in file order: the index of its head line and the
// index behind its value lines, at most seven and fewer where the file ends first. Lines
// outside records that are no heads are passed over; the lines behind a head are never
// looked at for heads, so a value holding "Save" never starts a record.
void forEachRecord(const std::vector<std::string>& lines,
                   const std::function<void(std::size_t head, std::size_t end)>& visit);

// The names of all heads in file order, empty names included, so the caller sees what a fill
// of the name table would see. Walks record by record: the seven lines behind a head are
// stepped over unseen, so a value holding "Save" never yields a name. Lines outside records
// that are no heads are passed over. Returns every name; limiting to kSavedNameCapacity is
// the caller's business.
std::vector<std::string> readSavedNames(const std::vector<std::string>& lines);

// What loading a saved name found. values is indexed by RecordKey; a key without a line
// stays nullopt, so the caller leaves that field as it was. Boolean and number texts are not
// converted here.
struct RecordValues {
    bool found = false;
    std::array<std::optional<std::string>, 7> values;
    bool operator==(const RecordValues&) const = default;
};

// Loads the record headed exactly headFor(name). The first such head supplies the values from
// the seven lines behind it, each going to the key keyOfLine finds (a later line overwrites an
// earlier one for the same key); a line without a key word counts but changes nothing. The
// seven lines are counted once per call, so a second identical head only sets found again.
RecordValues findRecordValues(const std::vector<std::string>& lines, std::string_view name);

} // namespace umbrakit
