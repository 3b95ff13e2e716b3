#include "kit/picture/Picture.h"

#include "kit/picture/Png.h"

#include <cstddef>
#include <vector>

namespace kit {
namespace {

/// The pixels of a window with its frame, rows from the top; empty when it has none.
std::vector<RGBQUAD> pixelsOf(HWND window, int width, int height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;

    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr)
        return {};
    // Not the window's own clipping: its children belong to the picture.
    const HDC source = GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE);
    const HDC memory = CreateCompatibleDC(source);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    const BOOL copied = BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    GdiFlush();

    std::vector<RGBQUAD> pixels;
    if (copied) {
        const auto* const first = static_cast<const RGBQUAD*>(bits);
        pixels.assign(first, first + static_cast<std::size_t>(width) * height);
    }
    SelectObject(memory, former);
    DeleteDC(memory);
    ReleaseDC(window, source);
    DeleteObject(bitmap);
    return pixels;
}

} // namespace

bool savePicture(HWND window, const Text& path) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width <= 0 || height <= 0)
        return false;

    // Only the owner may ask it to draw; another thread takes what is there (it may hang).
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) {
        // Without a window manager even the active window has the frame of an inactive one.
        SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
    return writePng(path, pixelsOf(window, width, height), width, height);
}

} // namespace kit
