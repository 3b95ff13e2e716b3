// Data exchange: the mechanism, and all that is not text.
#include "afxrt/ddx.h"

#include "afxrt/controls.h"
#include "afxrt/dialog.h"
#include "module_file.h"
#include "window_text.h"

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {
    m_pDlgWnd->m_exchangedControls.Rewind();
}

// The user learns no more than that the dialog fails: this is for whoever made its template.
void CDataExchange::TellOfMissing(int nIDC) const {
    const auto* dialog = DYNAMIC_DOWNCAST(CDialog, m_pDlgWnd);
    if (!dialog || !dialog->m_lpszTemplateName)
        return;
    CString name;
    if (IS_INTRESOURCE(dialog->m_lpszTemplateName))
        name.Format(L"%u", LOWORD(reinterpret_cast<ULONG_PTR>(dialog->m_lpszTemplateName)));
    else
        name = dialog->m_lpszTemplateName;
    CString text;
    text.Format(L"Template %s has no control %d (%s).\n", name.GetString(), nIDC,
                afx_internal::MappedFile(dialog->m_templateModule).c_str());
    ::OutputDebugString(text);
}

HWND CDataExchange::Prepare(int nIDC, bool edit) {
    const HWND control = m_pDlgWnd->m_exchangedControls.Find(m_pDlgWnd->m_hWnd, nIDC);
    if (!control) {
        TellOfMissing(nIDC);
        AfxThrowNotSupportedException();
    }
    m_control = control;
    m_controlIsEdit = edit;
    return control;
}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    return Prepare(nIDC, false);
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    return Prepare(nIDC, true);
}

HWND CDataExchange::NextCtrl(HWND control) {
    return m_pDlgWnd->m_exchangedControls.FindNext(m_pDlgWnd->m_hWnd, control);
}

bool CDataExchange::IsRadioButton(LONG_PTR style) {
    return m_pDlgWnd->m_exchangedControls.IsRadioButton(style);
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_control) {
        ::SetFocus(m_control);
        if (m_controlIsEdit) {
            ::SendMessage(m_control, EM_SETSEL, 0, -1);
            ::SendMessage(m_control, EM_SCROLLCARET, 0, 0);
        }
    }
    AfxThrowUserException();
}

void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd) // subclassed by an earlier exchange
        return;
    if (!rControl.SubclassWindow(pDX->PrepareCtrl(nIDC)))
        AfxThrowNotSupportedException();
}

namespace {

int CheckOf(HWND button) {
    return static_cast<int>(::SendMessage(button, BM_GETCHECK, 0, 0));
}

// Setting what a button shows already is not free of effects: it draws, and changes the styles
// of a radio button.
void SetCheck(HWND button, int check) {
    if (CheckOf(button) != check)
        ::SendMessage(button, BM_SETCHECK, static_cast<WPARAM>(check), 0);
}

} // namespace

void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = CheckOf(control);
    } else {
        const int shown = value < BST_UNCHECKED || value > BST_INDETERMINATE ? 0 : value;
        SetCheck(control, shown);
    }
}

void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    const int wanted = value;
    if (pDX->m_bSaveAndValidate)
        value = -1;
    // The group: this control, and those after it in the order of the dialog up to the next
    // that starts one.
    int index = 0;
    LONG_PTR style = ::GetWindowLongPtr(control, GWL_STYLE);
    do {
        if (pDX->IsRadioButton(style)) {
            if (!pDX->m_bSaveAndValidate)
                SetCheck(control, index == wanted ? BST_CHECKED : BST_UNCHECKED);
            else if (value < 0 && CheckOf(control) == BST_CHECKED)
                value = index;
            ++index;
        }
        control = pDX->NextCtrl(control);
        style = control ? ::GetWindowLongPtr(control, GWL_STYLE) : WS_GROUP;
    } while (!(style & WS_GROUP));
}

namespace {

// Setting the index that they have has effects in all others: a list box scrolls to it, and an
// edit gets the item's text back.
bool IsDropDownList(HWND control, UINT set) {
    return set == CB_SETCURSEL &&
           (::GetWindowLongPtr(control, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
}

// An index kept by a list or combo box, -1 for none.
void ExchangeIndex(CDataExchange* pDX, int nIDC, int& index, UINT get, UINT set) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessage(control, get, 0, 0));
    else if (!IsDropDownList(control, set) ||
             static_cast<int>(::SendMessage(control, get, 0, 0)) != index)
        ::SendMessage(control, set, static_cast<WPARAM>(index), 0);
}

LPARAM TextArgument(const CString& text) {
    return reinterpret_cast<LPARAM>(text.GetString());
}

void ExchangeListBoxString(CDataExchange* pDX, int nIDC, CString& value, bool exact) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        const auto index = static_cast<WPARAM>(::SendMessage(control, LB_GETCURSEL, 0, 0));
        value.Empty();
        if (static_cast<int>(index) == LB_ERR)
            return;
        const auto length = static_cast<int>(::SendMessage(control, LB_GETTEXTLEN, index, 0));
        ::SendMessage(control, LB_GETTEXT, index,
                      reinterpret_cast<LPARAM>(value.GetBuffer(length)));
        value.ReleaseBuffer();
    } else {
        const LRESULT found = ::SendMessage(control, exact ? LB_FINDSTRINGEXACT : LB_FINDSTRING,
                                            static_cast<WPARAM>(-1), TextArgument(value));
        ::SendMessage(control, LB_SETCURSEL, static_cast<WPARAM>(found), 0);
    }
}

void ExchangeComboString(CDataExchange* pDX, int nIDC, CString& value, bool exact) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        afx_internal::ReadText(control, value);
        return;
    }
    const LRESULT found = ::SendMessage(control, exact ? CB_FINDSTRINGEXACT : CB_FINDSTRING,
                                        static_cast<WPARAM>(-1), TextArgument(value));
    ::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(found), 0);
    if (found == CB_ERR) // no effect where the combo box has no edit
        afx_internal::SetTextIfDifferent(control, value);
}

} // namespace

void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, CB_GETCURSEL, CB_SETCURSEL);
}

void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) {
    ExchangeIndex(pDX, nIDC, index, LB_GETCURSEL, LB_SETCURSEL);
}

void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListBoxString(pDX, nIDC, value, false);
}

void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeListBoxString(pDX, nIDC, value, true);
}

void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(pDX, nIDC, value, false);
}

void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    ExchangeComboString(pDX, nIDC, value, true);
}

void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    const HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessage(control, TBM_SETPOS, TRUE, value);
}
