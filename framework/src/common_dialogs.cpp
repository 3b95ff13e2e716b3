#include <afxrt/common_dialogs.h>

#include "disabled_window.h"
#include "unhandled_exception.h"

#include <algorithm>
#include <colordlg.h>
#include <cwchar>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace {

// Shows one of the system's dialogs, which disables its owner by itself.
template <class Show>
INT_PTR RunModal(CWnd* parent, HWND& owner, Show show) {
    const HWND given = owner;
    HWND top = nullptr;
    if (!given)
        owner = CWnd::GetSafeOwner(parent, &top)->GetSafeHwnd();
    const afx_internal::DisabledWindow disabled(top);
    const BOOL taken = show();
    owner = given; // null again: the next DoModal looks for the owner anew
    return taken ? IDOK : IDCANCEL;
}

// Calls one of the dialog's virtual functions from the system's code, through which no exception
// may pass: when one is thrown, the answer is the fallback.
template <class Call, class Result>
Result Guarded(Call call, Result fallback) {
    try {
        return call();
    } catch (...) {
        afx_internal::ProcessUnhandledException({});
        return fallback;
    }
}

UINT ColorOkMessage() {
    static const UINT message = ::RegisterWindowMessage(COLOROKSTRING);
    return message;
}

} // namespace

// CCommonDialog

CCommonDialog::CCommonDialog(CWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
}

void CCommonDialog::OnOK() {
    Default();
}

void CCommonDialog::OnCancel() {
    Default();
}

// CColorDialog

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd), m_cc() {
    m_cc.lStructSize = sizeof(m_cc);
    m_cc.Flags = dwFlags | CC_RGBINIT | CC_ENABLEHOOK;
    m_cc.rgbResult = clrInit;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.lpfnHook = Hook;
}

INT_PTR CColorDialog::DoModal() {
    m_cc.lCustData = reinterpret_cast<LPARAM>(this);
    const INT_PTR result = RunModal(m_pParentWnd, m_cc.hwndOwner, [this] {
        // Wine tells the owner, and not the hook, that the user takes the colour.
        const HWND owner = m_cc.hwndOwner;
        const auto self = reinterpret_cast<DWORD_PTR>(this);
        const BOOL watching = ::SetWindowSubclass(owner, WatchOwner, self, self);
        const BOOL taken = ::ChooseColor(&m_cc);
        if (watching)
            ::RemoveWindowSubclass(owner, WatchOwner, self);
        return taken;
    });
    Detach();
    return result;
}

COLORREF CColorDialog::GetColor() const {
    return m_cc.rgbResult;
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    static const UINT setColor = ::RegisterWindowMessage(SETRGBSTRING);
    SendMessage(setColor, 0, static_cast<LPARAM>(clr));
    // Wine does not know that message, but takes the colour from these three edits.
    SetDlgItemInt(COLOR_RED, GetRValue(clr), FALSE);
    SetDlgItemInt(COLOR_GREEN, GetGValue(clr), FALSE);
    SetDlgItemInt(COLOR_BLUE, GetBValue(clr), FALSE);
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static COLORREF colors[16];
    static const bool white = [] {
        std::fill(std::begin(colors), std::end(colors), RGB(255, 255, 255));
        return true;
    }();
    static_cast<void>(white);
    return colors;
}

BOOL CColorDialog::OnColorOK() {
    return FALSE;
}

bool CColorDialog::Refuses() {
    return Guarded([this] { return OnColorOK(); }, TRUE);
}

UINT_PTR CALLBACK CColorDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        const auto& cc = *reinterpret_cast<const CHOOSECOLOR*>(lParam);
        reinterpret_cast<CColorDialog*>(cc.lCustData)->Attach(window);
    } else if (message == ColorOkMessage()) {
        return static_cast<CColorDialog*>(FromHandlePermanent(window))->Refuses();
    }
    return 0;
}

LRESULT CALLBACK CColorDialog::WatchOwner(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR, DWORD_PTR dialog) {
    if (message == ColorOkMessage())
        return reinterpret_cast<CColorDialog*>(dialog)->Refuses();
    return ::DefSubclassProc(window, message, wParam, lParam);
}

