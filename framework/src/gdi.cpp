#include <afxrt/gdi.h>

#include <afxrt/device_context.h>
#include <afxrt/exception.h>
#include <afxrt/handle_map.h>
#include <afxrt/module.h>

#include <cstdlib>
#include <cwchar>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace afx_internal {

template <>
struct HandleTraits<CGdiObject> {
    static void SetHandle(CGdiObject& object, HGDIOBJ handle) { object.m_hObject = handle; }

    // Of the class that the handle's type asks for: the typed FromHandle functions cast to it.
    static std::unique_ptr<CGdiObject> MakeTemporary(HGDIOBJ handle) {
        switch (::GetObjectType(handle)) {
        case OBJ_PEN:
        case OBJ_EXTPEN:
            return std::make_unique<CPen>();
        case OBJ_BRUSH:
            return std::make_unique<CBrush>();
        case OBJ_FONT:
            return std::make_unique<CFont>();
        case OBJ_BITMAP:
            return std::make_unique<CBitmap>();
        case OBJ_PAL:
            return std::make_unique<CPalette>();
        case OBJ_REGION:
            return std::make_unique<CRgn>();
        default:
            return std::make_unique<CGdiObject>();
        }
    }
};

} // namespace afx_internal

namespace {

afx_internal::HandleMap<CGdiObject, HGDIOBJ>& GdiObjects() {
    return afx_internal::MapOfThread<CGdiObject, HGDIOBJ>();
}

void ThrowUnless(BOOL created) {
    if (!created)
        AfxThrowResourceException();
}

HDC HandleOf(const CDC* pDC) {
    return pDC ? pDC->m_hDC : nullptr;
}

} // namespace

// CGdiObject

CGdiObject::CGdiObject() : m_hObject(nullptr) {}

CGdiObject::~CGdiObject() {
    DeleteObject();
}

HGDIOBJ CGdiObject::GetSafeHandle() const {
    return afx_internal::IsNull(this) ? nullptr : m_hObject;
}

