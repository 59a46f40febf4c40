#include "platform/menu_entry.h"

#include <QSignalBlocker>

namespace umbrakit {

MenuEntry::MenuEntry(const QString& name, const QString& caption, QObject* parent)
    : QAction(caption, parent) {
    setObjectName(name);
    connect(this, &QAction::triggered, this, [this] {
        if (isCheckable()) {
            const QSignalBlocker blocker(this);
            QAction::setChecked(!isChecked()); // undo Qt's own flip
        }
        emit Click();
    });
}

void MenuEntry::setChecked(bool checked) {
    const QSignalBlocker blocker(this);
    QAction::setChecked(checked);
}

} // namespace umbrakit
