// Windows: modality.
#include "afxrt/wnd.h"

#include "thread_state.h"

#include <utility>

using afx_internal::CurrentThread;

namespace {

// One message of a loop without a thread object.
bool PumpMessage() {
    MSG message;
    const bool more = ::GetMessage(&message, nullptr, 0, 0) > 0;
    CurrentThread().pumpedMessage = message;
    if (!more)
        return false;
    if (!afx_internal::OfferToWindows(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return true;
}

bool QueueIsEmpty() {
    MSG message;
    return !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE);
}

// The innermost modal window of the thread, for as long as its loop runs.
class Innermost {
public:
    explicit Innermost(CWnd* window)
        : m_outer(std::exchange(CurrentThread().modalWindow, window)) {}
    ~Innermost() { CurrentThread().modalWindow = m_outer; }
    Innermost(const Innermost&) = delete;
    Innermost& operator=(const Innermost&) = delete;

private:
    CWnd* m_outer;
};

} // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    if (!m_bModal) // a dialog does this itself, before its window is made
        BeginModal();
    const Innermost innermost(this);
    bool shown = !(dwFlags & MLF_SHOWONIDLE) || IsWindowVisible();
    bool idle = true; // whether something has happened since the last idle time
    while (ContinueModal()) {
        if (idle && QueueIsEmpty()) {
            if (!shown) {
                shown = true;
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
                continue; // the controls are painted before the owner hears of the idle time
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
            ::PostQuitMessage(static_cast<int>(CurrentThread().pumpedMessage.wParam));
            EndModalLoop(-1);
            break;
        }
        MSG last = CurrentThread().pumpedMessage;
        idle = idle || !thread || thread->IsIdleMessage(&last);
    }
    m_bModal = false;
    return m_nModalResult;
}

void CWnd::BeginModal() {
    m_nModalResult = -1;
    m_bModalEnded = false;
    m_bModal = true;
}

BOOL CWnd::ContinueModal() {
    return m_bModal && !m_bModalEnded;
}

void CWnd::EndModalLoop(int nResult) {
    if (!m_bModal)
        return;
    m_nModalResult = nResult;
    m_bModalEnded = true;
    // Wakes a loop that waits for a message, also when the window is being destroyed.
    ::PostMessage(nullptr, WM_NULL, 0, 0);
}
