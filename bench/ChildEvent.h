// How a measured child process tells that its dialog is painted: by an event whose handle it
// inherits and finds on its command line.
#pragma once

#include <windows.h>

#include <cwchar>
#include <string>

namespace bench {

inline std::wstring handleText(HANDLE handle) {
    return std::to_wstring(reinterpret_cast<ULONG_PTR>(handle));
}

inline HANDLE handleOf(const wchar_t* text) {
    return reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(std::wcstoull(text, nullptr, 10)));
}

} // namespace bench
