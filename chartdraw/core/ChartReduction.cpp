#include "chartdraw/core/ChartWalk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace kavlix {

namespace {

/// So few points of a column are handed on as they are.
constexpr int kFewPoints = 4;

} // namespace

void ChartWalk::Run() {
    m_series.Boxes().Visit(
        0, m_series.Size(),
        [this](const PointBox& box, int first, int last) { return TakeBox(box, first, last); },
        [this](int first, int behind) { TakePoints(first, behind); });
    FlushColumn();
    m_line.End();
}

bool ChartWalk::TakeBox(const PointBox& box, int first, int last) {
    if (box.HasGap())
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

/// Positions that are no numbers are beyond nothing.
bool ChartWalk::IsBeyond(double left, double right, const PointBox& box) const {
    if (std::isnan(left) || std::isnan(right))
        return false;
    if (ToCoordinate(right) < m_view.left || ToCoordinate(left) >= m_view.right)
        return true;
    const double top = m_yMap.ExactPosition(box.high); // values grow upwards
    const double bottom = m_yMap.ExactPosition(box.low);
    return !std::isnan(top) && !std::isnan(bottom) &&
           (ToCoordinate(bottom) < m_view.top || ToCoordinate(top) >= m_view.bottom);
}

void ChartWalk::TakePoints(int first, int behind) {
    const ChartPoint* points = &m_series[first];
    const int count = behind - first;
    for (int i = 0; i < count; ++i) {
        if (m_first <= m_last) {
            // Copies: the compiler cannot know that the points are not these members.
            const double begin = m_columnBegin;
            const double end = m_columnEnd;
            double low = m_low;
            double high = m_high;
            const int start = i;
            for (; i < count && points[i].x > begin && points[i].x < end && !std::isnan(points[i].y); ++i) {
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

void ChartWalk::TakePoint(int i, const ChartPoint& point) {
    const double x = m_xMap.ExactPosition(point.x);
    if (!std::isnan(point.y) && ChartLine::IsNear(x)) {
        Extend(ToCoordinate(x), i, i, point.y, point.y);
        return;
    }
    FlushColumn();
    Add(i);
}

void ChartWalk::Extend(int column, int first, int last, double low, double high) {
    if (m_first <= m_last && m_column == column) {
        m_last = last;
        m_low = std::min(m_low, low);
        m_high = std::max(m_high, high);
        return;
    }
    FlushColumn();
    // Points that are looked at one by one lie round the border of two columns: those of a later border, as
    // far away as this column was long, are asked for early.
    constexpr std::int64_t kAhead = 3;
    PointBoxes::Prefetch(m_series.Values(), first + kAhead * (std::int64_t{first} - m_first));
    m_first = first;
    m_last = last;
    m_low = low;
    m_high = high;
    if (m_column == column)
        return;
    m_column = column;
    // Away from its edges by more than rounding can move a position.
    constexpr double kNearEdge = 1e-6; // pixels
    constexpr double kRounding = 4 * std::numeric_limits<double>::epsilon();
    const double a = m_xMap.Value(column + kNearEdge);
    const double b = m_xMap.Value(column + 1 - kNearEdge);
    const double rounding = kRounding * std::max(std::abs(a), std::abs(b));
    m_columnBegin = std::min(a, b) + rounding;
    m_columnEnd = column > 0 ? std::max(a, b) - rounding : m_columnBegin; // at 0 positions truncate upwards
}

void ChartWalk::FlushColumn() {
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

void ChartWalk::AddColumn(int bottom, int top) {
    const int last = Row(m_series[m_last].y);
    int before = -1;
    Add(m_first);
    if (last == top || last == bottom) {
        // The line may end here, and its last pixel is not painted: it must be so only if the line has been
        // there before and gone elsewhere.
        before = LastElsewhere(last);
        if (before < m_first) {
            Add(m_last); // a wide pen makes a dot of a stroke without length
            return;
        }
        PointBox box;
        m_series.Boxes().Visit(
            m_first, before + 1,
            [&](const PointBox& part, int, int) {
                box.Add(part);
                return true;
            },
            [&](int first, int behind) {
                for (int i = first; i < behind; ++i)
                    box.Add(m_series[i]);
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

/// The last point of the column on another row than `row`; m_first - 1 when there is none.
int ChartWalk::LastElsewhere(int row) const {
    return m_series.Boxes().FindLast(
        m_first, m_last + 1,
        [&](const PointBox& box) { return !box.HasGap() && Row(box.low) == row && Row(box.high) == row; },
        [&](int i) { return Row(m_series[i].y) != row; });
}

void ChartWalk::Add(int i) {
    const ChartPoint& point = m_series[i];
    m_line.Add(m_xMap.ExactPosition(point.x), m_yMap.ExactPosition(point.y));
}

} // namespace kavlix
