// Encodes lmList.dat from any check box values and checks that the records are exactly the
// patches whose value is 1, each once, column then row, in ascending patch index.
#include "core/lmlist_format.h"
#include "fuzz_check.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace umbrakit;
using umbrakit::fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider in(data, size);
    PatchValues values{};
    for (int& value : values) {
        // Mostly 0 and 1 so that selections are dense, but any value may stand in a box.
        value = in.ConsumeBool() ? in.ConsumeIntegralInRange(0, 1) : in.ConsumeIntegral<int>();
    }

    const std::string bytes = encodeLmList(values);
    const auto selected = std::ranges::count(values, 1);
    require(bytes.size() == 2 * static_cast<std::size_t>(selected),
            "two bytes for each value of 1");

    int previous = -1;
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        const auto column = static_cast<unsigned char>(bytes[at]);
        const auto row = static_cast<unsigned char>(bytes[at + 1]);
        require(column < kGridSide && row < kGridSide, "column and row are below 16");
        const int patch = row * kGridSide + column;
        require(patch > previous, "ascending patch index, no patch twice");
        require(values[static_cast<std::size_t>(patch)] == 1, "only patches with a value of 1");
        previous = patch;
    }
    return 0;
}
