// Windows: the way of a message from the system to a handler, and the default handlers.
#include "afxrt/wnd.h"

#include "afxrt/controls.h"
#include "afxrt/device_context.h"
#include "thread_state.h"
#include "unhandled_exception.h"

#include <utility>
#include <windowsx.h>

using afx_internal::CurrentThread;

// ---- From the system to the object

namespace {

// The message a window procedure is at, for the length of that message.
class CurrentMessage {
public:
    CurrentMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_current(CurrentThread().currentMessage),
          m_previous(std::exchange(m_current, MSG{window, message, wParam, lParam, 0, {}})) {}
    ~CurrentMessage() { m_current = m_previous; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    MSG& m_current;
    MSG m_previous;
};

} // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* window = CWnd::FromHandlePermanent(hWnd);
    if (!window)
        return ::DefWindowProc(hWnd, message, wParam, lParam);

    const CurrentMessage current(hWnd, message, wParam, lParam);
    // No exception may leave a window procedure: the system would swallow it without a word.
    try {
        return window->WindowProc(message, wParam, lParam);
    } catch (...) {
        const LRESULT result =
            afx_internal::ProcessUnhandledException({hWnd, message, wParam, lParam, 0, {}});
        // A dialog half made ends, a modeless one by its Create. The handler may have ended it.
        CWnd* dialog = message == WM_INITDIALOG ? CWnd::FromHandlePermanent(hWnd) : nullptr;
        if (dialog)
            dialog->EndModalLoop(-1);
        return result;
    }
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &CurrentThread().currentMessage;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    // Most messages come to dialogs, and asking the system how to call their procedure would cost
    // more than all that the framework does with one.
    if (m_ownProcedure == &::DefDlgProc)
        return ::DefDlgProc(m_hWnd, message, wParam, lParam);
    if (m_ownProcedure)
        return ::CallWindowProc(m_ownProcedure, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& message = CurrentThread().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT& result = pResult ? *pResult : ignored;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 0;
        return TRUE;
    }
    if (message == WM_NOTIFY)
        return reinterpret_cast<NMHDR*>(lParam)->hwndFrom && OnNotify(wParam, lParam, &result);

