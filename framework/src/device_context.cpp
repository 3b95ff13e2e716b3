#include <afxrt/device_context.h>

#include <afxrt/exception.h>
#include <afxrt/handle_map.h>
#include <afxrt/wnd.h>

#include <cstdlib>

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace afx_internal {

template <>
struct HandleTraits<CDC> {
    static void SetHandle(CDC& context, HDC handle) {
        context.m_hDC = handle;
        context.m_hAttribDC = handle;
    }
    static std::unique_ptr<CDC> MakeTemporary(HDC) { return std::make_unique<CDC>(); }
};

} // namespace afx_internal

namespace {

afx_internal::HandleMap<CDC, HDC>& DeviceContexts() {
    return afx_internal::MapOfThread<CDC, HDC>();
}

// The object selected into a context, by its handle's type.
template <class Object, class Handle>
Object* Selected(HDC context, UINT type) {
    return Object::FromHandle(static_cast<Handle>(::GetCurrentObject(context, type)));
}

} // namespace

// Applies a change to the output and to the attribute context, each once; the result is the
// attribute context's. An integral result without any context is 0.
template <class Change>
auto CDC::OnBoth(Change change) {
    decltype(change(m_hDC)) result{};
    if (m_hDC && m_hDC != m_hAttribDC)
        result = change(m_hDC);
    if (m_hAttribDC)
        result = change(m_hAttribDC);
    return result;
}

// Handles

CDC::CDC() : m_hDC(nullptr), m_hAttribDC(nullptr), m_bPrinting(FALSE) {}

CDC::~CDC() {
    DeleteDC();
}

HDC CDC::GetSafeHdc() const {
    return afx_internal::IsNull(this) ? nullptr : m_hDC;
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    return DeviceContexts().FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap() {
    DeviceContexts().DeleteTemporaries(0);
}

BOOL CDC::Attach(HDC hDC) {
    if (!hDC)
        return FALSE;
    m_hDC = hDC;
    DeviceContexts().SetPermanent(hDC, this);
    SetAttribDC(hDC);
    m_bPrinting = ::GetDeviceCaps(hDC, TECHNOLOGY) == DT_RASPRINTER;
    return TRUE;
}

HDC CDC::Detach() {
    const HDC handle = m_hDC;
    m_hDC = nullptr;
    ReleaseAttribDC();
    if (handle && DeviceContexts().LookupPermanent(handle) == this)
        DeviceContexts().Remove(handle);
    return handle;
}

void CDC::SetAttribDC(HDC hDC) {
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC) {
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC() {
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC() {
    m_hDC = nullptr;
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput,
                             static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC->GetSafeHdc()));
}

BOOL CDC::DeleteDC() {
    const HDC handle = Detach();
    return handle ? ::DeleteDC(handle) : FALSE;
}

int CDC::SaveDC() {
    // Both save at the same level, so that one number restores both.
    return OnBoth([](HDC context) { return ::SaveDC(context); });
}

BOOL CDC::RestoreDC(int nSavedDC) {
    return OnBoth([=](HDC context) { return ::RestoreDC(context, nSavedDC); });
}

// Selected objects

HGDIOBJ CDC::SelectHandle(HGDIOBJ object) {
    return OnBoth([=](HDC context) { return ::SelectObject(context, object); });
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(static_cast<HPEN>(SelectHandle(pPen->GetSafeHandle())));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectHandle(pBrush->GetSafeHandle())));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(static_cast<HFONT>(SelectHandle(pFont->GetSafeHandle())));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(SelectHandle(pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn) {
    return SelectClipRgn(pRgn);
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    return CGdiObject::FromHandle(SelectHandle(pObject->GetSafeHandle()));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(SelectHandle(::GetStockObject(nIndex)));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    return CPalette::FromHandle(
        ::SelectPalette(m_hDC, static_cast<HPALETTE>(pPalette->GetSafeHandle()), bForceBackground));
}

CPen* CDC::GetCurrentPen() const {
    return Selected<CPen, HPEN>(m_hAttribDC, OBJ_PEN);
}

CBrush* CDC::GetCurrentBrush() const {
    return Selected<CBrush, HBRUSH>(m_hAttribDC, OBJ_BRUSH);
}

CFont* CDC::GetCurrentFont() const {
    return Selected<CFont, HFONT>(m_hAttribDC, OBJ_FONT);
}

CBitmap* CDC::GetCurrentBitmap() const {
    return Selected<CBitmap, HBITMAP>(m_hAttribDC, OBJ_BITMAP);
}

CPalette* CDC::GetCurrentPalette() const {
    return Selected<CPalette, HPALETTE>(m_hAttribDC, OBJ_PAL);
}

// Colours and modes

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return OnBoth([=](HDC context) { return ::SetBkColor(context, crColor); });
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return OnBoth([=](HDC context) { return ::SetTextColor(context, crColor); });
}

int CDC::SetBkMode(int nBkMode) {
    return OnBoth([=](HDC context) { return ::SetBkMode(context, nBkMode); });
}

