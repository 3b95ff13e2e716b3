// GDI objects: pens, brushes, fonts, bitmaps, palettes, regions.
#pragma once

#include "geometry.h"
#include "object.h"

#include <commctrl.h>

class CBitmap;
class CDC;

/// The base of the GDI objects: owns the handle attached to it and deletes it at its end.
class AFXRT_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject();
    ~CGdiObject() override;

    /// The attached handle, or null.
    HGDIOBJ m_hObject;

    /// The attached handle; null also when called on a null pointer.
    HGDIOBJ GetSafeHandle() const;
    operator HGDIOBJ() const;

    /// The object attached to the handle, or a temporary one that lives until the thread is idle
    /// and owns nothing. Null for a null handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over. FALSE for a null handle.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle up; null when there is none.
    HGDIOBJ Detach();
    /// Deletes the attached GDI object, which no device context may have selected.
    BOOL DeleteObject();

    /// Copies at most nCount bytes of the description (LOGPEN, LOGBRUSH, LOGFONT, BITMAP,
    /// WORD for a palette) and returns how many; 0 on failure.
    int GetObject(int nCount, LPVOID lpObject) const;
    /// OBJ_PEN, OBJ_BRUSH and so on; 0 on failure.
    UINT GetObjectType() const;
    /// Attaches one of the system's stock objects.
    BOOL CreateStockObject(int nIndex);
    BOOL UnrealizeObject();

    BOOL operator==(const CGdiObject& obj) const;
    BOOL operator!=(const CGdiObject& obj) const;
};

class AFXRT_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    /// These two throw CResourceException when there is no such pen.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = NULL);

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = NULL);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);

    operator HPEN() const;
    static CPen* PASCAL FromHandle(HPEN hPen);
    int GetLogPen(LOGPEN* pLogPen);
    int GetExtLogPen(EXTLOGPEN* pLogPen);
};

class AFXRT_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    /// These throw CResourceException when there is no such brush.
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage);
    /// nIndex: COLOR_WINDOW and so on.
    BOOL CreateSysColorBrush(int nIndex);

    operator HBRUSH() const;
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    int GetLogBrush(LOGBRUSH* pLogBrush);
};

class AFXRT_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont();

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight,
                    BYTE bItalic, BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet,
                    BYTE nOutPrecision, BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily,
                    LPCTSTR lpszFacename);
    /// nPointSize: tenths of a point. pDC: the device that the height is for; null: the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = NULL);
    /// The same with lfHeight in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = NULL);

    operator HFONT() const;
    static CFont* PASCAL FromHandle(HFONT hFont);
    int GetLogFont(LOGFONT* pLogFont);
};

class AFXRT_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();

    /// From the resources of the module that has it, first of the resource chain.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = NULL,
                          int nMapSize = 0);
    /// One of the system's own bitmaps (OBM_...).
    BOOL LoadOEMBitmap(UINT nIDBitmap);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    operator HBITMAP() const;
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    int GetBitmap(BITMAP* pBitMap);
    /// Copy the pixels out or in; return the number of bytes.
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    /// The size in tenths of a millimetre that somebody has set; the system has no use for it.
    CSize GetBitmapDimension() const;
    CSize SetBitmapDimension(int nWidth, int nHeight);
};

class AFXRT_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC* pDC);

    operator HPALETTE() const;
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries,
                           LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);
};

class AFXRT_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);

    operator HRGN() const;
    static CRgn* PASCAL FromHandle(HRGN hRgn);
    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT lpRect);
    /// These return the kind of region: NULLREGION, SIMPLEREGION, COMPLEXREGION, ERROR.
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc);
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    int GetRgnBox(LPRECT lpRect) const;
    BOOL EqualRgn(const CRgn* pRgn) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT lpRect) const;
};
