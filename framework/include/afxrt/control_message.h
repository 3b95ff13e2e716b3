// Sending a control one of its messages, whatever its parameters and result are.
#pragma once

#include "config.h"

#include <type_traits>

namespace afx_internal {

template <class To, class From>
To ToParameter(From value) {
    if constexpr (std::is_pointer_v<From>)
        return reinterpret_cast<To>(value);
    else
        return static_cast<To>(value);
}

/// Sends the message with any integers or pointers as parameters; the result is an integer or a
/// pointer, as asked for, or nothing.
template <class Result, class W = int, class L = int>
Result Send(HWND control, UINT message, W wParam = 0, L lParam = 0) {
    const LRESULT result =
        ::SendMessage(control, message, ToParameter<WPARAM>(wParam), ToParameter<LPARAM>(lParam));
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<Result>(result);
    else
        return static_cast<Result>(result);
}

} // namespace afx_internal
