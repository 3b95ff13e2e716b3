// The controls of the window manager: static, button, edit, list box, combo box, scroll bar.
// Indices count from 0; LB_ERR, CB_ERR (-1) tell of a failure.
#pragma once

#include "control_message.h"
#include "wnd.h"

class CImageList;

/// A text, icon or bitmap that takes no input.
class AFXRT_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    /// The Set functions return what was shown before. The control does not own the images.
    HICON SetIcon(HICON hIcon) { return afx_internal::Send<HICON>(m_hWnd, STM_SETICON, hIcon); }
    HICON GetIcon() const { return afx_internal::Send<HICON>(m_hWnd, STM_GETICON); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return afx_internal::Send<HBITMAP>(m_hWnd, STM_SETIMAGE, IMAGE_BITMAP, hBitmap);
    }
    HBITMAP GetBitmap() const {
        return afx_internal::Send<HBITMAP>(m_hWnd, STM_GETIMAGE, IMAGE_BITMAP);
    }
    HCURSOR SetCursor(HCURSOR hCursor) {
        return afx_internal::Send<HCURSOR>(m_hWnd, STM_SETIMAGE, IMAGE_CURSOR, hCursor);
    }
    HCURSOR GetCursor() { return afx_internal::Send<HCURSOR>(m_hWnd, STM_GETIMAGE, IMAGE_CURSOR); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile) {
        return afx_internal::Send<HENHMETAFILE>(m_hWnd, STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
    }
    HENHMETAFILE GetEnhMetaFile() const {
        return afx_internal::Send<HENHMETAFILE>(m_hWnd, STM_GETIMAGE, IMAGE_ENHMETAFILE);
    }
};

/// A push button, check box, radio button or group box.
class AFXRT_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    CButton();
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID);

    /// BST_PUSHED, BST_FOCUS and the check state.
    UINT GetState() const { return afx_internal::Send<UINT>(m_hWnd, BM_GETSTATE); }
    void SetState(BOOL bHighlight) { afx_internal::Send<void>(m_hWnd, BM_SETSTATE, bHighlight); }
    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    int GetCheck() const { return afx_internal::Send<int>(m_hWnd, BM_GETCHECK); }
    void SetCheck(int nCheck) { afx_internal::Send<void>(m_hWnd, BM_SETCHECK, nCheck); }
    /// BS_..., without other window styles.
    UINT GetButtonStyle() const { return GetStyle() & 0xff; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) {
        afx_internal::Send<void>(m_hWnd, BM_SETSTYLE, nStyle, bRedraw);
    }
    /// The Set functions return what was shown before. The control does not own the images.
    HICON SetIcon(HICON hIcon) {
        return afx_internal::Send<HICON>(m_hWnd, BM_SETIMAGE, IMAGE_ICON, hIcon);
    }
    HICON GetIcon() const { return afx_internal::Send<HICON>(m_hWnd, BM_GETIMAGE, IMAGE_ICON); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return afx_internal::Send<HBITMAP>(m_hWnd, BM_SETIMAGE, IMAGE_BITMAP, hBitmap);
    }
    HBITMAP GetBitmap() const {
        return afx_internal::Send<HBITMAP>(m_hWnd, BM_GETIMAGE, IMAGE_BITMAP);
    }
    HCURSOR SetCursor(HCURSOR hCursor) {
        return afx_internal::Send<HCURSOR>(m_hWnd, BM_SETIMAGE, IMAGE_CURSOR, hCursor);
    }
    HCURSOR GetCursor() { return afx_internal::Send<HCURSOR>(m_hWnd, BM_GETIMAGE, IMAGE_CURSOR); }

    // These need version 6 of the common controls.
    BOOL GetIdealSize(SIZE* psize) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_GETIDEALSIZE, 0, psize);
    }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_GETIMAGELIST, 0, pbuttonImagelist);
    }
    BOOL SetTextMargin(RECT* pmargin) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETTEXTMARGIN, 0, pmargin);
    }
    BOOL GetTextMargin(RECT* pmargin) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_GETTEXTMARGIN, 0, pmargin);
    }
    BOOL SetNote(LPCTSTR lpszNote) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETNOTE, 0, lpszNote);
    }
    BOOL GetNote(LPTSTR lpszNote, UINT* cchNote) const {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_GETNOTE, cchNote, lpszNote);
    }
    CString GetNote() const;
    UINT GetNoteLength() const { return afx_internal::Send<UINT>(m_hWnd, BCM_GETNOTELENGTH); }
    BOOL SetElevationRequired(BOOL fElevationRequired) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETSHIELD, 0, fElevationRequired);
    }
    BOOL SetDropDownState(BOOL fDropDown) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETDROPDOWNSTATE, fDropDown);
    }
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo) {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_SETSPLITINFO, 0, pInfo);
    }
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const {
        return afx_internal::Send<BOOL>(m_hWnd, BCM_GETSPLITINFO, 0, pInfo);
    }
    BOOL SetSplitStyle(UINT uSplitStyle);
    UINT GetSplitStyle() const;
    BOOL SetSplitSize(LPSIZE pSize);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitImageList(CImageList* pSplitImageList);
    CImageList* GetSplitImageList() const;
};

