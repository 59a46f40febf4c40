#include "gui/main_window/main_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QPushButton>

#include "core/world_size.h"
#include "gui/about/about_box.h"
#include "gui/about/resources.h"
#include "gui/main_window/patch_grid.h"
#include "gui/paths_dialog/paths_dialog.h"
#include "platform/classic_keys.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/status_bar.h"
#include "platform/twips.h"

namespace umbrakit {

MainWindow::MainWindow(Services& services) : services(services), fileDialog_(services.dialogs) {
    loadResources();
    buildControls();
    buildMenu();
    connectHandlers();
    setTabOrder();
    useClassicKeys(*this); // Alt+A selects all patches; About is reached by Alt or F10
    resize(twips(4950), twips(7350) + menuBar()->sizeHint().height());
}

MainWindow::~MainWindow() = default;

std::unique_ptr<MainWindow> MainWindow::start(Services& services) {
    auto window = std::make_unique<MainWindow>(services);
    window->load();
    window->show();
    return window;
}

void MainWindow::connectHandlers() {
    connect(worldSizeList, &ComboList::Click, this, &MainWindow::showWorldSize);
    connect(selectAllButton, &QPushButton::clicked, this, &MainWindow::selectAllPatches);
    connect(clearSelectionButton, &QPushButton::clicked, this, &MainWindow::clearSelection);
    for (Pass pass : kPasses) {
        const auto index = std::size_t(pass);
        connect(passBoxes[index], &ClickCheckBox::Click, this, [this, pass] { followPassBox(pass); });
        connect(passEntries[index], &MenuEntry::Click, this, [this, pass] { togglePass(pass); });
    }
    connect(exportButton, &QPushButton::clicked, this, &MainWindow::exportPatchList);
    connect(exportEntry, &MenuEntry::Click, this, &MainWindow::exportPatchList);
    connect(runLightingButton, &QPushButton::clicked, this, &MainWindow::runLighting);
    connect(goEntry, &MenuEntry::Click, this, &MainWindow::runLighting);
    connect(setPathsEntry, &MenuEntry::Click, this, &MainWindow::openPathsDialog);
    connect(retiredSaveEntry, &MenuEntry::Click, this, &MainWindow::pointToPathsDialog);
    connect(retiredLoadEntry, &MenuEntry::Click, this, &MainWindow::pointToPathsDialog);
    connect(aboutEntry, &MenuEntry::Click, this, &MainWindow::showAbout);
    connect(exitEntry, &MenuEntry::Click, this, &MainWindow::exitProgram);
    connect(statusTimer, &FormTimer::Timer, this, &MainWindow::returnStatusToReady);
}

// The world sizes are offered and "4x4" chosen, which brings the grid into its first state.
void MainWindow::load() {
    for (const char* caption : {"4x4", "8x8", "16x16", "32x32"})
        worldSizeList->AddItem(caption);
    worldSizeList->setListIndex(0);
    configuration_.shadowDarkness = 1.5;
}

void MainWindow::showWorldSize() {
    patchGrid->showWorld(worldSizeFor(worldSizeList->ListIndex()));
}

void MainWindow::selectAllPatches() {
    patchGrid->selectAll(worldSizeFor(worldSizeList->ListIndex()));
}

void MainWindow::clearSelection() {
    patchGrid->clear();
}

void MainWindow::applyConfiguration(const Configuration& configuration) {
    configuration_.gamePath = configuration.gamePath;
    configuration_.levelName = configuration.levelName;
    configuration_.modName = configuration.modName;
    configuration_.shadowDarkness = configuration.shadowDarkness;
    for (Pass pass : kPasses)
        passBoxes[std::size_t(pass)]->setValue(configuration.passes[pass] ? 1 : 0);
}

// "Configuring Paths..." stands only while the dialog loads; it opens modeless beside this one.
void MainWindow::openPathsDialog() {
    statusLine->setSimpleText("Configuring Paths...");
    if (!pathsDialog_)
        pathsDialog_ = std::make_unique<PathsDialog>(*this, services);
    pathsDialog_->show();
    statusLine->setSimpleText("Ready.");
}

// The retired Save and Load of the File menu: saved configurations live in the paths dialog.
void MainWindow::pointToPathsDialog() {
    services.dialogs.msgBox("Please Use the Paths Dialog to manage saved configurations",
                            {MsgBoxButtons::Ok, MsgBoxIcon::Information}, "Depreciated");
}

void MainWindow::showAbout() {
    if (!aboutBox_)
        aboutBox_ = std::make_unique<AboutBox>();
    aboutBox_->show();
}

void MainWindow::exitProgram() {
    services.end();
}

// Closing the main window ends the program, whatever other window is shown or hidden: a
// hidden dialog must not keep it alive with nothing left on the screen.
void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    services.end();
}

// Outcomes alone are spoken: the progress texts stand only while a dialog opens, which the
// screen reader speaks itself, and the return to "Ready." tells nothing new.
void MainWindow::report(const QString& outcome) {
    statusLine->setSimpleText(outcome);
    statusLine->announceSimpleText();
    statusTimer->setEnabled(true);
}

void MainWindow::returnStatusToReady() {
    statusLine->setSimpleText("Ready.");
    statusTimer->setEnabled(false);
}

void MainWindow::tellFileFailure(const QString& what, const QString& path, const QString& reason) {
    services.dialogs.msgBox(what + "\n\n" + QDir::toNativeSeparators(path) + "\n\n" + reason,
                            {MsgBoxButtons::Ok, MsgBoxIcon::Critical}, QString());
}

} // namespace umbrakit
