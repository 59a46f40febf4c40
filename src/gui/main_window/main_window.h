// The main window: the current configuration, the patch grid, the pass options and the
// commands that export lmList.dat and run the lighting.
#pragma once

#include <QMainWindow>
#include <array>
#include <memory>

#include "platform/common_dialog.h"
#include "platform/services.h"

class QCheckBox;

class QLabel;
class QMenu;
class QPushButton;

namespace umbrakit {

class ClassicFrame;
class ClickCheckBox;
class ComboList;
class FormTimer;
class FrmAbout;
class MenuEntry;
class PathsDialog;
class StatusBar;

class Form1 : public QMainWindow {
    Q_OBJECT
  public:
    explicit Form1(Services& services);
    ~Form1() override;

    // Creates the window, runs Form_Load and shows it: the start of the program.
    static std::unique_ptr<Form1> start(Services& services);

    // The current configuration.
    QString gamePath;
    QString levelName;
    QString modName;
    double shadowDarkness = 0;
    qint16 terrainBoolean = 0; // 0 is False, -1 is True
    qint16 mergeBoolean = 0;
    qint16 objectBoolean = 0;

    // Controls.
    QLabel* TitleLabel;
    ComboList* Combo1;
    QPushButton* CheckAll;
    QPushButton* ClearAll;
    std::array<QCheckBox*, 256> CheckBoxArray;
    std::array<QLabel*, 32> Label; // Label[0] is Label1
    ClassicFrame* Frame1;
    ClickCheckBox* TerrainCheck;
    ClickCheckBox* MergeCheck;
    ClickCheckBox* ObjectCheck;
    ClassicFrame* Frame2;
    QPushButton* lmList_Button;
    QPushButton* Go_Button;
    StatusBar* StatusBar1;
    FormTimer* Timer1;
    CommonDialog cDialog;

    // Menu.
    QMenu* menuFile;
    MenuEntry* menuFileSave;
    MenuEntry* menuFileLoad;
    MenuEntry* menuFilePaths;
    MenuEntry* menuFileExit;
    QMenu* menuRun;
    MenuEntry* menuRunlmList;
    QMenu* menuRunOption;
    MenuEntry* menuRunTerrain;
    MenuEntry* menuRunMerge;
    MenuEntry* menuRunObject;
    MenuEntry* menuRunGo;
    MenuEntry* menuAbout;

    // The other windows, created at first use and kept to the end of the program.
    PathsDialog* pathsDialog() const { return pathsDialog_.get(); }
    FrmAbout* frmAbout() const { return frmAbout_.get(); }

    // Handlers.
    void Form_Load();
    void Timer1_Timer();
    void menuFileExit_Click();
    void Combo1_Click();
    void CheckAll_Click();
    void ClearAll_Click();
    void lmList_Button_Click();
    void menuRunlmList_Click();
    void Go_Button_Click();
    void menuRunGo_Click();
    void TerrainCheck_Click();
    void MergeCheck_Click();
    void ObjectCheck_Click();
    void menuRunTerrain_Click();
    void menuRunMerge_Click();
    void menuRunObject_Click();
    void menuFilePaths_Click();
    void menuFileSave_Click();
    void menuFileLoad_Click();
    void menuAbout_Click();

    Services& services;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildControls();
    void buildMenu();
    void connectHandlers();
    void setTabOrder();
    void reportFileFailure(const QString& what, const QString& path, const QString& reason);

    std::unique_ptr<PathsDialog> pathsDialog_;
    std::unique_ptr<FrmAbout> frmAbout_;
};

} // namespace umbrakit
