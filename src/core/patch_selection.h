// The patch selection: the world size, which patches lie in it and can be ticked, and which
// are ticked. The grid's check boxes show it; every change goes through here.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/lmlist_format.h"
#include "core/world_size.h"

namespace umbrakit {

class PatchSelection {
  public:
    WorldSize world() const { return world_; }
    // A patch can be ticked by the user exactly when it lies in the world.
    bool isEnabled(int patch) const { return isInWorld(patch, world_); }
    bool isTicked(int patch) const { return ticked_[std::size_t(patch)]; }

    // A choice of world size: the patches inside keep their ticks; those outside lose theirs
    // for good, so growing the world again brings them back unticked.
    void showWorld(WorldSize world);
    // Every patch of the given world ticked, every other one unticked. The world shown is
    // left as it is.
    void selectAll(WorldSize world);
    // Every tick gone; the world stays.
    void clear();
    // A user's click: switches a patch of the world; one outside it ignores the click.
    // True if the patch changed.
    bool click(int patch);
    // The program setting a patch's tick, as it may on one outside the world too.
    void setTicked(int patch, bool ticked) { ticked_[std::size_t(patch)] = ticked; }

    std::vector<int> tickedPatches() const; // in ascending patch index
    PatchValues values() const;
    // lmList.dat as the selection stands: a record per ticked patch, in ascending index.
    std::string lmListRecords() const { return encodeLmList(values()); }

  private:
    WorldSize world_{0, 0}; // no patch lies in the world until one is shown
    std::array<bool, kPatchCount> ticked_{};
};

} // namespace umbrakit
