#include <afxrt/tree_ctrl.h>

#include <afxrt/common_controls.h>
#include <afxrt/controls.h>
#include <afxrt/imagelist.h>

#include "common_control_class.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

using afx_internal::Send;

CTreeCtrl::CTreeCtrl() = default;

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID) {
    afx_internal::RegisterCommonControls(ICC_TREEVIEW_CLASSES);
    return CWnd::CreateEx(dwExStyle, WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

// Items

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                                UINT nState, UINT nStateMask, LPARAM lParam, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT insertion = {};
    insertion.hParent = hParent;
    insertion.hInsertAfter = hInsertAfter;
    insertion.item.mask = nMask;
    insertion.item.pszText = const_cast<LPTSTR>(lpszItem);
    insertion.item.iImage = nImage;
    insertion.item.iSelectedImage = nSelectedImage;
    insertion.item.state = nState;
    insertion.item.stateMask = nStateMask;
    insertion.item.lParam = lParam;
    return InsertItem(&insertion);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter) {
    return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage,
                      0, 0, 0, hParent, hInsertAfter);
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage,
                        int nSelectedImage, UINT nState, UINT nStateMask, LPARAM lParam) {
    TVITEM item = {};
    item.mask = nMask;
    item.hItem = hItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    // No message tells the length of the text: while it fills the buffer, a larger one is tried.
    CString text;
    int size = 128;
    do {
        size *= 2;
        TVITEM item = {};
        item.mask = TVIF_TEXT;
        item.hItem = hItem;
        item.pszText = text.GetBuffer(size);
        item.cchTextMax = size;
        const BOOL found = GetItem(&item);
        text.ReleaseBuffer(found ? -1 : 0);
    } while (text.GetLength() >= size - 1);
    return text;
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item = {};
    item.mask = TVIF_PARAM;
    item.hItem = hItem;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item = {};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = hItem;
    if (!GetItem(&item))
        return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0,
                   0);
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM hItem) const {
    TVITEMEX item = {};
    item.mask = TVIF_EXPANDEDIMAGE;
    item.hItem = hItem;
    return Send<BOOL>(m_hWnd, TVM_GETITEM, 0, &item) ? item.iExpandedImage : -1;
}

BOOL CTreeCtrl::SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage) {
    TVITEMEX item = {};
    item.mask = TVIF_EXPANDEDIMAGE;
    item.hItem = hItem;
    item.iExpandedImage = iExpandedImage;
    return Send<BOOL>(m_hWnd, TVM_SETITEM, 0, &item);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item = {};
    item.mask = TVIF_CHILDREN;
    item.hItem = hItem;
    GetItem(&item);
    return item.cChildren != 0;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM hItem) const {
    TVITEMEX item = {};
    item.mask = TVIF_STATEEX;
    item.hItem = hItem;
    return Send<BOOL>(m_hWnd, TVM_GETITEM, 0, &item) ? item.uStateEx : 0;
}

BOOL CTreeCtrl::SetItemStateEx(HTREEITEM hItem, UINT uStateEx) {
    TVITEMEX item = {};
    item.mask = TVIF_STATEEX;
    item.hItem = hItem;
    item.uStateEx = uStateEx;
    return Send<BOOL>(m_hWnd, TVM_SETITEM, 0, &item);
}

// The check box is the state image: 1 is the empty box, 2 the checked one.

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    return GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12 == 2;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

// Place

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    // The control reads the item's handle from the start of the rectangle that it then fills.
    std::memcpy(lpRect, &hItem, sizeof(hItem));
    return Send<BOOL>(m_hWnd, TVM_GETITEMRECT, bTextOnly, lpRect);
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const {
    TVGETITEMPARTRECTINFO part = {};
    part.hti = hItem;
    part.prc = lpRect;
    part.partID = static_cast<TVITEMPART>(nPart);
    return Send<BOOL>(m_hWnd, TVM_GETITEMPARTRECT, 0, &part);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO test = {};
    test.pt = pt;
    const HTREEITEM item = HitTest(&test);
    if (pFlags)
        *pFlags = test.flags;
    return item;
}

// Image lists

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return CImageList::FromHandle(
        Send<HIMAGELIST>(m_hWnd, TVM_SETIMAGELIST, nImageListType, pImageList->GetSafeHandle()));
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const {
    return CImageList::FromHandle(Send<HIMAGELIST>(m_hWnd, TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return afx_internal::NewImageList(Send<HIMAGELIST>(m_hWnd, TVM_CREATEDRAGIMAGE, 0, hItem));
}

// Editing of labels

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(FromHandle(Send<HWND>(m_hWnd, TVM_EDITLABEL, 0, hItem)));
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(FromHandle(Send<HWND>(m_hWnd, TVM_GETEDITCONTROL)));
}

// Look

CToolTipCtrl* CTreeCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(FromHandle(Send<HWND>(m_hWnd, TVM_GETTOOLTIPS)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(
        FromHandle(Send<HWND>(m_hWnd, TVM_SETTOOLTIPS, pWndTip->GetSafeHwnd())));
}
