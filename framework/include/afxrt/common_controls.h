// The common controls but for the list and the tree view, which have headers of their own.
#pragma once

#include "control_message.h"
#include "geometry.h"
#include "list_ctrl.h"
#include "tree_ctrl.h"
#include "wnd.h"

class CImageList;

/// The headings of columns, as a list view has them.
class AFXRT_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    CHeaderCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    int GetItemCount() const { return afx_internal::Send<int>(m_hWnd, HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const {
        return afx_internal::Send<BOOL>(m_hWnd, HDM_GETITEM, nPos, pHeaderItem);
    }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) {
        return afx_internal::Send<BOOL>(m_hWnd, HDM_SETITEM, nPos, pHeaderItem);
    }
    /// Returns the new heading's index.
    int InsertItem(int nPos, HDITEM* phdi) {
        return afx_internal::Send<int>(m_hWnd, HDM_INSERTITEM, nPos, phdi);
    }
    BOOL DeleteItem(int nPos) { return afx_internal::Send<BOOL>(m_hWnd, HDM_DELETEITEM, nPos); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) {
        return afx_internal::Send<BOOL>(m_hWnd, HDM_LAYOUT, 0, pHeaderLayout);
    }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const {
        return afx_internal::Send<BOOL>(m_hWnd, HDM_GETITEMRECT, nIndex, lpRect);
    }
    int OrderToIndex(int nOrder) const {
        return afx_internal::Send<int>(m_hWnd, HDM_ORDERTOINDEX, nOrder);
    }
    /// -1: all headings.
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray) {
        return afx_internal::Send<BOOL>(m_hWnd, HDM_SETORDERARRAY, iCount, piArray);
    }
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
};

/// A pair of arrows that turn a number up and down, mostly that of the edit beside it (its buddy).
class AFXRT_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    CSpinButtonCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// The range is 100 to 0 (up is less) until it is set.
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper) {
        afx_internal::Send<void>(m_hWnd, UDM_SETRANGE32, nLower, nUpper);
    }
    /// The upper limit in the low word, the lower one in the high word.
    DWORD GetRange() const { return afx_internal::Send<DWORD>(m_hWnd, UDM_GETRANGE); }
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const {
        afx_internal::Send<void>(m_hWnd, UDM_GETRANGE32, &lower, &upper);
    }
    /// Returns the previous position.
    int SetPos(int nPos);
    int SetPos32(int nPos) { return afx_internal::Send<int>(m_hWnd, UDM_SETPOS32, 0, nPos); }
    /// The position in the low word; the high word is nonzero when the buddy has no valid number.
    int GetPos() const { return afx_internal::Send<int>(m_hWnd, UDM_GETPOS); }
    int GetPos32(LPBOOL lpbError = NULL) const {
        return afx_internal::Send<int>(m_hWnd, UDM_GETPOS32, 0, lpbError);
    }
    /// 10 or 16; SetBase returns the previous base.
    UINT GetBase() const { return afx_internal::Send<UINT>(m_hWnd, UDM_GETBASE); }
    int SetBase(int nBase) { return afx_internal::Send<int>(m_hWnd, UDM_SETBASE, nBase); }
    CWnd* GetBuddy() const;
    /// Returns the previous buddy.
    CWnd* SetBuddy(CWnd* pWndBuddy);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const {
        return afx_internal::Send<UINT>(m_hWnd, UDM_GETACCEL, nAccel, pAccel);
    }
    BOOL SetAccel(int nAccel, UDACCEL* pAccel) {
        return afx_internal::Send<BOOL>(m_hWnd, UDM_SETACCEL, nAccel, pAccel);
    }
};

