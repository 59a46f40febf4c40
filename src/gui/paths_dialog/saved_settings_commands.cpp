// The saved configurations through the dialog: a row loaded into the boxes, Save and Delete.
// Both rewrite config.ini whole through config.tmp; the list changes only once the file holds
// the change, so a failure leaves the file and the list as they were.
#include "gui/paths_dialog/config_file.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/combo_list.h"
#include "platform/qt_text.h"
#include "platform/services.h"

namespace umbrakit {

namespace {
const char* const kNotChanged = "config.ini was not changed.";
} // namespace

// Row 0 shows the current configuration of the main window, any other row the record of that
// name in config.ini. Nothing reaches the main window before OK.
void PathsDialog::showSelectedRow() {
    takeEntries();
    const int row = controls().savedList->ListIndex();
    if (row == 0) {
        showCurrent(entries_, current_.configuration());
    } else if (row > 0) {
        const auto config = ConfigFile(services_).read("The saved Config could not be read.");
        if (!config)
            return;
        showSaved(entries_, *config, names_.rows()[std::size_t(row)], services_.codePage);
    }
    showEntries();
}

void PathsDialog::saveSetting() {
    takeEntries();
    const auto record = recordToSave(entries_, services_.codePage);
    if (const auto* refusal = std::get_if<DialogRefusal>(&record))
        return tell(*refusal);
    const std::optional<std::string> config = readForRewrite();
    if (!config)
        return;
    const SavedRecord& saved = std::get<SavedRecord>(record);
    const auto plan = planSave(names_, saved, *config);
    if (!commit(plan))
        return;
    // The dialog shows the record as the file now holds it.
    showSaved(entries_, std::get<Rewrite>(plan).configBytes, saved.name, services_.codePage);
    showEntries();
}

// Only the selected record goes. Row 0 is selected first, so the boxes show the current
// configuration again; the deleted name stays in the name box, so that a Save brings it back.
void PathsDialog::deleteSelectedSetting() {
    const int row = controls().savedList->ListIndex();
    if (row <= 0)
        return tell(DialogRefusal{DialogRefusal::NothingSelected});
    const std::string name = names_.rows()[std::size_t(row)];
    controls().savedList->setListIndex(0);
    entries_.settingName = fromAnsi(name, services_.codePage);
    showEntries();
    if (const std::optional<std::string> config = readForRewrite())
        commit(planDelete(names_, row, *config));
}

// config.ini as a rewrite starts from. If the names could not be read when the dialog opened,
// they are read now, or the rewrite would drop every record the list does not show.
std::optional<std::string> PathsDialog::readForRewrite() {
    const ConfigFile file(services_);
    const bool namesKnown = names_.namesKnown();
    const std::optional<std::string> config =
        file.read(namesKnown ? QString(kNotChanged) : "The saved Configs could not be read.");
    if (!config) {
        file.discardTemporary();
        return std::nullopt;
    }
    if (!namesKnown) {
        names_ = SavedNameTable(*config);
        showNames(controls().savedList->ListIndex());
    }
    return config;
}

// Writes the planned file; the list follows only when config.ini holds it.
bool PathsDialog::commit(const std::variant<Rewrite, DialogRefusal>& plan) {
    if (const auto* refusal = std::get_if<DialogRefusal>(&plan)) {
        tell(*refusal);
        return false;
    }
    const Rewrite& rewrite = std::get<Rewrite>(plan);
    if (!ConfigFile(services_).replace(rewrite.configBytes, kNotChanged))
        return false;
    names_ = rewrite.names;
    showNames(rewrite.selectedRow);
    return true;
}

} // namespace umbrakit
