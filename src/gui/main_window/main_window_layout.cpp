// The controls and the menu of the main window, each at its place.
#include <QLabel>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>

#include "gui/main_window/main_window.h"
#include "gui/main_window/patch_grid.h"
#include "platform/caption_fit.h"
#include "platform/classic_font.h"
#include "platform/classic_frame.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/placement.h"
#include "platform/status_bar.h"

namespace umbrakit {

namespace {
constexpr int kClientWidth = 4950;
constexpr int kClientHeight = 7350;
constexpr int kStatusTop = 7065;
constexpr int kStatusInterval = 7500;

const char* const kPassCaptions[] = {"Generate &TerrainShadows", "&Merge TerrainShadows",
                                     "Generate &ObjectShadows"};
} // namespace

void MainWindow::buildControls() {
    setObjectName("Form1");
    setWindowTitle("Umbrakit");
    setFont(defaultControlFont());
    setWindowIcon(QIcon(":/umbrakit/umbrakit.ico"));

    auto* client = new QWidget(this);
    client->setObjectName("client");
    client->setFixedSize(twips(kClientWidth), twips(kStatusTop));
    setCentralWidget(client);

    titleLabel = place(new QLabel("Umbrakit and lmList.dat Generator", client), "TitleLabel", 15,
                       0, 4905, 465);
    titleLabel->setAlignment(Qt::AlignCenter);
    titleLabel->setWordWrap(true);
    titleLabel->setFont(labelFont(true));

    worldSizeList = place(new ComboList(client), "Combo1", 30, 510, 1035, 315);
    worldSizeList->setAccessibleName("World size");
    selectAllButton =
        place(new QPushButton("Select &All", client), "CheckAll", 1155, 510, 1755, 315);
    clearSelectionButton =
        place(new QPushButton("&Clear Selection", client), "ClearAll", 3000, 510, 1965, 315);
    patchGrid = new PatchGrid(client);

    optionsFrame = place(new ClassicFrame("Options", client), "Frame1", 0, 5880, 2535, 1170);
    const char* const passNames[] = {"TerrainCheck", "MergeCheck", "ObjectCheck"};
    for (std::size_t pass = 0; pass < passBoxes.size(); ++pass)
        passBoxes[pass] = place(new ClickCheckBox(kPassCaptions[pass], optionsFrame),
                                passNames[pass], 105, 210 + 315 * int(pass), 2220, 225);

    executeFrame = place(new ClassicFrame("Execute", client), "Frame2", 2625, 5880, 2325, 1170);
    exportButton = place(new QPushButton("&Export lmList.dat", executeFrame), "lmList_Button",
                         210, 210, 1995, 375);
    runLightingButton =
        place(new QPushButton("Run &Lighting", executeFrame), "Go_Button", 210, 700, 2010, 375);
    // Fusion draws a button in its palette colour on every platform; the native styles may not.
    runLightingButton->setStyle(QStyleFactory::create("Fusion"));
    QPalette green = runLightingButton->palette();
    green.setColor(QPalette::Button, QColor(0, 255, 0));
    runLightingButton->setPalette(green);

    statusLine = new StatusBar(this);
    statusLine->setObjectName("StatusBar1");
    statusLine->setFixedHeight(twips(kClientHeight - kStatusTop));
    statusLine->setSimpleText("Ready.");
    setStatusBar(statusLine);

    statusTimer = new FormTimer(kStatusInterval, this);
    statusTimer->setObjectName("Timer1");
    fitCaptions(this);
}

void MainWindow::buildMenu() {
    auto entry = [this](QMenu* menu, const char* name, const QString& caption,
                        const QString& shortcut = QString()) {
        auto* action = new MenuEntry(name, caption, this);
        if (!shortcut.isEmpty())
            action->setShortcut(QKeySequence(shortcut));
        menu->addAction(action);
        return action;
    };
    auto separator = [](QMenu* menu, const char* name) {
        menu->addSeparator()->setObjectName(name);
    };

    QMenu* file = menuBar()->addMenu("&File");
    file->setObjectName("menuFile");
    retiredSaveEntry = entry(file, "menuFileSave", "&Save", "Ctrl+S");
    retiredLoadEntry = entry(file, "menuFileLoad", "&Load", "Ctrl+L");
    separator(file, "seperator1");
    setPathsEntry = entry(file, "menuFilePaths", "Set &Paths", "Ctrl+P");
    separator(file, "seperator2");
    exitEntry = entry(file, "menuFileExit", "E&xit");

    QMenu* run = menuBar()->addMenu("&Run");
    run->setObjectName("menuRun");
    exportEntry = entry(run, "menuRunlmList", "Export &lmList.dat", "Ctrl+E");
    separator(run, "seperator3");
    QMenu* options = run->addMenu("&Options");
    options->setObjectName("menuRunOption");
    // The object pass takes G here and O on its check box.
    passEntries = {entry(options, "menuRunTerrain", "Generate &TerrainShadows"),
                   entry(options, "menuRunMerge", "&Merge TerrainShadows"),
                   entry(options, "menuRunObject", "&Generate ObjectShadows")};
    for (MenuEntry* pass : passEntries)
        pass->setShowsTick(true);
    separator(run, "seperator4");
    goEntry = entry(run, "menuRunGo", "&Go!", "Ctrl+G");

    aboutEntry = new MenuEntry("menuAbout", "&About", this);
    menuBar()->addAction(aboutEntry);
}

void MainWindow::setTabOrder() {
    QList<QWidget*> order{worldSizeList, selectAllButton, clearSelectionButton};
    for (ClickCheckBox* box : passBoxes)
        order << box;
    order << exportButton << runLightingButton;
    // The patches follow in the chain, but only the grid's focused patch takes Tab: the grid
    // is one stop, wherever in it that patch lies.
    for (int i = 0; i < kPatchCount; ++i)
        order << patchGrid->patch(i);
    for (int i = 0; i + 1 < order.size(); ++i)
        QWidget::setTabOrder(order[i], order[i + 1]);
    worldSizeList->setFocus();
}

} // namespace umbrakit
