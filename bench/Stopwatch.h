#pragma once

#include <windows.h>

namespace bench {

/// Microseconds since some moment in the past; the same clock in every process.
inline double now() {
    static const double perMicrosecond = [] {
        LARGE_INTEGER frequency;
        QueryPerformanceFrequency(&frequency);
        return static_cast<double>(frequency.QuadPart) / 1e6;
    }();
    LARGE_INTEGER count;
    QueryPerformanceCounter(&count);
    return static_cast<double>(count.QuadPart) / perMicrosecond;
}

/// How long a piece of work takes, in microseconds.
template <class Work>
double timeOf(Work work) {
    const double start = now();
    work();
    return now() - start;
}

} // namespace bench
