#include "gui/about/about_box.h"

#include <QLabel>
#include <QPushButton>

#include "platform/caption_fit.h"
#include "platform/placement.h"

namespace umbrakit {

AboutWindow::AboutWindow() : QDialog(nullptr, kFixedDialogFlags) {
    setUpFixedDialog(*this, "frmAbout", "About...", 4965, 1650);
    setGeometry(twipsRect(2340, 1935, 4965, 1650)); // the client area's place is fixed, not centred

    okButton = place(new QPushButton("OK", this), "cmdOK", 1890, 1260, 1260, 345);
    okButton->setDefault(true);

    icon = place(new QLabel(this), "picIcon", 240, 240, 540, 540);
    icon->setPixmap(QPixmap(":/umbrakit/umbrakit.ico"));
    icon->resize(icon->pixmap().size()); // the box takes the picture's size
    icon->setAccessibleName("Umbrakit icon");

    QPalette black = palette();
    black.setColor(QPalette::WindowText, Qt::black);
    contactLabel = place(new QLabel("Bugs and ideas: the Umbrakit issue tracker", this),
                         "lblDescription", 1050, 915, 3885, 225);
    titleLabel = place(new QLabel("Umbrakit and lmList.dat Generator", this), "lblTitle", 1050, 30,
                       3885, 480);
    titleLabel->setWordWrap(true);
    versionLabel = place(new QLabel("Version 1.2  Released 12/12/2003", this), "lblVersion", 1050,
                         570, 3885, 225);
    for (QLabel* label : {contactLabel, titleLabel})
        label->setPalette(black);

    QWidget::setTabOrder(okButton, icon);
    icon->setFocusPolicy(Qt::NoFocus);
    fitCaptions(this);
    okButton->setFocus();
}

void AboutBox::show() {
    if (!window_) {
        window_ = new AboutWindow;
        // Enter presses OK as the default button; Esc rejects, which is the same as OK here.
        QObject::connect(window_->okButton, &QPushButton::clicked, [this] { unload(); });
        QObject::connect(window_, &QDialog::rejected, [this] { unload(); });
    }
    window_->show();
}

void AboutBox::unload() {
    if (window_)
        window_->close(); // deletes the window and its controls
}

} // namespace umbrakit
