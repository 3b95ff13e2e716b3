#include "bench/Comparison.h"

#include <algorithm>
#include <vector>

namespace bench {

namespace {

Timing timingOf(std::vector<double> times) {
    std::ranges::sort(times);
    return {times[times.size() / 2], times.front()};
}

int warmUps(int cycles) {
    return 1 + cycles / 20;
}

} // namespace

Comparison compare(int cycles, const Competitor& framework, const Competitor& raw) {
    for (int i = 0; i < warmUps(cycles); ++i) {
        framework();
        raw();
    }
    std::vector<double> frameworks;
    std::vector<double> raws;
    for (int i = 0; i < cycles; ++i) {
        // Each goes first as often as the other: what one leaves in the caches is the same.
        if (i % 2 == 0)
            frameworks.push_back(framework());
        raws.push_back(raw());
        if (i % 2 != 0)
            frameworks.push_back(framework());
    }
    return {timingOf(frameworks), timingOf(raws)};
}

Timing measure(int cycles, const Competitor& competitor) {
    for (int i = 0; i < warmUps(cycles); ++i)
        competitor();
    std::vector<double> times;
    for (int i = 0; i < cycles; ++i)
        times.push_back(competitor());
    return timingOf(times);
}

} // namespace bench
