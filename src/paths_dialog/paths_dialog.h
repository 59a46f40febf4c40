// The paths dialog: the object lives from first use to the end of the program, its window
// only while it is loaded.
#pragma once

namespace umbrakit {

class PathsDialog {};

} // namespace umbrakit
