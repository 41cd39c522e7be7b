// SPDX-License-Identifier: MIT
// Runs of points in one pixel column, one row or beyond one edge, and what is kept of them.
#include "plot/SeriesReduction.h"

#include <limits>
#include <utility>

namespace kavlix {
namespace {

// Points in a part. For wide pens GDI's time grows with the square of this number.
constexpr std::size_t kLongestPart = 64;
constexpr unsigned kLeft = 1;
constexpr unsigned kRight = 2;
constexpr unsigned kAbove = 4;
constexpr unsigned kBelow = 8;

} // namespace

SeriesReduction::SeriesReduction(const Rect& view, Sink sink) : m_view(view), m_sink(std::move(sink)) {
    m_part.reserve(kLongestPart);
}

unsigned SeriesReduction::SidesOf(const Point& pixel) const {
    unsigned sides = 0;
    if (pixel.x < m_view.left)
        sides |= kLeft;
    if (pixel.x >= m_view.right)
        sides |= kRight;
    if (pixel.y < m_view.top)
        sides |= kAbove;
    if (pixel.y >= m_view.bottom)
        sides |= kBelow;
    return sides;
}

bool SeriesReduction::Continues(const Point& pixel, unsigned sides) const {
    return m_count != std::numeric_limits<int>::max() &&
           ((m_sides & sides) != 0 || (m_sameColumn && pixel.x == m_first.pixel.x) ||
            (m_sameRow && pixel.y == m_first.pixel.y));
}

void SeriesReduction::Add(const Point& pixel, const Point& position) {
    const unsigned sides = SidesOf(pixel);
    if (m_count != 0 && !Continues(pixel, sides))
        FlushRun();

    const Entry entry{pixel, position, m_count};
    if (m_count == 0) {
        m_sameColumn = m_sameRow = true;
        m_sides = sides;
        m_first = m_low = m_high = entry;
        m_arrived = 0;
    } else {
        m_sameColumn = m_sameColumn && pixel.x == m_first.pixel.x;
        m_sameRow = m_sameRow && pixel.y == m_first.pixel.y;
        m_sides &= sides;
        if (!(pixel == m_last.pixel))
            m_arrived = entry.order;
        // Strict comparisons: of several points on the lowest or highest pixel the first is kept. GDI leaves
        // out the last pixel of a line, so when the line ends on this pixel, only the earlier point paints
        // it.
        if (Key(pixel) < Key(m_low.pixel))
            m_low = entry;
        if (Key(pixel) > Key(m_high.pixel))
            m_high = entry;
    }
    m_last = entry;
    ++m_count;
}

void SeriesReduction::FlushRun() {
    if (m_count == 0)
        return;
    Append(m_first);
    if (m_sameColumn || m_sameRow) {
        const Entry& earlier = m_low.order < m_high.order ? m_low : m_high;
        const Entry& later = m_low.order < m_high.order ? m_high : m_low;
        for (const Entry* entry : {&earlier, &later})
            if (entry->order > 0 && entry->order < m_last.order)
                Append(*entry);
        // The run ends on a pixel that it visited before and left in between. GDI leaves out the last pixel
        // of a line, so the earlier visit must paint this pixel: lead the line away to the run's first point
        // and back.
        if (later.pixel == m_last.pixel && later.order > 0 && later.order < m_arrived)
            Append(m_first);
    }
    if (m_last.order > 0)
        Append(m_last);
    m_count = 0;
}

void SeriesReduction::Append(const Entry& entry) {
    if (m_part.size() == kLongestPart) {
        HandOn();
        m_part.erase(m_part.begin(), m_part.end() - 1);
    }
    m_part.push_back(entry.position);
}

void SeriesReduction::Break() {
    FlushRun();
    HandOn();
    m_part.clear();
}

void SeriesReduction::HandOn() {
    if (m_part.size() > 1)
        m_sink(m_part.data(), static_cast<int>(m_part.size()));
}

} // namespace kavlix
