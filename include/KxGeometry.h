/// @file KxGeometry.h
/// @brief CPoint, CSize and CRect: the records with their usual members and operators.
///
/// They add no data to POINT, SIZE and RECT. Coordinates are in pixels, as LONG: sums wrap nowhere, so keep
/// them within 32 bits.
#pragma once

#include "KxWinTypes.h"

struct CPoint;
struct CRect;

/// A SIZE with constructors and operators.
struct KX_MFC_EXPORT CSize : SIZE
{
    /// 0 by 0.
    CSize()
        : SIZE()
    {
    }
    /// A size of @p initCX by @p initCY.
    CSize(int initCX, int initCY)
        : SIZE()
    {
        cx = initCX;
        cy = initCY;
    }
    /// A copy of @p size.
    CSize(const SIZE &size)
        : SIZE(size)
    {
    }
    /// The coordinates of @p point as width and height.
    explicit CSize(const POINT &point)
        : CSize(point.x, point.y)
    {
    }
    /// @return this size's record, for functions that take a pointer.
    operator SIZE *() { return this; }

    /// Sets both extents.
    void SetSize(int width, int height) { *this = CSize(width, height); }

    /// @return whether both extents are equal.
    bool operator==(const SIZE &size) const { return cx == size.cx && cy == size.cy; }
    /// @return whether an extent differs.
    bool operator!=(const SIZE &size) const { return !(*this == size); }
    /// Adds @p size to the extents.
    CSize &operator+=(const SIZE &size) { return *this = CSize(cx + size.cx, cy + size.cy); }
    /// Takes @p size off the extents.
    CSize &operator-=(const SIZE &size) { return *this = CSize(cx - size.cx, cy - size.cy); }

    /// @return the sum of both sizes.
    CSize operator+(const SIZE &size) const { return CSize(*this) += size; }
    /// @return this size less @p size.
    CSize operator-(const SIZE &size) const { return CSize(*this) -= size; }
    /// @return the size with both signs turned.
    CSize operator-() const { return {-cx, -cy}; }
    /// @return @p point moved by this size.
    CPoint operator+(const POINT &point) const;
    /// @return @p point mirrored at the half of this size: this size less the point.
    CPoint operator-(const POINT &point) const;
    /// @return @p rect, which must not be null, moved by this size.
    CRect operator+(const RECT *rect) const;
    /// @return @p rect, which must not be null, moved back by this size.
    CRect operator-(const RECT *rect) const;
};

/// A POINT with constructors and operators.
struct KX_MFC_EXPORT CPoint : POINT
{
    /// The origin.
    CPoint()
        : POINT()
    {
    }
    /// The point in column @p initX and row @p initY.
    CPoint(int initX, int initY)
        : POINT()
    {
        x = initX;
        y = initY;
    }
    /// A copy of @p point.
    CPoint(const POINT &point)
        : POINT(point)
    {
    }
    /// The extents of @p size as coordinates.
    explicit CPoint(const SIZE &size)
        : CPoint(size.cx, size.cy)
    {
    }
    /// The point that a mouse message packs into its parameter: x in the low 16 bits, y in the next ones,
    /// both signed.
    explicit CPoint(LPARAM packed)
        : CPoint(SHORT(packed & 0xFFFF), SHORT(packed >> 16 & 0xFFFF))
    {
    }
    /// @return this point's record, for functions that take a pointer.
    operator POINT *() { return this; }

    /// Moves the point by @p xOffset columns and @p yOffset rows.
    void Offset(int xOffset, int yOffset) { *this += CSize(xOffset, yOffset); }
    /// Moves the point by the coordinates of @p point.
    void Offset(const POINT &point) { *this += point; }
    /// Moves the point by @p size.
    void Offset(const SIZE &size) { *this += size; }
    /// Sets both coordinates.
    void SetPoint(int newX, int newY) { *this = CPoint(newX, newY); }

    /// @return whether both coordinates are equal.
    bool operator==(const POINT &point) const { return x == point.x && y == point.y; }
    /// @return whether a coordinate differs.
    bool operator!=(const POINT &point) const { return !(*this == point); }
    /// Moves the point by @p size.
    CPoint &operator+=(const SIZE &size) { return *this = CPoint(x + size.cx, y + size.cy); }
    /// Moves the point back by @p size.
    CPoint &operator-=(const SIZE &size) { return *this = CPoint(x - size.cx, y - size.cy); }
    /// Moves the point by the coordinates of @p point.
    CPoint &operator+=(const POINT &point) { return *this += CSize(point); }
    /// Moves the point back by the coordinates of @p point.
    CPoint &operator-=(const POINT &point) { return *this -= CSize(point); }

