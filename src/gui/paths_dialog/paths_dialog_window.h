// The window of the paths dialog and its controls. They exist only while the dialog is
// loaded: the window deletes itself when it closes, and all that the controls held goes.
#pragma once

#include <QDialog>
#include <array>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace umbrakit {

class ClassicFrame;
class ComboList;

class PathsDialogWindow : public QDialog {
    Q_OBJECT
  public:
    PathsDialogWindow();

    // Object names are the classic ones (SavedSettings, SettingName_Text, ...).
    ComboList* savedList;
    QPushButton* deleteButton;
    ClassicFrame* pathsFrame;
    QLineEdit* nameBox;
    QPushButton* saveButton;
    QLineEdit* gamePathBox;
    QPushButton* browseButton;
    QLineEdit* levelBox;
    ComboList* modBox;
    QLineEdit* darknessBox;
    QPushButton* okButton;
    QPushButton* cancelButton;
    std::array<QCheckBox*, 3> passBoxes; // by Pass; they only show the dialog's passes

  protected:
    // Esc is no way out: Cancel is not the window's cancel button. A close by the border
    // still goes through QDialog and unloads the dialog.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void setTabOrder();
};

} // namespace umbrakit
