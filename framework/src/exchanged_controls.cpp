#include "afxrt/exchanged_controls.h"

namespace afx_internal {

HWND ExchangedControls::Find(HWND dialog, int id) {
    const Known* known = Recall();
    if (known && !known->after && ::GetDlgCtrlID(known->control) == id) {
        ++m_at;
        return known->control;
    }
    const HWND control = ::GetDlgItem(dialog, id);
    if (control)
        Remember({.control = control, .after = nullptr});
    return control;
}

HWND ExchangedControls::FindNext(HWND dialog, HWND control) {
    const Known* known = Recall();
    if (known && known->after == control && ::GetAncestor(known->control, GA_PARENT) == dialog) {
        ++m_at;
        return known->control;
    }
    const HWND next = ::GetWindow(control, GW_HWNDNEXT);
    if (next)
        Remember({.control = next, .after = control});
    return next;
}

bool ExchangedControls::IsRadioButton(LONG_PTR style) {
    const std::size_t at = m_at - 1;
    const HWND control = m_known[at].control;
    if (m_known[at].style == style)
        return m_known[at].radioButton;
    const bool radioButton = (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
    // Whoever was asked may have begun another exchange.
    if (at < m_known.size() && m_known[at].control == control) {
        m_known[at].style = style;
        m_known[at].radioButton = radioButton;
    }
    return radioButton;
}

void ExchangedControls::Remember(const Known& known) {
    m_known.resize(m_at); // from here on the order is another than in the last exchange
    m_known.push_back(known);
    ++m_at;
}

} // namespace afx_internal
