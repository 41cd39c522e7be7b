// SPDX-License-Identifier: MIT
// RecordedLine: which samples of a column are kept, and where strokes are cut.
#include "graphctrl/RecordedLine.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "plot/StrokeCut.h"

namespace kavlix {
namespace {

/// Smallest distance of a cut from the edges of its pixel, in logical units. Programs that play a metafile
/// round positions in their own way, and a cut must stay on its pixel.
constexpr int kEdgeInset = 2;

Point ToPixel(const CDC& dc, const Point& point) {
    POINT pixel = {point.x, point.y};
    dc.LPtoDP(&pixel);
    return ToPoint(pixel);
}

/// `position` in logical units, rounded, and moved to at least kEdgeInset inside the edges of `pixel`.
int Into(const PixelEdges& edges, int pixel, double position) {
    const int k = pixel - edges.Before() - 1;
    return TruncateToInt(std::round(position), edges.Edge(k) + kEdgeInset,
                         edges.Edge(k + 1) - 1 - kEdgeInset);
}

/// The middle of `pixel` in logical units.
int Middle(const PixelEdges& edges, int pixel) {
    const int k = pixel - edges.Before() - 1;
    return (edges.Edge(k) + edges.Edge(k + 1)) / 2;
}

} // namespace

/// Whether two samples outside the pixel table fall on one pixel. GDI converts their positions.
bool RecordedLine::IsSameFarPixel(const Sample& a, const Sample& b) const {
    const Point from = Place(a.x, a.value);
    const Point to = Place(b.x, b.value);
    if (std::abs(from.x - to.x) > kUnitsPerPixel || std::abs(from.y - to.y) > kUnitsPerPixel)
        return false;
    return ToPixel(m_target.dc, from) == ToPixel(m_target.dc, to);
}

/// The lowest index, not below `first`, from which all samples up to `last` lie on one pixel.
int RecordedLine::BeginOfPixel(const SampleStore& samples, SampleStore::Reader& values, int first,
                               int last) const {
    const double value = values[last];
    if (last == first || !IsSamePixel(values[last - 1], value))
        return last;
    const int row = m_rows.Of(value);
    return samples.FindLast(
               first, last,
               [&](const Extremes& block) {
                   return HasPixel(m_pixel, row) && m_rows.Of(block.low) == row &&
                          m_rows.Of(block.high) == row;
               },
               [&](double other) { return !IsSamePixel(value, other); }) +
           1;
}

/// Adds the `count` samples of a column and reads every value (AddSearched does not). False, with nothing
/// added, when a value is NaN or lies outside the pixel table, and when PixelRows cannot find all rows fast.
bool RecordedLine::AddRead(const double* values, int count) {
    if (!m_target.columns.HasPixel(m_pixel))
        return false;
    const auto rowOf = [&](int i) {
        return values[i] == values[i] ? m_rows.Of(values[i]) : m_target.rows.Before();
    };
    const auto isKnown = [&](int row) { return m_target.rows.HasPixel(row); };
    int first = 0;
    int firstRow = rowOf(first);
    if (m_isOpen && m_pixel == m_keptPixel && isKnown(m_keptRow))
        while (firstRow == m_keptRow && ++first < count)
            firstRow = rowOf(first);
    if (first == count)
        return true;
    // The lowest index from which all samples up to `i` lie in row `row`.
    const auto beginOfPixel = [&](int i, int row) {
        while (i > first && rowOf(i - 1) == row)
            --i;
        return i;
    };
    const int lastRow = rowOf(count - 1);
    const int last = isKnown(lastRow) ? beginOfPixel(count - 1, lastRow) : count - 1;
    if (!isKnown(firstRow) || !isKnown(lastRow))
        return false;
    if (last > first) {
        const int beforeRow = rowOf(last - 1);
        const int before = isKnown(beforeRow) ? beginOfPixel(last - 1, beforeRow) : first;
        const std::optional<Extremes> moves = m_rows.ExtremesOfMoves(values + first + 1, last - first - 1);
        if (!isKnown(beforeRow) || !moves)
            return false;
        Keep(values[first], firstRow);
        if (before > first) {
            // The order of lowest and highest does not matter: the strokes cover the same pixels.
            Keep(moves->low, beforeRow);
            Keep(moves->high, beforeRow);
            Keep(values[before], beforeRow);
        }
    }
    Keep(values[last], lastRow);
    return true;
}

/// Adds the samples of a column without reading every value: the first and the last two samples that the
/// pixel rule keeps, and the lowest and highest. False, with nothing added, when a value is NaN, when all
/// samples lie on one pixel that has no kept sample yet, and when the pixel rule may leave out the lowest or
/// highest.
bool RecordedLine::AddSearched(const SampleStore& samples, SampleStore::Reader& values, int first, int last) {
    const Extremes extremes = samples.ExtremesOf(first, last);
    if (extremes.HasGap())
        return false;
    if (m_isOpen && m_pixel == m_keptPixel && HasPixel(m_pixel, m_keptRow) &&
        m_rows.Of(extremes.low) == m_keptRow && m_rows.Of(extremes.high) == m_keptRow)
        return true;
    const int end = BeginOfPixel(samples, values, first, last);
    if (end == first)
        return false;
    const int before = BeginOfPixel(samples, values, first, end - 1);
    // Searches backwards: BeginOfPixel has just read the end of the column, which is in the cache.
    int highest = first - 1;
    int lowest = first - 1;
    for (int i = before; i >= first && (highest < first || lowest < first); --i) {
        const double value = values[i];
        if (value == extremes.high && highest < first)
            highest = i;
        if (value == extremes.low && lowest < first)
            lowest = i;
    }
    const auto isKept = [&](int i) { return i > first && !IsSamePixel(values[i - 1], values[i]); };
    if (!isKept(highest) || !isKept(lowest))
        return false;
    int taken = first;
    while (!KeepUnlessOnKeptPixel(values[taken]))
        ++taken;
    for (const int i : {std::min(lowest, highest), std::max(lowest, highest), before, end}) {
        if (i > taken) {
            Keep(values[i], m_rows.Of(values[i]));
            taken = i;
        }
    }
    return true;
}

void RecordedLine::Covered::Add(const Covered& other) {
    if (other.first <= last + 1 && first <= other.last + 1) {
        first = std::min(first, other.first);
        last = std::max(last, other.last);
    } else if (other.last - other.first > last - first) {
        *this = other;
    }
}

/// Whether earlier strokes of the current column cover the stroke between the values `from` and `to`, both in
/// pixels and in logical units. If not, the caller draws the stroke, so the covered ranges grow by it. A
/// stroke that leaves the pixel table is never covered.
bool RecordedLine::IsCovered(double from, double to) {
    if (m_x != m_coveredX) {
        m_coveredX = m_x;
        m_coveredUnits = m_coveredRows = Covered();
    }
    const Point begin = Place(m_x, from);
    const Point end = Place(m_x, to);
    if (!IsNear(begin) || !IsNear(end))
        return false;
    const auto covered = [this](int a, int b) {
        if (!m_isThin)
            return Covered{std::min(a, b), std::max(a, b)};
        return a < b ? Covered{a, b - 1} : Covered{b + 1, a}; // LineTo leaves out the last pixel
    };
    const Covered units = covered(begin.y, end.y);
    const Covered rows = covered(m_target.rows.PixelOf(begin.y), m_target.rows.PixelOf(end.y));
    if (m_coveredUnits.Holds(units) && m_coveredRows.Holds(rows))
        return true;
    m_coveredUnits.Add(units);
    m_coveredRows.Add(rows);
    return false;
}

void RecordedLine::Keep(double value, int row) {
    bool isDrawn = true;
    if (m_isOpen && m_hasMarkers) {
        DrawColumn(false);
        isDrawn = m_sample.x != m_x || !IsCovered(m_sample.value, value);
        if (isDrawn)
            From(Place(m_sample.x, m_sample.value));
    } else if (!m_isOpen || m_x != m_keptX) {
        DrawColumn(false);
    }
    if (m_count == 0) {
        m_first = value;
        m_low = m_high = {value, 0};
    } else {
        if (m_last < m_low.value)
            m_low = {m_last, m_count - 1};
        if (m_last > m_high.value)
            m_high = {m_last, m_count - 1};
        m_before = m_last;
    }
    m_count += isDrawn;
    m_last = value;
    m_keptX = m_x;
    m_keptPixel = m_pixel;
    m_keptRow = row;
    m_isOpen = true;
}

/// Draws the pending samples of the column. With `isEnd`, the line may end here, and the last but one sample
/// is drawn too, as the beginning of the last stroke: GDI leaves out the last pixel of a line, so the painted
/// pixels depend on the direction of the last stroke.
void RecordedLine::DrawColumn(bool isEnd) {
    if (m_count == 0)
        return;
    To(Place(m_keptX, m_first));
    const bool isLowFirst = m_low.order < m_high.order;
    for (const Kept& kept : {isLowFirst ? m_low : m_high, isLowFirst ? m_high : m_low})
        if (kept.order > 0)
            To(Place(m_keptX, kept.value));
    if (isEnd && m_count > 2)
        To(Place(m_keptX, m_before));
    if (m_count > 1)
        To(Place(m_keptX, m_last));
    m_count = 0;
}

void RecordedLine::Pause() {
    DrawColumn(true);
    DrawPart();
    if (m_hasEnd && IsNear(m_end))
        m_points.push_back({m_end.x, m_end.y});
    m_coveredX = kCoordinateLimit + 1; // the caller may draw the selection mark over the covered strokes
}

void RecordedLine::End() {
    DrawColumn(true);
    DrawPart();
    m_hasEnd = false;
    m_isOpen = false;
}

/// Begins the next stroke at `point`.
void RecordedLine::From(const Point& point) {
    if (m_hasEnd && point == m_end)
        return;
    DrawPart();
    m_hasEnd = false;
    To(point);
}

/// Draws a stroke to `point`; without a previous point, begins a line at `point`.
void RecordedLine::To(const Point& point) {
    const bool isNear = IsNear(point);
    if (m_hasEnd && point == m_end)
        return;
    if (m_hasEnd && !(isNear && IsNear(m_end)))
        ToFar(point);
    if (isNear && (m_points.empty() || m_points.back().x != point.x || m_points.back().y != point.y))
        m_points.push_back({point.x, point.y});
    m_end = point;
    m_hasEnd = true;
    if (m_points.size() >= kMaxPendingPoints) {
        DrawPart();
        m_points.push_back({point.x, point.y});
    }
}

/// Cuts the stroke from m_end to `point`, at least one of which lies outside the pixel table, and adds the
/// remaining part to the pending polyline.
void RecordedLine::ToFar(const Point& point) {
    const auto isBeyond = [](const PixelEdges& edges, int from, int to) {
        return (from < edges.Begin() && to < edges.Begin()) || (from >= edges.End() && to >= edges.End());
    };
    m_cut.clear();
    const Point from = m_end;
    if (!isBeyond(m_target.columns, from.x, point.x) && !isBeyond(m_target.rows, from.y, point.y)) {
        const Point begin = ToPixel(m_target.dc, from);
        const Point end = ToPixel(m_target.dc, point);
        Cut(begin, end);
        for (std::size_t i = 0; i < m_cut.size(); ++i) {
            const bool isEnd = m_cut[i] == (i == 0 ? begin : end);
            m_cut[i] = !isEnd ? OnLine(from, point, m_cut[i]) : i == 0 ? from : point;
        }
    }
    if (m_cut.empty() || !(m_cut.front() == from))
        DrawPart();
    else
        m_points.resize(m_points.empty() ? 0 : m_points.size() - 1);
    for (const Point& cut : m_cut)
        m_points.push_back({cut.x, cut.y});
    if (m_cut.empty() || !(m_cut.back() == point))
        DrawPart();
}

/// A point inside `pixel` that lies on the line between `from` and `to`, or near the line where the line
/// misses the pixel. `from`, `to` and the result in logical units.
Point RecordedLine::OnLine(const Point& from, const Point& to, const Point& pixel) const {
    const double dx = static_cast<double>(to.x) - from.x;
    const double dy = static_cast<double>(to.y) - from.y;
    const int x = Middle(m_target.columns, pixel.x);
    const int y = Middle(m_target.rows, pixel.y);
    if (std::fabs(dy) > std::fabs(dx))
        return {Into(m_target.columns, pixel.x, from.x + (y - from.y) * dx / dy), y};
    return {x, Into(m_target.rows, pixel.y, from.y + (x - from.x) * dy / dx)};
}

/// Stores the visible part of a stroke in m_cut; all points in pixels. For a wide stroke with one end in the
/// pixel table, NearerEnd finds a cut that keeps the pixels of the stroke's edges. This cut is used if it
/// lies in the pixel table. Every other cut of a wide stroke may move the stroke's edges by a pixel.
void RecordedLine::Cut(const Point& begin, const Point& end) {
    const bool comesFromFar = !HasPixel(begin.x, begin.y);
    if (!m_isThin && comesFromFar != !HasPixel(end.x, end.y)) {
        const Point& nearEnd = comesFromFar ? end : begin;
        const Point nearer = NearerEnd(nearEnd, comesFromFar ? begin : end, StepsAcross(m_window, nearEnd));
        if (HasPixel(nearer.x, nearer.y)) {
            m_cut = comesFromFar ? std::vector<Point>{nearer, end} : std::vector<Point>{begin, nearer};
            return;
        }
    }
    CutStroke(PixelLine(begin, end), m_window, kMargin, m_cut);
}

/// Draws the pending polyline.
void RecordedLine::DrawPart() {
    const int count = static_cast<int>(m_points.size());
    if (m_isThin && count > 1)
        m_target.dc.Polyline(m_points.data(), count);
    // Playing a wide polyline takes longer than playing its strokes one by one.
    if (!m_isThin && count > 1) {
        m_target.dc.MoveTo(m_points.front());
        for (const POINT& point : m_points)
            if (&point != &m_points.front())
                m_target.dc.LineTo(point);
    }
    m_points.clear();
}

} // namespace kavlix
