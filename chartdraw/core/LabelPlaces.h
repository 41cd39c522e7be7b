// SPDX-License-Identifier: MIT
// LabelPlaces: places of texts beside lines and in bands, inside an area and apart from one another.
#pragma once

#include <vector>

#include "plot/Shapes.h"

namespace kavlix {

/// Finds a place for one label after the other: inside the area and clear of the labels before it. The rectangle
/// of a label for which there is no place is empty.
class LabelPlaces {
public:
    /// `gap` is the space between two labels in a row, and between a vertical line and a label, pixels.
    LabelPlaces(const Rect& area, int gap) : m_area(area), m_gap(gap) {}

    /// Keeps labels away from `rect`.
    void Block(const Rect& rect) { m_taken.push_back(rect); }
    /// Above or below a horizontal line of the rows `top` to before `bottom`, as far right as possible.
    Rect BesideRows(int top, int bottom, int width, int height);
    /// To the right or left of a vertical line of the columns `left` to before `right`, as high as possible.
    Rect BesideColumns(int left, int right, int width, int height);
    /// In a horizontal band, as high and then as far left as possible; over the middle of a band that is too low.
    Rect InRows(int top, int bottom, int width, int height);
    /// In a vertical band, as high as possible; across its right edge if the band is too narrow.
    Rect InColumns(int left, int right, int width, int height);

private:
    Rect Take(const std::vector<int>& lefts, const std::vector<int>& tops, bool rowByRow, int width,
              int height);
    bool IsFree(const Rect& rect) const;

    Rect m_area;
    int m_gap;
    std::vector<Rect> m_taken;
};

} // namespace kavlix
