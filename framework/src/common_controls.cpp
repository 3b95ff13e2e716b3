#include <afxrt/common_controls.h>

#include <afxrt/imagelist.h>

#include "common_control_class.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

using afx_internal::RegisterCommonControls;
using afx_internal::Send;

void afx_internal::RegisterCommonControls(DWORD classes) {
    const INITCOMMONCONTROLSEX request = {sizeof(request), classes};
    ::InitCommonControlsEx(&request);
}

CImageList* afx_internal::NewImageList(HIMAGELIST handle) {
    if (!handle)
        return nullptr;
    auto* images = new CImageList;
    images->Attach(handle);
    return images;
}

// CHeaderCtrl

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID) {
    RegisterCommonControls(ICC_LISTVIEW_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    if (iCount == -1)
        iCount = GetItemCount();
    return Send<BOOL>(m_hWnd, HDM_GETORDERARRAY, iCount, piArray);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        Send<HIMAGELIST>(m_hWnd, HDM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

CImageList* CHeaderCtrl::GetImageList() const {
    return CImageList::FromHandle(Send<HIMAGELIST>(m_hWnd, HDM_GETIMAGELIST));
}

// CSpinButtonCtrl

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                               UINT nID) {
    RegisterCommonControls(ICC_UPDOWN_CLASS);
    return CWnd::CreateEx(dwExStyle, UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper) {
    Send<void>(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

int CSpinButtonCtrl::SetPos(int nPos) {
    return static_cast<short>(LOWORD(Send<DWORD>(m_hWnd, UDM_SETPOS, 0, MAKELPARAM(nPos, 0))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    return FromHandle(Send<HWND>(m_hWnd, UDM_GETBUDDY));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    return FromHandle(Send<HWND>(m_hWnd, UDM_SETBUDDY, pWndBuddy->GetSafeHwnd()));
}

// CSliderCtrl

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID) {
    RegisterCommonControls(ICC_BAR_CLASSES);
    return CWnd::CreateEx(dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const {
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw) {
    SetRangeMin(nMin, FALSE);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const {
    nMin = Send<int>(m_hWnd, TBM_GETSELSTART);
    nMax = Send<int>(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax) {
    Send<void>(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    Send<void>(m_hWnd, TBM_SETSELEND, TRUE, nMax);
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const {
    return FromHandle(Send<HWND>(m_hWnd, TBM_GETBUDDY, fLocation));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation) {
    return FromHandle(Send<HWND>(m_hWnd, TBM_SETBUDDY, fLocation, pWndBuddy->GetSafeHwnd()));
}

// CProgressCtrl

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                             UINT nID) {
    RegisterCommonControls(ICC_PROGRESS_CLASS);
    return CWnd::CreateEx(dwExStyle, PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper) {
    SetRange32(nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range = {};
    Send<void>(m_hWnd, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

// CToolTipCtrl

namespace {

// A tool is known by its window and an identifier; a whole window is its own identifier.
TOOLINFO Tool(CWnd* window, UINT_PTR id) {
    TOOLINFO tool = {};
    // The older size: the control refuses the newer one where version 6 is not loaded.
    tool.cbSize = CCSIZEOF_STRUCT(TOOLINFO, lParam);
    if (id) {
        tool.hwnd = window->GetSafeHwnd();
        tool.uId = id;
    } else {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = ::GetParent(window->GetSafeHwnd());
        tool.uId = reinterpret_cast<UINT_PTR>(window->GetSafeHwnd());
    }
    return tool;
}

HINSTANCE ModuleOfText(UINT id) {
    constexpr UINT stringsPerBlock = 16;
    return AfxFindResourceHandle(MAKEINTRESOURCE(id / stringsPerBlock + 1), RT_STRING);
}

} // namespace

CToolTipCtrl::CToolTipCtrl() = default;

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    RegisterCommonControls(ICC_BAR_CLASSES);
    return CWnd::CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd->GetSafeHwnd(),
                          nullptr);
}

BOOL CToolTipCtrl::Add(CWnd* window, LPTSTR text, HINSTANCE module, LPCRECT rect, UINT_PTR id) {
    TOOLINFO tool = Tool(window, id);
    tool.lpszText = text;
    tool.hinst = module;
    if (rect)
        tool.rect = *rect;
    return Send<BOOL>(m_hWnd, TTM_ADDTOOL, 0, &tool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    return Add(pWnd, const_cast<LPTSTR>(lpszText), nullptr, lpRectTool, nIDTool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    return Add(pWnd, MAKEINTRESOURCE(nIDText), ModuleOfText(nIDText), lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = Tool(pWnd, nIDTool);
    Send<void>(m_hWnd, TTM_DELTOOL, 0, &tool);
}

void CToolTipCtrl::UpdateText(LPTSTR text, HINSTANCE module, CWnd* window, UINT_PTR id) {
    TOOLINFO tool = Tool(window, id);
    tool.lpszText = text;
    tool.hinst = module;
    Send<void>(m_hWnd, TTM_UPDATETIPTEXT, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    UpdateText(const_cast<LPTSTR>(lpszText), nullptr, pWnd, nIDTool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    UpdateText(MAKEINTRESOURCE(nIDText), ModuleOfText(nIDText), pWnd, nIDTool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    constexpr int longest = 256;
    TOOLINFO tool = Tool(pWnd, nIDTool);
    tool.lpszText = str.GetBuffer(longest);
    tool.lpszText[0] = 0;
    Send<void>(m_hWnd, TTM_GETTEXT, longest, &tool);
    str.ReleaseBuffer();
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO tool = Tool(pWnd, nIDTool);
    tool.rect = *lpRect;
    Send<void>(m_hWnd, TTM_NEWTOOLRECT, 0, &tool);
}

// CTabCtrl

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID) {
    RegisterCommonControls(ICC_TAB_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam,
                          DWORD dwState, DWORD dwStateMask) {
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwState = dwState;
    item.dwStateMask = dwMask;
    return SetItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size) {
    return CSize(Send<DWORD>(m_hWnd, TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

void CTabCtrl::SetPadding(CSize size) {
    Send<void>(m_hWnd, TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

CImageList* CTabCtrl::GetImageList() const {
    return CImageList::FromHandle(Send<HIMAGELIST>(m_hWnd, TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    return CImageList::FromHandle(
        Send<HIMAGELIST>(m_hWnd, TCM_SETIMAGELIST, 0, pImageList->GetSafeHandle()));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(Send<HWND>(m_hWnd, TCM_GETTOOLTIPS)));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    Send<void>(m_hWnd, TCM_SETTOOLTIPS, pWndTip->GetSafeHwnd());
}
