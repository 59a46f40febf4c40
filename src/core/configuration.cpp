#include "core/configuration.h"

namespace umbrakit {

bool isCompleteForRun(const Configuration& c) {
    // Written as "> 0" so that NaN fails as well.
    return c.shadowDarkness > 0 && !c.gamePath.empty() && !c.levelName.empty() &&
           !c.modName.empty();
}

} // namespace umbrakit
