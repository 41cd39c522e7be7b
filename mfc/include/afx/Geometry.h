// SPDX-License-Identifier: MIT
// CSize, CPoint and CRect.
#pragma once

#include <windows.h>

class CPoint;
class CRect;

// CRect::TopLeft and BottomRight return two fields of a RECT as a CPoint. The attribute makes the compiler
// assume that a CPoint can overlap objects of other types.
#if defined(__GNUC__)
#define AFX_MAY_ALIAS __attribute__((may_alias))
#else
#define AFX_MAY_ALIAS
#endif

/// Coordinates outside the range of LONG wrap around, as in the system's rectangle functions.
inline constexpr LONG AfxWrap(DWORD value) {
    return static_cast<LONG>(value);
}
inline constexpr LONG AfxPlus(LONG left, LONG right) {
    return AfxWrap(static_cast<DWORD>(left) + static_cast<DWORD>(right));
}
inline constexpr LONG AfxMinus(LONG left, LONG right) {
    return AfxWrap(static_cast<DWORD>(left) - static_cast<DWORD>(right));
}

/// A width and a height.
class CSize : public tagSIZE {
public:
    CSize() : CSize(0, 0) {}
    CSize(int initCX, int initCY) {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE size) : tagSIZE(size) {}
    CSize(POINT point) : CSize(point.x, point.y) {}
    /// Width in the low word, height in the high word, both signed.
    CSize(DWORD packed) : CSize(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))) {}

    void SetSize(int width, int height) {
        cx = width;
        cy = height;
    }
    BOOL operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { *this = CSize(AfxPlus(cx, size.cx), AfxPlus(cy, size.cy)); }
    void operator-=(SIZE size) { *this = CSize(AfxMinus(cx, size.cx), AfxMinus(cy, size.cy)); }

    CSize operator+(SIZE size) const { return {AfxPlus(cx, size.cx), AfxPlus(cy, size.cy)}; }
    CSize operator-(SIZE size) const { return {AfxMinus(cx, size.cx), AfxMinus(cy, size.cy)}; }
    CSize operator-() const { return {AfxMinus(0, cx), AfxMinus(0, cy)}; }
    CPoint operator+(POINT point) const;
    CPoint operator-(POINT point) const;
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;
};

/// A position.
class AFX_MAY_ALIAS CPoint : public tagPOINT {
public:
    CPoint() : CPoint(0, 0) {}
    CPoint(int initX, int initY) {
        x = initX;
        y = initY;
    }
    CPoint(POINT point) : tagPOINT(point) {}
    CPoint(SIZE size) : CPoint(static_cast<int>(size.cx), static_cast<int>(size.cy)) {}
    /// x in the low word, y in the high word, both signed, as mouse messages carry them.
    CPoint(DWORD packed) : CPoint(static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))) {}

    void SetPoint(int newX, int newY) {
        x = newX;
        y = newY;
    }
    void Offset(int dx, int dy) {
        x = AfxPlus(x, dx);
        y = AfxPlus(y, dy);
    }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }

    BOOL operator==(POINT point) const { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(SIZE size) { *this = *this - size; }
    void operator-=(POINT point) { *this = CPoint(*this - point); }

    CPoint operator+(SIZE size) const { return Sum(size.cx, size.cy); }
    CPoint operator+(POINT point) const { return Sum(point.x, point.y); }
    CPoint operator-(SIZE size) const { return CPoint(Difference(size.cx, size.cy)); }
    CSize operator-(POINT point) const { return Difference(point.x, point.y); }
    CPoint operator-() const { return CPoint(CSize(AfxMinus(0, x), AfxMinus(0, y))); }
    CRect operator+(const RECT* rect) const;
    CRect operator-(const RECT* rect) const;

private:
    CPoint Sum(LONG dx, LONG dy) const { return CPoint(CSize(AfxPlus(x, dx), AfxPlus(y, dy))); }
    CSize Difference(LONG dx, LONG dy) const { return CSize(AfxMinus(x, dx), AfxMinus(y, dy)); }
};

inline CPoint CSize::operator+(POINT point) const {
    return CPoint(point) + *this;
}
inline CPoint CSize::operator-(POINT point) const {
    return CPoint(AfxMinus(cx, point.x), AfxMinus(cy, point.y));
}

