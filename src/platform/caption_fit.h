// Captions that fit their controls whatever font the system gives: where the font runs wider
// than the classic one, a caption is set narrower, and if need be smaller, until it fits. The
// controls keep their places and sizes.
#pragma once

class QWidget;

namespace umbrakit {

// Fits the caption of every button, check box and label inside the window.
void fitCaptions(QWidget* window);

} // namespace umbrakit
