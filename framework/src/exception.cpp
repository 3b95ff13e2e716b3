#include "afxrt/exception.h"

#include "afxres.h"
#include "afxrt/app.h"
#include "unhandled_exception.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CException::CException() : m_bAutoDelete(TRUE) {}

CException::CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

void CException::Delete() {
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (lpszError && nMaxError > 0)
        lpszError[0] = L'\0';
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nIDMessage) {
    TCHAR text[512];
    UINT context = 0;
    if (GetErrorMessage(text, static_cast<UINT>(std::size(text)), &context))
        return AfxMessageBox(text, nType, context);
    return AfxMessageBox(nIDMessage ? nIDMessage : AFX_IDP_NO_ERROR_AVAILABLE, nType, context);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                       PUINT pnHelpContext) const {
    if (pnHelpContext)
        *pnHelpContext = 0;
    if (!lpszError || nMaxError == 0)
        return FALSE;
    lpszError[0] = L'\0';
    return MessageId() != 0 && AfxLoadString(MessageId(), lpszError, nMaxError) > 0;
}

UINT CMemoryException::MessageId() const {
    return AFX_IDS_MEMORY_EXCEPTION;
}

UINT CResourceException::MessageId() const {
    return AFX_IDS_RESOURCE_EXCEPTION;
}

UINT CUserException::MessageId() const {
    return AFX_IDS_USER_EXCEPTION;
}

UINT CNotSupportedException::MessageId() const {
    return AFX_IDS_NOT_SUPPORTED_EXCEPTION;
}

UINT CInvalidArgException::MessageId() const {
    return AFX_IDS_INVALID_ARG_EXCEPTION;
}

void AFXAPI AfxThrowMemoryException() {
    // Made beforehand: there may be no memory for an exception now.
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AFXAPI AfxThrowResourceException() {
    throw new CResourceException;
}

void AFXAPI AfxThrowUserException() {
    throw new CUserException;
}

void AFXAPI AfxThrowNotSupportedException() {
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowInvalidArgException() {
    throw new CInvalidArgException;
}

namespace afx_internal {
CaughtException::~CaughtException() {
    if (m_e)
        m_e->Delete();
}

namespace {

LRESULT AskThread(CException* e, const MSG& message) {
    CWinThread withoutObject;
    CWinThread* thread = AfxGetThread();
    if (!thread)
        thread = AfxGetApp();
    return (thread ? thread : &withoutObject)->ProcessWndProcException(e, &message);
}

} // namespace

LRESULT ProcessUnhandledException(const MSG& message) noexcept {
    try {
        try {
            throw;
        } catch (CException* e) {
            const CaughtException deleted(e);
            // The opening of a dialog fails; whoever opens it learns that by its result.
            return message.message == WM_INITDIALOG ? 0 : AskThread(e, message);
        } catch (...) {
            CSimpleException unknown(FALSE);
            return AskThread(&unknown, message);
        }
    } catch (CException* e) { // of whoever was asked
        e->Delete();
    } catch (...) {
    }
    return 0;
}
} // namespace afx_internal
