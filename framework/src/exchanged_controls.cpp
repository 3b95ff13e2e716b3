#include "afxrt/exchanged_controls.h"

namespace afx_internal {

namespace {

bool IsControlOf(HWND control, HWND dialog) {
    return ::GetAncestor(control, GA_PARENT) == dialog;
}

} // namespace

HWND ExchangedControls::Find(HWND dialog, int id) {
    const Known* known = Recall();
    if (known && !known->after && ::GetDlgCtrlID(known->control) == id &&
        IsControlOf(known->control, dialog)) {
        ++m_at;
        return known->control;
    }
    const HWND control = ::GetDlgItem(dialog, id);
    if (control)
        Remember({control, nullptr});
    return control;
}

HWND ExchangedControls::FindNext(HWND dialog, HWND control) {
    const Known* known = Recall();
    if (known && known->after == control && IsControlOf(known->control, dialog)) {
        ++m_at;
        return known->control;
    }
    const HWND next = ::GetWindow(control, GW_HWNDNEXT);
    if (next)
        Remember({next, control});
    return next;
}

void ExchangedControls::Remember(const Known& known) {
    m_known.resize(m_at); // from here on the order is another than in the last exchange
    m_known.push_back(known);
    ++m_at;
}

} // namespace afx_internal
