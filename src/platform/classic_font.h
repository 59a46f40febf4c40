// The windows' fonts: "MS Sans Serif" where installed, otherwise a font of similar metrics,
// so every caption stays inside its control.
#pragma once

#include <QFont>

namespace umbrakit {

QFont classicFont(double pointSize, bool bold = false);

// The font of every control that has no font of its own.
inline QFont defaultControlFont() { return classicFont(8); }

// The font of the dialog's labels and of the main title.
inline QFont labelFont(bool bold = false) { return classicFont(9.75, bold); }

} // namespace umbrakit
