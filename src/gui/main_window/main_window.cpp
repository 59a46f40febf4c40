#include "gui/main_window/main_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QPushButton>

#include "gui/paths_dialog/paths_dialog.h"
#include "gui/about/about_box.h"
#include "gui/about/resources.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/status_bar.h"
#include "platform/twips.h"

namespace umbrakit {

Form1::Form1(Services& services) : cDialog(services.dialogs), services(services) {
    loadResources();
    buildControls();
    buildMenu();
    connectHandlers();
    setTabOrder();
    resize(twips(4950), twips(7350) + menuBar()->sizeHint().height());
}

Form1::~Form1() = default;

std::unique_ptr<Form1> Form1::start(Services& services) {
    auto form = std::make_unique<Form1>(services);
    form->Form_Load();
    form->show();
    return form;
}

void Form1::connectHandlers() {
    connect(Combo1, &ComboList::Click, this, &Form1::Combo1_Click);
    connect(CheckAll, &QPushButton::clicked, this, &Form1::CheckAll_Click);
    connect(ClearAll, &QPushButton::clicked, this, &Form1::ClearAll_Click);
    connect(TerrainCheck, &ClickCheckBox::Click, this, &Form1::TerrainCheck_Click);
    connect(MergeCheck, &ClickCheckBox::Click, this, &Form1::MergeCheck_Click);
    connect(ObjectCheck, &ClickCheckBox::Click, this, &Form1::ObjectCheck_Click);
    connect(lmList_Button, &QPushButton::clicked, this, &Form1::lmList_Button_Click);
    connect(Go_Button, &QPushButton::clicked, this, &Form1::Go_Button_Click);
    connect(Timer1, &FormTimer::Timer, this, &Form1::Timer1_Timer);

    connect(menuFileSave, &MenuEntry::Click, this, &Form1::menuFileSave_Click);
    connect(menuFileLoad, &MenuEntry::Click, this, &Form1::menuFileLoad_Click);
    connect(menuFilePaths, &MenuEntry::Click, this, &Form1::menuFilePaths_Click);
    connect(menuFileExit, &MenuEntry::Click, this, &Form1::menuFileExit_Click);
    connect(menuRunlmList, &MenuEntry::Click, this, &Form1::menuRunlmList_Click);
    connect(menuRunTerrain, &MenuEntry::Click, this, &Form1::menuRunTerrain_Click);
    connect(menuRunMerge, &MenuEntry::Click, this, &Form1::menuRunMerge_Click);
    connect(menuRunObject, &MenuEntry::Click, this, &Form1::menuRunObject_Click);
    connect(menuRunGo, &MenuEntry::Click, this, &Form1::menuRunGo_Click);
    connect(menuAbout, &MenuEntry::Click, this, &Form1::menuAbout_Click);
}

// Closing the main window ends the program, whatever other window is shown or hidden: a
// hidden dialog must not keep it alive with nothing left on the screen.
void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    services.end();
}

void Form1::reportFileFailure(const QString& what, const QString& path, const QString& reason) {
    services.dialogs.msgBox(what + "\n\n" + QDir::toNativeSeparators(path) + "\n\n" + reason,
                            MsgBoxStyle::Critical, QString());
}

} // namespace umbrakit
