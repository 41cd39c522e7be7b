// SPDX-License-Identifier: MIT
// The search for free places of labels.
#include "chartdraw/core/LabelPlaces.h"

#include <algorithm>
#include <functional>

namespace kavlix {

bool LabelPlaces::IsFree(const Rect& rect) const {
    return std::none_of(
        m_taken.begin(), m_taken.end(),
        [&](const Rect& taken) {
            return rect.left - m_gap < taken.right && taken.left < rect.right + m_gap &&
                   rect.top < taken.bottom && taken.top < rect.bottom;
        });
}

/// Takes the first free one of the places inside the area.
Rect LabelPlaces::Take(const std::vector<int>& lefts, const std::vector<int>& tops, bool rowByRow, int width,
                       int height) {
    const std::vector<int>& outer = rowByRow ? tops : lefts;
    const std::vector<int>& inner = rowByRow ? lefts : tops;
    for (const int a : outer)
        for (const int b : inner) {
            const int left = rowByRow ? b : a;
            const int top = rowByRow ? a : b;
            const Rect place = {left, top, left + width, top + height};
            if (left < m_area.left || place.right > m_area.right || top < m_area.top ||
                place.bottom > m_area.bottom || !IsFree(place))
                continue;
            m_taken.push_back(place);
            return place;
        }
    return {};
}

// A free stretch begins and ends at an edge of the area or of a label, so these are the only places to try.

Rect LabelPlaces::BesideRows(int top, int bottom, int width, int height) {
    std::vector<int> lefts = {m_area.right - width};
    for (const Rect& taken : m_taken)
        lefts.push_back(taken.left - m_gap - width);
    std::sort(lefts.begin(), lefts.end(), std::greater<int>());
    return Take(lefts, {top - height, bottom}, false, width, height);
}

Rect LabelPlaces::InRows(int top, int bottom, int width, int height) {
    std::vector<int> lefts = {m_area.left};
    for (const Rect& taken : m_taken)
        lefts.push_back(taken.right + m_gap);
    std::sort(lefts.begin(), lefts.end());
    const int from = std::max(top, m_area.top);
    const int to = std::min(bottom, m_area.bottom) - height; // the lowest place inside the band
    const int lowest = std::max(m_area.top, m_area.bottom - height);
    std::vector<int> tops = {from <= to ? from : std::clamp((top + bottom - height) / 2, m_area.top, lowest)};
    for (const Rect& taken : m_taken)
        if (taken.bottom > from && taken.bottom <= to)
            tops.push_back(taken.bottom);
    std::sort(tops.begin(), tops.end());
    return Take(lefts, tops, true, width, height);
}

Rect LabelPlaces::BesideColumns(int left, int right, int width, int height) {
    std::vector<int> tops = {m_area.top};
    for (const Rect& taken : m_taken)
        tops.push_back(taken.bottom);
    std::sort(tops.begin(), tops.end());
    return Take({right + m_gap, left - m_gap - width}, tops, true, width, height);
}

Rect LabelPlaces::InColumns(int left, int right, int width, int height) {
    std::vector<int> tops = {m_area.top};
    for (const Rect& taken : m_taken)
        tops.push_back(taken.bottom);
    std::sort(tops.begin(), tops.end());
    const int begin = std::max(left, m_area.left);
    const int inside = std::min(right, m_area.right) - begin < width + 2 * m_gap ? begin : begin + m_gap;
    const int last = std::max(m_area.left, m_area.right - width);
    return Take({std::clamp(inside, m_area.left, last)}, tops, true, width, height);
}

} // namespace kavlix