    // The colours of all kinds of controls are asked for in one place.
    const bool colour = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    const AFX_MSGMAP* map = GetMessageMap();
    const bool registered = message >= 0xC000;
    const AFX_MSGMAP_ENTRY* entry =
        registered ? nullptr
                   : afx_internal::FindMessageEntry(map, colour ? WM_CTLCOLORBTN : message, 0, 0);
    if (registered) {
        // Registered messages: a row holds the address of a number known at run time.
        for (; map && !entry; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
            for (const AFX_MSGMAP_ENTRY* row = map->lpEntries;
                 row->nSig != afx_internal::sigEnd && !entry; ++row)
                if (row->nMessage == 0xC000 && *reinterpret_cast<UINT*>(row->nSig) == message)
                    entry = row;
    }
    return entry && SendToHandler(*entry, message, wParam, lParam, &result);
}

BOOL CWnd::SendToHandler(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam,
                         LRESULT* pResult) {
    const AFX_PMSG pfn = entry.pfn;
    LRESULT& result = *pResult;
    const auto call = [&]<class... Args>(auto resultType, Args... args) {
        using Result = typename decltype(resultType)::type;
        return (this->*std::bit_cast<Result (CWnd::*)(Args...)>(pfn))(args...);
    };
    constexpr std::type_identity<void> noResult;
    constexpr std::type_identity<BOOL> boolResult;
    const CPoint point(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
    const auto low = static_cast<UINT>(LOWORD(wParam));
    const auto high = static_cast<UINT>(HIWORD(wParam));

    result = 0;
    if (entry.nMessage == 0xC000) {
        result = call(std::type_identity<LRESULT>{}, wParam, lParam);
        return TRUE;
    }
    switch (entry.nSig) {
    case afx_internal::sigVoid:
        call(noResult);
        break;
    case afx_internal::sigBool:
        result = call(boolResult);
        break;
    case afx_internal::sigUint:
        result = call(std::type_identity<UINT>{});
        break;
    case afx_internal::sigMessage:
        result = call(std::type_identity<LRESULT>{}, wParam, lParam);
        break;
    case afx_internal::sigCreate:
        result = call(std::type_identity<int>{}, reinterpret_cast<LPCREATESTRUCT>(lParam));
        break;
    case afx_internal::sigHelpInfo:
        result = call(boolResult, reinterpret_cast<HELPINFO*>(lParam));
        break;
    case afx_internal::sigDropFiles:
        call(noResult, reinterpret_cast<HDROP>(wParam));
        break;
    case afx_internal::sigMouse:
        call(noResult, static_cast<UINT>(wParam), point);
        break;
    case afx_internal::sigMouseWheel:
        result = call(boolResult, low, static_cast<short>(high), point);
        break;
    case afx_internal::sigKey:
        call(noResult, static_cast<UINT>(wParam), static_cast<UINT>(LOWORD(lParam)),
             static_cast<UINT>(HIWORD(lParam)));
        break;
    case afx_internal::sigSize:
        call(noResult, static_cast<UINT>(wParam), static_cast<int>(LOWORD(lParam)),
             static_cast<int>(HIWORD(lParam)));
        break;
    case afx_internal::sigMove:
        call(noResult, static_cast<int>(point.x), static_cast<int>(point.y));
        break;
    case afx_internal::sigBoolArg:
        call(noResult, static_cast<BOOL>(wParam));
        break;
    case afx_internal::sigWindow: {
        // WM_CAPTURECHANGED has its window in the other parameter.
        const auto other = message == WM_CAPTURECHANGED ? static_cast<WPARAM>(lParam) : wParam;
        call(noResult, FromHandle(reinterpret_cast<HWND>(other)));
        break;
    }
    case afx_internal::sigWindowUint:
        call(noResult, FromHandle(reinterpret_cast<HWND>(wParam)), point);
        break;
    case afx_internal::sigShow:
        call(noResult, static_cast<BOOL>(wParam), static_cast<UINT>(lParam));
        break;
    case afx_internal::sigActivate:
        call(noResult, low, FromHandle(reinterpret_cast<HWND>(lParam)), static_cast<BOOL>(high));
        break;
    case afx_internal::sigTimer:
        call(noResult, static_cast<UINT_PTR>(wParam));
        break;
    case afx_internal::sigScroll:
        call(noResult, low, high,
             static_cast<CScrollBar*>(FromHandle(reinterpret_cast<HWND>(lParam))));
        break;
    case afx_internal::sigSetCursor:
        result = call(boolResult, FromHandle(reinterpret_cast<HWND>(wParam)),
                      static_cast<UINT>(LOWORD(lParam)), static_cast<UINT>(HIWORD(lParam)));
        break;
    case afx_internal::sigEraseBkgnd:
        result = call(boolResult, CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        break;
    case afx_internal::sigCtlColor:
        result = reinterpret_cast<LRESULT>(
            call(std::type_identity<HBRUSH>{}, CDC::FromHandle(reinterpret_cast<HDC>(wParam)),
                 FromHandle(reinterpret_cast<HWND>(lParam)), message - WM_CTLCOLORMSGBOX));
        break;
    case afx_internal::sigDrawItem:
        call(noResult, static_cast<int>(wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case afx_internal::sigMeasureItem:
        call(noResult, static_cast<int>(wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        result = TRUE;
        break;
    case afx_internal::sigMinMaxInfo:
        call(noResult, reinterpret_cast<MINMAXINFO*>(lParam));
        break;
    case afx_internal::sigWindowPos:
        call(noResult, reinterpret_cast<WINDOWPOS*>(lParam));
        break;
    case afx_internal::sigSysCommand:
        call(noResult, static_cast<UINT>(wParam), lParam);
        break;
    case afx_internal::sigHitTest:
        result = call(std::type_identity<LRESULT>{}, point);
        break;
    case afx_internal::sigSettingChange:
        call(noResult, static_cast<UINT>(wParam), reinterpret_cast<LPCTSTR>(lParam));
        break;
    case afx_internal::sigEnterIdle:
        call(noResult, static_cast<UINT>(wParam), FromHandle(reinterpret_cast<HWND>(lParam)));
        break;
    default:
        return FALSE;
    }
    return TRUE;
}

// ---- Commands and notifications

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

bool CWnd::TakesControlNotifications() const {
    // During an exchange the controls only echo what the exchange does to them. Once a modal
    // run has its result, they only report that the window is closing.
    return !m_exchange && !m_bModalEnded;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const bool fromControl = lParam != 0;
    if (fromControl && !TakesControlNotifications())
        return TRUE;
    const UINT id = LOWORD(wParam);
    const int code = fromControl ? HIWORD(wParam) : CN_COMMAND;
    return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (!TakesControlNotifications())
        return TRUE;
    AFX_NOTIFY notify = {pResult, header};
    // Controls give their number, tooltips that of a tool. Only these are asked: a list that is
    // filled notifies row by row, and the question would cost more than all else here.
    const bool fromTooltip = header->code <= TTN_FIRST && header->code >= TTN_LAST;
    const auto id = fromTooltip ? static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom))
                                : static_cast<UINT>(wParam);
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                    BOOL bOnlyPerm) {
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!bOnlyPerm || FromHandlePermanent(child))
            ::SendMessage(child, message, wParam, lParam);
        if (bDeep)
            FromHandle(child)->SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::TranslateDialogKeys(LPMSG lpMsg) {
    const bool key = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool mouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (key || mouse) && IsDialogMessage(lpMsg);
}

// ---- Default handlers

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

void CWnd::OnNcDestroy() {
    Default();
    if (m_hWnd) {
        if (CWinThread* thread = AfxGetThread(); thread && thread->m_pMainWnd == this)
            thread->m_pMainWnd = nullptr;
        if (!m_bModalEnded)
            EndModalLoop(-1); // or its loop would wait for ever
        UnsubclassWindow();
    }
    PostNcDestroy();
}

// clang-format off
int CWnd::OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
void CWnd::OnDestroy() { Default(); }
void CWnd::OnClose() { Default(); }
void CWnd::OnPaint() { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
void CWnd::OnSize(UINT, int, int) { Default(); }
void CWnd::OnMove(int, int) { Default(); }
void CWnd::OnEnable(BOOL) { Default(); }
void CWnd::OnShowWindow(BOOL, UINT) { Default(); }
void CWnd::OnSetFocus(CWnd*) { Default(); }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnTimer(UINT_PTR) { Default(); }
void CWnd::OnCancelMode() { Default(); }
void CWnd::OnSysColorChange() { Default(); }
UINT CWnd::OnGetDlgCode() { return static_cast<UINT>(Default()); }
BOOL CWnd::OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
void CWnd::OnDropFiles(HDROP) { Default(); }
BOOL CWnd::OnQueryEndSession() { return static_cast<BOOL>(Default()); }
void CWnd::OnEndSession(BOOL) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyUp(UINT, UINT, UINT) { Default(); }
void CWnd::OnMouseMove(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnLButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnLButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnRButtonUp(UINT, CPoint) { Default(); }
void CWnd::OnRButtonDblClk(UINT, CPoint) { Default(); }
void CWnd::OnMButtonDown(UINT, CPoint) { Default(); }
void CWnd::OnMButtonUp(UINT, CPoint) { Default(); }
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
void CWnd::OnMouseLeave() { Default(); }
void CWnd::OnCaptureChanged(CWnd*) { Default(); }
void CWnd::OnContextMenu(CWnd*, CPoint) { Default(); }
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
LRESULT CWnd::OnNcHitTest(CPoint) { return Default(); }
void CWnd::OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
void CWnd::OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
HBRUSH CWnd::OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(Default()); }
void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT) { Default(); }
void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT) { Default(); }
void CWnd::OnActivate(UINT, CWnd*, BOOL) { Default(); }
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
void CWnd::OnWindowPosChanging(WINDOWPOS*) { Default(); }
void CWnd::OnWindowPosChanged(WINDOWPOS*) { Default(); }
void CWnd::OnSysCommand(UINT, LPARAM) { Default(); }
void CWnd::OnSettingChange(UINT, LPCTSTR) { Default(); }
void CWnd::OnEnterIdle(UINT, CWnd*) { Default(); }
// clang-format on
