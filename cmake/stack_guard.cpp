// What the code that watches over its stack (-fstack-protector) asks of its module: a value that
// nobody guesses, and an end where it was overwritten. The compiler's own library asks the system's
// cryptography for the value, which loads three more libraries at each module's start.
#include <windows.h>

#include <ntsecapi.h>

#include <cstdint>

extern "C" {

std::uintptr_t __stack_chk_guard = 0;

[[noreturn]] void __stack_chk_fail() {
    __builtin_trap();
}
}

namespace {

// Before all other static objects. Nothing that this calls returns into protected code of the
// module, which would miss the value that it began with.
[[gnu::constructor(101), gnu::no_stack_protector]] void ChooseGuard() {
    std::uintptr_t value = 0;
    if (RtlGenRandom(&value, sizeof value))
        __stack_chk_guard = value & ~std::uintptr_t{0xFF}; // a text that is too long ends before it
}

} // namespace