    /// @return this point moved by @p size.
    CPoint operator+(const SIZE &size) const { return CPoint(*this) += size; }
    /// @return this point moved back by @p size.
    CPoint operator-(const SIZE &size) const { return CPoint(*this) -= size; }
    /// @return this point moved by the coordinates of @p point.
    CPoint operator+(const POINT &point) const { return CPoint(*this) += point; }
    /// @return the way from @p point to this point.
    CSize operator-(const POINT &point) const { return {x - point.x, y - point.y}; }
    /// @return the point mirrored at the origin.
    CPoint operator-() const { return {-x, -y}; }
    /// @return @p rect, which must not be null, moved by this point's coordinates.
    CRect operator+(const RECT *rect) const;
    /// @return @p rect, which must not be null, moved back by this point's coordinates.
    CRect operator-(const RECT *rect) const;
};

/// A RECT with constructors and operators. All members treat right and bottom as exclusive; rectangles that
/// come from widgets have them inclusive (see RECT).
struct KX_MFC_EXPORT CRect : RECT
{
    /// @name Construction
    /// @{

    /// All sides 0.
    CRect()
        : RECT()
    {
    }
    /// The rectangle with left side @p l, top @p t, right side @p r and bottom @p b.
    CRect(int l, int t, int r, int b)
        : RECT()
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    /// A copy of @p rect.
    CRect(const RECT &rect)
        : RECT(rect)
    {
    }
    /// A copy of what @p rect points to, which must not be null.
    CRect(const RECT *rect)
        : RECT(*rect)
    {
    }
    /// The rectangle of @p size at @p point.
    CRect(const POINT &point, const SIZE &size)
        : CRect(point.x, point.y, point.x + size.cx, point.y + size.cy)
    {
    }
    /// The rectangle between two corners.
    CRect(const POINT &topLeft, const POINT &bottomRight)
        : CRect(topLeft.x, topLeft.y, bottomRight.x, bottomRight.y)
    {
    }
    /// @}

    /// @name Queries
    /// @{

    /// @return this rectangle's record, for functions that take a pointer.
    operator RECT *() { return this; }
    /// @return this rectangle's record, for functions that take a pointer.
    operator const RECT *() const { return this; }
    /// @return right - left.
    int Width() const { return right - left; }
    /// @return bottom - top.
    int Height() const { return bottom - top; }
    /// @return width and height.
    CSize Size() const { return {Width(), Height()}; }
    /// @return a copy of the upper left corner, unlike MFC, where it is a reference.
    CPoint TopLeft() const { return {left, top}; }
    /// @return a copy of the lower right corner, unlike MFC, where it is a reference.
    CPoint BottomRight() const { return {right, bottom}; }
    /// @return the middle, rounded towards zero.
    CPoint CenterPoint() const { return {(left + right) / 2, (top + bottom) / 2}; }
    /// @return whether width or height is 0 or less.
    BOOL IsRectEmpty() const { return left >= right || top >= bottom; }
    /// @return whether all sides are 0.
    BOOL IsRectNull() const { return *this == CRect(); }
    /// @return whether @p point lies within; points on the right and bottom sides do not.
    BOOL PtInRect(const POINT &point) const;
    /// @return whether all sides are equal; FALSE for null.
    BOOL EqualRect(const RECT *rect) const { return rect && *this == *rect; }
    /// @}

    /// @name Changes
    /// @{

