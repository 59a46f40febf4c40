// How Windows starts go.bat: with its own cmd.exe, in a console window of the script's own,
// shown normally and with the focus, and without waiting for it.
#pragma once

#include <filesystem>
#include <string>

#include "core/durable_files.h"

namespace umbrakit {

// The command line that makes cmd run the script and end. cmd /s /c strips one pair of quotes
// around everything after /c; the inner pair keeps a path with blanks, "&" or "(" together, as
// in "C:\Program Files (x86)\Umbrakit\go.bat".
std::wstring cmdCommandLine(const std::wstring& cmdPath, const std::wstring& scriptPath);

#ifdef _WIN32
// Starts the script detached, in its own folder: the program neither waits for it nor keeps a
// handle, so the script outlives the program.
SystemResult startWithCmd(const std::filesystem::path& script);
#endif

} // namespace umbrakit
