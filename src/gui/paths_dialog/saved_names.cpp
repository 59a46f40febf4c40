// The table of saved names, the list filled from it, and the search of the list.
#include "gui/main_window/main_window.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/ansi_text.h"
#include "platform/combo_list.h"
#include "gui/paths_dialog/config_file.h"
#include "core/config_walk.h"

namespace umbrakit {

namespace {
// Row 0, "(Current)", and one row for each name the table can hold.
constexpr int kSearchedRows = kSavedNameCapacity + 1;
} // namespace

// Emptied first, so that the list shows the names the file holds now, never those of an
// earlier load. False when the file could not be read; the user has been told.
bool PathsDialog::ReadSavedNames() {
    savedNames.fill(QString());
    namesBeyondTable_.clear();
    const auto lines = ConfigFile(services_).readLines("The saved Configs could not be read.");
    if (!lines)
        return false;
    const std::vector<std::string> names = readSavedNames(*lines);
    for (std::size_t n = 0; n < names.size(); ++n) {
        if (n < savedNames.size())
            savedNames[n] = fromAnsi(names[n]);
        else
            namesBeyondTable_.push_back(names[n]);
    }
    return true;
}

// "(Current)" and the names of the table. An empty name (a head made by hand) gets no row,
// but the names behind it still do, so that their records live on through a rewrite.
void PathsDialog::fillSavedSettings() {
    ComboList& list = *controls().SavedSettings;
    list.Clear();
    list.AddItem("(Current)");
    for (const QString& name : savedNames) {
        if (!name.isEmpty())
            list.AddItem(name);
    }
}

// Reads the names again if the load could not, keeping the row and the name box as they
// are. False if the file still cannot be read.
bool PathsDialog::listShowsFile() {
    if (namesRead_)
        return true;
    ComboList& list = *controls().SavedSettings;
    const int row = list.ListIndex();
    if (!ReadSavedNames())
        return false;
    fillSavedSettings();
    list.setCurrentIndex(row); // the same row as before: nothing new is loaded
    namesRead_ = true;
    return true;
}

// All 31 rows are searched: a name in the last row is listed like any other, so that it can
// be replaced and its record lives on through every rewrite.
int PathsDialog::FindSavedName(const QString& name) const {
    int found = -1;
    for (int i = 0; i < kSearchedRows; ++i) {
        if (controls().SavedSettings->List(i) == name)
            found = i;
    }
    return found;
}

} // namespace umbrakit
