// The options of the program: its version and help, and its menu entry added or removed. They
// are answered without a window, so they work on a machine without a display.
#pragma once

#include <optional>

namespace umbrakit {

// Does what the options ask and gives the exit code: 0 when done, 1 when a file could not be
// written or removed, 2 for an option it does not know. nullopt when the windows are to start;
// without options it leaves the program exactly as it was.
std::optional<int> runCommandLine(int& argc, char** argv);

} // namespace umbrakit
