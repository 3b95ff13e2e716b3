// Windows: handles and objects, making, placing, finding.
#include "afxrt/wnd.h"

#include "afxres.h"
#include "afxrt/ddx.h"
#include "afxrt/device_context.h"
#include "afxrt/gdi.h"
#include "afxrt/handle_map.h"
#include "afxrt/menu.h"
#include "exchange_lock.h"
#include "thread_state.h"
#include "window_text.h"

#include <algorithm>
#include <mutex>
#include <set>
#include <string>

using afx_internal::CurrentThread;
using afx_internal::HandleOf;

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

namespace afx_internal {

template <>
struct HandleTraits<CWnd> : HandleMember<CWnd, &CWnd::m_hWnd> {};

namespace {
HandleMap<CWnd, HWND>& Windows() {
    return MapOfThread<CWnd, HWND>();
}
} // namespace
} // namespace afx_internal

using afx_internal::Windows;

// ---- Handles and objects

CWnd::~CWnd() {
    // The derived parts are gone: a virtual call would reach this class's DestroyWindow only.
    if (m_hWnd && Windows().LookupPermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
    if (m_exchange)
        m_exchange->Forget();
}

HWND CWnd::GetSafeHwnd() const {
    // Called on null objects: "this" is compared where the compiler may not reason about it.
    const CWnd* volatile self = this;
    return self ? m_hWnd : nullptr;
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    return Windows().FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return Windows().LookupPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap() {
    Windows().DeleteTemporaries(0);
}

BOOL CWnd::Attach(HWND hWndNew) {
    if (!hWndNew)
        return FALSE;
    m_hWnd = hWndNew;
    Windows().SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND window = m_hWnd;
    if (window && Windows().LookupPermanent(window) == this)
        Windows().Remove(window);
    m_hWnd = nullptr;
    return window;
}

void CWnd::PreSubclassWindow() {}

// Puts the module's window procedure in front of the window's own.
void CWnd::AttachAndSubclass(HWND hWnd) {
    Attach(hWnd);
    PreSubclassWindow();
    const WNDPROC ours = AfxGetModuleState()->m_pfnAfxWndProc;
    const auto before = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ours)));
    if (before != ours)
        m_ownProcedure = before;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!hWnd || m_hWnd || FromHandlePermanent(hWnd))
        return FALSE;
    AttachAndSubclass(hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(HandleOf(pParent), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    if (m_hWnd && m_ownProcedure)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_ownProcedure));
    m_ownProcedure = nullptr;
    return Detach();
}

// ---- Making and ending

namespace afx_internal {

// Attaches the window that is being made, and no later one: its children are not waited for.
struct Creation {
    static void Stop() {
        ThreadState& thread = CurrentThread();
        if (thread.creationHook)
            ::UnhookWindowsHookEx(thread.creationHook);
        thread.creationHook = nullptr;
        thread.windowInCreation = nullptr;
    }

    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam) {
        const HHOOK hook = CurrentThread().creationHook;
        if (code == HCBT_CREATEWND) {
            CWnd* object = CurrentThread().windowInCreation;
            Stop();
            if (object)
                object->AttachAndSubclass(reinterpret_cast<HWND>(wParam));
        }
        return ::CallNextHookEx(hook, code, wParam, lParam);
    }
};

WindowCreation::WindowCreation(CWnd* window) {
    ThreadState& thread = CurrentThread();
    thread.windowInCreation = window;
    thread.creationHook =
        ::SetWindowsHookEx(WH_CBT, &Creation::OnHook, nullptr, ::GetCurrentThreadId());
    if (!thread.creationHook)
        AfxThrowMemoryException();
}

WindowCreation::~WindowCreation() {
    Creation::Stop();
}
} // namespace afx_internal

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    int x, int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu,
                    LPVOID lpParam) {
    CREATESTRUCT cs = {
        lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
        x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    HWND window;
    {
        const afx_internal::WindowCreation creation(this);
        window = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName,
                                  static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx, cs.cy,
                                  cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    }
    if (!window && !m_hWnd && !m_ownProcedure)
        PostNcDestroy(); // WM_NCDESTROY, which calls it, never came
    return window != nullptr;
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, HandleOf(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID,
                    lpParam);
}

BOOL CWnd::DestroyWindow() {
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

void CWnd::PostNcDestroy() {}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS known;
    return ::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &known) ||
           ::RegisterClass(lpWndClass);
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground,
                                   HICON hIcon) {
    // Never destroyed: callers keep pointers to the names.
    static std::set<std::wstring>& names = *new std::set<std::wstring>;
    static std::mutex& oneThread = *new std::mutex;
    const HINSTANCE instance = AfxGetInstanceHandle();
    CString name;
    name.Format(L"Afx:%p:%x:%p:%p:%p", instance, nClassStyle, hCursor, hbrBackground, hIcon);
    WNDCLASS windowClass = {};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = hIcon;
    windowClass.hCursor = hCursor ? hCursor : ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = hbrBackground;
    windowClass.lpszClassName = name;
    const std::lock_guard<std::mutex> lock(oneThread);
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return names.insert(name.GetString()).first->c_str();
}

// ---- State

