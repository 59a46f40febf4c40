// Save and Delete, and the one rewrite of config.ini behind both. The list decides: a record
// reaches the new file only if its name is listed, so a replaced or deleted name leaves the
// list first. The new file is complete beside config.ini before it takes its place.
#include <QLineEdit>
#include <QStringList>

#include "gui/main_window/main_window.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/ansi_text.h"
#include "platform/combo_list.h"
#include "core/text_lines.h"
#include "gui/paths_dialog/config_file.h"
#include "core/config_walk.h"

namespace umbrakit {

namespace {
const char* const kNotChanged = "config.ini was not changed.";

// The rows and the selection of a list, to be put back when the file could not be changed:
// the list then shows again the names that the file still holds.
class ListRows {
  public:
    explicit ListRows(const ComboList& list) : selected_(list.ListIndex()) {
        for (int i = 0; i < list.ListCount(); ++i)
            rows_ << list.List(i);
    }
    // Puts the rows back and selects `row` without loading it: the controls keep their texts.
    void restore(ComboList& list, int row) const {
        list.Clear();
        for (const QString& text : rows_)
            list.AddItem(text);
        list.setCurrentIndex(row);
    }
    void restore(ComboList& list) const { restore(list, selected_); }

  private:
    QStringList rows_;
    int selected_;
};

struct Field {
    const char* caption;
    QString text;
};
} // namespace

// Only the selected record goes, and its name stays in the name box, so a Save brings it back.
void PathsDialog::Delete_Click() {
    ComboList& list = *controls().SavedSettings;
    const int row = list.ListIndex();
    if (row <= 0) {
        tell("Please select a saved Config to delete.");
        return;
    }
    const ListRows before(list);
    const QString name = list.Text();
    list.RemoveItem(row);
    list.setListIndex(0); // raises SavedSettings_Click: the controls show Form1's values again
    controls().SettingName_Text->setText(name);
    if (!RewriteConfig(true))
        before.restore(list, 0);
}

void PathsDialog::Save_Click() {
    RewriteConfig(false);
}

// True when config.ini holds the change.
bool PathsDialog::RewriteConfig(bool deleteOnly) {
    PathsDialogWindow& w = controls();
    const QString name = w.SettingName_Text->text();
    if (name.isEmpty() || name == "(Current)") {
        tell("Please give the Config a name.");
        return false;
    }
    std::optional<SavedRecord> record;
    if (!deleteOnly) {
        record = recordToSave();
        if (!record)
            return false;
    }
    if (!listShowsFile())
        return false;
    const int listedNames = w.SavedSettings->ListCount() - 1;
    if (!deleteOnly && FindSavedName(name) <= 0 && listedNames >= kSavedNameCapacity) {
        tell(QString("There is room for %1 saved Configs, and all are in use. Delete one, or "
                     "save under a listed name to replace it.")
                 .arg(kSavedNameCapacity));
        return false;
    }

    const ListRows before(*w.SavedSettings);
    if (const int row = FindSavedName(name); row > 0)
        w.SavedSettings->RemoveItem(row);
    const ConfigFile file(services_);
    const auto lines = file.readLines(kNotChanged);
    if (!lines) {
        file.discardTemporary();
        before.restore(*w.SavedSettings);
        return false;
    }
    const std::string bytes = rewrittenConfig(
        *lines,
        [&](std::string_view kept) { return isKeptByRewrite(std::string(kept), deleteOnly); },
        record);
    if (!file.replace(bytes, kNotChanged)) {
        before.restore(*w.SavedSettings);
        return false;
    }

    if (!deleteOnly) {
        // The new row is selected once the file holds the record, and shows what was saved.
        w.SavedSettings->AddItem(name);
        w.SavedSettings->setCurrentIndex(w.SavedSettings->ListCount() - 1);
        showRecord(splitLines(bytes), name);
    }
    return true;
}

// The record of the controls and the dialog's Booleans, in the file's code page. A text that
// the file cannot hold is refused with the field named, before anything is changed.
std::optional<SavedRecord> PathsDialog::recordToSave() const {
    const PathsDialogWindow& w = controls();
    const Field fields[] = {{"Setting Name", w.SettingName_Text->text()},
                            {"Game Path", w.GamePath_Text->text()},
                            {"Level Name", w.LevelName_Text->text()},
                            {"Mod Name", w.ModName_Text->Text()},
                            {"Shadow Darkness", w.shadow_Text->text()}};
    std::string ansi[std::size(fields)];
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const QString& text = fields[i].text;
        const std::optional<std::string> bytes = toAnsi(text);
        if (text.contains('\n') || !bytes) {
            const QString what = text.contains('\n')
                                     ? QString("a line break")
                                     : "the character \"" + firstUnwritableCharacter(text) + "\"";
            tell(QString("The %1 holds %2, which config.ini cannot store. Nothing was saved.")
                     .arg(fields[i].caption, what));
            return std::nullopt;
        }
        ansi[i] = *bytes;
    }
    return SavedRecord{ansi[0],
                       ansi[1],
                       ansi[2],
                       ansi[3],
                       terrainBoolean != 0,
                       mergeBoolean != 0,
                       objectBoolean != 0,
                       ansi[4]};
}

// Listed names live on. So do the names the table had no room for, unless a save is about to
// write a record of the same name last.
bool PathsDialog::isKeptByRewrite(const std::string& name, bool deleteOnly) const {
    if (FindSavedName(fromAnsi(name)) != -1)
        return true;
    const bool beyondTable = std::find(namesBeyondTable_.begin(), namesBeyondTable_.end(), name) !=
                             namesBeyondTable_.end();
    return beyondTable && (deleteOnly || fromAnsi(name) != controls().SettingName_Text->text());
}

} // namespace umbrakit
