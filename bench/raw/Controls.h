// The exchange of a control's value over the bare Windows API: text is read into a buffer on
// the stack, and set only where it differs.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <charconv>
#include <limits>
#include <string_view>
#include <type_traits>

namespace bench::raw {

constexpr int longestText = 512;

inline void showText(HWND control, const wchar_t* text, std::size_t length) {
    wchar_t shown[longestText];
    const int shownLength = GetWindowTextW(control, shown, longestText);
    if (std::wstring_view(shown, static_cast<std::size_t>(shownLength)) !=
        std::wstring_view(text, length))
        SetWindowTextW(control, text);
}

template <class Text>
void readText(HWND control, Text& text) {
    wchar_t shown[longestText];
    GetWindowTextW(control, shown, longestText);
    text = shown;
}

template <class Number>
void showNumber(HWND control, Number value) {
    char digits[64];
    std::to_chars_result result;
    if constexpr (std::is_floating_point_v<Number>)
        result = std::to_chars(digits, std::end(digits), value, std::chars_format::general,
                               std::numeric_limits<Number>::digits10);
    else
        result = std::to_chars(digits, std::end(digits), value);
    wchar_t text[64] = {};
    const auto length = static_cast<std::size_t>(result.ptr - digits);
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<wchar_t>(digits[i]);
    showText(control, text, length);
}

/// False, and the value stays, when the control's text is no number.
template <class Number>
bool readNumber(HWND control, Number& value) {
    wchar_t shown[longestText];
    const int length = GetWindowTextW(control, shown, longestText);
    char digits[longestText];
    for (int i = 0; i < length; ++i)
        digits[i] = shown[i] < 0x80 ? static_cast<char>(shown[i]) : '?';
    Number read{};
    const auto [stop, error] = std::from_chars(digits, digits + length, read);
    if (error != std::errc() || stop != digits + length)
        return false;
    value = read;
    return true;
}

inline int readCheck(HWND control) {
    return static_cast<int>(SendMessageW(control, BM_GETCHECK, 0, 0));
}

inline void showCheck(HWND control, int checked) {
    if (readCheck(control) != checked)
        SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(checked), 0);
}

inline void insertColumn(HWND list, int number, const wchar_t* heading, int width) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH;
    column.fmt = LVCFMT_LEFT;
    column.cx = width;
    column.pszText = const_cast<wchar_t*>(heading);
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(number),
                 reinterpret_cast<LPARAM>(&column));
}

inline void insertRow(HWND list, int row, const wchar_t* first, const wchar_t* second) {
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(first);
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    LVITEMW sub = {};
    sub.iSubItem = 1;
    sub.pszText = const_cast<wchar_t*>(second);
    SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&sub));
}

inline void selectRow(HWND list, int row) {
    LVITEMW item = {};
    item.state = LVIS_SELECTED;
    item.stateMask = LVIS_SELECTED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

inline int nextSelected(HWND list, int row) {
    return static_cast<int>(
        SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
}

inline void setRedraw(HWND list, bool drawn) {
    SendMessageW(list, WM_SETREDRAW, drawn, 0);
    if (drawn)
        InvalidateRect(list, nullptr, TRUE);
}

/// Puts a dialog into the middle of its owner, within the work area.
void centre(HWND dialog);

/// Shows a message of the library, by number, with the library's caption.
void refuse(HWND dialog, HMODULE texts, UINT message);

/// The bytes of a dialog template.
LPCDLGTEMPLATEW findTemplate(HMODULE module, int number);

} // namespace bench::raw
