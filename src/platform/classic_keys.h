// Keys of the classic desktop that Qt handles otherwise: a form's own controls take their
// access keys before its menu bar does, and F10 enters the menu bar as a tap of Alt does.
#pragma once

class QMainWindow;

namespace umbrakit {

// For the window's buttons and check boxes as they are when it is called.
void useClassicKeys(QMainWindow& window);

} // namespace umbrakit
