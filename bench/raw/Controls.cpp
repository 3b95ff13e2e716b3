#include "bench/raw/Controls.h"

#include <algorithm>

#include "cuadros/resources/StringIds.h"

namespace bench::raw {

void centre(HWND dialog) {
    const HWND owner = GetWindow(dialog, GW_OWNER);
    RECT own;
    RECT area;
    GetWindowRect(dialog, &own);
    GetWindowRect(owner, &area);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT& limits = monitor.rcWork;
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const LONG x =
        std::max(limits.left, std::min((area.left + area.right - width) / 2, limits.right - width));
    const LONG y = std::max(
        limits.top, std::min((area.top + area.bottom - height) / 2, limits.bottom - height));
    SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void refuse(HWND dialog, HMODULE texts, UINT message) {
    wchar_t text[longestText];
    wchar_t caption[longestText];
    LoadStringW(texts, message, text, longestText);
    LoadStringW(texts, IDS_TITULO_MENSAJES, caption, longestText);
    MessageBoxW(dialog, text, caption, MB_ICONERROR);
}

LPCDLGTEMPLATEW findTemplate(HMODULE module, int number) {
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(number), RT_DIALOG);
    return static_cast<LPCDLGTEMPLATEW>(LockResource(LoadResource(module, found)));
}

} // namespace bench::raw
