// A check box whose Click is raised exactly once for every real change of its Value, whether
// the user or the program made it, and never otherwise: the pass options stay in step only
// if that holds.
#pragma once

#include <QCheckBox>

namespace umbrakit {

class ClickCheckBox : public QCheckBox {
    Q_OBJECT
public:
    explicit ClickCheckBox(const QString& caption, QWidget* parent = nullptr);

    int Value() const { return isChecked() ? 1 : 0; }
    void setValue(int value) { setChecked(value != 0); }

signals:
    void Click();
};

} // namespace umbrakit
