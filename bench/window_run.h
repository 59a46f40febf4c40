// What both start-up programs do once their window is shown: wait for its first real paint
// and end. With "--idle SECONDS" they first let the event loop run that long and print, as
// JSON, how often the process woke up meanwhile.
#pragma once

class QWidget;

namespace umbrakit::bench {

int runShownWindow(QWidget& window);

} // namespace umbrakit::bench
