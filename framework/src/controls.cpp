#include <afxrt/controls.h>

#include <afxrt/imagelist.h>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

using afx_internal::Send;

namespace {

// Longest cue banner that is read back; the system has no message for its length.
constexpr int maxCueBanner = 256;

template <class Control>
CString CueBannerOf(const Control& control) {
    CString text;
    const BOOL read = control.GetCueBanner(text.GetBuffer(maxCueBanner), maxCueBanner);
    text.ReleaseBuffer(read ? -1 : 0);
    return text;
}

} // namespace

// CStatic

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

// CButton

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

CString CButton::GetNote() const {
    CString note;
    UINT size = GetNoteLength() + 1;
    const BOOL read = GetNote(note.GetBuffer(static_cast<int>(size)), &size);
    note.ReleaseBuffer(read ? -1 : 0);
    return note;
}

BOOL CButton::SetSplitStyle(UINT uSplitStyle) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_STYLE;
    info.uSplitStyle = uSplitStyle;
    return SetSplitInfo(&info);
}

UINT CButton::GetSplitStyle() const {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_STYLE;
    GetSplitInfo(&info);
    return info.uSplitStyle;
}

BOOL CButton::SetSplitSize(LPSIZE pSize) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_SIZE;
    info.size = *pSize;
    return SetSplitInfo(&info);
}

BOOL CButton::GetSplitSize(LPSIZE pSize) const {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_SIZE;
    if (!GetSplitInfo(&info))
        return FALSE;
    *pSize = info.size;
    return TRUE;
}

// The system keeps the character of the glyph in the place of its image list.

BOOL CButton::SetSplitGlyph(TCHAR chGlyph) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_GLYPH;
    info.himlGlyph = reinterpret_cast<HIMAGELIST>(static_cast<UINT_PTR>(chGlyph));
    return SetSplitInfo(&info);
}

TCHAR CButton::GetSplitGlyph() const {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_GLYPH;
    return GetSplitInfo(&info) ? static_cast<TCHAR>(reinterpret_cast<UINT_PTR>(info.himlGlyph)) : 0;
}

BOOL CButton::SetSplitImageList(CImageList* pSplitImageList) {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_IMAGE;
    info.himlGlyph = pSplitImageList->GetSafeHandle();
    return SetSplitInfo(&info);
}

CImageList* CButton::GetSplitImageList() const {
    BUTTON_SPLITINFO info = {};
    info.mask = BCSIF_IMAGE;
    return GetSplitInfo(&info) ? CImageList::FromHandle(info.himlGlyph) : nullptr;
}

// CEdit

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    Send<void>(m_hWnd, EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        Send<void>(m_hWnd, EM_SCROLLCARET);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    const auto position = [](WORD word) { return word == 0xFFFF ? -1 : int{word}; };
    SetSel(position(LOWORD(dwSelection)), position(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    Send<void>(m_hWnd, EM_GETSEL, &start, &end);
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

BOOL CEdit::GetHighlight(int* pichStart, int* pichEnd) const {
    const auto highlight = Send<DWORD>(m_hWnd, EM_GETHILITE);
    *pichStart = LOWORD(highlight);
    *pichEnd = HIWORD(highlight);
    return *pichStart != *pichEnd;
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    lpszBuffer[0] = static_cast<TCHAR>(nMaxLength); // where the control looks for it
    return GetLine(nIndex, lpszBuffer);
}

int CEdit::CharFromPos(CPoint pt) const {
    return Send<int>(m_hWnd, EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y));
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    return CPoint(Send<LPARAM>(m_hWnd, EM_POSFROMCHAR, nChar));
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    Send<void>(m_hWnd, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
}

CString CEdit::GetCueBanner() const {
    return CueBannerOf(*this);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon) {
    EDITBALLOONTIP tip = {sizeof(tip), lpszTitle, lpszText, ttiIcon};
    return ShowBalloonTip(&tip);
}

// CListBox

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CListBox::GetText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR)
        return;
    GetText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(length);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    return Send<int>(m_hWnd, LB_SELITEMRANGE, bSelect, MAKELPARAM(nFirstItem, nLastItem));
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const auto item = Send<DWORD>(m_hWnd, LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(item);
    return LOWORD(item);
}

// CComboBox

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    rString.Empty();
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR)
        return;
    GetLBText(nIndex, rString.GetBuffer(length));
    rString.ReleaseBuffer(length);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return Send<BOOL>(m_hWnd, CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
}

CString CComboBox::GetCueBanner() const {
    return CueBannerOf(*this);
}

// CScrollBar

CScrollBar::CScrollBar() = default;

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask) {
    return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
}

int CScrollBar::GetScrollLimit() {
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE;
    if (!::GetScrollInfo(m_hWnd, SB_CTL, &info))
        return 0;
    // The last position shows the last page.
    return info.nPage ? info.nMax - static_cast<int>(info.nPage) + 1 : info.nMax;
}
