#pragma once

#include "kit/driver/Failure.h"
#include "kit/driver/MessageDialog.h"
#include "kit/picture/Text.h"

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace kit {

/// A message box that a script waits for: what it must say, and how it is answered.
class MessageExpectation {
public:
    explicit MessageExpectation(const Where& where) : where_(where) {}
    MessageExpectation(Text caption, Text text, UINT icon, const Where& where);

    /// The buttons as the flags of MessageBox name them: MB_OK, MB_YESNOCANCEL, ...
    MessageExpectation& buttons(UINT flags);

    /// The button that Enter presses: IDOK, IDNO, ...
    MessageExpectation& defaultButton(int button);

    /// The box is owned by the dialog that is open right below it.
    MessageExpectation& ownedByDialog();

    /// Looks at the open box before it is answered.
    MessageExpectation& inspect(std::function<void(MessageDialog&)> look);

    /// The button to press.
    MessageExpectation& answer(int button);

    const Where& where() const noexcept { return where_; }

    /// What is waited for, in words.
    std::string describe() const;

    /// Compares the open box, notes each difference as a failure, and answers it.
    void meet(HWND box) const;

private:
    Where where_;
    std::optional<std::wstring> caption_;
    std::optional<std::wstring> text_;
    std::optional<UINT> icon_;
    std::optional<UINT> buttons_;
    std::optional<int> defaultButton_;
    std::optional<int> answer_;
    bool ownedByDialog_ = false;
    std::function<void(MessageDialog&)> look_;
};

} // namespace kit
