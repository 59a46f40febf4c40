// The main window: the current configuration, the patch grid, the pass options and the
// commands that export lmList.dat and run the lighting. The configuration lives here alone;
// the pass boxes and the menu ticks show its passes.
#pragma once

#include <QMainWindow>
#include <array>
#include <memory>

#include "core/configuration.h"
#include "gui/current_configuration.h"
#include "platform/common_dialog.h"
#include "platform/services.h"

class QLabel;
class QMenu;
class QPushButton;

namespace umbrakit {

class AboutBox;
class ClassicFrame;
class ClickCheckBox;
class ComboList;
class FormTimer;
class MenuEntry;
class PatchGrid;
class PathsDialog;
class StatusBar;

class MainWindow : public QMainWindow, public CurrentConfiguration {
    Q_OBJECT
  public:
    explicit MainWindow(Services& services);
    ~MainWindow() override;

    // Creates the window, loads it and shows it: the start of the program.
    static std::unique_ptr<MainWindow> start(Services& services);

    const Configuration& configuration() const override { return configuration_; }
    // Each pass box is set, so that a real change moves the pass and its tick along.
    void applyConfiguration(const Configuration& configuration) override;

    // Controls; their object names are the classic ones (Combo1, Go_Button, ...).
    QLabel* titleLabel;
    ComboList* worldSizeList;
    QPushButton* selectAllButton;
    QPushButton* clearSelectionButton;
    PatchGrid* patchGrid;
    ClassicFrame* optionsFrame;
    std::array<ClickCheckBox*, 3> passBoxes; // by Pass
    ClassicFrame* executeFrame;
    QPushButton* exportButton;
    QPushButton* runLightingButton;
    StatusBar* statusLine;
    FormTimer* statusTimer;

    // Menu entries.
    MenuEntry* retiredSaveEntry;
    MenuEntry* retiredLoadEntry;
    MenuEntry* setPathsEntry;
    MenuEntry* exitEntry;
    MenuEntry* exportEntry;
    std::array<MenuEntry*, 3> passEntries; // by Pass
    MenuEntry* goEntry;
    MenuEntry* aboutEntry;

    // The other windows, created at first use and kept to the end of the program.
    PathsDialog* pathsDialog() const { return pathsDialog_.get(); }
    AboutBox* aboutBox() const { return aboutBox_.get(); }

    Services& services;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    // Handlers, in the order the user meets them.
    void load();
    void showWorldSize();
    void selectAllPatches();
    void clearSelection();
    void followPassBox(Pass pass);
    void togglePass(Pass pass);
    void exportPatchList();
    void runLighting();
    void openPathsDialog();
    void pointToPathsDialog();
    void showAbout();
    void exitProgram();
    void returnStatusToReady();

    void buildControls();
    void buildMenu();
    void connectHandlers();
    void setTabOrder();
    // An outcome on the status line, cleared by the status timer.
    void report(const QString& outcome);
    void tellFileFailure(const QString& what, const QString& path, const QString& reason);

    Configuration configuration_;
    CommonDialog fileDialog_;
    std::unique_ptr<PathsDialog> pathsDialog_;
    std::unique_ptr<AboutBox> aboutBox_;
};

} // namespace umbrakit
