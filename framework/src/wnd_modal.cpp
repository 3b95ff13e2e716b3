// Windows: modality.
#include "afxrt/wnd.h"

#include "thread_state.h"

namespace {

// One message of a loop without a thread object.
bool PumpMessage() {
    MSG message;
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
        return false;
    for (HWND window = message.hwnd; window; window = ::GetAncestor(window, GA_PARENT)) {
        CWnd* object = CWnd::FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(&message))
            return true;
        if (!(::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD))
            break;
    }
    ::TranslateMessage(&message);
    ::DispatchMessage(&message);
    return true;
}

bool QueueIsEmpty() {
    MSG message;
    return !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE);
}

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    m_bModal = true;
    bool shown = !(dwFlags & MLF_SHOWONIDLE) || IsWindowVisible();
    bool idle = true; // whether something has happened since the last idle time
    while (ContinueModal()) {
        if (idle && QueueIsEmpty()) {
            if (!shown) {
                shown = true;
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                continue; // the owner hears of the idle time once the controls are painted too
            }
            idle = false;
            const HWND owner = ::GetParent(m_hWnd);
            if (!(dwFlags & MLF_NOIDLEMSG) && owner)
                ::SendMessage(owner, WM_ENTERIDLE, MSGF_DIALOGBOX,
                              reinterpret_cast<LPARAM>(m_hWnd));
            if (!(dwFlags & MLF_NOKICKIDLE))
                SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, 0);
            continue;
        }
        CWinThread* thread = AfxGetThread();
        if (!(thread ? thread->PumpMessage() : PumpMessage())) {
            // The application is quitting: the loop around this one must learn it too.
            ::PostQuitMessage(
                static_cast<int>(afx_internal::CurrentThread().currentMessage.wParam));
            m_nModalResult = -1;
            break;
        }
        MSG last = afx_internal::CurrentThread().currentMessage;
        idle = idle || !thread || thread->IsIdleMessage(&last);
    }
    m_bModal = false;
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return m_bModal && !m_bModalEnded;
}

void CWnd::EndModalLoop(int nResult) {
    if (!m_bModal)
        return;
    m_nModalResult = nResult;
    m_bModalEnded = true;
    // A loop that waits for a message must look up.
    PostMessage(WM_NULL);
}