/// A text to edit, of one line or several.
class AFXRT_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Selection. SetSel: 0 to -1 selects all, -1 nothing; the caret is scrolled into view unless
    // bNoScroll.
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    /// The start in the low word, the end in the high one.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    DWORD GetSel() const { return afx_internal::Send<DWORD>(m_hWnd, EM_GETSEL); }
    void GetSel(int& nStartChar, int& nEndChar) const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        afx_internal::Send<void>(m_hWnd, EM_REPLACESEL, bCanUndo, lpszNewText);
    }
    BOOL GetHighlight(int* pichStart, int* pichEnd) const;
    void SetHighlight(int ichStart, int ichEnd) {
        afx_internal::Send<void>(m_hWnd, EM_SETHILITE, ichStart, ichEnd);
    }

    // Editing
    void Clear() { afx_internal::Send<void>(m_hWnd, WM_CLEAR); }
    void Copy() { afx_internal::Send<void>(m_hWnd, WM_COPY); }
    void Cut() { afx_internal::Send<void>(m_hWnd, WM_CUT); }
    void Paste() { afx_internal::Send<void>(m_hWnd, WM_PASTE); }
    BOOL Undo() { return afx_internal::Send<BOOL>(m_hWnd, EM_UNDO); }
    BOOL CanUndo() const { return afx_internal::Send<BOOL>(m_hWnd, EM_CANUNDO); }
    void EmptyUndoBuffer() { afx_internal::Send<void>(m_hWnd, EM_EMPTYUNDOBUFFER); }
    BOOL GetModify() const { return afx_internal::Send<BOOL>(m_hWnd, EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) {
        afx_internal::Send<void>(m_hWnd, EM_SETMODIFY, bModified);
    }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return afx_internal::Send<BOOL>(m_hWnd, EM_SETREADONLY, bReadOnly);
    }
    /// The most characters that can be typed; 0: as many as there can be.
    void SetLimitText(UINT nMax) { afx_internal::Send<void>(m_hWnd, EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return afx_internal::Send<UINT>(m_hWnd, EM_GETLIMITTEXT); }
    void LimitText(int nChars = 0) { afx_internal::Send<void>(m_hWnd, EM_LIMITTEXT, nChars); }
    void SetPasswordChar(TCHAR ch) { afx_internal::Send<void>(m_hWnd, EM_SETPASSWORDCHAR, ch); }
    TCHAR GetPasswordChar() const { return afx_internal::Send<TCHAR>(m_hWnd, EM_GETPASSWORDCHAR); }

    // Lines
    /// Copies a line without a terminator; returns its length. The first form takes the size of
    /// the buffer from its first character.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const {
        return afx_internal::Send<int>(m_hWnd, EM_GETLINE, nIndex, lpszBuffer);
    }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    int GetLineCount() const { return afx_internal::Send<int>(m_hWnd, EM_GETLINECOUNT); }
    int GetFirstVisibleLine() const {
        return afx_internal::Send<int>(m_hWnd, EM_GETFIRSTVISIBLELINE);
    }
    /// -1: the line with the caret, or with the start of the selection.
    int LineFromChar(int nIndex = -1) const {
        return afx_internal::Send<int>(m_hWnd, EM_LINEFROMCHAR, nIndex);
    }
    int LineIndex(int nLine = -1) const {
        return afx_internal::Send<int>(m_hWnd, EM_LINEINDEX, nLine);
    }
    int LineLength(int nLine = -1) const {
        return afx_internal::Send<int>(m_hWnd, EM_LINELENGTH, nLine);
    }
    void LineScroll(int nLines, int nChars = 0) {
        afx_internal::Send<void>(m_hWnd, EM_LINESCROLL, nChars, nLines);
    }
    BOOL FmtLines(BOOL bAddEOL) { return afx_internal::Send<BOOL>(m_hWnd, EM_FMTLINES, bAddEOL); }
    HLOCAL GetHandle() const { return afx_internal::Send<HLOCAL>(m_hWnd, EM_GETHANDLE); }
    void SetHandle(HLOCAL hBuffer) { afx_internal::Send<void>(m_hWnd, EM_SETHANDLE, hBuffer); }
    /// The character in the low word, its line in the high one.
    int CharFromPos(CPoint pt) const;
    CPoint PosFromChar(UINT nChar) const;

    // Look
    void GetRect(LPRECT lpRect) const { afx_internal::Send<void>(m_hWnd, EM_GETRECT, 0, lpRect); }
    void SetRect(LPCRECT lpRect) { afx_internal::Send<void>(m_hWnd, EM_SETRECT, 0, lpRect); }
    /// The same without a repaint.
    void SetRectNP(LPCRECT lpRect) { afx_internal::Send<void>(m_hWnd, EM_SETRECTNP, 0, lpRect); }
    void SetMargins(UINT nLeft, UINT nRight);
    /// The left margin in the low word, the right one in the high one.
    DWORD GetMargins() const { return afx_internal::Send<DWORD>(m_hWnd, EM_GETMARGINS); }
    /// Tab stops in dialog units.
    void SetTabStops() { afx_internal::Send<void>(m_hWnd, EM_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) {
        return afx_internal::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, 1, &cxEachStop);
    }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return afx_internal::Send<BOOL>(m_hWnd, EM_SETTABSTOPS, nTabStops, rgTabStops);
    }
    /// A hint shown while the edit is empty.
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawWhenFocused = FALSE) {
        return afx_internal::Send<BOOL>(m_hWnd, EM_SETCUEBANNER, fDrawWhenFocused, lpszText);
    }
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const {
        return afx_internal::Send<BOOL>(m_hWnd, EM_GETCUEBANNER, lpszText, cchText);
    }
    CString GetCueBanner() const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return afx_internal::Send<BOOL>(m_hWnd, EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip() { return afx_internal::Send<BOOL>(m_hWnd, EM_HIDEBALLOONTIP); }
};

