// What the fuzz targets share: a check that stops the run with a message, so that libFuzzer
// records the input as a crash.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace umbrakit::fuzz {

inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "property broken: %s\n", what);
    std::abort();
}

} // namespace umbrakit::fuzz
