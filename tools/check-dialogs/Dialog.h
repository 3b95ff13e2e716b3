#pragma once

#include "Report.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

/// A real control of a dialog that has been created, hidden.
struct Control {
    HWND window = nullptr;
    int id = 0;
    std::wstring kind; ///< window class: "Edit"
    DWORD style = 0;
    RECT area{}; ///< in the dialog's client coordinates
    std::wstring caption;

    bool visible() const { return (style & WS_VISIBLE) != 0; }
    bool is(const wchar_t* windowClass) const;
    bool isButton(DWORD type) const; ///< a button of this BS_ type
    bool isPush() const;
    bool isCheck() const;
    bool isRadio() const;
    bool isGroupBox() const { return isButton(BS_GROUPBOX); }
    bool isLabel() const; ///< a static that shows text
    bool isInput() const; ///< takes or shows a value, and has no caption of its own

    int width() const { return area.right - area.left; }
    int height() const { return area.bottom - area.top; }
};

/// A dialog made from a template, as a real window that is never shown.
class Dialog {
public:
    /// Creates the dialog; none when that fails, which is reported.
    static std::optional<Dialog> create(HMODULE module, int number, const std::wstring& name,
                                        Report& report);
    Dialog(Dialog&& other) noexcept;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    ~Dialog();

    int number() const { return m_number; }
    HWND window() const { return m_window; }
    bool isPage() const { return (m_style & WS_CHILD) != 0; }
    const std::wstring& title() const { return m_title; }
    SIZE client() const;

    /// In the order of the template, which is the tab order.
    const std::vector<Control>& controls() const { return m_controls; }
    const Control* find(int id) const;

    /// Dialog units in pixels.
    int across(int units) const { return MulDiv(units, m_base.cx, 4); }
    int down(int units) const { return MulDiv(units, m_base.cy, 8); }
    /// Pixels in dialog units, rounded.
    int unitsAcross(int pixels) const { return MulDiv(pixels, 4, m_base.cx); }
    int unitsDown(int pixels) const { return MulDiv(pixels, 8, m_base.cy); }

    /// How findings name the dialog, and one of its controls.
    std::wstring place() const;
    std::wstring place(const Control& control) const;

private:
    Dialog() = default;
    void collectControls();

    HWND m_window = nullptr;
    HWND m_owner = nullptr;
    int m_number = 0;
    std::wstring m_name;
    std::wstring m_title;
    DWORD m_style = 0;
    SIZE m_base{};
    std::vector<Control> m_controls;
};
