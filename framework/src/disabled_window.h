// A window that the user cannot reach for a while.
#pragma once

#include <afxrt/config.h>

namespace afx_internal {

/// Disables a window for the length of its life, unless the window is disabled already.
class DisabledWindow {
public:
    explicit DisabledWindow(HWND window)
        : m_window(window && ::IsWindowEnabled(window) ? window : nullptr) {
        if (m_window)
            ::EnableWindow(m_window, FALSE);
    }
    ~DisabledWindow() { Enable(); }
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

    void Enable() {
        if (m_window)
            ::EnableWindow(m_window, TRUE);
        m_window = nullptr;
    }

private:
    HWND m_window;
};

} // namespace afx_internal
