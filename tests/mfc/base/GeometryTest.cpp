// SPDX-License-Identifier: MIT
// CPoint, CSize and CRect: random values against the arithmetic written out.

#include <afx.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

TEST(Geometry, MembersAndOperatorsAgreeWithTheArithmetic) {
    std::mt19937 random{9};
    const auto next = [&] { return static_cast<int>(random() % 41) - 20; };
    for (int i = 0; i < 2000; ++i) {
        const int x = next(), y = next(), l = next(), t = next(), r = next(), b = next(), p = next(),
                  q = next();
        const CPoint point(x, y);
        const CSize size(p, q);
        const CRect rect(l, t, r, b);
        CPoint moved = point;
        moved.Offset(p, q);
        moved -= CPoint(1, 2);
        EXPECT_TRUE(moved == CPoint(x + p - 1, y + q - 2) && point + size == CPoint(x + p, y + q));
        EXPECT_TRUE(point - size == CPoint(x - p, y - q) && point - CPoint(p, q) == CSize(x - p, y - q));
        EXPECT_TRUE(-point == CPoint(-x, -y) && -size == CSize(-p, -q) && size + point == point + size);
        EXPECT_TRUE(CPoint(MAKELPARAM(x, y)) == point && CSize(MAKELPARAM(p, q)) == size)
            << "as messages pack them";
        EXPECT_TRUE(point + &rect == CRect(l + x, t + y, r + x, b + y) &&
                    size - &rect == CRect(l - p, t - q, r - p, b - q));

        EXPECT_TRUE(rect.Size() == CSize(r - l, b - t) && CSize(rect.Width(), rect.Height()) == rect.Size());
        EXPECT_TRUE(CRect(point, size) == CRect(x, y, x + p, y + q) &&
                    rect.CenterPoint() == CPoint((l + r) / 2, (t + b) / 2));
        CRect grown = rect;
        grown.InflateRect(p, q);
        EXPECT_TRUE(grown == CRect(l - p, t - q, r + p, b + q));
        grown.DeflateRect(p, q, x, y);
        EXPECT_TRUE(grown == CRect(l, t, r + p - x, b + q - y));
        const CRect sides(1, 2, 3, 4);
        EXPECT_TRUE(rect + static_cast<LPCRECT>(sides) == CRect(l - 1, t - 2, r + 3, b + 4));
        EXPECT_TRUE(rect - static_cast<LPCRECT>(sides) == CRect(l + 1, t + 2, r - 3, b - 4));
        EXPECT_TRUE(rect + point == CRect(l + x, t + y, r + x, b + y) &&
                    rect - size == CRect(l - p, t - q, r - p, b - q));
        CRect normal = rect;
        normal.NormalizeRect();
        EXPECT_TRUE(normal == CRect(std::min(l, r), std::min(t, b), std::max(l, r), std::max(t, b)));
        const CRect other(x, y, x + 12, y + 12);
        RECT expected;
        ::IntersectRect(&expected, &normal, &other);
        EXPECT_TRUE((normal & other) == expected);
        ::UnionRect(&expected, &normal, &other);
        EXPECT_TRUE((normal | other) == expected);
    }
    EXPECT_TRUE(CRect(10, 20, 30, 40).MulDiv(1, 3) == CRect(3, 7, 10, 13));
}
