// SPDX-License-Identifier: MIT
// Reduction of a series, column by column.
#include "chartdraw/core/ChartReduction.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "chartdraw/core/SortedReduction.h"

namespace kavlix {
namespace {

constexpr int kFewPoints = 4; // a column with at most this number of points passes on all of them

} // namespace

void Reduce(const ChartSeries& series, const ColumnBorders& borders, const AxisMap& yMap, const Rect& view,
            ChartLine& line, ColumnEnds* ends) {
    const AxisMap& xMap = borders.Pixels().Map();
    if (!series.IsSorted()) {
        ChartReduction(series.Unsorted(), xMap, yMap, view, line).Run();
        return;
    }
    if (xMap.IsMonotonic() && yMap.IsMonotonic()) {
        SortedReduction(series, borders, yMap, line, ends).Run();
        return;
    }
    for (int i = 0; i < series.Size(); ++i) {
        if (series.IsGapBefore(i))
            line.End();
        line.Add(xMap.ExactPosition(series[i].x), yMap.ExactPosition(series[i].y));
    }
    line.End();
}

void ChartReduction::Run() {
    m_points.Visit(
        0, m_points.Size(),
        [this](const PointBox& box, int first, int last) { return TakeBox(box, first, last); },
        [this](int first, int behind) { TakePoints(first, behind); });
    FlushColumn();
    m_line.End();
}

/// Deals with a block of points as a whole if possible. False otherwise: the parts of the block are then
/// tried one by one.
bool ChartReduction::TakeBox(const PointBox& box, int first, int last) {
    if (box.HasGap() || !m_rows.HasPosition(box.low))
        return false;
    if (m_first <= m_last && IsInColumn(box.left) && IsInColumn(box.right)) {
        m_last = last;
        m_low = std::min(m_low, box.low);
        m_high = std::max(m_high, box.high);
        return true;
    }
    const double left = m_xMap.ExactPosition(box.left);
    const double right = m_xMap.ExactPosition(box.right);
    const int column = ToCoordinate(left);
    if (ChartLine::IsNear(left) && ChartLine::IsNear(right) && column == ToCoordinate(right)) {
        Extend(column, first, last, box.low, box.high);
        return true;
    }
    if (!IsBeyond(left, right, box))
        return false;
    FlushColumn();
    Add(first);
    Add(last);
    return true;
}

/// Whether a block lies completely beyond one edge of the view. A NaN position counts as not beyond.
bool ChartReduction::IsBeyond(double left, double right, const PointBox& box) const {
    // An axis may run in either direction.
    const auto isBeyond = [](double a, double b, int begin, int end) {
        return !std::isnan(a) && !std::isnan(b) &&
               (ToCoordinate(std::max(a, b)) < begin || ToCoordinate(std::min(a, b)) >= end);
    };
    return !std::isnan(left) && !std::isnan(right) &&
           (isBeyond(left, right, m_view.left, m_view.right) ||
            isBeyond(m_yMap.ExactPosition(box.high), m_yMap.ExactPosition(box.low), m_view.top,
                     m_view.bottom));
}

void ChartReduction::TakePoints(int first, int behind) {
    const ChartPoint* points = &m_points[first];
    const int count = behind - first;
    for (int i = 0; i < count; ++i) {
        if (m_first <= m_last) {
            // Local copies: the compiler could not keep the members in registers, as
            // `points` might alias them.
            const double begin = m_columnBegin;
            const double end = m_columnEnd;
            double low = m_low;
            double high = m_high;
            const int start = i;
            for (; i < count && points[i].x > begin && points[i].x < end && m_rows.HasPosition(points[i].y);
                 ++i) {
                low = std::min(low, points[i].y);
                high = std::max(high, points[i].y);
            }
            m_last = i > start ? first + i - 1 : m_last;
            m_low = low;
            m_high = high;
            if (i == count)
                return;
        }
        TakePoint(first + i, points[i]);
    }
}

void ChartReduction::TakePoint(int i, const ChartPoint& point) {
    const double x = m_xMap.ExactPosition(point.x);
    if (m_rows.HasPosition(point.y) && ChartLine::IsNear(x)) {
        Extend(ToCoordinate(x), i, i, point.y, point.y);
        return;
    }
    FlushColumn();
    Add(i);
}

/// Adds the points `first` to `last`, whose y lie between `low` and `high`, to the open column if this is
/// column `column`. Otherwise closes the open column and opens `column` with these points.
void ChartReduction::Extend(int column, int first, int last, double low, double high) {
    if (m_first <= m_last && m_column == column) {
        m_last = last;
        m_low = std::min(m_low, low);
        m_high = std::max(m_high, high);
        return;
    }
    FlushColumn();
    // Points are read one by one only near the border between two columns. Assume that the next columns have
    // as many points as the last column, and prefetch the points near the border that is kAhead columns
    // ahead.
    constexpr std::int64_t kAhead = 3; // columns
    m_points.Prefetch(first + kAhead * (std::int64_t{first} - m_first));
    m_first = first;
    m_last = last;
    m_low = low;
    m_high = high;
    if (m_column == column)
        return;
    m_column = column;
    // Values from m_columnBegin to m_columnEnd keep a distance from the column's edges that is larger than
    // rounding errors.
    constexpr double kNearEdge = 1e-6; // pixels
    constexpr double kRounding = 4 * std::numeric_limits<double>::epsilon();
    const double a = m_xMap.Value(column + kNearEdge);
    const double b = m_xMap.Value(column + 1 - kNearEdge);
    const double rounding = kRounding * std::max(std::abs(a), std::abs(b));
    m_columnBegin = std::min(a, b) + rounding;
    // Positions truncate toward zero, so the columns up to column 0 have other borders. For these columns no
    // value of x counts as certain.
    m_columnEnd = column > 0 ? std::max(a, b) - rounding : m_columnBegin;
}

/// Passes on the points of the open column and closes it.
void ChartReduction::FlushColumn() {
    const double low = m_yMap.ExactPosition(m_low);
    const double high = m_yMap.ExactPosition(m_high);
    const bool isFew = m_last - m_first < kFewPoints;
    if (isFew || !ChartLine::IsNear(low) || !ChartLine::IsNear(high))
        for (int i = m_first; i <= m_last; ++i)
            Add(i);
    else
        AddColumn(ToCoordinate(low), ToCoordinate(high));
    m_last = m_first - 1;
}

/// Passes on the first point of the open column, its two extreme pixels, and its last point.
void ChartReduction::AddColumn(int bottom, int top) {
    const int last = Row(m_points[m_last].y);
    int before = -1;
    Add(m_first);
    if (last == top || last == bottom) {
        // The line may end at the column's last point, and GDI does not paint the last pixel of a line. The
        // unreduced line paints this pixel only if an earlier point lies in the same row and the line then
        // leaves the row. To do the same, take the extremes only of the points up to the last one in another
        // row.
        before = LastElsewhere(last);
        if (before < m_first) {
            Add(m_last); // a wide pen draws a stroke without length as a dot
            return;
        }
        PointBox box;
        m_points.Visit(
            m_first, before + 1,
            [&](const PointBox& part, int, int) {
                box.Add(part);
                return true;
            },
            [&](int first, int behind) {
                for (int i = first; i < behind; ++i)
                    box.Add(m_points[i]);
            });
        bottom = Row(box.low);
        top = Row(box.high);
    }
    m_line.AddBetween({m_column, bottom});
    m_line.AddBetween({m_column, top});
    if (before >= 0)
        Add(before);
    Add(m_last);
}

/// The last point of the open column in a row other than `row`; m_first - 1 when there is none.
int ChartReduction::LastElsewhere(int row) const {
    return m_points.FindLast(
        m_first, m_last + 1,
        [&](const PointBox& box) { return !box.HasGap() && Row(box.low) == row && Row(box.high) == row; },
        [&](int i) { return Row(m_points[i].y) != row; });
}

void ChartReduction::Add(int i) {
    const ChartPoint& point = m_points[i];
    m_line.Add(m_xMap.ExactPosition(point.x), m_yMap.ExactPosition(point.y));
}

} // namespace kavlix
