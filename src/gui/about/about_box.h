// The About box: title, version and a contact line beside the program's icon. The object
// lives from first use to the end of the program; its window only while it is loaded.
#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QPushButton;

namespace umbrakit {

class AboutWindow : public QDialog {
    Q_OBJECT
  public:
    AboutWindow();

    // Object names are the classic ones (cmdOK, picIcon, ...).
    QPushButton* okButton;
    QLabel* icon;
    QLabel* contactLabel;
    QLabel* titleLabel;
    QLabel* versionLabel;
};

class AboutBox {
  public:
    void show(); // loads the window if needed and shows it, modeless and without owner
    void unload();

    bool isLoaded() const { return !window_.isNull(); }
    AboutWindow* window() const { return window_; }

  private:
    QPointer<AboutWindow> window_;
};

} // namespace umbrakit