// CFileDialog

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName,
                         DWORD dwFlags, LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize, BOOL)
    : CCommonDialog(pParentWnd), m_ofn(), m_bOpenFileDialog(bOpenFileDialog),
      m_strDefExt(lpszDefExt), m_strFilter(lpszFilter) {
    m_ofn.lStructSize = dwSize ? dwSize : sizeof(m_ofn);
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.lpfnHook = Hook;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = MAX_PATH;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = MAX_PATH;
    if (lpszFileName)
        std::wcsncpy(m_szFileName, lpszFileName, MAX_PATH - 1);
    if (lpszDefExt)
        m_ofn.lpstrDefExt = m_strDefExt;
    if (lpszFilter) {
        // The system wants the parts ended one by one, and all of them by an empty one.
        const int length = m_strFilter.GetLength();
        LPTSTR filter = m_strFilter.GetBuffer(length + 1);
        std::replace(filter, filter + length, L'|', L'\0');
        filter[length + 1] = 0;
        m_strFilter.ReleaseBuffer(length + 1);
        m_ofn.lpstrFilter = m_strFilter;
    }
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
    const INT_PTR result = RunModal(m_pParentWnd, m_ofn.hwndOwner, [this] {
        return m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    });
    Detach();
    return result;
}

// What is chosen

CString CFileDialog::GetPathName() const {
    return m_hWnd ? AskDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot < 0 ? name : name.Left(dot);
}

// The buffer holds one path, or a folder and then the names in it, each with its terminator, and
// one more terminator. A position points at the next name; the first one at the buffer.

POSITION CFileDialog::GetStartPosition() const {
    return reinterpret_cast<POSITION>(m_ofn.lpstrFile);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const auto after = [](LPCTSTR text) { return text + std::wcslen(text) + 1; };
    const LPCTSTR folder = m_ofn.lpstrFile;
    LPCTSTR name = reinterpret_cast<LPCTSTR>(pos);
    pos = nullptr;

    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && *after(folder);
    if (!several)
        return folder;
    if (name == folder)
        name = after(folder);
    if (*after(name))
        pos = reinterpret_cast<POSITION>(const_cast<LPTSTR>(after(name)));

    CString path(folder);
    if (path.IsEmpty() || path[path.GetLength() - 1] != L'\\') // the root of a drive ends in one
        path += L'\\';
    return path + name;
}

// While the dialog is shown. The window attached is a child of the dialog itself.

CString CFileDialog::AskDialog(UINT message) const {
    const HWND dialog = ::GetParent(m_hWnd);
    const auto size = static_cast<int>(::SendMessage(dialog, message, 0, 0));
    if (size <= 0)
        return CString();
    CString text;
    ::SendMessage(dialog, message, static_cast<WPARAM>(size),
                  reinterpret_cast<LPARAM>(text.GetBuffer(size)));
    text.ReleaseBuffer();
    return text;
}

CString CFileDialog::GetFolderPath() const {
    return m_hWnd ? AskDialog(CDM_GETFOLDERPATH) : CString();
}

void CFileDialog::SetDefExt(LPCSTR lpsz) {
    const CString extension(lpsz);
    ::SendMessage(::GetParent(m_hWnd), CDM_SETDEFEXT, 0,
                  reinterpret_cast<LPARAM>(extension.GetString()));
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz) {
    SetControlText(nID, CString(lpsz));
}

void CFileDialog::SetControlText(int nID, const wchar_t* lpsz) {
    ::SendMessage(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                  reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    ::SendMessage(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

BOOL CFileDialog::OnFileNameOK() {
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR) {
    return OFN_SHAREWARN;
}

void CFileDialog::OnInitDone() {}

void CFileDialog::OnFileNameChange() {}

void CFileDialog::OnFolderChange() {}

void CFileDialog::OnTypeChange() {}

LRESULT CFileDialog::OnDialogNotify(const OFNOTIFY& notification) {
    switch (notification.hdr.code) {
    case CDN_FILEOK:
        return OnFileNameOK();
    case CDN_SHAREVIOLATION:
        return OnShareViolation(notification.pszFile);
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    }
    return 0;
}

UINT_PTR CALLBACK CFileDialog::Hook(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        const auto& ofn = *reinterpret_cast<const OPENFILENAME*>(lParam);
        reinterpret_cast<CFileDialog*>(ofn.lCustData)->Attach(window);
        return TRUE;
    }
    if (message != WM_NOTIFY)
        return FALSE;
    const auto dialog = static_cast<CFileDialog*>(FromHandlePermanent(window));
    const auto& notification = *reinterpret_cast<const OFNOTIFY*>(lParam);
    const LRESULT refused = notification.hdr.code == CDN_FILEOK;
    const LRESULT answer = Guarded([&] { return dialog->OnDialogNotify(notification); }, refused);
    ::SetWindowLongPtr(window, DWLP_MSGRESULT, answer);
    return answer != 0;
}
