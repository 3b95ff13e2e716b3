#pragma once

#include "kit/driver/Failure.h"

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// An open message box, as a person reads it.
class MessageDialog {
public:
    explicit MessageDialog(HWND window) noexcept : window_(window) {}

    /// Whether a window is a message box of the system.
    static bool is(HWND window);

    HWND handle() const noexcept { return window_; }
    HWND owner() const { return GetWindow(window_, GW_OWNER); }
    std::wstring caption() const;
    std::wstring text() const;

    /// MB_ICONERROR, MB_ICONQUESTION, MB_ICONWARNING, MB_ICONINFORMATION, or 0 without icon.
    UINT icon() const;

    /// The button numbers from left to right: IDOK, IDYES, ...
    std::vector<int> buttons() const;

    /// The number of the button that Enter presses.
    int defaultButton() const;

    /// Presses a button; the box closes when the running step has returned.
    void answer(int button, Where where = Where::current());

    /// The button that leaves a box with the least effect: Cancel, No, Ignore, or OK.
    int mildestButton() const;

private:
    HWND window_;
};

} // namespace kit