/// A list of texts.
class AFXRT_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    CListBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Items
    /// These return the new item's index. AddString puts it in order (LBS_SORT) or last;
    /// InsertString where it is told, -1: last.
    int AddString(LPCTSTR lpszItem) {
        return afx_internal::Send<int>(m_hWnd, LB_ADDSTRING, 0, lpszItem);
    }
    int InsertString(int nIndex, LPCTSTR lpszItem) {
        return afx_internal::Send<int>(m_hWnd, LB_INSERTSTRING, nIndex, lpszItem);
    }
    /// Returns how many items are left.
    int DeleteString(UINT nIndex) {
        return afx_internal::Send<int>(m_hWnd, LB_DELETESTRING, nIndex);
    }
    void ResetContent() { afx_internal::Send<void>(m_hWnd, LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) {
        return afx_internal::Send<int>(m_hWnd, LB_DIR, attr, lpszWildCard);
    }
    int InitStorage(int nItems, UINT nBytes) {
        return afx_internal::Send<int>(m_hWnd, LB_INITSTORAGE, nItems, nBytes);
    }
    int GetCount() const { return afx_internal::Send<int>(m_hWnd, LB_GETCOUNT); }
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return afx_internal::Send<int>(m_hWnd, LB_GETTEXT, nIndex, lpszBuffer);
    }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const {
        return afx_internal::Send<int>(m_hWnd, LB_GETTEXTLEN, nIndex);
    }
    DWORD_PTR GetItemData(int nIndex) const {
        return afx_internal::Send<DWORD_PTR>(m_hWnd, LB_GETITEMDATA, nIndex);
    }
    void* GetItemDataPtr(int nIndex) const {
        return afx_internal::Send<void*>(m_hWnd, LB_GETITEMDATA, nIndex);
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return afx_internal::Send<int>(m_hWnd, LB_SETITEMDATA, nIndex, dwItemData);
    }
    int SetItemDataPtr(int nIndex, void* pData) {
        return afx_internal::Send<int>(m_hWnd, LB_SETITEMDATA, nIndex, pData);
    }
    /// The search begins after the given item and goes round; -1: from the first one.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return afx_internal::Send<int>(m_hWnd, LB_FINDSTRING, nStartAfter, lpszItem);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return afx_internal::Send<int>(m_hWnd, LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }

    // Selection of one item. None of these sends LBN_SELCHANGE: only the user does.
    int GetCurSel() const { return afx_internal::Send<int>(m_hWnd, LB_GETCURSEL); }
    /// -1: no item.
    int SetCurSel(int nSelect) { return afx_internal::Send<int>(m_hWnd, LB_SETCURSEL, nSelect); }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return afx_internal::Send<int>(m_hWnd, LB_SELECTSTRING, nStartAfter, lpszItem);
    }

    // Selection of several items
    int GetSel(int nIndex) const { return afx_internal::Send<int>(m_hWnd, LB_GETSEL, nIndex); }
    /// -1: all items.
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return afx_internal::Send<int>(m_hWnd, LB_SETSEL, bSelect, nIndex);
    }
    int GetSelCount() const { return afx_internal::Send<int>(m_hWnd, LB_GETSELCOUNT); }
    /// Returns how many indices it has written.
    int GetSelItems(int nMaxItems, LPINT rgIndex) const {
        return afx_internal::Send<int>(m_hWnd, LB_GETSELITEMS, nMaxItems, rgIndex);
    }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    int GetAnchorIndex() const { return afx_internal::Send<int>(m_hWnd, LB_GETANCHORINDEX); }
    void SetAnchorIndex(int nIndex) { afx_internal::Send<void>(m_hWnd, LB_SETANCHORINDEX, nIndex); }
    int GetCaretIndex() const { return afx_internal::Send<int>(m_hWnd, LB_GETCARETINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) {
        return afx_internal::Send<int>(m_hWnd, LB_SETCARETINDEX, nIndex, !bScroll);
    }

    // Look
    int GetTopIndex() const { return afx_internal::Send<int>(m_hWnd, LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return afx_internal::Send<int>(m_hWnd, LB_SETTOPINDEX, nIndex); }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return afx_internal::Send<int>(m_hWnd, LB_GETITEMRECT, nIndex, lpRect);
    }
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    int GetItemHeight(int nIndex) const {
        return afx_internal::Send<int>(m_hWnd, LB_GETITEMHEIGHT, nIndex);
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return afx_internal::Send<int>(m_hWnd, LB_SETITEMHEIGHT, nIndex, cyItemHeight);
    }
    void SetColumnWidth(int cxWidth) {
        afx_internal::Send<void>(m_hWnd, LB_SETCOLUMNWIDTH, cxWidth);
    }
    int GetHorizontalExtent() const {
        return afx_internal::Send<int>(m_hWnd, LB_GETHORIZONTALEXTENT);
    }
    void SetHorizontalExtent(int cxExtent) {
        afx_internal::Send<void>(m_hWnd, LB_SETHORIZONTALEXTENT, cxExtent);
    }
    /// Tab stops in dialog units.
    void SetTabStops() { afx_internal::Send<void>(m_hWnd, LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) {
        return afx_internal::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, 1, &cxEachStop);
    }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return afx_internal::Send<BOOL>(m_hWnd, LB_SETTABSTOPS, nTabStops, rgTabStops);
    }
    LCID GetLocale() const { return afx_internal::Send<LCID>(m_hWnd, LB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) {
        return afx_internal::Send<LCID>(m_hWnd, LB_SETLOCALE, nNewLocale);
    }
    DWORD GetListBoxInfo() const { return ::GetListBoxInfo(m_hWnd); }
};

