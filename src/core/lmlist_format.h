// The patch list lmList.dat: one 2-byte record per selected patch, column then row, in
// ascending patch index, with no header and no terminator.
#pragma once

#include <array>
#include <string>

#include "core/world_size.h"

namespace umbrakit {

// Check box values of the 256 patches; only a value of exactly 1 counts as selected.
using PatchValues = std::array<int, kPatchCount>;

std::string encodeLmList(const PatchValues& values);

} // namespace umbrakit
