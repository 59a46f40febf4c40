// The text of go.bat, the script that starts BF1942.exe once per chosen lighting pass.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "core/ansi_text.h"
#include "core/configuration.h"
#include "core/text_field.h"

namespace umbrakit {

// The folder line and the drive line, then the terrain, merge and object lines of the passes
// that are on, in that order. Every text goes in as it is: nothing is trimmed, quoted or
// escaped beyond the script's own quotes.
std::vector<std::u32string> composeScriptLines(const Configuration& configuration);

// The lines above, each ended by CR LF.
std::u32string composeScript(const Configuration& configuration);

// The bytes of go.bat in the code page, or the first text it cannot hold: a "?" in its place
// would send the engine to a folder that is not there.
std::variant<std::string, UnwritableText> scriptBytes(const Configuration& configuration,
                                                      CodePage codePage);

} // namespace umbrakit