/// A list that drops down, with or without an edit.
class AFXRT_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    CComboBox();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Items
    /// These return the new item's index. AddString puts it in order (CBS_SORT) or last;
    /// InsertString where it is told, -1: last.
    int AddString(LPCTSTR lpszString) {
        return afx_internal::Send<int>(m_hWnd, CB_ADDSTRING, 0, lpszString);
    }
    int InsertString(int nIndex, LPCTSTR lpszString) {
        return afx_internal::Send<int>(m_hWnd, CB_INSERTSTRING, nIndex, lpszString);
    }
    /// Returns how many items are left.
    int DeleteString(UINT nIndex) {
        return afx_internal::Send<int>(m_hWnd, CB_DELETESTRING, nIndex);
    }
    void ResetContent() { afx_internal::Send<void>(m_hWnd, CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) {
        return afx_internal::Send<int>(m_hWnd, CB_DIR, attr, lpszWildCard);
    }
    int InitStorage(int nItems, UINT nBytes) {
        return afx_internal::Send<int>(m_hWnd, CB_INITSTORAGE, nItems, nBytes);
    }
    int GetCount() const { return afx_internal::Send<int>(m_hWnd, CB_GETCOUNT); }
    int GetLBText(int nIndex, LPTSTR lpszText) const {
        return afx_internal::Send<int>(m_hWnd, CB_GETLBTEXT, nIndex, lpszText);
    }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const {
        return afx_internal::Send<int>(m_hWnd, CB_GETLBTEXTLEN, nIndex);
    }
    DWORD_PTR GetItemData(int nIndex) const {
        return afx_internal::Send<DWORD_PTR>(m_hWnd, CB_GETITEMDATA, nIndex);
    }
    void* GetItemDataPtr(int nIndex) const {
        return afx_internal::Send<void*>(m_hWnd, CB_GETITEMDATA, nIndex);
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return afx_internal::Send<int>(m_hWnd, CB_SETITEMDATA, nIndex, dwItemData);
    }
    int SetItemDataPtr(int nIndex, void* pData) {
        return afx_internal::Send<int>(m_hWnd, CB_SETITEMDATA, nIndex, pData);
    }
    /// The search begins after the given item and goes round; -1: from the first one.
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return afx_internal::Send<int>(m_hWnd, CB_FINDSTRING, nStartAfter, lpszString);
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return afx_internal::Send<int>(m_hWnd, CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }

    // Selection. None of these sends CBN_SELCHANGE: only the user does.
    int GetCurSel() const { return afx_internal::Send<int>(m_hWnd, CB_GETCURSEL); }
    /// -1: no item.
    int SetCurSel(int nSelect) { return afx_internal::Send<int>(m_hWnd, CB_SETCURSEL, nSelect); }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return afx_internal::Send<int>(m_hWnd, CB_SELECTSTRING, nStartAfter, lpszString);
    }

    // The edit
    /// The start in the low word, the end in the high one.
    DWORD GetEditSel() const { return afx_internal::Send<DWORD>(m_hWnd, CB_GETEDITSEL); }
    BOOL SetEditSel(int nStartChar, int nEndChar);
    /// The most characters that can be typed; 0: as many as there can be.
    BOOL LimitText(int nMaxChars) {
        return afx_internal::Send<BOOL>(m_hWnd, CB_LIMITTEXT, nMaxChars);
    }
    void Clear() { afx_internal::Send<void>(m_hWnd, WM_CLEAR); }
    void Copy() { afx_internal::Send<void>(m_hWnd, WM_COPY); }
    void Cut() { afx_internal::Send<void>(m_hWnd, WM_CUT); }
    void Paste() { afx_internal::Send<void>(m_hWnd, WM_PASTE); }
    /// A hint shown while the edit is empty.
    BOOL SetCueBanner(LPCTSTR lpszText) {
        return afx_internal::Send<BOOL>(m_hWnd, CB_SETCUEBANNER, 0, lpszText);
    }
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const {
        return afx_internal::Send<BOOL>(m_hWnd, CB_GETCUEBANNER, lpszText, cchText);
    }
    CString GetCueBanner() const;

    // Look
    void ShowDropDown(BOOL bShowIt = TRUE) {
        afx_internal::Send<void>(m_hWnd, CB_SHOWDROPDOWN, bShowIt);
    }
    BOOL GetDroppedState() const { return afx_internal::Send<BOOL>(m_hWnd, CB_GETDROPPEDSTATE); }
    /// In screen coordinates.
    void GetDroppedControlRect(LPRECT lprect) const {
        afx_internal::Send<void>(m_hWnd, CB_GETDROPPEDCONTROLRECT, 0, lprect);
    }
    int GetDroppedWidth() const { return afx_internal::Send<int>(m_hWnd, CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT nWidth) {
        return afx_internal::Send<int>(m_hWnd, CB_SETDROPPEDWIDTH, nWidth);
    }
    /// F4 drops the list down, instead of the arrow keys.
    BOOL GetExtendedUI() const { return afx_internal::Send<BOOL>(m_hWnd, CB_GETEXTENDEDUI); }
    int SetExtendedUI(BOOL bExtended = TRUE) {
        return afx_internal::Send<int>(m_hWnd, CB_SETEXTENDEDUI, bExtended);
    }
    /// -1: of the part that is always visible.
    int GetItemHeight(int nIndex) const {
        return afx_internal::Send<int>(m_hWnd, CB_GETITEMHEIGHT, nIndex);
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return afx_internal::Send<int>(m_hWnd, CB_SETITEMHEIGHT, nIndex, cyItemHeight);
    }
    int GetTopIndex() const { return afx_internal::Send<int>(m_hWnd, CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return afx_internal::Send<int>(m_hWnd, CB_SETTOPINDEX, nIndex); }
    int GetMinVisible() const { return afx_internal::Send<int>(m_hWnd, CB_GETMINVISIBLE); }
    BOOL SetMinVisibleItems(int iMinVisible) {
        return afx_internal::Send<BOOL>(m_hWnd, CB_SETMINVISIBLE, iMinVisible);
    }
    UINT GetHorizontalExtent() const {
        return afx_internal::Send<UINT>(m_hWnd, CB_GETHORIZONTALEXTENT);
    }
    void SetHorizontalExtent(UINT nExtent) {
        afx_internal::Send<void>(m_hWnd, CB_SETHORIZONTALEXTENT, nExtent);
    }
    LCID GetLocale() const { return afx_internal::Send<LCID>(m_hWnd, CB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) {
        return afx_internal::Send<LCID>(m_hWnd, CB_SETLOCALE, nNewLocale);
    }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const { return ::GetComboBoxInfo(m_hWnd, pcbi); }
};

/// A scroll bar that stands alone.
class AFXRT_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    CScrollBar();
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    /// Returns the previous position.
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) {
        return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw);
    }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const {
        ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
    }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const {
        return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
    }
    /// The greatest position that the user can scroll to.
    int GetScrollLimit();
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    /// nArrowFlags: ESB_...
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
    }
};
