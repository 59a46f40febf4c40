#include "core/world_size.h"

namespace umbrakit {

WorldSize worldSizeFor(int listIndex) {
    if (listIndex == 0)
        return {4, 64};
    if (listIndex == 1)
        return {8, 128};
    if (listIndex == 2)
        return {12, 192};
    return {16, 256};
}

bool isInWorld(int patch, WorldSize world) {
    return patchColumn(patch) < world.columns && patch < world.indexBound;
}

} // namespace umbrakit
