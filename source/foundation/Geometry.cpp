#include "KxGeometry.h"

#include <algorithm>
#include <utility>

CPoint CSize::operator+(const POINT &point) const
{
    return {cx + point.x, cy + point.y};
}

CPoint CSize::operator-(const POINT &point) const
{
    return {cx - point.x, cy - point.y};
}

CRect CSize::operator+(const RECT *rect) const
{
    return CRect(rect) + *this;
}

CRect CSize::operator-(const RECT *rect) const
{
    return CRect(rect) - *this;
}

CRect CPoint::operator+(const RECT *rect) const
{
    return CRect(rect) + *this;
}

CRect CPoint::operator-(const RECT *rect) const
{
    return CRect(rect) - *this;
}

static bool isEmpty(const RECT *rect)
{
    return !rect || CRect(rect).IsRectEmpty();
}

BOOL CRect::PtInRect(const POINT &point) const
{
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
}

bool CRect::operator==(const RECT &rect) const
{
    return left == rect.left && top == rect.top && right == rect.right && bottom == rect.bottom;
}

void CRect::CopyRect(const RECT *rect)
{
    if (rect)
        *this = *rect;
}

void CRect::InflateRect(int l, int t, int r, int b)
{
    *this = CRect(left - l, top - t, right + r, bottom + b);
}

void CRect::OffsetRect(int x, int y)
{
    *this = CRect(left + x, top + y, right + x, bottom + y);
}

void CRect::NormalizeRect()
{
    *this = CRect(std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom));
}

void CRect::SwapLeftRight()
{
    std::swap(left, right);
}

BOOL CRect::IntersectRect(const RECT *rect1, const RECT *rect2)
{
    CRect common;
    if (!isEmpty(rect1) && !isEmpty(rect2)) {
        common = CRect(std::max(rect1->left, rect2->left), std::max(rect1->top, rect2->top),
                       std::min(rect1->right, rect2->right), std::min(rect1->bottom, rect2->bottom));
    }
    *this = common.IsRectEmpty() ? CRect() : common;
    return !IsRectEmpty();
}

BOOL CRect::UnionRect(const RECT *rect1, const RECT *rect2)
{
    CRect both;
    if (!isEmpty(rect1) && !isEmpty(rect2)) {
        both = CRect(std::min(rect1->left, rect2->left), std::min(rect1->top, rect2->top),
                     std::max(rect1->right, rect2->right), std::max(rect1->bottom, rect2->bottom));
    } else if (!isEmpty(rect1)) {
        both = *rect1;
    } else if (!isEmpty(rect2)) {
        both = *rect2;
    }
    *this = both;
    return !IsRectEmpty();
}

BOOL CRect::SubtractRect(const RECT *rect1, const RECT *rect2)
{
    CRect rest = isEmpty(rect1) ? CRect() : CRect(rect1);
    CRect covered;
    if (covered.IntersectRect(rest, rect2)) {
        const bool acrossWidth = covered.left == rest.left && covered.right == rest.right;
        const bool acrossHeight = covered.top == rest.top && covered.bottom == rest.bottom;
        if (acrossWidth && acrossHeight)
            rest = CRect();
        else if (acrossWidth && covered.top == rest.top)
            rest.top = covered.bottom;
        else if (acrossWidth && covered.bottom == rest.bottom)
            rest.bottom = covered.top;
        else if (acrossHeight && covered.left == rest.left)
            rest.left = covered.right;
        else if (acrossHeight && covered.right == rest.right)
            rest.right = covered.left;
    }
    *this = rest;
    return !IsRectEmpty();
}

CRect CRect::operator+(const POINT &point) const
{
    CRect moved(*this);
    moved += point;
    return moved;
}

CRect CRect::operator+(const SIZE &size) const
{
    CRect moved(*this);
    moved += size;
    return moved;
}

CRect CRect::operator+(const RECT *rect) const
{
    CRect inflated(*this);
    inflated += rect;
    return inflated;
}

CRect CRect::operator-(const POINT &point) const
{
    CRect moved(*this);
    moved -= point;
    return moved;
}

CRect CRect::operator-(const SIZE &size) const
{
    CRect moved(*this);
    moved -= size;
    return moved;
}

CRect CRect::operator-(const RECT *rect) const
{
    CRect deflated(*this);
    deflated -= rect;
    return deflated;
}

CRect CRect::operator&(const RECT &rect) const
{
    CRect common;
    common.IntersectRect(*this, &rect);
    return common;
}

CRect CRect::operator|(const RECT &rect) const
{
    CRect both;
    both.UnionRect(*this, &rect);
    return both;
}
