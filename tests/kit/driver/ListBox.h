#pragma once

#include "kit/driver/Failure.h"
#include "kit/driver/Input.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// A list box of single, multiple or extended selection.
class ListBox {
public:
    explicit ListBox(HWND window) noexcept : window_(window) {}

    HWND handle() const noexcept { return window_; }

    int count() const;
    std::wstring text(int index) const;
    std::vector<std::wstring> texts() const;
    std::vector<int> selected() const;

    /// Clicks an entry with the real mouse; Ctrl and Shift as the box's kind takes them.
    void click(int index, Held held = Held::Nothing, Where where = Where::current());
    void doubleClick(int index, Where where = Where::current());

    /// Selects exactly these entries with the real mouse, in this order.
    void choose(const std::vector<int>& indices, Where where = Where::current());

private:
    POINT middleOf(int index, const Where& where) const;

    HWND window_;
};

} // namespace kit