/// A thumb that moves along a scale.
class AFXRT_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    CSliderCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    int GetPos() const { return afx_internal::Send<int>(m_hWnd, TBM_GETPOS); }
    void SetPos(int nPos) { afx_internal::Send<void>(m_hWnd, TBM_SETPOS, TRUE, nPos); }
    void GetRange(int& nMin, int& nMax) const;
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    int GetRangeMin() const { return afx_internal::Send<int>(m_hWnd, TBM_GETRANGEMIN); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) {
        afx_internal::Send<void>(m_hWnd, TBM_SETRANGEMIN, bRedraw, nMin);
    }
    int GetRangeMax() const { return afx_internal::Send<int>(m_hWnd, TBM_GETRANGEMAX); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) {
        afx_internal::Send<void>(m_hWnd, TBM_SETRANGEMAX, bRedraw, nMax);
    }
    /// How far the arrow keys, and Page Up and Down, move; the Set functions return the previous
    /// one.
    int GetLineSize() const { return afx_internal::Send<int>(m_hWnd, TBM_GETLINESIZE); }
    int SetLineSize(int nSize) {
        return afx_internal::Send<int>(m_hWnd, TBM_SETLINESIZE, 0, nSize);
    }
    int GetPageSize() const { return afx_internal::Send<int>(m_hWnd, TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) {
        return afx_internal::Send<int>(m_hWnd, TBM_SETPAGESIZE, 0, nSize);
    }
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    void ClearSel(BOOL bRedraw = FALSE) { afx_internal::Send<void>(m_hWnd, TBM_CLEARSEL, bRedraw); }

    // Marks of the scale
    UINT GetNumTics() const { return afx_internal::Send<UINT>(m_hWnd, TBM_GETNUMTICS); }
    int GetTic(int nTic) const { return afx_internal::Send<int>(m_hWnd, TBM_GETTIC, nTic); }
    BOOL SetTic(int nTic) { return afx_internal::Send<BOOL>(m_hWnd, TBM_SETTIC, 0, nTic); }
    /// In client coordinates.
    int GetTicPos(int nTic) const { return afx_internal::Send<int>(m_hWnd, TBM_GETTICPOS, nTic); }
    void SetTicFreq(int nFreq) { afx_internal::Send<void>(m_hWnd, TBM_SETTICFREQ, nFreq); }
    void ClearTics(BOOL bRedraw = FALSE) {
        afx_internal::Send<void>(m_hWnd, TBM_CLEARTICS, bRedraw);
    }

    // Look
    void GetChannelRect(LPRECT lprc) const {
        afx_internal::Send<void>(m_hWnd, TBM_GETCHANNELRECT, 0, lprc);
    }
    void GetThumbRect(LPRECT lprc) const {
        afx_internal::Send<void>(m_hWnd, TBM_GETTHUMBRECT, 0, lprc);
    }
    int GetThumbLength() const { return afx_internal::Send<int>(m_hWnd, TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) {
        afx_internal::Send<void>(m_hWnd, TBM_SETTHUMBLENGTH, nLength);
    }
    /// fLocation: TRUE is left of the slider or above it.
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
};

/// A bar that shows how far something has come.
class AFXRT_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    CProgressCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    /// 0 to 100 until it is set.
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper) {
        afx_internal::Send<void>(m_hWnd, PBM_SETRANGE32, nLower, nUpper);
    }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return afx_internal::Send<int>(m_hWnd, PBM_GETPOS); }
    /// These return the previous position or step.
    int SetPos(int nPos) { return afx_internal::Send<int>(m_hWnd, PBM_SETPOS, nPos); }
    int OffsetPos(int nPos) { return afx_internal::Send<int>(m_hWnd, PBM_DELTAPOS, nPos); }
    int SetStep(int nStep) { return afx_internal::Send<int>(m_hWnd, PBM_SETSTEP, nStep); }
    int StepIt() { return afx_internal::Send<int>(m_hWnd, PBM_STEPIT); }
    int GetStep() const { return afx_internal::Send<int>(m_hWnd, PBM_GETSTEP); }
    /// PBST_...
    int GetState() const { return afx_internal::Send<int>(m_hWnd, PBM_GETSTATE); }
    int SetState(int iState) { return afx_internal::Send<int>(m_hWnd, PBM_SETSTATE, iState); }
    /// nInterval: milliseconds between two steps of the moving bar.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval) {
        return afx_internal::Send<BOOL>(m_hWnd, PBM_SETMARQUEE, fMarqueeMode, nInterval);
    }
    /// CLR_DEFAULT: the system's. The Set functions return the previous colour.
    COLORREF GetBarColor() const { return afx_internal::Send<COLORREF>(m_hWnd, PBM_GETBARCOLOR); }
    COLORREF SetBarColor(COLORREF clrBar) {
        return afx_internal::Send<COLORREF>(m_hWnd, PBM_SETBARCOLOR, 0, clrBar);
    }
    COLORREF GetBkColor() const { return afx_internal::Send<COLORREF>(m_hWnd, PBM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clrNew) {
        return afx_internal::Send<COLORREF>(m_hWnd, PBM_SETBKCOLOR, 0, clrNew);
    }
};

/// Small windows with a text for the control under the pointer.
class AFXRT_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)

