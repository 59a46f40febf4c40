#include "gui/about/resources.h"

#include <QtGlobal>

// Resources of a static library are not registered by themselves.
static void registerResources() {
    Q_INIT_RESOURCE(umbrakit);
}

namespace umbrakit {

void loadResources() {
    registerResources();
}

} // namespace umbrakit
