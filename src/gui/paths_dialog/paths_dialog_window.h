// The window of the paths dialog and its controls. They exist only while the dialog is
// loaded: the window deletes itself when it closes, and all that the controls held goes.
#pragma once

#include <QDialog>


class QLabel;
class QLineEdit;
class QPushButton;

namespace umbrakit {

class ClassicFrame;
class ClickCheckBox;
class ComboList;

class PathsDialogWindow : public QDialog {
    Q_OBJECT
  public:
    PathsDialogWindow();

    QPushButton* Delete;
    ComboList* SavedSettings;
    ClassicFrame* Frame1;
    QLabel* Label5;

    // Inside Frame1.
    ClickCheckBox* TerrainCheck; // display only: the dialog's Booleans are what count
    ClickCheckBox* MergeCheck;
    ClickCheckBox* ObjectCheck;
    QPushButton* Save;
    QLineEdit* SettingName_Text;
    QLineEdit* shadow_Text;
    ComboList* ModName_Text;
    QLineEdit* LevelName_Text;
    QPushButton* Path;
    QLineEdit* GamePath_Text;
    QPushButton* OKButton;
    QPushButton* CancelButton;
    QLabel* Label6;
    QLabel* Label4;
    QLabel* Label3;
    QLabel* Label1;
    QLabel* Label2;

  protected:
    // Esc is no way out: Cancel is not the window's cancel button. A close by the border
    // still goes through QDialog and unloads the dialog.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void setTabOrder();
};

} // namespace umbrakit
