#include "kit/driver/ComboBox.h"

#include <cstdlib>

namespace kit {

int ComboBox::count() const {
    return static_cast<int>(SendMessageW(window_, CB_GETCOUNT, 0, 0));
}

std::wstring ComboBox::text(int index) const {
    const LRESULT length = SendMessageW(window_, CB_GETLBTEXTLEN, index, 0);
    if (length == CB_ERR)
        return L"";
    std::wstring text(length + 1, L'\0');
    text.resize(SendMessageW(window_, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::vector<std::wstring> ComboBox::texts() const {
    std::vector<std::wstring> texts;
    for (int index = 0; index < count(); ++index)
        texts.push_back(text(index));
    return texts;
}

int ComboBox::selected() const {
    return static_cast<int>(SendMessageW(window_, CB_GETCURSEL, 0, 0));
}

void ComboBox::choose(int index, Where where) {
    if (index < 0 || index >= count())
        abandon("The combo box has no entry " + std::to_string(index) + ", but " +
                    std::to_string(count()) + " entries",
                where);
    if (!IsWindowVisible(window_) || !IsWindowEnabled(window_))
        abandon("Nobody can use a combo box that is hidden or disabled", where);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    GetComboBoxInfo(window_, &info);
    SendMessageW(GetParent(window_), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window_), TRUE);
    SendMessageW(window_, CB_SHOWDROPDOWN, TRUE, 0);
    SendMessageW(info.hwndList, LB_SETTOPINDEX, index, 0);
    RECT item = {};
    SendMessageW(info.hwndList, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    const LPARAM place = MAKELPARAM((item.left + item.right) / 2, (item.top + item.bottom) / 2);
    SendMessageW(info.hwndList, WM_MOUSEMOVE, 0, place);
    SendMessageW(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, place);
    SendMessageW(info.hwndList, WM_LBUTTONUP, 0, place);
}

void ComboBox::choose(const Text& entry, Where where) {
    for (int index = 0; index < count(); ++index)
        if (text(index) == entry)
            return choose(index, where);
    abandon("The combo box has no entry " + inQuotes(entry), where);
}

void ComboBox::walk(int steps) {
    SendMessageW(GetParent(window_), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window_), TRUE);
    for (int i = 0; i < std::abs(steps); ++i) {
        SendMessageW(window_, WM_KEYDOWN, steps > 0 ? VK_DOWN : VK_UP, 1);
        SendMessageW(window_, WM_KEYUP, steps > 0 ? VK_DOWN : VK_UP, 0xC0000001);
    }
}

} // namespace kit
