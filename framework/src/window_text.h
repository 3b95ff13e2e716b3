// Reading the text of a window.
#pragma once

#include "afxrt/string.h"

#include <string>
#include <string_view>

namespace afx_internal {

/// The text of a window as it was on construction. Most are short, and one question into a
/// buffer on the stack gets them.
class WindowText {
public:
    explicit WindowText(HWND window) {
        const int length = ::GetWindowText(window, m_short, shortSize);
        m_text = {m_short, static_cast<std::size_t>(length)};
        if (length < shortSize - 1)
            return;
        m_long.resize(static_cast<std::size_t>(::GetWindowTextLength(window)) + 1);
        m_long.resize(static_cast<std::size_t>(
            ::GetWindowText(window, m_long.data(), static_cast<int>(m_long.size()))));
        m_text = m_long;
    }
    WindowText(const WindowText&) = delete;
    WindowText& operator=(const WindowText&) = delete;

    std::wstring_view View() const { return m_text; }

private:
    static constexpr int shortSize = 128;
    wchar_t m_short[shortSize];
    std::wstring m_long;
    std::wstring_view m_text;
};

inline void ReadText(HWND window, CString& text) {
    const WindowText read(window);
    text.SetString(read.View().data(), static_cast<int>(read.View().size()));
}

} // namespace afx_internal
