// Characters that go.bat holds as written but that the batch processor then reads otherwise.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/batch_script.h"

namespace umbrakit {

struct ScriptHazard {
    enum Field { GamePath, LevelName, ModName };
    Field field;
    unsigned char character; // the first such byte of the field
};

// cmd reads a batch script in the console's code page, not in the ANSI code page it is written
// in, so a letter beyond ASCII reaches the engine as another letter; "%" starts a variable in
// any field; a quote ends the quoted path; and in the unquoted mod name "^", "&", "|", "<" and
// ">" are cmd's own. At most one hazard per field, in field order.
std::vector<ScriptHazard> scriptHazards(const ScriptValues& values);

} // namespace umbrakit
