#pragma once

#include "kit/driver/Failure.h"
#include "kit/driver/Input.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// A list view in report layout.
class ListView {
public:
    explicit ListView(HWND window) noexcept : window_(window) {}

    HWND handle() const noexcept { return window_; }

    int rows() const;
    int columns() const;
    std::wstring heading(int column) const;
    int width(int column) const; ///< In pixels.
    std::wstring text(int row, int column = 0) const;

    /// All texts of a column, from the top.
    std::vector<std::wstring> column(int column = 0) const;

    /// The row of a text in a column, or -1.
    int find(const Text& text, int column = 0) const;

    bool selected(int row) const;
    std::vector<int> selected() const;
    int focused() const; ///< The row with the focus rectangle, or -1.

    /// Clicks a row with the real mouse, as a person does; Ctrl adds or removes, Shift extends.
    void click(int row, Held held = Held::Nothing, Where where = Where::current());
    void doubleClick(int row, Where where = Where::current());

    /// Selects exactly these rows with the real mouse, in this order; none: clears.
    void choose(const std::vector<int>& rows, Where where = Where::current());

    /// Changes the state of one row directly; the notification comes as from a person.
    void select(int row, bool on = true, Where where = Where::current());
    void clearSelection();

private:
    POINT middleOf(int row, const Where& where) const;
    void mustHave(int row, const Where& where) const;

    HWND window_;
};

} // namespace kit
