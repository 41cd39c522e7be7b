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

/// Takes the first free of the places inside the area; if none is free, the first one.
Rect LabelPlaces::Take(const std::vector<int>& lefts, const std::vector<int>& tops, bool rowByRow, int width,
                       int height) {
    Rect first;
    bool hasFirst = false;
    const std::vector<int>& outer = rowByRow ? tops : lefts;
    const std::vector<int>& inner = rowByRow ? lefts : tops;
    for (const int a : outer)
        for (const int b : inner) {
            const int left = rowByRow ? b : a;
            const int top = rowByRow ? a : b;
            const Rect place = {left, top, left + width, top + height};
            if (left < m_area.left || place.right > m_area.right || top < m_area.top ||
                place.bottom > m_area.bottom)
                continue;
            if (IsFree(place)) {
                m_taken.push_back(place);
                return place;
            }
            if (!hasFirst)
                first = place;
            hasFirst = true;
        }
    return first;
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
    const int centred = (top + bottom - height) / 2;
    const int inside = bottom - top < height ? centred : std::max(top, m_area.top);
    const int lowest = std::max(m_area.top, m_area.bottom - height);
    return Take(lefts, {std::clamp(inside, m_area.top, lowest)}, false, width, height);
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