/// A rectangle. The right and the bottom edge do not belong to the rectangle. Members that shrink, join,
/// intersect or subtract rectangles expect normalized rectangles: left <= right and top <= bottom.
class CRect : public tagRECT {
public:
    CRect() : CRect(0, 0, 0, 0) {}
    CRect(int l, int t, int r, int b) { SetRect(l, t, r, b); }
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(LPCRECT rect) : tagRECT(*rect) {}
    CRect(POINT point, SIZE size)
        : CRect(point.x, point.y, AfxPlus(point.x, size.cx), AfxPlus(point.y, size.cy)) {}
    CRect(POINT topLeft, POINT bottomRight) : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y) {}

    int Width() const { return AfxMinus(right, left); }
    int Height() const { return AfxMinus(bottom, top); }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& BottomRight() const { return *reinterpret_cast<const CPoint*>(&right); }
    /// The centre, rounded towards 0.
    CPoint CenterPoint() const { return CPoint(Middle(left, right), Middle(top, bottom)); }

    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    /// TRUE if width or height is 0 or negative.
    BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    /// TRUE if all four coordinates are 0.
    BOOL IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }
    /// TRUE if the point is inside. Points on the right or bottom edge are outside.
    BOOL PtInRect(POINT point) const {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    BOOL EqualRect(LPCRECT rect) const {
        return left == rect->left && top == rect->top && right == rect->right && bottom == rect->bottom;
    }

    void SetRect(int l, int t, int r, int b) {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    void SetRect(POINT topLeft, POINT bottomRight) {
        SetRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT rect) { SetRect(rect->left, rect->top, rect->right, rect->bottom); }

    /// Move each side outwards (Deflate: inwards) by its own amount.
    void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT sides) { InflateRect(sides->left, sides->top, sides->right, sides->bottom); }
    void InflateRect(int l, int t, int r, int b) {
        SetRect(AfxMinus(left, l), AfxMinus(top, t), AfxPlus(right, r), AfxPlus(bottom, b));
    }
    void DeflateRect(int dx, int dy) { DeflateRect(dx, dy, dx, dy); }
    void DeflateRect(SIZE size) { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT sides) { DeflateRect(sides->left, sides->top, sides->right, sides->bottom); }
    void DeflateRect(int l, int t, int r, int b) {
        SetRect(AfxPlus(left, l), AfxPlus(top, t), AfxMinus(right, r), AfxMinus(bottom, b));
    }

    void OffsetRect(int dx, int dy) {
        SetRect(AfxPlus(left, dx), AfxPlus(top, dy), AfxPlus(right, dx), AfxPlus(bottom, dy));
    }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }

    /// Swaps left and right if left is greater, and top and bottom if top is greater.
    void NormalizeRect() {
        if (left > right)
            SetRect(right, top, left, bottom);
        if (top > bottom)
            SetRect(left, bottom, right, top);
    }

    /// Set this rectangle to the intersection, to the smallest rectangle around both, or to the part of
    /// `first` that `second` does not cover. If that part is not a rectangle, SubtractRect() sets this
    /// rectangle to `first`. FALSE if the result is empty. The arguments may be this rectangle.
    BOOL IntersectRect(LPCRECT first, LPCRECT second) { return ::IntersectRect(this, first, second); }
    BOOL UnionRect(LPCRECT first, LPCRECT second) { return ::UnionRect(this, first, second); }
    BOOL SubtractRect(LPCRECT first, LPCRECT second) { return ::SubtractRect(this, first, second); }

    void operator=(const RECT& rect) { CopyRect(&rect); }
    BOOL operator==(const RECT& rect) const { return EqualRect(&rect); }
    BOOL operator!=(const RECT& rect) const { return !EqualRect(&rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT sides) { InflateRect(sides); }
    void operator-=(POINT point) { OffsetRect(AfxMinus(0, point.x), AfxMinus(0, point.y)); }
    void operator-=(SIZE size) { OffsetRect(AfxMinus(0, size.cx), AfxMinus(0, size.cy)); }
    void operator-=(LPCRECT sides) { DeflateRect(sides); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }

    CRect operator+(POINT point) const {
        CRect result(*this);
        result += point;
        return result;
    }
    CRect operator+(SIZE size) const {
        CRect result(*this);
        result += size;
        return result;
    }
    CRect operator+(LPCRECT sides) const {
        CRect result(*this);
        result += sides;
        return result;
    }
    CRect operator-(POINT point) const {
        CRect result(*this);
        result -= point;
        return result;
    }
    CRect operator-(SIZE size) const {
        CRect result(*this);
        result -= size;
        return result;
    }
    CRect operator-(LPCRECT sides) const {
        CRect result(*this);
        result -= sides;
        return result;
    }
    CRect operator&(const RECT& rect) const {
        CRect result(*this);
        result &= rect;
        return result;
    }
    CRect operator|(const RECT& rect) const {
        CRect result(*this);
        result |= rect;
        return result;
    }
    /// Each coordinate times `multiplier` divided by `divisor`, rounded to the nearest integer. A coordinate
    /// becomes -1 if its result exceeds an int or if `divisor` is 0.
    CRect MulDiv(int multiplier, int divisor) const {
        return CRect(::MulDiv(left, multiplier, divisor), ::MulDiv(top, multiplier, divisor),
                     ::MulDiv(right, multiplier, divisor), ::MulDiv(bottom, multiplier, divisor));
    }

private:
    static int Middle(LONG low, LONG high) {
        return static_cast<int>((static_cast<LONGLONG>(low) + static_cast<LONGLONG>(high)) / 2);
    }
};

inline CRect CSize::operator+(const RECT* rect) const {
    return CRect(*rect) + *this;
}
inline CRect CSize::operator-(const RECT* rect) const {
    return CRect(*rect) - *this;
}
inline CRect CPoint::operator+(const RECT* rect) const {
    return CRect(*rect) + static_cast<POINT>(*this);
}
inline CRect CPoint::operator-(const RECT* rect) const {
    return CRect(*rect) - static_cast<POINT>(*this);
}
