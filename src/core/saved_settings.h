// What the paths dialog does with its boxes and config.ini, as plain values: loading a row into
// the boxes, the record a Save writes, the rewrites of Save and Delete, and what OK applies.
// The dialog's window only shows these values and hands on what the user typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/ansi_text.h"
#include "core/config_format.h"
#include "core/configuration.h"
#include "core/saved_name_table.h"
#include "core/text_field.h"

namespace umbrakit {

// The texts of the dialog's boxes as typed, and the dialog's own passes. Its pass boxes only
// show the passes: a loaded row changes them, and Save and OK read them.
struct DialogEntries {
    std::u32string settingName, gamePath, levelName, modName, shadowDarkness;
    PassOptions passes;
    bool operator==(const DialogEntries&) const = default;
};

// Why the dialog does nothing but tell the user.
struct DialogRefusal {
    enum Reason {
        NoName,           // the name is empty or "(Current)"
        LineBreak,        // a text holds a line break, which would split its line
        Unwritable,       // a text holds a character the code page cannot hold
        NoRoom,           // 30 names are listed and the name is a new one
        NothingSelected,  // Delete with "(Current)" selected
        Incomplete,       // OK with a game path, level or mod left empty
        DarknessNotNumber // OK with a darkness that is no number
    };
    Reason reason;
    TextField field = TextField::SettingName;
    char32_t character = 0;
    bool operator==(const DialogRefusal&) const = default;
};

// Row 0: the current configuration, the darkness as its number text. The name stays.
void showCurrent(DialogEntries& entries, const Configuration& current);

// A saved row: the first record headed with the name. A key without a line keeps its box; a
// value that is no Boolean keeps its pass; a darkness that is a number shows as its number
// text, anything else as it was saved, for OK to refuse. No such record changes nothing.
void showSaved(DialogEntries& entries, std::string_view configBytes, std::string_view name,
               CodePage codePage);

// The record a Save writes, in the code page, or why it writes none.
std::variant<SavedRecord, DialogRefusal> recordToSave(const DialogEntries& entries,
                                                      CodePage codePage);

// The new config.ini, and the list once the file holds it.
struct Rewrite {
    std::string configBytes;
    SavedNameTable names;
    int selectedRow;
};

// Save: the name leaves the list, the records still listed are kept and the new one goes last,
// and its name comes back as the last row, selected.
std::variant<Rewrite, DialogRefusal>
planSave(const SavedNameTable& names, const SavedRecord& record, std::string_view configBytes);

// Delete of the selected row: its name leaves the list, and with it its record.
std::variant<Rewrite, DialogRefusal> planDelete(const SavedNameTable& names, int selectedRow,
                                                std::string_view configBytes);

// OK: the configuration the main window takes on, or why it takes nothing.
std::variant<Configuration, DialogRefusal> configurationToApply(const DialogEntries& entries);

} // namespace umbrakit
