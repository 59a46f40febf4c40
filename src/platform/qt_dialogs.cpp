#include "platform/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace umbrakit {

namespace {
const char* const kDefaultTitle = "Umbrakit";

QMessageBox::Icon iconOf(MsgBoxIcon icon) {
    switch (icon) {
    case MsgBoxIcon::Critical:
        return QMessageBox::Critical;
    case MsgBoxIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxIcon::Information:
        return QMessageBox::Information;
    case MsgBoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}
} // namespace

MsgBoxAnswer QtDialogs::msgBox(const QString& prompt, MsgBoxStyle style, const QString& title) {
    QMessageBox box(iconOf(style.icon), title.isEmpty() ? QString(kDefaultTitle) : title, prompt,
                    QMessageBox::NoButton, QApplication::activeWindow());
    box.setObjectName("MsgBox");
    if (style.buttons == MsgBoxButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::NoButton);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
    const int answer = box.exec();
    if (answer == QMessageBox::Yes)
        return MsgBoxAnswer::Yes;
    if (answer == QMessageBox::No)
        return MsgBoxAnswer::No;
    return MsgBoxAnswer::Ok;
}

QStringList nameFiltersOf(const QString& filter) {
    const QStringList items = filter.split('|');
    QStringList filters;
    for (int i = 0; i + 1 < items.size(); i += 2) {
        QString pattern = items[i + 1];
        if (pattern == "*.*")
            pattern = "*";
        filters << items[i] + " (" + pattern + ")";
    }
    return filters;
}

QString QtDialogs::showOpen(const FileDialogRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), QString(), request.initDir);
    dialog.setObjectName("FileDialog");
    // An open dialog in which a new name may be typed and nothing asks about overwriting.
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(nameFiltersOf(request.filter));
    dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

} // namespace umbrakit
