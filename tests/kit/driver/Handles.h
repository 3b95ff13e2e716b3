#pragma once

#include <cstddef>
#include <iosfwd>

namespace kit {

/// Exact numbers of what this process holds; equal numbers before and after mean no leak.
/// The first dialog of a process warms up caches: count after one of its kind was open.
struct Handles {
    int gdi;  ///< Device contexts, regions, bitmaps, fonts, brushes, pens.
    int user; ///< Windows, menus, icons and cursors.

    static Handles now();
    bool operator==(const Handles&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Handles& handles);

int gdiCount();
int userCount();

/// Blocks in use and their bytes in all heaps of the process.
struct HeapUse {
    std::size_t blocks;
    std::size_t bytes;

    static HeapUse now();
    bool operator==(const HeapUse&) const = default;
};

std::ostream& operator<<(std::ostream& out, const HeapUse& use);

/// Whether the heap is whole: no block was written beyond its end or after it was freed.
bool heapIsWhole();

} // namespace kit
