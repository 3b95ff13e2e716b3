#include "kit/driver/Handles.h"

#include <windows.h>

#include <malloc.h>
#include <winternl.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

extern "C" NTSYSAPI PEB* NTAPI RtlGetCurrentPeb();

namespace kit {
namespace {

/// One entry of the table of graphics objects that the system maps into each process.
struct GdiEntry {
    std::uint64_t object;
    std::uint16_t process;
    std::uint16_t count;
    std::uint16_t unique;
    std::uint8_t type; // 0: free
    std::uint8_t flags;
    std::uint64_t user;
};
static_assert(sizeof(GdiEntry) == 24);

constexpr std::size_t gdiEntries = 0x4000;
constexpr std::size_t gdiTableInEnvironment = 0xF8; // of the process environment block, 64 bit

// The low words of user handles; the system deals them out from below.
constexpr std::uintptr_t firstUserHandle = 0x20;
constexpr std::uintptr_t lastUserHandle = 0x1000;

bool isOwnWindow(HWND window) {
    DWORD process = 0;
    return GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

bool isIcon(HICON icon) {
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info))
        return false;
    DeleteObject(info.hbmMask);
    if (info.hbmColor != nullptr)
        DeleteObject(info.hbmColor);
    return true;
}

/// With heap checking on, the latest freed blocks of a heap stay in use for a while, to notice
/// who still writes to them. Makes these the same in number and size each time.
void settle(HANDLE heap) {
    constexpr int delayed = 1024;
    for (int i = 0; i < delayed; ++i)
        HeapFree(heap, 0, HeapAlloc(heap, 0, sizeof(void*)));
}

} // namespace

// The documented GetGuiResources counts nothing on Wine.
int gdiCount() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return static_cast<int>(count);
    const auto* const environment = reinterpret_cast<const std::byte*>(RtlGetCurrentPeb());
    const auto* const table =
        *reinterpret_cast<const GdiEntry* const*>(environment + gdiTableInEnvironment);
    int count = 0;
    for (const GdiEntry& entry : std::span(table, gdiEntries))
        count += entry.type != 0 ? 1 : 0;
    return count;
}

int userCount() {
    if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
        return static_cast<int>(count);
    int count = 0;
    for (std::uintptr_t value = firstUserHandle; value <= lastUserHandle; value += 2) {
        if (isOwnWindow(reinterpret_cast<HWND>(value)) || IsMenu(reinterpret_cast<HMENU>(value)) ||
            isIcon(reinterpret_cast<HICON>(value)))
            ++count;
    }
    return count;
}

Handles Handles::now() {
    return {.gdi = gdiCount(), .user = userCount()};
}

std::ostream& operator<<(std::ostream& out, const Handles& handles) {
    return out << handles.gdi << " GDI objects, " << handles.user << " USER objects";
}

HeapUse HeapUse::now() {
    std::array<HANDLE, 64> heaps = {};
    const DWORD number = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    HeapUse use = {};
    for (const HANDLE heap : std::span(heaps).first(number)) {
        settle(heap);
        HeapLock(heap);
        PROCESS_HEAP_ENTRY entry = {};
        while (HeapWalk(heap, &entry))
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
                ++use.blocks;
                use.bytes += entry.cbData;
            }
        HeapUnlock(heap);
    }
    return use;
}

std::ostream& operator<<(std::ostream& out, const HeapUse& use) {
    return out << use.blocks << " heap blocks of " << use.bytes << " bytes";
}

bool heapIsWhole() {
    return HeapValidate(reinterpret_cast<HANDLE>(_get_heap_handle()), 0, nullptr);
}

} // namespace kit
