#include "gui/about/about_box.h"

#include <QLabel>
#include <QPushButton>

#include "platform/accessible_names.h"
#include "platform/classic_font.h"
#include "platform/placement.h"

namespace umbrakit {

FrmAboutWindow::FrmAboutWindow() : QDialog(nullptr, kFixedDialogFlags) {
    setUpFixedDialog(*this, "frmAbout", "About...", 4965, 1650);
    setGeometry(twipsRect(2340, 1935, 4965, 1650)); // the client area's place is fixed, not centred

    cmdOK = place(new QPushButton("OK", this), "cmdOK", 1890, 1260, 1260, 345);
    cmdOK->setDefault(true);

    picIcon = place(new QLabel(this), "picIcon", 240, 240, 540, 540);
    picIcon->setPixmap(QPixmap(":/umbrakit/umbrakit.ico"));
    picIcon->resize(picIcon->pixmap().size()); // the box takes the picture's size
    picIcon->setAccessibleName("Umbrakit icon");

    QPalette black = palette();
    black.setColor(QPalette::WindowText, Qt::black);
    lblDescription = place(new QLabel("Bugs and ideas: the Umbrakit issue tracker", this),
                           "lblDescription", 1050, 915, 3885, 225);
    lblTitle = place(new QLabel("Umbrakit and lmList.dat Generator", this), "lblTitle", 1050, 30,
                     3885, 480);
    lblTitle->setWordWrap(true);
    lblVersion = place(new QLabel("Version 1.2  Released 12/12/2003", this), "lblVersion", 1050,
                       570, 3885, 225);
    for (QLabel* label : {lblDescription, lblTitle})
        label->setPalette(black);

    QWidget::setTabOrder(cmdOK, picIcon);
    picIcon->setFocusPolicy(Qt::NoFocus);
    cmdOK->setFocus();
}

void FrmAbout::Show() {
    if (!window_) {
        window_ = new FrmAboutWindow;
        // Enter presses OK as the default button; Esc rejects, which is the same as OK here.
        QObject::connect(window_->cmdOK, &QPushButton::clicked, [this] { cmdOK_Click(); });
        QObject::connect(window_, &QDialog::rejected, [this] { Unload(); });
    }
    window_->show();
}

void FrmAbout::Unload() {
    if (window_)
        window_->close(); // deletes the window and its controls
}

} // namespace umbrakit
