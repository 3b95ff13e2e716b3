// Texts that an object owns in memory of _wcsdup.
#pragma once

#include "afxrt/config.h"

#include <cstdlib>
#include <cwchar>

namespace afx_internal {

/// Frees a member's text and gives it a copy of another; null leaves it without one.
inline void ReplaceText(LPCTSTR& member, const wchar_t* text) {
    std::free(const_cast<LPTSTR>(member));
    member = text ? ::_wcsdup(text) : nullptr;
}

} // namespace afx_internal
