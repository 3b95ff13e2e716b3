// Reading the text of a control.
#pragma once

#include "afxrt/string.h"

#include <string>
#include <string_view>

namespace afx_internal {

/// The text of a control as it was on construction. Most are short, and one question into a
/// buffer on the stack gets them. It goes to the control at once: GetWindowText, which would first
/// look whose window it is, takes half as long again.
class WindowText {
public:
    explicit WindowText(HWND control) {
        m_text = {m_short, Ask(control, m_short, shortSize)};
        if (m_text.size() < shortSize - 1)
            return;
        m_long.resize(static_cast<std::size_t>(::SendMessage(control, WM_GETTEXTLENGTH, 0, 0)) + 1);
        m_long.resize(Ask(control, m_long.data(), m_long.size()));
        m_text = m_long;
    }
    WindowText(const WindowText&) = delete;
    WindowText& operator=(const WindowText&) = delete;

    std::wstring_view View() const { return m_text; }

private:
    static std::size_t Ask(HWND control, wchar_t* buffer, std::size_t size) {
        const auto length = static_cast<std::size_t>(
            ::SendMessage(control, WM_GETTEXT, size, reinterpret_cast<LPARAM>(buffer)));
        return length < size ? length : 0; // a list box without a choice has no text, but -1
    }

    static constexpr std::size_t shortSize = 128;
    wchar_t m_short[shortSize];
    std::wstring m_long;
    std::wstring_view m_text;
};

inline void ReadText(HWND control, CString& text) {
    const WindowText read(control);
    text.SetString(read.View().data(), static_cast<int>(read.View().size()));
}

} // namespace afx_internal
