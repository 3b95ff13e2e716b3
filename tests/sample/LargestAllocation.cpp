#include "LargestAllocation.h"

#include <algorithm>
#include <cstdlib>
#include <new>

std::size_t largestAllocation = 0;

// Of the whole program, whose other suites are none the wiser. In a source of their own, so that
// the compiler does not see `free` where it expects `delete`.
void* operator new(std::size_t size) {
    largestAllocation = std::max(largestAllocation, size);
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
