// Device contexts. Two handles: m_hDC takes the output, m_hAttribDC answers the questions; they
// are the same unless somebody has set them apart.
#pragma once

#include "gdi.h"
#include "string.h"

class CWnd;

class AFXRT_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)

public:
    CDC();
    ~CDC() override;

    HDC m_hDC;
    HDC m_hAttribDC;

    /// The output handle; null also when called on a null pointer.
    HDC GetSafeHdc() const;
    operator HDC() const { return GetSafeHdc(); }
    /// The object attached to the handle, or a temporary one that lives until the thread is idle
    /// and owns nothing. Null for a null handle.
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over, for both uses. FALSE for a null handle.
    BOOL Attach(HDC hDC);
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    BOOL IsPrinting() const { return m_bPrinting; }
    /// The window that the context belongs to, or null.
    CWnd* GetWindow() const;

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData);
    /// A memory context like that of pDC, or of the screen when it is null.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();
    /// A number for RestoreDC (which also takes -1, the last one); 0 on failure.
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // Selected objects. These return the object replaced, perhaps a temporary one.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// As SelectClipRgn, whose result it returns.
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject);
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* GetCurrentPalette() const;

    // Colours and modes. The Set functions return the previous value.
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF crColor);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetBkMode(int nBkMode);
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetROP2(int nDrawMode);
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode);
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode);
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    int SetArcDirection(int nArcDirection);
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hAttribDC); }
    COLORREF SetDCBrushColor(COLORREF crColor) { return ::SetDCBrushColor(m_hDC, crColor); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hAttribDC); }
    COLORREF SetDCPenColor(COLORREF crColor) { return ::SetDCPenColor(m_hDC, crColor); }
    COLORREF GetNearestColor(COLORREF crColor) const {
        return ::GetNearestColor(m_hAttribDC, crColor);
    }
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }

    // Mapping of logical units to the device's.
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual int SetMapMode(int nMapMode);
    CPoint GetViewportOrg() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const;
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const;
    void LPtoDP(LPSIZE lpSize) const;

    // Clipping. The results are kinds of regions (NULLREGION and so on).
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }

    // Lines
    CPoint GetCurrentPosition() const;
    /// These return the previous position.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    /// Draws up to the point, without it.
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polyline(LPPOINT lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount) {
        return ::PolylineTo(m_hDC, lpPoints, nCount);
    }
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
    }
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, nCount);
    }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount) {
        return ::PolyBezierTo(m_hDC, lpPoints, nCount);
    }

    // Areas
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    /// Leaves the colour behind as the background colour.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// A frame one unit wide: one colour at the left and the top, one at the right and the bottom.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) {
        return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
    }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point);
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polygon(LPPOINT lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount) {
        return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
    }
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);

    // Paths
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }

    // Bitmaps
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwRop) {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                            nSrcWidth, nSrcHeight, dwRop);
    }
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC,
                        int xSrc, int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                    int ySrc, int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements,
                      DWORD dwMode);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
    BOOL FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }

    // Text
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString,
                            UINT nCount, LPINT lpDxWidths) {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str,
                    LPINT lpDxWidths) {
        return ExtTextOut(x, y, nOptions, lpRect, str, str.GetLength(), lpDxWidths);
    }
    /// These return the height of the text; with DT_CALCRECT they set the rectangle instead of
    /// drawing.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams) {
        return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions,
                        LPINT lpnTabStopPositions, int nTabOrigin);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra);
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const {
        return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
    }
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const {
        return ::GetTextMetrics(m_hAttribDC, lpMetrics);
    }
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }

protected:
    BOOL m_bPrinting;

private:
    template <class Change>
    auto OnBoth(Change change);
    HGDIOBJ SelectHandle(HGDIOBJ object);
};

/// The client area of a window, or the whole screen for a null window.
class AFXRT_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    /// Throws CResourceException on failure.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// A whole window with its frame, or the whole screen for a null window.
class AFXRT_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// Throws CResourceException on failure.
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// What a window has to paint, in its handler of WM_PAINT.
class AFXRT_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// Throws CResourceException on failure.
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};
