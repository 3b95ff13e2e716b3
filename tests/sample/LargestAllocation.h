// How much memory the program's own code takes at once.
#pragma once

#include <cstddef>

/// The largest allocation by `new` since it was last set to 0.
extern std::size_t largestAllocation;