CGdiObject::operator HGDIOBJ() const {
    return GetSafeHandle();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    return GdiObjects().FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap() {
    GdiObjects().DeleteTemporaries(0);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (!hObject)
        return FALSE;
    m_hObject = hObject;
    GdiObjects().SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    const HGDIOBJ handle = m_hObject;
    m_hObject = nullptr;
    // Not the object's own entry when it is temporary, or when several have the same stock object.
    if (handle && GdiObjects().LookupPermanent(handle) == this)
        GdiObjects().Remove(handle);
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ handle = Detach();
    return handle ? ::DeleteObject(handle) : FALSE;
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const {
    return ::GetObject(m_hObject, nCount, lpObject);
}

UINT CGdiObject::GetObjectType() const {
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex) {
    return Attach(::GetStockObject(nIndex));
}

BOOL CGdiObject::UnrealizeObject() {
    return ::UnrealizeObject(m_hObject);
}

BOOL CGdiObject::operator==(const CGdiObject& obj) const {
    return m_hObject == obj.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& obj) const {
    return m_hObject != obj.m_hObject;
}

// CPen

CPen::CPen() = default;

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    ThrowUnless(CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
           const DWORD* lpStyle) {
    ThrowUnless(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen) {
    return Attach(::CreatePenIndirect(lpLogPen));
}

CPen::operator HPEN() const {
    return static_cast<HPEN>(GetSafeHandle());
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return static_cast<CPen*>(CGdiObject::FromHandle(hPen));
}

int CPen::GetLogPen(LOGPEN* pLogPen) {
    return GetObject(sizeof(*pLogPen), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen) {
    return GetObject(sizeof(*pLogPen), pLogPen);
}

// CBrush

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor) {
    ThrowUnless(CreateSolidBrush(crColor));
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    ThrowUnless(CreateHatchBrush(nIndex, crColor));
}

CBrush::CBrush(CBitmap* pBitmap) {
    ThrowUnless(CreatePatternBrush(pBitmap));
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor) {
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    const void* const packedDib = ::GlobalLock(hPackedDIB);
    if (!packedDib)
        return FALSE;
    const BOOL created = CreateDIBPatternBrush(static_cast<const void*>(packedDib), nUsage);
    ::GlobalUnlock(hPackedDIB);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) {
    return Attach(::GetSysColorBrush(nIndex));
}

CBrush::operator HBRUSH() const {
    return static_cast<HBRUSH>(GetSafeHandle());
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush) {
    return GetObject(sizeof(*pLogBrush), pLogBrush);
}

// CFont

CFont::CFont() = default;

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                       BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                       BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                       LPCTSTR lpszFacename) {
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic,
                               bUnderline, cStrikeOut, nCharSet, nOutPrecision, nClipPrecision,
                               nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    std::wcsncpy(font.lfFaceName, lpszFaceName, LF_FACESIZE - 1);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    const HDC screen = pDC ? nullptr : ::GetDC(nullptr);
    const HDC device = pDC ? pDC->m_hAttribDC : screen;

    // A distance in logical units is the difference of two points: the origin may lie anywhere.
    constexpr int tenthsOfPointPerInch = 720;
    POINT ends[] = {{0, 0},
                    {0, ::MulDiv(lpLogFont->lfHeight, ::GetDeviceCaps(device, LOGPIXELSY),
                                 tenthsOfPointPerInch)}};
    ::DPtoLP(device, ends, 2);
    if (screen)
        ::ReleaseDC(nullptr, screen);

    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(ends[1].y - ends[0].y); // negative: of the characters, not the cell
    return CreateFontIndirect(&font);
}

CFont::operator HFONT() const {
    return static_cast<HFONT>(GetSafeHandle());
}

CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

int CFont::GetLogFont(LOGFONT* pLogFont) {
    return GetObject(sizeof(*pLogFont), pLogFont);
}

// CBitmap

CBitmap::CBitmap() = default;

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(
        ::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource) {
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap) {
    return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount,
                           const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap) {
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(HandleOf(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(HandleOf(pDC), nWidth, nHeight));
}

CBitmap::operator HBITMAP() const {
    return static_cast<HBITMAP>(GetSafeHandle());
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

int CBitmap::GetBitmap(BITMAP* pBitMap) {
    return GetObject(sizeof(*pBitMap), pBitMap);
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return ::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return ::SetBitmapBits(*this, dwCount, lpBits);
}

CSize CBitmap::GetBitmapDimension() const {
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    CSize previous;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

// CPalette

CPalette::CPalette() = default;

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette) {
    return Attach(::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return Attach(::CreateHalftonePalette(HandleOf(pDC)));
}

CPalette::operator HPALETTE() const {
    return static_cast<HPALETTE>(GetSafeHandle());
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return static_cast<CPalette*>(CGdiObject::FromHandle(hPalette));
}

int CPalette::GetEntryCount() {
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) const {
    return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                                 LPPALETTEENTRY lpPaletteColors) {
    return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const {
    return ::GetNearestPaletteIndex(*this, crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries) {
    return ::ResizePalette(*this, nNumEntries);
}

// CRgn

CRgn::CRgn() = default;

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect) {
    return Attach(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2) {
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect) {
    return Attach(::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

CRgn::operator HRGN() const {
    return static_cast<HRGN>(GetSafeHandle());
}

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2) {
    ::SetRectRgn(*this, x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect) {
    SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, static_cast<HRGN>(pRgn1->GetSafeHandle()),
                        static_cast<HRGN>(pRgn2->GetSafeHandle()), nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) {
    return CombineRgn(pRgnSrc, nullptr, RGN_COPY);
}

int CRgn::OffsetRgn(int x, int y) {
    return ::OffsetRgn(*this, x, y);
}

int CRgn::OffsetRgn(POINT point) {
    return OffsetRgn(point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const {
    return ::GetRgnBox(*this, lpRect);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const {
    return ::EqualRgn(*this, static_cast<HRGN>(pRgn->GetSafeHandle()));
}

BOOL CRgn::PtInRegion(int x, int y) const {
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const {
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const {
    return ::RectInRegion(*this, lpRect);
}
