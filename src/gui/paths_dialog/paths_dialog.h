// The paths dialog: the user's working copy of the configuration, and the saved
// configurations of config.ini. The object lives from first use to the end of the program;
// its window and controls only while it is loaded. The window shows what the object holds:
// the boxes' texts as last taken, the dialog's own passes and the saved names.
#pragma once

#include <QPointer>
#include <QString>
#include <optional>
#include <string>

#include "core/saved_name_table.h"
#include "core/saved_settings.h"
#include "gui/current_configuration.h"
#include "gui/paths_dialog/paths_dialog_window.h"
#include "platform/common_dialog.h"

namespace umbrakit {

struct Services;

class PathsDialog {
  public:
    PathsDialog(CurrentConfiguration& current, Services& services);
    ~PathsDialog();
    PathsDialog(const PathsDialog&) = delete;
    PathsDialog& operator=(const PathsDialog&) = delete;

    // Loads the window if needed and shows it, modeless and without owner.
    void show();
    void hide();   // the controls keep what they hold
    void unload(); // the controls and all they hold go
    bool isLoaded() const { return !window_.isNull(); }
    PathsDialogWindow* window() const { return window_; }

  private:
    // Handlers, in the order the user meets them.
    void load();
    void showSelectedRow();
    void browseForGame();
    void saveSetting();
    void deleteSelectedSetting();
    void applyAndClose();

    void connectHandlers();
    void takeEntries();
    void showEntries();
    void showNames(int selectedRow);
    std::optional<std::string> readForRewrite();
    bool commit(const std::variant<Rewrite, DialogRefusal>& plan);
    void tell(const QString& prompt) const;
    void tell(const DialogRefusal& refusal) const;
    PathsDialogWindow& controls() const { return *window_; }

    CurrentConfiguration& current_;
    Services& services_;
    CommonDialog fileDialog_;
    QPointer<PathsDialogWindow> window_;
    DialogEntries entries_;
    SavedNameTable names_;
};

} // namespace umbrakit
