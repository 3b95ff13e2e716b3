#include "kit/driver/ListBox.h"

namespace kit {

int ListBox::count() const {
    return static_cast<int>(SendMessageW(window_, LB_GETCOUNT, 0, 0));
}

std::wstring ListBox::text(int index) const {
    const LRESULT length = SendMessageW(window_, LB_GETTEXTLEN, index, 0);
    if (length == LB_ERR)
        return L"";
    std::wstring text(length + 1, L'\0');
    text.resize(SendMessageW(window_, LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::vector<std::wstring> ListBox::texts() const {
    std::vector<std::wstring> texts;
    for (int index = 0; index < count(); ++index)
        texts.push_back(text(index));
    return texts;
}

std::vector<int> ListBox::selected() const {
    std::vector<int> found;
    for (int index = 0; index < count(); ++index)
        if (SendMessageW(window_, LB_GETSEL, index, 0) > 0)
            found.push_back(index);
    return found;
}

POINT ListBox::middleOf(int index, const Where& where) const {
    if (index < 0 || index >= count())
        abandon("The list box has no entry " + std::to_string(index) + ", but " +
                    std::to_string(count()) + " entries",
                where);
    if (!IsWindowVisible(window_) || !IsWindowEnabled(window_))
        abandon("Nobody can click into a list box that is hidden or disabled", where);
    RECT client = {};
    GetClientRect(window_, &client);
    RECT item = {};
    SendMessageW(window_, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    if (item.top < 0 || item.bottom > client.bottom) {
        SendMessageW(window_, LB_SETTOPINDEX, index, 0);
        SendMessageW(window_, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&item));
    }
    return {(item.left + item.right) / 2, (item.top + item.bottom) / 2};
}

void ListBox::click(int index, Held held, Where where) {
    mouse::click(window_, middleOf(index, where), held);
}

void ListBox::doubleClick(int index, Where where) {
    mouse::doubleClick(window_, middleOf(index, where));
}

void ListBox::choose(const std::vector<int>& indices, Where where) {
    // In a box of multiple selection every click toggles; in the others Ctrl adds.
    const bool toggles = (GetWindowLongW(window_, GWL_STYLE) & LBS_MULTIPLESEL) != 0;
    if (toggles)
        for (const int index : selected())
            click(index, Held::Nothing, where);
    for (const int index : indices)
        click(index, toggles || index == indices.front() ? Held::Nothing : Held::Ctrl, where);
}

} // namespace kit
