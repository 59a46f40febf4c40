#include "core/saved_settings.h"

#include "core/config_rewrite.h"
#include "core/config_walk.h"
#include "core/number_text.h"
#include "core/text_lines.h"

namespace umbrakit {

namespace {

std::u32string numberText32(double value) {
    const std::string text = numberText(value);
    return std::u32string(text.begin(), text.end());
}

// The darkness text as a number, if it is one; a number is plain ASCII.
std::optional<double> numberOf(std::u32string_view text) {
    std::string ascii;
    for (char32_t c : text) {
        if (c >= 0x80)
            return std::nullopt;
        ascii += static_cast<char>(c);
    }
    return textToNumber(ascii);
}

std::optional<DialogRefusal> problemOf(TextField field, std::u32string_view text,
                                       CodePage codePage) {
    // A lone CR stays in its line; only LF ends one.
    if (text.find(U'\n') != std::u32string_view::npos)
        return DialogRefusal{DialogRefusal::LineBreak, field};
    if (const std::optional<char32_t> character = firstUnwritable(text, codePage))
        return DialogRefusal{DialogRefusal::Unwritable, field, *character};
    return std::nullopt;
}

// Takes the name off the list, as a rewrite does before it copies the listed records.
SavedNameTable withoutName(SavedNameTable names, std::string_view name) {
    if (const int row = names.find(name); row > 0)
        names.remove(row);
    return names;
}

bool isNoName(std::u32string_view name) {
    return name.empty() || name == U"(Current)";
}

} // namespace

void showCurrent(DialogEntries& entries, const Configuration& current) {
    entries.gamePath = current.gamePath;
    entries.levelName = current.levelName;
    entries.modName = current.modName;
    entries.shadowDarkness = numberText32(current.shadowDarkness);
    entries.passes = current.passes;
}

void showSaved(DialogEntries& entries, std::string_view configBytes, std::string_view name,
               CodePage codePage) {
    const RecordValues record = findRecordValues(splitLines(configBytes), name);
    if (!record.found)
        return;
    entries.settingName = fromAnsi(name, codePage);
    const auto value = [&record](RecordKey key) {
        return record.values[static_cast<std::size_t>(key)];
    };
    const std::pair<RecordKey, std::u32string*> texts[] = {
        {RecordKey::GamePath, &entries.gamePath},
        {RecordKey::LevelName, &entries.levelName},
        {RecordKey::ModName, &entries.modName}};
    for (const auto& [key, box] : texts)
        if (const auto text = value(key))
            *box = fromAnsi(*text, codePage);
    const std::pair<RecordKey, Pass> passes[] = {{RecordKey::TerrainBoolean, Pass::Terrain},
                                                 {RecordKey::MergeBoolean, Pass::Merge},
                                                 {RecordKey::ObjectBoolean, Pass::Object}};
    for (const auto& [key, pass] : passes)
        if (const auto text = value(key))
            if (const std::optional<bool> on = textToBoolean(*text))
                entries.passes[pass] = *on;
    if (const auto text = value(RecordKey::ShadowDarkness)) {
        const std::optional<double> number = textToNumber(*text);
        entries.shadowDarkness = number ? numberText32(*number) : fromAnsi(*text, codePage);
    }
}

std::variant<SavedRecord, DialogRefusal> recordToSave(const DialogEntries& e, CodePage codePage) {
    if (isNoName(e.settingName))
        return DialogRefusal{DialogRefusal::NoName};
    const std::pair<TextField, const std::u32string&> fields[] = {
        {TextField::SettingName, e.settingName},
        {TextField::GamePath, e.gamePath},
        {TextField::LevelName, e.levelName},
        {TextField::ModName, e.modName},
        {TextField::ShadowDarkness, e.shadowDarkness}};
    for (const auto& [field, text] : fields)
        if (const std::optional<DialogRefusal> problem = problemOf(field, text, codePage))
            return *problem;
    const auto ansi = [codePage](const std::u32string& text) { return *toAnsi(text, codePage); };
    return SavedRecord{ansi(e.settingName), ansi(e.gamePath), ansi(e.levelName),
                       ansi(e.modName),     e.passes,         ansi(e.shadowDarkness)};
}

std::variant<Rewrite, DialogRefusal>
planSave(const SavedNameTable& names, const SavedRecord& record, std::string_view configBytes) {
    if (!names.hasRoomFor(record.name))
        return DialogRefusal{DialogRefusal::NoRoom};
    SavedNameTable after = withoutName(names, record.name);
    std::string bytes = rewriteConfig(configBytes, after, record);
    after.append(record.name);
    const int last = int(after.rows().size()) - 1;
    return Rewrite{std::move(bytes), std::move(after), last};
}

std::variant<Rewrite, DialogRefusal> planDelete(const SavedNameTable& names, int selectedRow,
                                                std::string_view configBytes) {
    if (selectedRow <= 0 || std::size_t(selectedRow) >= names.rows().size())
        return DialogRefusal{DialogRefusal::NothingSelected};
    const std::string name = names.rows()[std::size_t(selectedRow)];
    // A hand-made record may be named "(Current)"; like a save, a delete refuses that name.
    if (name.empty() || name == kCurrentRow)
        return DialogRefusal{DialogRefusal::NoName};
    SavedNameTable after = names;
    after.remove(selectedRow);
    after = withoutName(after, name);
    std::string bytes = rewriteConfig(configBytes, after, std::nullopt);
    return Rewrite{std::move(bytes), std::move(after), 0};
}

std::variant<Configuration, DialogRefusal> configurationToApply(const DialogEntries& e) {
    if (e.gamePath.empty() || e.levelName.empty() || e.modName.empty())
        return DialogRefusal{DialogRefusal::Incomplete};
    // Tested before anything reaches the main window, whose darkness must stay a number.
    const std::optional<double> darkness = numberOf(e.shadowDarkness);
    if (!darkness)
        return DialogRefusal{DialogRefusal::DarknessNotNumber, TextField::ShadowDarkness};
    return Configuration{e.gamePath, e.levelName, e.modName, *darkness, e.passes};
}

} // namespace umbrakit
