// Measuring two competitors side by side.
#pragma once

#include <functional>

namespace bench {

/// Times of one piece of work, in microseconds.
struct Timing {
    double median = 0;
    double least = 0;
};

/// The same work done by both competitors.
struct Comparison {
    Timing framework;
    Timing raw;

    /// How many times as long the framework takes, of the medians.
    double ratio() const { return framework.median / raw.median; }
};

/// Does the work once and returns the microseconds it took, without what has to be prepared.
using Competitor = std::function<double()>;

/// Lets both work in turn, after a warm-up, so that what disturbs the machine disturbs both.
Comparison compare(int cycles, const Competitor& framework, const Competitor& raw);

/// One alone, after a warm-up.
Timing measure(int cycles, const Competitor& competitor);

} // namespace bench
