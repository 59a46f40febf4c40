// The text of go.bat, the script that starts BF1942.exe once per chosen lighting pass.
#pragma once

#include <string>
#include <vector>

namespace umbrakit {

// What the script is made of. The strings are already single-byte ANSI text and go into the
// script byte for byte: nothing is trimmed, quoted or escaped.
struct ScriptValues {
    std::string gamePath, levelName, modName;
    double shadowDarkness = 1.5;
    bool terrain = false, merge = false, object = false;
};

// The folder line and the drive line, then the terrain, merge and object lines of the passes
// that are on, in that order.
std::vector<std::string> composeScriptLines(const ScriptValues& values);

// The bytes of go.bat: the lines above, each ended by CR LF.
std::string composeScript(const ScriptValues& values);

// A run needs a darkness above 0 and all three strings non-empty; blanks count as text.
bool isCompleteForRun(const ScriptValues& values);

} // namespace umbrakit
