// List views.
#pragma once

#include "control_message.h"
#include "geometry.h"
#include "position.h"
#include "wnd.h"

class CEdit;
class CHeaderCtrl;
class CImageList;
class CToolTipCtrl;

/// A list of items in columns or as icons. Items, columns and images count from 0; -1 tells of a
/// failure.
class AFXRT_API CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)

public:
    CListCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Columns
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) {
        return afx_internal::Send<int>(m_hWnd, LVM_INSERTCOLUMN, nCol, pColumn);
    }
    /// nFormat: LVCFMT_..., the leftmost column is left-aligned whatever it says; nWidth: pixels;
    /// -1: not set.
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT,
                     int nWidth = -1, int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return afx_internal::Send<BOOL>(m_hWnd, LVM_DELETECOLUMN, nCol); }
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETCOLUMN, nCol, pColumn);
    }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETCOLUMN, nCol, pColumn);
    }
    int GetColumnWidth(int nCol) const {
        return afx_internal::Send<int>(m_hWnd, LVM_GETCOLUMNWIDTH, nCol);
    }
    /// cx: pixels, LVSCW_AUTOSIZE or LVSCW_AUTOSIZE_USEHEADER.
    BOOL SetColumnWidth(int nCol, int cx);
    /// -1: all columns.
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETCOLUMNORDERARRAY, iCount, piArray);
    }
    UINT GetSelectedColumn() const {
        return afx_internal::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOLUMN);
    }
    LRESULT SetSelectedColumn(int iCol) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_SETSELECTEDCOLUMN, iCol);
    }
    CHeaderCtrl* GetHeaderCtrl();

    // Items. The InsertItem functions return the new item's index.
    int InsertItem(const LVITEM* pItem) {
        return afx_internal::Send<int>(m_hWnd, LVM_INSERTITEM, 0, pItem);
    }
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask,
                   int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return afx_internal::Send<BOOL>(m_hWnd, LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return afx_internal::Send<BOOL>(m_hWnd, LVM_DELETEALLITEMS); }
    int GetItemCount() const { return afx_internal::Send<int>(m_hWnd, LVM_GETITEMCOUNT); }
    /// Makes room; of a virtual list (LVS_OWNERDATA) it is the number of items.
    void SetItemCount(int nItems) { afx_internal::Send<void>(m_hWnd, LVM_SETITEMCOUNT, nItems); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETITEMCOUNT, iCount, dwFlags);
    }
    BOOL GetItem(LVITEM* pItem) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETITEM, 0, pItem);
    }
    BOOL SetItem(const LVITEM* pItem) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETITEM, 0, pItem);
    }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    CString GetItemText(int nItem, int nSubItem) const;
    /// Returns the length of the text, cut to what the buffer takes.
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);

    // State. Only the bits of the mask are read or written: SetItemState(n, ~LVIS_SELECTED,
    // LVIS_SELECTED) deselects. Item -1: all items.
    UINT GetItemState(int nItem, UINT nMask) const {
        return afx_internal::Send<UINT>(m_hWnd, LVM_GETITEMSTATE, nItem, nMask);
    }
    BOOL SetItemState(int nItem, LVITEM* pItem) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETITEMSTATE, nItem, pItem);
    }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const;
    /// The check box of LVS_EX_CHECKBOXES.
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    UINT GetCallbackMask() const { return afx_internal::Send<UINT>(m_hWnd, LVM_GETCALLBACKMASK); }
    BOOL SetCallbackMask(UINT nMask) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETCALLBACKMASK, nMask);
    }
    UINT GetSelectedCount() const { return afx_internal::Send<UINT>(m_hWnd, LVM_GETSELECTEDCOUNT); }
    /// The item from which a selection with Shift starts; -1: none.
    int GetSelectionMark() { return afx_internal::Send<int>(m_hWnd, LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) {
        return afx_internal::Send<int>(m_hWnd, LVM_SETSELECTIONMARK, 0, iIndex);
    }
    /// Walk through the selected items: until the position is null.
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;
    /// The next item after nItem (-1: from the first one) with the relation and state of nFlags
    /// (LVNI_...).
    int GetNextItem(int nItem, int nFlags) const {
        return afx_internal::Send<int>(m_hWnd, LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
    }
    BOOL GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETNEXTITEMINDEX, pItemIndex,
                                        MAKELPARAM(nFlags, 0));
    }
    /// The search begins after nStart; -1: from the first one.
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const {
        return afx_internal::Send<int>(m_hWnd, LVM_FINDITEM, nStart, pFindInfo);
    }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SORTITEMS, dwData, pfnCompare);
    }
    /// The comparison gets indices instead of the items' data.
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SORTITEMSEX, dwData, pfnCompare);
    }
    UINT MapIndexToID(UINT index) const {
        return afx_internal::Send<UINT>(m_hWnd, LVM_MAPINDEXTOID, index);
    }
    UINT MapIDToIndex(UINT id) const {
        return afx_internal::Send<UINT>(m_hWnd, LVM_MAPIDTOINDEX, id);
    }

    // Image lists
    /// nImageListType: LVSIL_...; returns the previous list. The control destroys its lists at its
    /// end unless it has the style LVS_SHAREIMAGELISTS.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    CImageList* GetImageList(int nImageList) const;
    /// The caller deletes the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);

    // Editing of labels
    CEdit* EditLabel(int nItem);
    CEdit* GetEditControl() const;
    void CancelEditLabel() { afx_internal::Send<void>(m_hWnd, LVM_CANCELEDITLABEL); }

    // Place
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_ENSUREVISIBLE, nItem,
                                        MAKELPARAM(bPartialOK, 0));
    }
    BOOL IsItemVisible(int index) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_ISITEMVISIBLE, index);
    }
    BOOL Scroll(CSize size);
    int GetTopIndex() const { return afx_internal::Send<int>(m_hWnd, LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return afx_internal::Send<int>(m_hWnd, LVM_GETCOUNTPERPAGE); }
    /// nCode: LVIR_...
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETITEMPOSITION, nItem, lpPoint);
    }
    BOOL SetItemPosition(int nItem, POINT pt);
    int HitTest(LVHITTESTINFO* pHitTestInfo) const {
        return afx_internal::Send<int>(m_hWnd, LVM_HITTEST, 0, pHitTestInfo);
    }
    int HitTest(CPoint pt, UINT* pFlags = NULL) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo) {
        return afx_internal::Send<int>(m_hWnd, LVM_SUBITEMHITTEST, 0, pInfo);
    }
    BOOL GetOrigin(LPPOINT lpPoint) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETORIGIN, 0, lpPoint);
    }
    BOOL GetViewRect(LPRECT lpRect) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETVIEWRECT, 0, lpRect);
    }
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;
    BOOL Arrange(UINT nCode) { return afx_internal::Send<BOOL>(m_hWnd, LVM_ARRANGE, nCode); }
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    UINT GetNumberOfWorkAreas() const;
    void GetWorkAreas(int nWorkAreas, LPRECT pRect) const {
        afx_internal::Send<void>(m_hWnd, LVM_GETWORKAREAS, nWorkAreas, pRect);
    }
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect) {
        afx_internal::Send<void>(m_hWnd, LVM_SETWORKAREAS, nWorkAreas, lpRect);
    }
    /// In pixels.
    int GetStringWidth(LPCTSTR lpsz) const {
        return afx_internal::Send<int>(m_hWnd, LVM_GETSTRINGWIDTH, 0, lpsz);
    }

    // Look
    /// LVS_EX_...; SetExtendedStyle replaces them all and returns the previous ones.
    DWORD GetExtendedStyle() {
        return afx_internal::Send<DWORD>(m_hWnd, LVM_GETEXTENDEDLISTVIEWSTYLE);
    }
    DWORD SetExtendedStyle(DWORD dwNewStyle) {
        return afx_internal::Send<DWORD>(m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
    }
    /// LV_VIEW_...
    DWORD GetView() const { return afx_internal::Send<DWORD>(m_hWnd, LVM_GETVIEW); }
    DWORD SetView(int iView) { return afx_internal::Send<DWORD>(m_hWnd, LVM_SETVIEW, iView); }
    COLORREF GetBkColor() const { return afx_internal::Send<COLORREF>(m_hWnd, LVM_GETBKCOLOR); }
    BOOL SetBkColor(COLORREF cr) { return afx_internal::Send<BOOL>(m_hWnd, LVM_SETBKCOLOR, 0, cr); }
    COLORREF GetTextColor() const { return afx_internal::Send<COLORREF>(m_hWnd, LVM_GETTEXTCOLOR); }
    BOOL SetTextColor(COLORREF cr) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETTEXTCOLOR, 0, cr);
    }
    COLORREF GetTextBkColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, LVM_GETTEXTBKCOLOR);
    }
    BOOL SetTextBkColor(COLORREF cr) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETTEXTBKCOLOR, 0, cr);
    }
    COLORREF GetOutlineColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, LVM_GETOUTLINECOLOR);
    }
    COLORREF SetOutlineColor(COLORREF color) {
        return afx_internal::Send<COLORREF>(m_hWnd, LVM_SETOUTLINECOLOR, 0, color);
    }
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETBKIMAGE, 0, plvbkImage);
    }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETBKIMAGE, 0, plvbkImage);
    }
    BOOL SetBkImage(HBITMAP hBitmap, BOOL fTile = TRUE, int xOffsetPercent = 0,
                    int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0,
                    int yOffsetPercent = 0);
    CString GetEmptyText() const;
    BOOL RedrawItems(int nFirst, int nLast) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_REDRAWITEMS, nFirst, nLast);
    }
    BOOL Update(int nItem) { return afx_internal::Send<BOOL>(m_hWnd, LVM_UPDATE, nItem); }
    /// Milliseconds until hovering selects an item; -1: the system's.
    DWORD GetHoverTime() const { return afx_internal::Send<DWORD>(m_hWnd, LVM_GETHOVERTIME); }
    DWORD SetHoverTime(DWORD dwHoverTime = (DWORD)-1) {
        return afx_internal::Send<DWORD>(m_hWnd, LVM_SETHOVERTIME, 0, dwHoverTime);
    }
    HCURSOR GetHotCursor() { return afx_internal::Send<HCURSOR>(m_hWnd, LVM_GETHOTCURSOR); }
    HCURSOR SetHotCursor(HCURSOR hc) {
        return afx_internal::Send<HCURSOR>(m_hWnd, LVM_SETHOTCURSOR, 0, hc);
    }
    int GetHotItem() { return afx_internal::Send<int>(m_hWnd, LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return afx_internal::Send<int>(m_hWnd, LVM_SETHOTITEM, iIndex); }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETINFOTIP, 0, plvInfoTip);
    }

    // Insertion mark
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETINSERTMARK, 0, plvim);
    }
    BOOL SetInsertMark(LPLVINSERTMARK plvim) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETINSERTMARK, 0, plvim);
    }
    COLORREF GetInsertMarkColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, LVM_GETINSERTMARKCOLOR);
    }
    COLORREF SetInsertMarkColor(COLORREF color) {
        return afx_internal::Send<COLORREF>(m_hWnd, LVM_SETINSERTMARKCOLOR, 0, color);
    }
    int GetInsertMarkRect(LPRECT pRect) const {
        return afx_internal::Send<int>(m_hWnd, LVM_GETINSERTMARKRECT, 0, pRect);
    }
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const {
        return afx_internal::Send<int>(m_hWnd, LVM_INSERTMARKHITTEST, pPoint, plvim);
    }

    // Groups, by their identifiers
    LRESULT EnableGroupView(BOOL fEnable) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_ENABLEGROUPVIEW, fEnable);
    }
    BOOL IsGroupViewEnabled() const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_ISGROUPVIEWENABLED);
    }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_INSERTGROUP, index, pgrp);
    }
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_INSERTGROUPSORTED, pStructInsert);
    }
    LRESULT RemoveGroup(int iGroupId) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_REMOVEGROUP, iGroupId);
    }
    void RemoveAllGroups() { afx_internal::Send<void>(m_hWnd, LVM_REMOVEALLGROUPS); }
    LRESULT MoveGroup(int iGroupId, int toIndex) {
        return afx_internal::Send<LRESULT>(m_hWnd, LVM_MOVEGROUP, iGroupId, toIndex);
    }
    void MoveItemToGroup(int idItemFrom, int idGroupTo) {
        afx_internal::Send<void>(m_hWnd, LVM_MOVEITEMTOGROUP, idItemFrom, idGroupTo);
    }
    BOOL HasGroup(int iGroupId) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_HASGROUP, iGroupId);
    }
    int GetGroupCount() const { return afx_internal::Send<int>(m_hWnd, LVM_GETGROUPCOUNT); }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const {
        return afx_internal::Send<int>(m_hWnd, LVM_GETGROUPINFO, iGroupId, pgrp);
    }
    BOOL GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETGROUPINFOBYINDEX, iIndex, pGroup);
    }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp) {
        return afx_internal::Send<int>(m_hWnd, LVM_SETGROUPINFO, iGroupId, pgrp);
    }
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const {
        afx_internal::Send<void>(m_hWnd, LVM_GETGROUPMETRICS, 0, pGroupMetrics);
    }
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) {
        afx_internal::Send<void>(m_hWnd, LVM_SETGROUPMETRICS, 0, pGroupMetrics);
    }
    BOOL GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords = LVGGR_GROUP) const;
    UINT GetGroupState(int iGroupId, DWORD dwMask) const {
        return afx_internal::Send<UINT>(m_hWnd, LVM_GETGROUPSTATE, iGroupId, dwMask);
    }
    int GetFocusedGroup() const { return afx_internal::Send<int>(m_hWnd, LVM_GETFOCUSEDGROUP); }
    BOOL SortGroups(PFNLVGROUPCOMPARE pfnGroupCompare, LPVOID plv) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SORTGROUPS, pfnGroupCompare, plv);
    }

    // Tiles
    BOOL GetTileInfo(PLVTILEINFO pInfo) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETTILEINFO, 0, pInfo);
    }
    BOOL SetTileInfo(PLVTILEINFO pInfo) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETTILEINFO, 0, pInfo);
    }
    BOOL GetTileViewInfo(PLVTILEVIEWINFO pInfo) const {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_GETTILEVIEWINFO, 0, pInfo);
    }
    BOOL SetTileViewInfo(PLVTILEVIEWINFO pInfo) {
        return afx_internal::Send<BOOL>(m_hWnd, LVM_SETTILEVIEWINFO, 0, pInfo);
    }
};
