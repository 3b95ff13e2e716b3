#include "afxrt/thread.h"

#include "afxres.h"
#include "afxrt/handle_map.h"
#include "afxrt/wnd.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

int afx_internal::ExitCodeOfLoop() {
    const MSG& last = CurrentThread().pumpedMessage;
    return last.message == WM_QUIT ? static_cast<int>(last.wParam) : 0;
}

bool afx_internal::OfferToWindows(MSG* message) {
    for (HWND window = message->hwnd; window; window = ::GetAncestor(window, GA_PARENT)) {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(message))
            return true;
        if (!(::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD))
            break;
    }
    return false;
}

CWinThread::CWinThread() : m_hThread(::GetCurrentThread()), m_nThreadID(::GetCurrentThreadId()) {}

CWinThread::~CWinThread() = default;

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::ExitInstance() {
    return afx_internal::ExitCodeOfLoop();
}

int CWinThread::Run() {
    LONG idleCount = 0;
    bool idle = true;
    for (;;) {
        MSG message;
        while (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        do {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&afx_internal::CurrentThread().pumpedMessage)) {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage() {
    MSG message;
    const BOOL more = ::GetMessage(&message, nullptr, 0, 0) > 0;
    afx_internal::CurrentThread().pumpedMessage = message;
    if (!more)
        return FALSE;
    if (message.message != WM_KICKIDLE && !PreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return afx_internal::OfferToWindows(pMsg);
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount <= 0)
        return TRUE;
    afx_internal::DeleteTemporaryObjects();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    // No idle time after these: painting, a timer, a blinking caret (a timer of the system's own).
    constexpr UINT systemTimer = 0x0118;
    return pMsg->message != WM_PAINT && pMsg->message != WM_TIMER && pMsg->message != systemTimer;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    // WM_CREATE's failure must reach the system, or the window would live on half made.
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr); // else WM_PAINT would come again at once, for ever
    // Whoever throws a user exception has told the user already.
    if (e->IsKindOf(RUNTIME_CLASS(CUserException)))
        return 0;
    // A menu's or an accelerator's command comes from no control.
    const bool command = pMsg->message == WM_COMMAND && pMsg->lParam == 0;
    e->ReportError(MB_ICONSTOP, command ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
    return 0;
}

CWnd* CWinThread::GetMainWnd() {
    return m_pMainWnd;
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}
