// A row of SavedSettings reaching the dialog: row 0 shows the current configuration of Form1,
// any other row the record of that name in config.ini. Form1 itself is not touched.
#include <QLineEdit>

#include "gui/main_window/main_window.h"
#include "core/number_text.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/ansi_text.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "gui/paths_dialog/config_file.h"
#include "core/config_walk.h"

namespace umbrakit {

namespace {
// A value that is no Boolean leaves the field and its box as they were.
void applyBoolean(const std::string& text, qint16& field, ClickCheckBox* box) {
    if (const std::optional<bool> on = textToBoolean(text)) {
        field = *on ? -1 : 0;
        box->setValue(*on ? 1 : 0);
    }
}
} // namespace

void PathsDialog::SavedSettings_Click() {
    const int row = controls().SavedSettings->ListIndex();
    if (row == 0) {
        showCurrentConfiguration();
        return;
    }
    if (row < 0)
        return;
    const auto lines = ConfigFile(services_).readLines("The saved Config could not be read.");
    if (lines)
        showRecord(*lines, controls().SavedSettings->Text());
}

// The boxes follow the Booleans here too, so they never show passes that OK would not apply.
void PathsDialog::showCurrentConfiguration() {
    PathsDialogWindow& w = controls();
    w.GamePath_Text->setText(form1_.gamePath);
    w.LevelName_Text->setText(form1_.levelName);
    w.ModName_Text->setText(form1_.modName);
    w.shadow_Text->setText(QString::fromStdString(numberText(form1_.shadowDarkness)));
    terrainBoolean = form1_.terrainBoolean;
    mergeBoolean = form1_.mergeBoolean;
    objectBoolean = form1_.objectBoolean;
    w.TerrainCheck->setValue(terrainBoolean != 0 ? 1 : 0);
    w.MergeCheck->setValue(mergeBoolean != 0 ? 1 : 0);
    w.ObjectCheck->setValue(objectBoolean != 0 ? 1 : 0);
}

// The first record headed with this name; without one, nothing changes.
void PathsDialog::showRecord(const std::vector<std::string>& lines, const QString& name) {
    const std::optional<std::string> ansiName = toAnsi(name);
    if (!ansiName)
        return; // no head in the file can hold it
    const RecordValues record = findRecordValues(lines, *ansiName);
    if (!record.found)
        return;

    PathsDialogWindow& w = controls();
    w.SettingName_Text->setText(name);
    const auto value = [&record](RecordKey key) {
        return record.values[static_cast<std::size_t>(key)];
    };
    if (const auto text = value(RecordKey::GamePath)) {
        gamePath = fromAnsi(*text);
        w.GamePath_Text->setText(gamePath);
    }
    if (const auto text = value(RecordKey::LevelName)) {
        levelName = fromAnsi(*text);
        w.LevelName_Text->setText(levelName);
    }
    if (const auto text = value(RecordKey::ModName)) {
        modName = fromAnsi(*text);
        w.ModName_Text->setText(modName);
    }
    if (const auto text = value(RecordKey::TerrainBoolean))
        applyBoolean(*text, terrainBoolean, w.TerrainCheck);
    if (const auto text = value(RecordKey::MergeBoolean))
        applyBoolean(*text, mergeBoolean, w.MergeCheck);
    if (const auto text = value(RecordKey::ObjectBoolean))
        applyBoolean(*text, objectBoolean, w.ObjectCheck);
    if (const auto text = value(RecordKey::ShadowDarkness)) {
        // A darkness that is no number shows as it was saved; OK then asks for a number.
        if (const std::optional<double> number = textToNumber(*text)) {
            shadowDarkness = *number;
            w.shadow_Text->setText(QString::fromStdString(numberText(shadowDarkness)));
        } else {
            w.shadow_Text->setText(fromAnsi(*text));
        }
    }
}

} // namespace umbrakit