public:
    CToolTipCtrl();
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);

    /// Gives a window (nIDTool 0), or a rectangle in one, a text; LPSTR_TEXTCALLBACK asks for it
    /// with TTN_NEEDTEXT. nIDText: a string of the resource chain.
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = NULL,
                 UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = NULL, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetToolCount() const { return afx_internal::Send<int>(m_hWnd, TTM_GETTOOLCOUNT); }
    void Activate(BOOL bActivate) { afx_internal::Send<void>(m_hWnd, TTM_ACTIVATE, bActivate); }
    /// Shows the mouse's way to the control, from PreTranslateMessage.
    void RelayEvent(LPMSG lpMsg) { afx_internal::Send<void>(m_hWnd, TTM_RELAYEVENT, 0, lpMsg); }
    void Pop() { afx_internal::Send<void>(m_hWnd, TTM_POP); }
    void Popup() { afx_internal::Send<void>(m_hWnd, TTM_POPUP); }
    void Update() { afx_internal::Send<void>(m_hWnd, TTM_UPDATE); }
    /// Milliseconds; dwDuration: TTDT_...
    int GetDelayTime(DWORD dwDuration) const {
        return afx_internal::Send<int>(m_hWnd, TTM_GETDELAYTIME, dwDuration);
    }
    void SetDelayTime(UINT nDelay) {
        afx_internal::Send<void>(m_hWnd, TTM_SETDELAYTIME, TTDT_AUTOMATIC, nDelay);
    }
    void SetDelayTime(DWORD dwDuration, int iTime) {
        afx_internal::Send<void>(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
    }
    /// In pixels; -1: texts are not broken into lines. SetMaxTipWidth returns the previous one.
    int GetMaxTipWidth() const { return afx_internal::Send<int>(m_hWnd, TTM_GETMAXTIPWIDTH); }
    int SetMaxTipWidth(int iWidth) {
        return afx_internal::Send<int>(m_hWnd, TTM_SETMAXTIPWIDTH, 0, iWidth);
    }
    COLORREF GetTipBkColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, TTM_GETTIPBKCOLOR);
    }
    void SetTipBkColor(COLORREF clr) { afx_internal::Send<void>(m_hWnd, TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipTextColor() const {
        return afx_internal::Send<COLORREF>(m_hWnd, TTM_GETTIPTEXTCOLOR);
    }
    void SetTipTextColor(COLORREF clr) {
        afx_internal::Send<void>(m_hWnd, TTM_SETTIPTEXTCOLOR, clr);
    }

private:
    BOOL Add(CWnd* window, LPTSTR text, HINSTANCE module, LPCRECT rect, UINT_PTR id);
    void UpdateText(LPTSTR text, HINSTANCE module, CWnd* window, UINT_PTR id);
};

/// A row of tabs.
class AFXRT_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)

public:
    CTabCtrl();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);

    // Tabs. The InsertItem functions return the new tab's index.
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem) {
        return afx_internal::Send<LONG>(m_hWnd, TCM_INSERTITEM, nItem, pTabCtrlItem);
    }
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam,
                    DWORD dwState, DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return afx_internal::Send<BOOL>(m_hWnd, TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return afx_internal::Send<BOOL>(m_hWnd, TCM_DELETEALLITEMS); }
    int GetItemCount() const { return afx_internal::Send<int>(m_hWnd, TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const {
        return afx_internal::Send<BOOL>(m_hWnd, TCM_GETITEM, nItem, pTabCtrlItem);
    }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) {
        return afx_internal::Send<BOOL>(m_hWnd, TCM_SETITEM, nItem, pTabCtrlItem);
    }
    /// Bytes of data for each tab of a control without tabs.
    BOOL SetItemExtra(int nBytes) {
        return afx_internal::Send<BOOL>(m_hWnd, TCM_SETITEMEXTRA, nBytes);
    }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE) {
        return afx_internal::Send<BOOL>(m_hWnd, TCM_HIGHLIGHTITEM, idItem,
                                        MAKELPARAM(fHighlight, 0));
    }

    // Selection. SetCurSel sends no notification and returns the previous tab, -1 for none.
    int GetCurSel() const { return afx_internal::Send<int>(m_hWnd, TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return afx_internal::Send<int>(m_hWnd, TCM_SETCURSEL, nItem); }
    int GetCurFocus() const { return afx_internal::Send<int>(m_hWnd, TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { afx_internal::Send<void>(m_hWnd, TCM_SETCURFOCUS, nItem); }
    void DeselectAll(BOOL fExcludeFocus) {
        afx_internal::Send<void>(m_hWnd, TCM_DESELECTALL, fExcludeFocus);
    }

    // Place
    /// The area of the display for the rectangle of the control, or (bLarger) the reverse.
    void AdjustRect(BOOL bLarger, LPRECT lpRect) {
        afx_internal::Send<void>(m_hWnd, TCM_ADJUSTRECT, bLarger, lpRect);
    }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const {
        return afx_internal::Send<BOOL>(m_hWnd, TCM_GETITEMRECT, nItem, lpRect);
    }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const {
        return afx_internal::Send<int>(m_hWnd, TCM_HITTEST, 0, pHitTestInfo);
    }
    int GetRowCount() const { return afx_internal::Send<int>(m_hWnd, TCM_GETROWCOUNT); }
    /// Returns the previous size.
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    /// -1: the default width. Returns the previous one.
    int SetMinTabWidth(int cx) {
        return afx_internal::Send<int>(m_hWnd, TCM_SETMINTABWIDTH, 0, cx);
    }

    // Look
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    void RemoveImage(int nImage) { afx_internal::Send<void>(m_hWnd, TCM_REMOVEIMAGE, nImage); }
    /// TCS_EX_...
    DWORD GetExtendedStyle() { return afx_internal::Send<DWORD>(m_hWnd, TCM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0) {
        return afx_internal::Send<DWORD>(m_hWnd, TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
    }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
};
