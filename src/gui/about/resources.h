// The program's pictures (its icon), built into the program.
#pragma once

namespace umbrakit {

// Registers the pictures; safe to call more than once.
void loadResources();

} // namespace umbrakit
