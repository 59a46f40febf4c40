// The program's own font, Liberation Sans (metric-compatible with the classic one), built into
// the program so that the windows look alike whatever fonts the system has.
#pragma once

namespace umbrakit {

// Adds the built-in faces to the fonts the program may use; true if they are there. Called once
// at start, before the first window; without it the system's fonts alone are used.
bool installBundledFonts();

} // namespace umbrakit