    /// Sets the four sides.
    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    /// Sets two corners.
    void SetRect(const POINT &topLeft, const POINT &bottomRight) { *this = CRect(topLeft, bottomRight); }
    /// Sets all sides to 0.
    void SetRectEmpty() { *this = CRect(); }
    /// Copies @p rect; null changes nothing.
    void CopyRect(const RECT *rect);
    /// Moves left and right sides outwards by @p x, top and bottom by @p y; negative: inwards.
    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    /// InflateRect() by width and height of @p size.
    void InflateRect(const SIZE &size) { InflateRect(size.cx, size.cy); }
    /// Moves each side outwards by the side of @p rect, which must not be null.
    void InflateRect(const RECT *rect) { InflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    /// Moves each side outwards by its own amount.
    void InflateRect(int l, int t, int r, int b);
    /// Moves left and right sides inwards by @p x, top and bottom by @p y.
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    /// DeflateRect() by width and height of @p size.
    void DeflateRect(const SIZE &size) { DeflateRect(size.cx, size.cy); }
    /// Moves each side inwards by the side of @p rect, which must not be null.
    void DeflateRect(const RECT *rect) { DeflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    /// Moves each side inwards by its own amount.
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    /// Moves the rectangle by @p x columns and @p y rows.
    void OffsetRect(int x, int y);
    /// Moves the rectangle by @p size.
    void OffsetRect(const SIZE &size) { OffsetRect(size.cx, size.cy); }
    /// Moves the rectangle by the coordinates of @p point.
    void OffsetRect(const POINT &point) { OffsetRect(point.x, point.y); }
    /// Moves the left side to @p x; the width stays.
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    /// Moves the top side to @p y; the height stays.
    void MoveToY(int y) { OffsetRect(0, y - top); }
    /// Moves the upper left corner; the size stays.
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    /// Moves the upper left corner to @p point; the size stays.
    void MoveToXY(const POINT &point) { MoveToXY(point.x, point.y); }
    /// Swaps sides so that neither width nor height is negative.
    void NormalizeRect();
    /// Swaps the left and right sides.
    void SwapLeftRight();
    /// Becomes what @p rect1 and @p rect2 have in common; all sides 0 when that is nothing. A null one makes
    /// the result empty. Either may be this rectangle.
    /// @return whether they have something in common.
    BOOL IntersectRect(const RECT *rect1, const RECT *rect2);
    /// Becomes the smallest rectangle that holds @p rect1 and @p rect2; an empty or null one does not count.
    /// @return whether the result is not empty.
    BOOL UnionRect(const RECT *rect1, const RECT *rect2);
    /// Becomes @p rect1 without what @p rect2 covers, if that leaves a rectangle: @p rect2 has to reach
    /// across the whole width or the whole height; otherwise @p rect1 itself. Null makes the result empty.
    /// @return whether the result is not empty.
    BOOL SubtractRect(const RECT *rect1, const RECT *rect2);
    /// @}

    /// @name Operators
    /// `+` and `-` with a point or size move; with a rectangle they move each side outwards or inwards.
    /// `&` and `|` are IntersectRect() and UnionRect(). A rectangle given by its address must not be null.
    /// @{
    bool operator==(const RECT &rect) const; ///< @return whether all sides are equal.
    bool operator!=(const RECT &rect) const { return !(*this == rect); } ///< @return whether a side differs.
    void operator+=(const POINT &point) { OffsetRect(point); }           ///< Moves.
    void operator+=(const SIZE &size) { OffsetRect(size); }              ///< Moves.
    void operator+=(const RECT *rect) { InflateRect(rect); }             ///< Moves each side outwards.
    void operator-=(const POINT &point) { OffsetRect(-point.x, -point.y); } ///< Moves back.
    void operator-=(const SIZE &size) { OffsetRect(-size.cx, -size.cy); }   ///< Moves back.
    void operator-=(const RECT *rect) { DeflateRect(rect); }                ///< Moves each side inwards.
    void operator&=(const RECT &rect) { IntersectRect(this, &rect); } ///< Keeps what both have in common.
    void operator|=(const RECT &rect) { UnionRect(this, &rect); }     ///< Grows to hold both.
    CRect operator+(const POINT &point) const;                        ///< @return this rectangle moved.
    CRect operator+(const SIZE &size) const;                          ///< @return this rectangle moved.
    CRect operator+(const RECT *rect) const;   ///< @return this rectangle with each side moved outwards.
    CRect operator-(const POINT &point) const; ///< @return this rectangle moved back.
    CRect operator-(const SIZE &size) const;   ///< @return this rectangle moved back.
    CRect operator-(const RECT *rect) const;   ///< @return this rectangle with each side moved inwards.
    CRect operator&(const RECT &rect) const;   ///< @return what both have in common.
    CRect operator|(const RECT &rect) const;   ///< @return the smallest rectangle that holds both.
    /// @}
};
