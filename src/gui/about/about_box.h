// The About box: title, version and a contact line beside the program's icon. The object
// lives from first use to the end of the program; its window only while it is loaded.
#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QPushButton;

namespace umbrakit {

class FrmAboutWindow : public QDialog {
    Q_OBJECT
  public:
    FrmAboutWindow();

    QPushButton* cmdOK;
    QLabel* picIcon;
    QLabel* lblDescription;
    QLabel* lblTitle;
    QLabel* lblVersion;
};

class FrmAbout {
  public:
    void Show(); // loads the window if needed and shows it, modeless and without owner
    void Unload();
    void cmdOK_Click() { Unload(); }

    bool isLoaded() const { return !window_.isNull(); }
    FrmAboutWindow* window() const { return window_; }

  private:
    QPointer<FrmAboutWindow> window_;
};

} // namespace umbrakit
