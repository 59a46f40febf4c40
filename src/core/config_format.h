// The record of config.ini and the rules for reading its lines. The file is read by position:
// a head line, then exactly seven value lines; no INI parsing is involved.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/configuration.h"

namespace umbrakit {

// Lines that follow every head, whatever they hold.
constexpr int kValueLinesPerRecord = 7;

// Any line holding "Save" (case-sensitive) counts as a head. Loose on purpose, to read existing
// files as they always were read: a hand-made line outside a record holding "Save" is a head.
bool isRecordHead(std::string_view line);

// The name of a head: everything behind the first "=", less the line's last character (the
// closing "]", which is not checked). A line without "=", or with "=" as its last character,
// has the empty name rather than an error, so a hand-made head can never stop a walk.
std::string nameOfHead(std::string_view head);

// The value of a value line: everything behind the first "=", further "=" included.
// A line without "=" has the empty value.
std::string valueOfLine(std::string_view line);

// The exact head line for a name, as written and as matched when loading.
std::string headFor(std::string_view name);

// One saved configuration as written, its texts in the file's code page. The shadow darkness
// stays the typed text so that the file keeps exactly what the user entered.
struct SavedRecord {
    std::string name, gamePath, levelName, modName;
    PassOptions passes;
    std::string shadowDarknessText;
};

// The eight lines of a record, head first, without line ends.
std::vector<std::string> recordLines(const SavedRecord& record);

// Reads a Boolean value as loading does. "True" and "False" are accepted in any casing, with
// blanks around them; a whole decimal number is true unless it is zero. Anything else has no
// Boolean reading and gives nullopt, leaving the choice of a fallback to the caller.
std::optional<bool> textToBoolean(std::string_view text);

// The keys of the seven value lines, in the order loading tests for them.
enum class RecordKey {
    GamePath,
    LevelName,
    ModName,
    TerrainBoolean,
    MergeBoolean,
    ObjectBoolean,
    ShadowDarkness
};

// The key words of the value lines, indexed by RecordKey.
inline constexpr std::array<std::string_view, 7> kKeyWords{
    "gamePath",     "levelName",     "modName",       "terrainBoolean",
    "mergeBoolean", "objectBoolean", "shadowDarkness"};

// The key a value line is applied to when loading: the first key word, in RecordKey order,
// found anywhere in the whole line, value included. So a value holding an earlier key word
// redirects its line. nullopt when the line holds none.
std::optional<RecordKey> keyOfLine(std::string_view line);

} // namespace umbrakit
