#include "core/lmlist_format.h"

namespace umbrakit {

std::string encodeLmList(const PatchValues& values) {
    std::string bytes;
    for (int index = 0; index < kPatchCount; ++index) {
        if (values[index] != 1)
            continue;
        bytes += static_cast<char>(patchColumn(index));
        bytes += static_cast<char>(patchRow(index));
    }
    return bytes;
}

} // namespace umbrakit
