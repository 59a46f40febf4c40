// The controls of the main window, each at its place and size.
#include <QCheckBox>

#include <QLabel>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QStyleFactory>

#include "gui/main_window/main_window.h"
#include "core/world_size.h"
#include "platform/accessible_names.h"
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
constexpr int kTimerInterval = 7500;

QString twoDigits(int number) {
    return QString::number(number).rightJustified(2, '0');
}
} // namespace

void Form1::buildControls() {
    setObjectName("Form1");
    setWindowTitle("Umbrakit");
    setFont(defaultControlFont());
    setWindowIcon(QIcon(":/umbrakit/umbrakit.ico"));

    auto* client = new QWidget(this);
    client->setObjectName("client");
    client->setFixedSize(twips(kClientWidth), twips(kStatusTop));
    setCentralWidget(client);

    TitleLabel = place(new QLabel("Umbrakit and lmList.dat Generator", client), "TitleLabel", 15, 0,
                       4905, 465);
    TitleLabel->setAlignment(Qt::AlignCenter);
    TitleLabel->setWordWrap(true);
    TitleLabel->setFont(labelFont(true));

    Combo1 = place(new ComboList(client), "Combo1", 30, 510, 1035, 315);
    Combo1->setAccessibleName("World size");
    CheckAll = place(new QPushButton("Select &All", client), "CheckAll", 1155, 510, 1755, 315);
    ClearAll = place(new QPushButton("&Clear Selection", client), "ClearAll", 3000, 510, 1965, 315);

    for (int c = 0; c < kGridSide; ++c) {
        const QByteArray name = "Label" + QByteArray::number(c + 1);
        Label[c] =
            place(new QLabel(twoDigits(c), client), name.constData(), 225 + 300 * c, 885, 240, 240);
    }
    for (int r = 0; r < kGridSide; ++r) {
        const QByteArray name = "Label" + QByteArray::number(32 - r);
        Label[31 - r] =
            place(new QLabel(twoDigits(r), client), name.constData(), 0, 5610 - 300 * r, 240, 240);
    }
    for (QLabel* label : Label)
        label->setAlignment(Qt::AlignCenter);

    for (int i = 0; i < kPatchCount; ++i) {
        const QByteArray name = "CheckBoxArray_" + QByteArray::number(i);
        QCheckBox* patch = place(new QCheckBox(client), name.constData(),
                                 225 + 300 * patchColumn(i), 5610 - 300 * patchRow(i), 240, 240);
        patch->setEnabled(false);
        patch->setAccessibleName(
            QString("Patch column %1, row %2").arg(patchColumn(i)).arg(patchRow(i)));
        CheckBoxArray[i] = patch;
    }

    Frame1 = place(new ClassicFrame("Options", client), "Frame1", 0, 5880, 2535, 1170);
    TerrainCheck = place(new ClickCheckBox("Generate &TerrainShadows", Frame1), "TerrainCheck", 105,
                         210, 2220, 225);
    MergeCheck = place(new ClickCheckBox("&Merge TerrainShadows", Frame1), "MergeCheck", 105, 525,
                       2220, 225);
    ObjectCheck = place(new ClickCheckBox("Generate &ObjectShadows", Frame1), "ObjectCheck", 105,
                        840, 2220, 225);

    Frame2 = place(new ClassicFrame("Execute", client), "Frame2", 2625, 5880, 2325, 1170);
    lmList_Button =
        place(new QPushButton("&Export lmList.dat", Frame2), "lmList_Button", 210, 210, 1995, 375);
    Go_Button = place(new QPushButton("Run &Lighting", Frame2), "Go_Button", 210, 700, 2010, 375);
    // Fusion draws a button in its palette colour on every platform; the native styles may not.
    Go_Button->setStyle(QStyleFactory::create("Fusion"));
    QPalette green = Go_Button->palette();
    green.setColor(QPalette::Button, QColor(0, 255, 0));
    Go_Button->setPalette(green);

    StatusBar1 = new StatusBar(this);
    StatusBar1->setObjectName("StatusBar1");
    StatusBar1->setFixedHeight(twips(kClientHeight - kStatusTop));
    StatusBar1->setSimpleText("Ready.");
    setStatusBar(StatusBar1);

    Timer1 = new FormTimer(kTimerInterval, this);
    Timer1->setObjectName("Timer1");
}

void Form1::buildMenu() {
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

    menuFile = menuBar()->addMenu("&File");
    menuFile->setObjectName("menuFile");
    menuFileSave = entry(menuFile, "menuFileSave", "&Save", "Ctrl+S");
    menuFileLoad = entry(menuFile, "menuFileLoad", "&Load", "Ctrl+L");
    separator(menuFile, "seperator1");
    menuFilePaths = entry(menuFile, "menuFilePaths", "Set &Paths", "Ctrl+P");
    separator(menuFile, "seperator2");
    menuFileExit = entry(menuFile, "menuFileExit", "E&xit");

    menuRun = menuBar()->addMenu("&Run");
    menuRun->setObjectName("menuRun");
    menuRunlmList = entry(menuRun, "menuRunlmList", "Export &lmList.dat", "Ctrl+E");
    separator(menuRun, "seperator3");
    menuRunOption = menuRun->addMenu("&Options");
    menuRunOption->setObjectName("menuRunOption");
    menuRunTerrain = entry(menuRunOption, "menuRunTerrain", "Generate &TerrainShadows");
    menuRunMerge = entry(menuRunOption, "menuRunMerge", "&Merge TerrainShadows");
    menuRunObject = entry(menuRunOption, "menuRunObject", "&Generate ObjectShadows");
    for (MenuEntry* pass : {menuRunTerrain, menuRunMerge, menuRunObject})
        pass->setShowsTick(true);
    separator(menuRun, "seperator4");
    menuRunGo = entry(menuRun, "menuRunGo", "&Go!", "Ctrl+G");

    menuAbout = new MenuEntry("menuAbout", "&About", this);
    menuBar()->addAction(menuAbout);
}

void Form1::setTabOrder() {
    QList<QWidget*> order{Combo1,     CheckAll,    ClearAll,      TerrainCheck,
                          MergeCheck, ObjectCheck, lmList_Button, Go_Button};
    for (QCheckBox* patch : CheckBoxArray)
        order << patch;
    for (int i = 0; i + 1 < order.size(); ++i)
        QWidget::setTabOrder(order[i], order[i + 1]);
    for (QLabel* label : Label)
        label->setFocusPolicy(Qt::NoFocus);
    Combo1->setFocus();
}

} // namespace umbrakit
