#include <afxrt/list_ctrl.h>

#include <afxrt/common_controls.h>
#include <afxrt/controls.h>
#include <afxrt/imagelist.h>

#include "common_control_class.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

using afx_internal::Send;

CListCtrl::CListCtrl() = default;

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID) {
    afx_internal::RegisterCommonControls(ICC_LISTVIEW_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

// Columns

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth,
                            int nSubItem) {
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::SetColumnWidth(int nCol, int cx) {
    return Send<BOOL>(m_hWnd, LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) {
    if (iCount == -1)
        iCount = GetHeaderCtrl()->GetItemCount();
    return Send<BOOL>(m_hWnd, LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() {
    return static_cast<CHeaderCtrl*>(FromHandle(Send<HWND>(m_hWnd, LVM_GETHEADER)));
}

// Items

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                          int nImage, LPARAM lParam) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        UINT nState, UINT nStateMask, LPARAM lParam, int nIndent) {
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    return Send<int>(m_hWnd, LVM_GETITEMTEXT, nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    // No message tells the length of the text: while it fills the buffer, a larger one is tried.
    CString text;
    int size = 128;
    int length = 0;
    do {
        size *= 2;
        length = GetItemText(nItem, nSubItem, text.GetBuffer(size), size);
        text.ReleaseBuffer(length);
    } while (length >= size - 1);
    return text;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Send<BOOL>(m_hWnd, LVM_SETITEMTEXT, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

// State

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const {
    LVITEM item = {};
    item.state = dwState;
    item.stateMask = dwMask;
    return SUCCEEDED(Send<HRESULT>(m_hWnd, LVM_SETITEMINDEXSTATE, pItemIndex, &item));
}

// The check box is the state image: 1 is the empty box, 2 the checked one.

BOOL CListCtrl::GetCheck(int nItem) const {
    return GetItemState(nItem, LVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

namespace {

// A position is the item's index plus one, since a null position means the end.

POSITION PositionOf(int item) {
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(item) + 1);
}

int ItemAt(POSITION position) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
}

} // namespace

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int item = ItemAt(pos);
    pos = PositionOf(GetNextItem(item, LVNI_SELECTED));
    return item;
}

// Image lists

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(
        Send<HIMAGELIST>(m_hWnd, LVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

CImageList* CListCtrl::GetImageList(int nImageList) const {
    return CImageList::FromHandle(Send<HIMAGELIST>(m_hWnd, LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    const auto images = Send<HIMAGELIST>(m_hWnd, LVM_CREATEDRAGIMAGE, nItem, lpPoint);
    return afx_internal::NewImageList(images);
}

// Editing of labels

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(FromHandle(Send<HWND>(m_hWnd, LVM_EDITLABEL, nItem)));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(FromHandle(Send<HWND>(m_hWnd, LVM_GETEDITCONTROL)));
}

// Place

BOOL CListCtrl::Scroll(CSize size) {
    return Send<BOOL>(m_hWnd, LVM_SCROLL, size.cx, size.cy);
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode); // where the control looks for it
    return Send<BOOL>(m_hWnd, LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType,
                                 LPRECT pRect) const {
    pRect->top = iColumn; // where the control looks for them
    pRect->left = rectType;
    return Send<BOOL>(m_hWnd, LVM_GETITEMINDEXRECT, pItemIndex, pRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) {
    RECT rect = {};
    rect.top = iSubItem;
    rect.left = nArea;
    if (!Send<BOOL>(m_hWnd, LVM_GETSUBITEMRECT, iItem, &rect))
        return FALSE;
    ref = rect;
    return TRUE;
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt) {
    return Send<BOOL>(m_hWnd, LVM_SETITEMPOSITION32, nItem, &pt);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO test = {};
    test.pt = pt;
    const int item = HitTest(&test);
    if (pFlags)
        *pFlags = test.flags;
    return item;
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const {
    return CSize(Send<DWORD>(m_hWnd, LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy)));
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const {
    const auto spacing = Send<DWORD>(m_hWnd, LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(spacing);
    *pnVertSpacing = HIWORD(spacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy) {
    return CSize(Send<DWORD>(m_hWnd, LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

UINT CListCtrl::GetNumberOfWorkAreas() const {
    UINT count = 0;
    Send<void>(m_hWnd, LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

// Look

BOOL CListCtrl::SetBkImage(HBITMAP hBitmap, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image = {};
    image.ulFlags = LVBKIF_SOURCE_HBITMAP | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.hbm = hBitmap;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image = {};
    image.ulFlags = LVBKIF_SOURCE_URL | (fTile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.pszImage = pszUrl;
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return SetBkImage(&image);
}

CString CListCtrl::GetEmptyText() const {
    constexpr int longest = 256;
    CString text;
    const auto read = Send<BOOL>(m_hWnd, LVM_GETEMPTYTEXT, longest, text.GetBuffer(longest));
    text.ReleaseBuffer(read ? -1 : 0);
    return text;
}

CToolTipCtrl* CListCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(Send<HWND>(m_hWnd, LVM_GETTOOLTIPS)));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(
        FromHandle(Send<HWND>(m_hWnd, LVM_SETTOOLTIPS, pWndTip->GetSafeHwnd())));
}

// Groups

BOOL CListCtrl::GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords) const {
    lpRect->top = iCoords; // where the control looks for it
    return Send<BOOL>(m_hWnd, LVM_GETGROUPRECT, iGroupId, lpRect);
}
