// Points, sizes and rectangles in logical or device units, interchangeable with the Windows
// structures that they derive from.
#pragma once

#include "config.h"

class CRect;
class CSize;

/// A point; also a displacement when it is added to something.
// may_alias: CRect::TopLeft and BottomRight hand out two of a rectangle's numbers as a point.
class [[gnu::may_alias]] CPoint : public tagPOINT {
public:
    /// (0, 0).
    CPoint() noexcept : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
    /// From the signed low and high words of a mouse message's parameter.
    CPoint(LPARAM dwPoint) noexcept
        : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))} {}

    void Offset(int xOffset, int yOffset) noexcept {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return x != point.x || y != point.y; }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    /// The way from the other point to this one.
    CSize operator-(POINT point) const noexcept;
    /// The rectangle moved by this point, or back by it.
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// An extent or a displacement.
class CSize : public tagSIZE {
public:
    /// (0, 0).
    CSize() noexcept : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
    /// From the signed low and high words.
    CSize(DWORD dwSize) noexcept
        : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return cx != size.cx || cy != size.cy; }
    void operator+=(SIZE size) noexcept {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) noexcept {
        cx -= size.cx;
        cy -= size.cy;
    }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    /// The point moved by this size, or back by it.
    CPoint operator+(POINT point) const noexcept { return CPoint(cx + point.x, cy + point.y); }
    CPoint operator-(POINT point) const noexcept { return CPoint(point.x - cx, point.y - cy); }
    /// The rectangle moved by this size, or back by it.
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle; right and bottom lie outside of it. Except where it says otherwise, a function
/// expects it normalised (left <= right, top <= bottom).
class CRect : public tagRECT {
public:
    /// All zero.
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    CRect(const RECT& srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept
        : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept
        : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    /// Empty: no width or no height. Null: all four numbers are zero.
    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return !left && !top && !right && !bottom; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { ::CopyRect(this, lpSrcRect); }

    /// Moves the sides away from the centre (InflateRect) or towards it (DeflateRect).
    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) noexcept { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) noexcept { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) noexcept { InflateRect(-size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept { InflateRect(-l, -t, -r, -b); }

    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    void OffsetRect(POINT point) noexcept { OffsetRect(point.x, point.y); }
    void OffsetRect(SIZE size) noexcept { OffsetRect(size.cx, size.cy); }
    void MoveToX(int x) noexcept { OffsetRect(x - left, 0); }
    void MoveToY(int y) noexcept { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) noexcept { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// Exchanges opposite sides that stand the wrong way round.
    void NormalizeRect() noexcept {
        if (left > right)
            Exchange(left, right);
        if (top > bottom)
            Exchange(top, bottom);
    }

    /// Nonzero if the result is not empty.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept {
        return ::UnionRect(this, lpRect1, lpRect2);
    }
    /// The first rectangle less the second, where what remains is a rectangle; else the first.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) noexcept { CopyRect(&srcRect); }
    BOOL operator==(const RECT& rect) const noexcept { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const noexcept { return !EqualRect(&rect); }

    // A point or a size moves the rectangle; a rectangle inflates or deflates it side by side.
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) noexcept { UnionRect(this, &rect); }

    CRect operator+(POINT point) const noexcept { return Changed(&CRect::operator+=, point); }
    CRect operator+(SIZE size) const noexcept { return Changed(&CRect::operator+=, size); }
    CRect operator+(LPCRECT lpRect) const noexcept { return Changed(&CRect::operator+=, lpRect); }
    CRect operator-(POINT point) const noexcept { return Changed(&CRect::operator-=, point); }
    CRect operator-(SIZE size) const noexcept { return Changed(&CRect::operator-=, size); }
    CRect operator-(LPCRECT lpRect) const noexcept { return Changed(&CRect::operator-=, lpRect); }
    CRect operator&(const RECT& rect2) const noexcept {
        CRect rect;
        rect.IntersectRect(this, &rect2);
        return rect;
    }
    CRect operator|(const RECT& rect2) const noexcept {
        CRect rect;
        rect.UnionRect(this, &rect2);
        return rect;
    }

private:
    static void Exchange(LONG& a, LONG& b) noexcept {
        const LONG old = a;
        a = b;
        b = old;
    }
    template <class Operand>
    CRect Changed(void (CRect::*change)(Operand) noexcept, Operand operand) const noexcept {
        CRect rect(*this);
        (rect.*change)(operand);
        return rect;
    }
};

inline CSize CPoint::operator-(POINT point) const noexcept {
    return CSize(x - point.x, y - point.y);
}
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
inline CRect CSize::operator+(const RECT* lpRect) const noexcept {
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const noexcept {
    return CRect(lpRect) - *this;
}
