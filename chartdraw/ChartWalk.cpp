#include "chartdraw/ChartWalk.h"

#include <algorithm>
#include <cmath>

namespace kavlix {

namespace {

/// So few points of a column are handed on as they are.
constexpr int kFewPoints = 4;

} // namespace

void ChartWalk::Run() {
    m_series.Boxes().Visit(
        0, m_series.Size(),
        [this](const PointBox& box, int first, int last) { return TakeBox(box, first, last); },
        [this](int i) { TakePoint(i); });
    FlushColumn();
    m_line.End();
}

bool ChartWalk::TakeBox(const PointBox& box, int first, int last) {
    if (box.HasGap())
        return false;
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

void ChartWalk::TakePoint(int i) {
    const ChartPoint& point = m_series[i];
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
    m_column = column;
    m_first = first;
    m_last = last;
    m_low = low;
    m_high = high;
}

void ChartWalk::FlushColumn() {
    const bool isFew = m_last - m_first < kFewPoints;
    if (isFew || !ChartLine::IsNear(m_yMap.ExactPosition(m_low)) ||
        !ChartLine::IsNear(m_yMap.ExactPosition(m_high))) {
        for (int i = m_first; i <= m_last; ++i)
            Add(i);
    } else {
        AddColumn();
    }
    m_last = m_first - 1;
}

void ChartWalk::AddColumn() {
    const double x = m_xMap.ExactPosition(m_series[m_first].x);
    const int last = Row(m_series[m_last].y);
    const int bottom = Row(m_low);
    const int top = Row(m_high);
    PointBox box;
    box.low = m_low;
    box.high = m_high;
    int before = -1;
    Add(m_first);
    if (last == top || last == bottom) {
        // The line may end here, and its last pixel is not painted: it must be so only if the line has been
        // there before and gone elsewhere.
        before = LastElsewhere(last);
        if (before < m_first)
            return;
        box = {};
        m_series.Boxes().Visit(
            m_first, before + 1,
            [&](const PointBox& part, int, int) {
                box.Add(part);
                return true;
            },
            [&](int i) { box.Add(m_series[i]); });
    }
    m_line.Add(x, m_yMap.ExactPosition(box.low));
    m_line.Add(x, m_yMap.ExactPosition(box.high));
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