int CDC::SetROP2(int nDrawMode) {
    return OnBoth([=](HDC context) { return ::SetROP2(context, nDrawMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode) {
    return OnBoth([=](HDC context) { return ::SetPolyFillMode(context, nPolyFillMode); });
}

int CDC::SetStretchBltMode(int nStretchMode) {
    return OnBoth([=](HDC context) { return ::SetStretchBltMode(context, nStretchMode); });
}

int CDC::SetArcDirection(int nArcDirection) {
    return OnBoth([=](HDC context) { return ::SetArcDirection(context, nArcDirection); });
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint previous;
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

// Mapping

int CDC::SetMapMode(int nMapMode) {
    return OnBoth([=](HDC context) { return ::SetMapMode(context, nMapMode); });
}

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint previous;
    OnBoth([&](HDC context) { return ::SetViewportOrgEx(context, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    CPoint previous;
    OnBoth([&](HDC context) { return ::OffsetViewportOrgEx(context, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize previous;
    OnBoth([&](HDC context) { return ::SetViewportExtEx(context, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
    CSize previous;
    OnBoth([&](HDC context) {
        return ::ScaleViewportExtEx(context, xNum, xDenom, yNum, yDenom, &previous);
    });
    return previous;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint previous;
    OnBoth([&](HDC context) { return ::SetWindowOrgEx(context, x, y, &previous); });
    return previous;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    CPoint previous;
    OnBoth([&](HDC context) { return ::OffsetWindowOrgEx(context, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize previous;
    OnBoth([&](HDC context) { return ::SetWindowExtEx(context, cx, cy, &previous); });
    return previous;
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
    CSize previous;
    OnBoth([&](HDC context) {
        return ::ScaleWindowExtEx(context, xNum, xDenom, yNum, yDenom, &previous);
    });
    return previous;
}

void CDC::DPtoLP(LPRECT lpRect) const {
    POINT corners[] = {{lpRect->left, lpRect->top}, {lpRect->right, lpRect->bottom}};
    DPtoLP(corners, 2);
    *lpRect = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void CDC::LPtoDP(LPRECT lpRect) const {
    POINT corners[] = {{lpRect->left, lpRect->top}, {lpRect->right, lpRect->bottom}};
    LPtoDP(corners, 2);
    *lpRect = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

// A size is converted by the ratio of the extents alone, so that it stays positive.

void CDC::DPtoLP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = std::abs(::MulDiv(lpSize->cx, window.cx, viewport.cx));
    lpSize->cy = std::abs(::MulDiv(lpSize->cy, window.cy, viewport.cy));
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = std::abs(::MulDiv(lpSize->cx, viewport.cx, window.cx));
    lpSize->cy = std::abs(::MulDiv(lpSize->cy, viewport.cy, window.cy));
}

// Clipping

int CDC::SelectClipRgn(CRgn* pRgn) {
    const auto region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return OnBoth([=](HDC context) { return ::SelectClipRgn(context, region); });
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    const auto region = static_cast<HRGN>(pRgn->GetSafeHandle());
    return OnBoth([=](HDC context) { return ::ExtSelectClipRgn(context, region, nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return OnBoth([=](HDC context) { return ::ExcludeClipRect(context, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return OnBoth([=](HDC context) { return ::IntersectClipRect(context, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y) {
    return OnBoth([=](HDC context) { return ::OffsetClipRgn(context, x, y); });
}

// Lines

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint previous;
    OnBoth([&](HDC context) { return ::MoveToEx(context, x, y, &previous); });
    return previous;
}

BOOL CDC::LineTo(int x, int y) {
    // The attribute context's position follows.
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

// Areas

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush) {
    ::FrameRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    SetBkColor(clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect = {x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left,
               lpRect->bottom - lpRect->top, clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
}

BOOL CDC::Rectangle(LPCRECT lpRect) {
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point) {
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::Ellipse(LPCRECT lpRect) {
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
                 ptEnd.x, ptEnd.y);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y,
               ptEnd.x, ptEnd.y);
}

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush) {
    return ::FillRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()),
                     static_cast<HBRUSH>(pBrush->GetSafeHandle()));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
    return ::FrameRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()),
                      static_cast<HBRUSH>(pBrush->GetSafeHandle()), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn) {
    return ::InvertRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

BOOL CDC::PaintRgn(CRgn* pRgn) {
    return ::PaintRgn(m_hDC, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

// Bitmaps. The system's own functions of these names live in a library (msimg32) that forwards
// to these.

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                         int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent) {
    return ::GdiTransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(),
                               xSrc, ySrc, nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                     int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
    return ::GdiAlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(), xSrc,
                           ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                       DWORD dwMode) {
    return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

// Text

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    // DT_MODIFYSTRING writes into the text, at most four characters more than there are.
    if (nFormat & DT_MODIFYSTRING) {
        CString text(str);
        const int length = text.GetLength();
        const int height = DrawText(text.GetBuffer(length + 4), length, lpRect, nFormat);
        text.ReleaseBuffer();
        return height;
    }
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    CString text(str);
    const int length = text.GetLength();
    const int height = DrawTextEx(text.GetBuffer(length + 4), length, lpRect, nFormat, lpDTParams);
    text.ReleaseBuffer();
    return height;
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return CSize(static_cast<DWORD>(::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions,
                                                    lpnTabStopPositions, nTabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions,
                         nTabOrigin);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    CSize extent;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &extent);
    return extent;
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return CSize(
        ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return OnBoth([=](HDC context) { return ::SetTextAlign(context, nFlags); });
}

int CDC::SetTextCharacterExtra(int nCharExtra) {
    return OnBoth([=](HDC context) { return ::SetTextCharacterExtra(context, nCharExtra); });
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount) {
    return OnBoth(
        [=](HDC context) { return ::SetTextJustification(context, nBreakExtra, nBreakCount); });
}

int CDC::GetTextFace(CString& rString) const {
    const int size = ::GetTextFace(m_hAttribDC, 0, nullptr);
    const int length = ::GetTextFace(m_hAttribDC, size, rString.GetBuffer(size));
    rString.ReleaseBuffer();
    return length;
}

// The contexts of a window

namespace {

HDC MustHave(HDC context) {
    if (!context)
        AfxThrowResourceException();
    return context;
}

} // namespace

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(MustHave(::GetDC(m_hWnd)));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(MustHave(::GetWindowDC(m_hWnd)));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(pWnd->GetSafeHwnd()) {
    Attach(MustHave(::BeginPaint(m_hWnd, &m_ps)));
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
