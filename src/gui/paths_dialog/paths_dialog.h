// The paths dialog: the working copy of the current configuration and the saved
// configurations of config.ini. The object lives from first use to the end of the program,
// with the fields below; its window and controls only while it is loaded.
#pragma once

#include <QPointer>
#include <QString>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "gui/paths_dialog/paths_dialog_window.h"
#include "platform/common_dialog.h"
#include "core/config_format.h"

namespace umbrakit {

class Form1;
struct Services;

class PathsDialog {
  public:
    explicit PathsDialog(Form1& form1);
    ~PathsDialog();
    PathsDialog(const PathsDialog&) = delete;
    PathsDialog& operator=(const PathsDialog&) = delete;

    // A value of a saved configuration on its way into its control.
    QString gamePath;
    QString levelName;
    QString modName;
    double shadowDarkness = 0;
    // The dialog's working copy of the lighting passes: 0 is False, -1 is True.
    qint16 terrainBoolean = 0;
    qint16 mergeBoolean = 0;
    qint16 objectBoolean = 0;

    // Loads the window if needed (running Form_Load) and shows it, modeless and without owner.
    void Show();
    void Hide();   // the controls keep what they hold
    void Unload(); // the controls and all they hold go; the fields stay
    bool isLoaded() const { return !window_.isNull(); }
    PathsDialogWindow* window() const { return window_; }

    // Handlers.
    void Delete_Click();
    void Path_Click();
    void Save_Click();
    void Form_Load();
    void SavedSettings_Click();
    void OKButton_Click();
    void CancelButton_Click();
    // The last of rows 0 to 30 of SavedSettings that equals name exactly, or -1.
    int FindSavedName(const QString& name) const;

  private:
    bool ReadSavedNames();
    bool RewriteConfig(bool deleteOnly);

    PathsDialogWindow& controls() const { return *window_; }
    void connectHandlers();
    void fillSavedSettings();
    bool listShowsFile();
    std::optional<SavedRecord> recordToSave() const;
    bool isKeptByRewrite(const std::string& name, bool deleteOnly) const;
    void showCurrentConfiguration();
    void showRecord(const std::vector<std::string>& lines, const QString& name);
    void tell(const QString& prompt) const;

    Form1& form1_;
    Services& services_;
    CommonDialog cDialog;
    QPointer<PathsDialogWindow> window_;

    std::array<QString, kSavedNameCapacity> savedNames;
    // Names of config.ini beyond the table's room. They get no row, and a rewrite keeps their
    // records all the same, so that a file with more records than the table loses none.
    std::vector<std::string> namesBeyondTable_;
    // False while the list may be missing names of the file because config.ini could not be
    // read at load; a rewrite then reads them first, or would drop the records not listed.
    bool namesRead_ = false;
};

} // namespace umbrakit
