// Tree views.
#pragma once

#include "control_message.h"
#include "geometry.h"
#include "wnd.h"

class CEdit;
class CImageList;
class CToolTipCtrl;

/// A tree of items, known by handles; null where there is no such item.
class AFXRT_API CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)

public:
    CTreeCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Items
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
        return afx_internal::Send<HTREEITEM>(m_hWnd, TVM_INSERTITEM, 0, lpInsertStruct);
    }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage,
                         HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    /// With everything below it.
    BOOL DeleteItem(HTREEITEM hItem) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_DELETEITEM, 0, hItem);
    }
    BOOL DeleteAllItems() { return afx_internal::Send<BOOL>(m_hWnd, TVM_DELETEITEM, 0, TVI_ROOT); }
    UINT GetCount() const { return afx_internal::Send<UINT>(m_hWnd, TVM_GETCOUNT); }
    BOOL GetItem(TVITEM* pItem) const {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_GETITEM, 0, pItem);
    }
    BOOL SetItem(TVITEM* pItem) { return afx_internal::Send<BOOL>(m_hWnd, TVM_SETITEM, 0, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                 UINT nState, UINT nStateMask, LPARAM lParam);
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    /// The image of the item while it is expanded; -1 when there is none of its own.
    int GetItemExpandedImageIndex(HTREEITEM hItem) const;
    BOOL SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const {
        return afx_internal::Send<UINT>(m_hWnd, TVM_GETITEMSTATE, hItem, nStateMask);
    }
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    /// TVIS_EX_...
    UINT GetItemStateEx(HTREEITEM hItem) const;
    BOOL SetItemStateEx(HTREEITEM hItem, UINT uStateEx);
    /// The check box of TVS_CHECKBOXES.
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);

    // Walking. nCode: TVGN_...
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const {
        return afx_internal::Send<HTREEITEM>(m_hWnd, TVM_GETNEXTITEM, nCode, hItem);
    }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const {
        return GetNextItem(hItem, TVGN_PREVIOUS);
    }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const {
        return GetNextItem(hItem, TVGN_NEXTVISIBLE);
    }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const {
        return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE);
    }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }

    // Selection. Select: TVGN_CARET, TVGN_DROPHILITE or TVGN_FIRSTVISIBLE.
    BOOL Select(HTREEITEM hItem, UINT nCode) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_SELECTITEM, nCode, hItem);
    }
    /// Null: no item.
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    UINT GetSelectedCount() { return afx_internal::Send<UINT>(m_hWnd, TVM_GETSELECTEDCOUNT); }

    // Place
    /// nCode: TVE_EXPAND, TVE_COLLAPSE, TVE_TOGGLE, ...
    BOOL Expand(HTREEITEM hItem, UINT nCode) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_EXPAND, nCode, hItem);
    }
    BOOL EnsureVisible(HTREEITEM hItem) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_ENSUREVISIBLE, 0, hItem);
    }
    UINT GetVisibleCount() const { return afx_internal::Send<UINT>(m_hWnd, TVM_GETVISIBLECOUNT); }
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    /// nPart: TVGIPR_BUTTON.
    BOOL GetItemPartRect(HTREEITEM hItem, int nPart, LPRECT lpRect) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const {
        return afx_internal::Send<HTREEITEM>(m_hWnd, TVM_HITTEST, 0, pHitTestInfo);
    }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = NULL) const;
    BOOL SortChildren(HTREEITEM hItem) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_SORTCHILDREN, 0, hItem);
    }
    BOOL SortChildrenCB(LPTVSORTCB pSort) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_SORTCHILDRENCB, 0, pSort);
    }

    // Image lists
    /// nImageListType: TVSIL_NORMAL or TVSIL_STATE; returns the previous list. The control does not
    /// destroy its lists.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    CImageList* GetImageList(UINT nImageList) const;
    /// The caller deletes the list.
    CImageList* CreateDragImage(HTREEITEM hItem);

    // Editing of labels
    CEdit* EditLabel(HTREEITEM hItem);
    CEdit* GetEditControl() const;
    BOOL EndEditLabelNow(BOOL fCancelWithoutSave) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_ENDEDITLABELNOW, fCancelWithoutSave);
    }

    // Look
    UINT GetIndent() const { return afx_internal::Send<UINT>(m_hWnd, TVM_GETINDENT); }
    void SetIndent(UINT nIndent) { afx_internal::Send<void>(m_hWnd, TVM_SETINDENT, nIndent); }
    /// In pixels.
    SHORT GetItemHeight() const { return afx_internal::Send<SHORT>(m_hWnd, TVM_GETITEMHEIGHT); }
    /// -1: the height that the font asks for. Returns the previous one.
    SHORT SetItemHeight(SHORT cyHeight) {
        return afx_internal::Send<SHORT>(m_hWnd, TVM_SETITEMHEIGHT, cyHeight);
    }
    COLORREF GetBkColor() const { return afx_internal::Send<COLORREF>(m_hWnd, TVM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clr) {
        return afx_internal::Send<COLORREF>(m_hWnd, TVM_SETBKCOLOR, 0, clr);
    }
    COLORREF GetTextColor() const { return afx_internal::Send<COLORREF>(m_hWnd, TVM_GETTEXTCOLOR); }
    COLORREF SetTextColor(COLORREF clr) {
        return afx_internal::Send<COLORREF>(m_hWnd, TVM_SETTEXTCOLOR, 0, clr);
    }
    COLORREF GetInsertMarkColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, TVM_GETINSERTMARKCOLOR);
    }
    COLORREF SetInsertMarkColor(COLORREF clrNew) {
        return afx_internal::Send<COLORREF>(m_hWnd, TVM_SETINSERTMARKCOLOR, 0, clrNew);
    }
    COLORREF GetLineColor() const { return afx_internal::Send<COLORREF>(m_hWnd, TVM_GETLINECOLOR); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT) {
        return afx_internal::Send<COLORREF>(m_hWnd, TVM_SETLINECOLOR, 0, clrNew);
    }
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_SETINSERTMARK, fAfter, hItem);
    }
    /// Milliseconds.
    UINT GetScrollTime() const { return afx_internal::Send<UINT>(m_hWnd, TVM_GETSCROLLTIME); }
    UINT SetScrollTime(UINT uScrollTime) {
        return afx_internal::Send<UINT>(m_hWnd, TVM_SETSCROLLTIME, uScrollTime);
    }
    BOOL SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime) {
        return afx_internal::Send<BOOL>(m_hWnd, TVM_SETAUTOSCROLLINFO, uPixelsPerSec, uUpdateTime);
    }
    /// TVS_EX_...
    DWORD GetExtendedStyle() const {
        return afx_internal::Send<DWORD>(m_hWnd, TVM_GETEXTENDEDSTYLE);
    }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
        return afx_internal::Send<DWORD>(m_hWnd, TVM_SETEXTENDEDSTYLE, dwExMask, dwExStyles);
    }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    void ShowInfoTip(HTREEITEM hItem) {
        afx_internal::Send<void>(m_hWnd, TVM_SHOWINFOTIP, 0, hItem);
    }
    HTREEITEM MapAccIdToItem(UINT uAccId) const {
        return afx_internal::Send<HTREEITEM>(m_hWnd, TVM_MAPACCIDTOHTREEITEM, uAccId);
    }
    UINT MapItemToAccID(HTREEITEM hItem) const {
        return afx_internal::Send<UINT>(m_hWnd, TVM_MAPHTREEITEMTOACCID, hItem);
    }
};
