#include "platform/click_check_box.h"

namespace umbrakit {

ClickCheckBox::ClickCheckBox(const QString& caption, QWidget* parent) : QCheckBox(caption, parent) {
    // toggled comes only with a real change, from a click, a key or setChecked alike.
    connect(this, &QCheckBox::toggled, this, [this] { emit Click(); });
}

} // namespace umbrakit
