// Windows: the exchange of a dialog's data, and the template's init block.
#include "afxres.h"
#include "afxrt/ddx.h"
#include "afxrt/wnd.h"
#include "thread_state.h"

#include <cstring>
#include <utility>

void CWnd::DoDataExchange(CDataExchange*) {}

// The notifications of a window's controls are ignored as long as one of these lives.
class afx_internal::ExchangeLock {
public:
    explicit ExchangeLock(CWnd& window) : m_exchanges(window.m_exchanges) { ++m_exchanges; }
    ~ExchangeLock() { --m_exchanges; }
    ExchangeLock(const ExchangeLock&) = delete;
    ExchangeLock& operator=(const ExchangeLock&) = delete;

private:
    int& m_exchanges;
};

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    const afx_internal::ExchangeLock lock(*this);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) { // thrown after the user was told
        e->Delete();
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        e->Delete();
    }
    return FALSE;
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    const LPCTSTR type = MAKEINTRESOURCE(240);
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC found = module ? ::FindResource(module, lpszResourceName, type) : nullptr;
    if (!found) // most dialogs have none
        return TRUE;
    const HGLOBAL loaded = ::LoadResource(module, found);
    return loaded && ExecuteDlgInit(::LockResource(loaded));
}

namespace {

// The stored message numbers are those of 16-bit Windows.
UINT MessageOfInitBlock(WORD stored) {
    switch (stored) {
    case 0x0401:
        return LB_ADDSTRING;
    case 0x0403:
        return CB_ADDSTRING;
    default:
        return stored;
    }
}

} // namespace

// Records of: WORD control, WORD message, DWORD length, that many bytes; a control 0 ends them.
// The texts are in the system's ANSI code page.
BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    const auto* at = static_cast<const BYTE*>(lpResource);
    const auto take = [&]<class T>(T& value) {
        std::memcpy(&value, at, sizeof value); // records are not aligned
        at += sizeof value;
    };
    while (at) {
        WORD control = 0;
        take(control);
        if (control == 0)
            break;
        WORD message = 0;
        DWORD length = 0;
        take(message);
        take(length);
        const LRESULT result = ::SendDlgItemMessageA(m_hWnd, control, MessageOfInitBlock(message),
                                                     0, reinterpret_cast<LPARAM>(at));
        if (result == CB_ERR || result == CB_ERRSPACE)
            return FALSE;
        at += length;
    }
    return TRUE;
}
