// A menu entry whose tick only the program sets: choosing the entry raises Click and leaves
// Checked as it was (a checkable QAction would flip it by itself first).
#pragma once

#include <QAction>

namespace umbrakit {

class MenuEntry : public QAction {
    Q_OBJECT
public:
    MenuEntry(const QString& name, const QString& caption, QObject* parent);

    bool Checked() const { return isChecked(); }
    void setChecked(bool checked);
    void setShowsTick(bool tick) { QAction::setCheckable(tick); }

signals:
    void Click();
};

} // namespace umbrakit
