// What a dialog remembers of its controls from one exchange to the next.
#pragma once

#include "config.h"

#include <cstddef>
#include <vector>

namespace afx_internal {

/// The controls of a dialog in the order in which an exchange comes to them. To find a control
/// by its number the system walks through all of the dialog's; to see that the one remembered
/// at this place still has the number costs next to nothing. One that has been destroyed has none.
class AFXRT_API ExchangedControls {
public:
    /// An exchange begins.
    void Rewind() { m_at = 0; }
    /// The dialog's control of that number, or null.
    HWND Find(HWND dialog, int id);
    /// The control that follows, in the order of the dialog, the one found last; or null.
    HWND FindNext(HWND dialog, HWND control);
    /// Whether the control found last, which has this style, is a radio button. Asked once: what a
    /// button is, is in its style.
    bool IsRadioButton(LONG_PTR style);

private:
    struct Known {
        HWND control;
        HWND after;          // found as the next one of this; null: found by its number
        LONG_PTR style = -1; // when it was asked what it is; at first one that no window has
        bool radioButton = false;
    };
    const Known* Recall() const { return m_at < m_known.size() ? &m_known[m_at] : nullptr; }
    void Remember(const Known& known);

    std::vector<Known> m_known;
    std::size_t m_at = 0;
};

} // namespace afx_internal
