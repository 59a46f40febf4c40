// Characters that go.bat holds as written but that the batch processor then reads otherwise.
#pragma once

#include <vector>

#include "core/configuration.h"
#include "core/text_field.h"

namespace umbrakit {

struct ScriptHazard {
    TextField field;
    char32_t character; // the first such character of the field
    bool operator==(const ScriptHazard&) const = default;
};

// cmd reads a batch script in the console's code page, not in the ANSI code page it is written
// in, so a letter beyond ASCII reaches the engine as another letter; "%" starts a variable in
// any field; a quote ends the quoted path; and in the unquoted mod name "^", "&", "|", "<" and
// ">" are cmd's own. At most one hazard per field, in field order.
std::vector<ScriptHazard> scriptHazards(const Configuration& configuration);

} // namespace umbrakit
