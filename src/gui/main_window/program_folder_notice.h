// The one notice at start-up when the program's folder takes no files.
#pragma once

namespace umbrakit {

struct Services;

// Says which folder and what to do, once, if the program cannot write its files there. The
// program runs on all the same: each later save is refused with its own message.
void tellIfProgramFolderIsReadOnly(Services& services);

} // namespace umbrakit
