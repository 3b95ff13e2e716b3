#pragma once

#include "kit/driver/Failure.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <string>
#include <vector>

namespace kit {

/// A drop-down list.
class ComboBox {
public:
    explicit ComboBox(HWND window) noexcept : window_(window) {}

    HWND handle() const noexcept { return window_; }

    int count() const;
    std::wstring text(int index) const;
    std::vector<std::wstring> texts() const;
    int selected() const; ///< -1 for none.

    /// Drops the list and clicks an entry: one change notification.
    void choose(int index, Where where = Where::current());
    void choose(const Text& entry, Where where = Where::current());

    /// Walks by arrow keys with the list closed: one change notification per entry.
    /// \param steps positive: down; negative: up.
    void walk(int steps);

private:
    HWND window_;
};

} // namespace kit