namespace {

BOOL ModifyBits(HWND window, int index, DWORD remove, DWORD add, UINT flags) {
    const auto before = static_cast<DWORD>(::GetWindowLongPtr(window, index));
    const DWORD after = (before & ~remove) | add;
    if (after == before)
        return FALSE;
    ::SetWindowLongPtr(window, index, static_cast<LONG_PTR>(after));
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyBits(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return ModifyBits(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

void CWnd::GetWindowText(CString& rString) const {
    const int size = ::GetWindowTextLength(m_hWnd) + 1;
    ::GetWindowText(m_hWnd, rString.GetBuffer(size), size);
    rString.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    const CWnd* item = GetDlgItem(nID);
    if (!item) {
        rString.Empty();
        return 0;
    }
    item->GetWindowText(rString);
    return rString.GetLength();
}

namespace afx_internal {
void SetTextIfDifferent(HWND window, LPCTSTR text) {
    if (WindowText(window).View() != text)
        ::SetWindowText(window, text);
}
} // namespace afx_internal

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont ? pFont->GetSafeHandle() : nullptr;
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(::SendMessage(
        m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu ? pMenu->GetSafeHmenu() : nullptr);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id))
            return id;
    return 0;
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, HandleOf(pWndCtl), bPrevious));
}

// ---- Place and size

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    HWND after = HandleOf(pWndInsertAfter);
    if (pWndInsertAfter == &wndTop)
        after = HWND_TOP;
    else if (pWndInsertAfter == &wndBottom)
        after = HWND_BOTTOM;
    else if (pWndInsertAfter == &wndTopMost)
        after = HWND_TOPMOST;
    else if (pWndInsertAfter == &wndNoTopMost)
        after = HWND_NOTOPMOST;
    return ::SetWindowPos(m_hWnd, after, x, y, cx, cy, nFlags);
}

// Known by their addresses: SetWindowPos puts the system's values in their place.
const CWnd CWnd::wndTop;
const CWnd CWnd::wndBottom;
const CWnd CWnd::wndTopMost;
const CWnd CWnd::wndNoTopMost;

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof *lpwndpl;
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, HandleOf(pwndTo), lpPoint, nCount);
}

namespace {

CRect WorkArea(HWND window) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

// The start of a length within limits, as near to the wanted one as it fits.
int Within(int wanted, int length, int low, int high) {
    return std::max(low, std::min(wanted, high - length));
}

} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND over = HandleOf(pAlternateOwner);
    if (!over)
        over = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    CRect own;
    GetWindowRect(&own);
    CRect area; // what the window is centred over, and what it stays within
    CRect limits;
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), &limits);
        ::GetClientRect(over, &area);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&area), 2);
    } else {
        // Centring over a window that nobody sees would look like chance.
        const bool seen = over && ::IsWindowVisible(over) && !::IsIconic(over);
        limits = WorkArea(seen ? over : m_hWnd);
        area = limits;
        if (seen)
            ::GetWindowRect(over, &area);
    }
    const int x = area.left + (area.Width() - own.Width()) / 2;
    const int y = area.top + (area.Height() - own.Height()) / 2;
    ::SetWindowPos(m_hWnd, nullptr, Within(x, own.Width(), limits.left, limits.right),
                   Within(y, own.Height(), limits.top, limits.bottom), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- Painting

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc());
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    const HGDIOBJ region = prgnUpdate ? prgnUpdate->GetSafeHandle() : nullptr;
    return ::RedrawWindow(m_hWnd, lpRectUpdate, static_cast<HRGN>(region), flags);
}

// ---- Other windows

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, HandleOf(pWndNewParent)));
}

CWnd* CWnd::GetOwner() const {
    return m_chosenOwner ? FromHandle(m_chosenOwner) : GetParent();
}

CWnd* CWnd::GetTopLevelParent() const {
    return FromHandle(::GetAncestor(m_hWnd, GA_ROOT));
}

CWnd* CWnd::GetTopLevelOwner() const {
    return FromHandle(::GetAncestor(m_hWnd, GA_ROOTOWNER));
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    const auto known = [&](HWND window) {
        return bOnlyPerm ? FromHandlePermanent(window) : FromHandle(window);
    };
    if (const HWND own = ::GetDlgItem(m_hWnd, nID))
        if (CWnd* found = known(own))
            return found;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (CWnd* found = FromHandle(child)->GetDescendantWindow(nID, bOnlyPerm))
            return found;
    return nullptr;
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    HWND owner = HandleOf(pParent);
    if (owner) {
        owner = ::GetAncestor(owner, GA_ROOT);
    } else if (const HWND main = HandleOf(AfxGetMainWnd())) {
        // No parent was named: the new window belongs to what the user is at.
        owner = ::GetLastActivePopup(::GetAncestor(main, GA_ROOT));
    } else {
        owner = ::GetActiveWindow();
        if (!owner) // the user is at another application
            owner = HandleOf(CurrentThread().modalWindow);
    }
    const HWND top = owner ? ::GetAncestor(owner, GA_ROOTOWNER) : nullptr;
    if (pWndTop)
        *pWndTop = top != owner ? top : nullptr;
    return FromHandle(owner);
}

// ---- Scrolling

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

// ---- Messages to the person at the window

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption, nType);
}

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* app = AfxGetApp())
        app->WinHelp(dwData, nCmd);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* app = AfxGetApp())
        app->HtmlHelp(dwData, nCmd);
}

void CWnd::OnHelp() {
    // Ask what the user is at; where the focus is elsewhere, this window.
    HWND window = ::GetFocus();
    if (!window || ::GetAncestor(window, GA_ROOT) != ::GetAncestor(m_hWnd, GA_ROOT))
        window = m_hWnd;
    for (; window; window = ::GetAncestor(window, GA_PARENT))
        if (::SendMessage(window, WM_COMMANDHELP, 0, 0))
            return;
}
