#include "kit/driver/ListView.h"

#include <commctrl.h>

#include <algorithm>

namespace kit {

int ListView::rows() const {
    return ListView_GetItemCount(window_);
}

int ListView::columns() const {
    return Header_GetItemCount(ListView_GetHeader(window_));
}

std::wstring ListView::heading(int column) const {
    wchar_t text[512] = L"";
    LVCOLUMNW description = {};
    description.mask = LVCF_TEXT;
    description.pszText = text;
    description.cchTextMax = static_cast<int>(std::size(text));
    SendMessageW(window_, LVM_GETCOLUMNW, column, reinterpret_cast<LPARAM>(&description));
    return text;
}

int ListView::width(int column) const {
    return ListView_GetColumnWidth(window_, column);
}

std::wstring ListView::text(int row, int column) const {
    std::wstring text(256, L'\0');
    for (;;) {
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto length = static_cast<std::size_t>(
            SendMessageW(window_, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item)));
        if (length + 1 < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(2 * text.size());
    }
}

std::vector<std::wstring> ListView::column(int column) const {
    std::vector<std::wstring> texts;
    for (int row = 0; row < rows(); ++row)
        texts.push_back(text(row, column));
    return texts;
}

int ListView::find(const Text& wanted, int column) const {
    for (int row = 0; row < rows(); ++row)
        if (text(row, column) == wanted)
            return row;
    return -1;
}

bool ListView::selected(int row) const {
    return ListView_GetItemState(window_, row, LVIS_SELECTED) != 0;
}

std::vector<int> ListView::selected() const {
    std::vector<int> found;
    for (int row = -1; (row = ListView_GetNextItem(window_, row, LVNI_SELECTED)) >= 0;)
        found.push_back(row);
    return found;
}

int ListView::focused() const {
    return ListView_GetNextItem(window_, -1, LVNI_FOCUSED);
}

void ListView::mustHave(int row, const Where& where) const {
    if (row < 0 || row >= rows())
        abandon("The list has no row " + std::to_string(row) + ", but " + std::to_string(rows()) +
                    " rows",
                where);
}

/// Where a person clicks to hit a row: its first column, which has to be in sight.
POINT ListView::middleOf(int row, const Where& where) const {
    mustHave(row, where);
    if (!IsWindowVisible(window_) || !IsWindowEnabled(window_))
        abandon("Nobody can click into a list that is hidden or disabled", where);
    ListView_EnsureVisible(window_, row, FALSE);
    RECT label = {};
    ListView_GetItemRect(window_, row, &label, LVIR_LABEL);
    RECT client = {};
    GetClientRect(window_, &client);
    const LONG right = std::min(label.right, client.right);
    return {(std::max(label.left, 0L) + right) / 2, (label.top + label.bottom) / 2};
}

void ListView::click(int row, Held held, Where where) {
    mouse::click(window_, middleOf(row, where), held);
}

void ListView::doubleClick(int row, Where where) {
    mouse::doubleClick(window_, middleOf(row, where));
}

void ListView::choose(const std::vector<int>& rows, Where where) {
    if (rows.empty())
        clearSelection();
    for (const int row : rows)
        click(row, row == rows.front() ? Held::Nothing : Held::Ctrl, where);
}

void ListView::select(int row, bool on, Where where) {
    mustHave(row, where);
    ListView_SetItemState(window_, row, on ? LVIS_SELECTED : 0, LVIS_SELECTED);
}

void ListView::clearSelection() {
    ListView_SetItemState(window_, -1, 0, LVIS_SELECTED);
}

} // namespace kit
