// Median and 99th percentile of a set of timings.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

namespace umbrakit::bench {

struct Percentiles {
    double median = 0;
    double p99 = 0;
};

// Nearest rank: the 99th percentile is a time that one call in a hundred exceeds.
inline Percentiles percentilesOf(std::vector<double> samples) {
    if (samples.empty())
        return {};
    std::sort(samples.begin(), samples.end());
    const auto rank = [&samples](double fraction) {
        const auto n = static_cast<double>(samples.size());
        const auto index = static_cast<std::size_t>(std::ceil(fraction * n)) - 1;
        return samples[std::min(index, samples.size() - 1)];
    };
    const std::size_t n = samples.size();
    const double median = n % 2 ? samples[n / 2] : (samples[n / 2 - 1] + samples[n / 2]) / 2;
    return {median, rank(0.99)};
}

} // namespace umbrakit::bench
