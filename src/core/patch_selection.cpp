#include "core/patch_selection.h"

namespace umbrakit {

void PatchSelection::showWorld(WorldSize world) {
    world_ = world;
    for (int patch = 0; patch < kPatchCount; ++patch) {
        if (!isInWorld(patch, world))
            ticked_[std::size_t(patch)] = false;
    }
}

void PatchSelection::selectAll(WorldSize world) {
    for (int patch = 0; patch < kPatchCount; ++patch)
        ticked_[std::size_t(patch)] = isInWorld(patch, world);
}

void PatchSelection::clear() {
    ticked_.fill(false);
}

bool PatchSelection::click(int patch) {
    if (!isEnabled(patch))
        return false;
    ticked_[std::size_t(patch)] = !ticked_[std::size_t(patch)];
    return true;
}

std::vector<int> PatchSelection::tickedPatches() const {
    std::vector<int> patches;
    for (int patch = 0; patch < kPatchCount; ++patch) {
        if (isTicked(patch))
            patches.push_back(patch);
    }
    return patches;
}

PatchValues PatchSelection::values() const {
    PatchValues values{};
    for (int patch = 0; patch < kPatchCount; ++patch)
        values[std::size_t(patch)] = isTicked(patch) ? 1 : 0;
    return values;
}

} // namespace umbrakit
