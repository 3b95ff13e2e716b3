// Windows: the exchange of a dialog's data, and the template's init block.
#include "afxres.h"
#include "afxrt/ddx.h"
#include "afxrt/wnd.h"
#include "exchange_lock.h"

#include <cstring>
#include <limits>

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    const afx_internal::ExchangeLock lock(*this);
    try {
        DoDataExchange(&exchange);
        return lock.HasWindow();
    } catch (CUserException* e) { // thrown after the user was told
        e->Delete();
    } catch (CException* e) {
        if (lock.HasWindow()) // a window that is gone has no user to tell
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
    return loaded && afx_internal::ExecuteInitBlock(m_hWnd, ::LockResource(loaded),
                                                    ::SizeofResource(module, found));
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    return !lpResource ||
           afx_internal::ExecuteInitBlock(m_hWnd, lpResource, std::numeric_limits<DWORD>::max());
}

namespace {

// The message of a record, which is stored by its number in 16-bit Windows; 0 for any other than
// those that add a text. Another one might take the text's address for room to write into.
UINT MessageOfInitBlock(WORD stored) {
    switch (stored) {
    case 0x0401:
    case LB_ADDSTRING:
        return LB_ADDSTRING;
    case 0x0403:
    case CB_ADDSTRING:
        return CB_ADDSTRING;
    default:
        return 0;
    }
}

} // namespace

// Records of: WORD control, WORD message, DWORD length, that many bytes; a control 0, or the end of
// the block, ends them. The texts are in the system's ANSI code page.
bool afx_internal::ExecuteInitBlock(HWND dialog, const void* block, std::size_t size) {
    const auto* at = static_cast<const BYTE*>(block);
    const auto take = [&]<class T>(T& value) {
        if (size < sizeof value)
            return false;
        std::memcpy(&value, at, sizeof value); // records are not aligned
        at += sizeof value;
        size -= sizeof value;
        return true;
    };
    WORD control = 0;
    while (take(control) && control != 0) {
        WORD message = 0;
        DWORD length = 0;
        if (!take(message) || !take(length) || length > size || !std::memchr(at, '\0', length) ||
            MessageOfInitBlock(message) == 0)
            return false;
        const LRESULT result = ::SendDlgItemMessageA(dialog, control, MessageOfInitBlock(message),
                                                     0, reinterpret_cast<LPARAM>(at));
        if (result == CB_ERR || result == CB_ERRSPACE)
            return false;
        at += length;
        size -= length;
    }
    return true;
}
