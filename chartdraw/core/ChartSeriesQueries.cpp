// SPDX-License-Identifier: MIT
// ChartSeries: bounds, statistics and searches, from the summaries of blocks and chunks.
#include "chartdraw/core/ChartSeries.h"

#include <algorithm>
#include <cmath>

namespace kavlix {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

/// Adds the finite values, or those above 0, of a part with the given extremes. False when the values must be
/// read. `positiveLow` is the smallest value above 0, or NaN when it is unknown.
bool AddPart(ValueBounds& bounds, const Extremes& values, bool positiveOnly, double positiveLow) {
    if (values.low > values.high || (positiveOnly && values.high <= 0))
        return true;
    const double low = !positiveOnly || values.low > 0 ? values.low : positiveLow;
    if (!std::isfinite(low) || !std::isfinite(values.high))
        return false;
    bounds.Add(low);
    bounds.Add(values.high);
    return true;
}

} // namespace

ValueBounds ChartSeries::YBoundsOf(IndexRange range, bool positiveOnly) const {
    ValueBounds bounds;
    m_sorted.Visit(
        range,
        [&](const SortedChunk& chunk) {
            return AddPart(bounds, chunk.Whole().values, positiveOnly, chunk.Whole().positiveLow);
        },
        [&](const SortedChunk&, int, int, const Extremes& values, bool) {
            return AddPart(bounds, values, positiveOnly, std::nan(""));
        },
        [&](const SortedChunk& chunk, int from, int to) {
            for (int k = from; k < to; ++k)
                if (std::isfinite(chunk.Y(k)) && (!positiveOnly || chunk.Y(k) > 0))
                    bounds.Add(chunk.Y(k));
        });
    return bounds;
}

ValueBounds ChartSeries::YBoundsBetween(double xMin, double xMax, bool positiveOnly) const {
    if (IsSorted())
        return YBoundsOf(IndicesBetween(std::max(xMin, -kLargest), std::min(xMax, kLargest)), positiveOnly);
    ValueBounds bounds;
    const auto isWanted = [=](const ChartPoint& point) {
        return point.x >= xMin && point.x <= xMax && std::isfinite(point.x) && std::isfinite(point.y) &&
               (!positiveOnly || point.y > 0);
    };
    m_unsorted->Visit(
        0, Size(),
        [&](const PointBox& box, int, int) {
            if (box.left > xMax || box.right < xMin)
                return true;
            return box.left >= std::max(xMin, -kLargest) && box.right <= std::min(xMax, kLargest) &&
                   AddPart(bounds, {box.low, box.high}, positiveOnly, std::nan(""));
        },
        [&](int first, int behind) {
            for (int i = first; i < behind; ++i)
                if (isWanted((*m_unsorted)[i]))
                    bounds.Add((*m_unsorted)[i].y);
        });
    return bounds;
}

IndexRange ChartSeries::IndicesBetween(double xMin, double xMax) const {
    if (!IsSorted())
        return {0, Size() - 1};
    if (!(xMin <= xMax))
        return {};
    return {m_sorted.LowerBound(xMin), m_sorted.UpperBound(xMax) - 1};
}

void ChartSeries::AddToBounds(double x, double y) const {
    if (!std::isfinite(x) || !std::isfinite(y))
        return;
    if (m_isXKnown) {
        m_bounds.x.Add(x);
        if (x > 0)
            m_bounds.positiveX.Add(x);
    }
    if (m_isYKnown) {
        m_bounds.y.Add(y);
        if (y > 0)
            m_bounds.positiveY.Add(y);
    }
}

/// A point is removed or changes: the bounds are searched again if they may depend on it.
void ChartSeries::ForgetBoundsOf(const ChartPoint& point) const {
    const ValueBounds& y = m_bounds.y;
    if (point.y <= y.min || point.y >= y.max || (point.y > 0 && point.y <= m_bounds.positiveY.min))
        m_isYKnown = false;
    if (point.x <= m_bounds.x.min || point.x >= m_bounds.x.max)
        m_isXKnown = false;
}

void ChartSeries::FindBounds() const {
    if (IsSorted()) {
        const IndexRange all = IndicesBetween(-kLargest, kLargest);
        if (!m_isYKnown) {
            m_bounds.y = YBoundsOf(all, false);
            m_bounds.positiveY = YBoundsOf(all, true);
        }
        m_bounds.x = XBoundsOf(all);
        m_bounds.positiveX = XBoundsOf({m_sorted.UpperBound(0), all.last});
        m_isXKnown = m_isYKnown = true;
        return;
    }
    m_bounds = PointBounds();
    m_isXKnown = m_isYKnown = true;
    for (int i = 0; i < Size(); ++i)
        AddToBounds((*this)[i].x, (*this)[i].y);
}

/// Bounds of the x of those points of `range`, whose x are finite, whose y are finite too.
ValueBounds ChartSeries::XBoundsOf(IndexRange range) const {
    const auto isUnwanted = [](const Extremes& values, bool, double) { return values.low > values.high; };
    const auto isFinite = [](const SortedChunk& chunk, int k) { return std::isfinite(chunk.Y(k)); };
    ValueBounds bounds;
    if (const auto first = m_sorted.FindFirst(range, isUnwanted, isFinite)) {
        bounds.Add(m_sorted[*first].x);
        bounds.Add(m_sorted[*m_sorted.FindLast(range, isUnwanted, isFinite)].x);
    }
    return bounds;
}

int ChartSeries::NearestInX(double x) const {
    if (Size() == 0 || x != x)
        return -1;
    if (IsSorted()) {
        const int after = m_sorted.LowerBound(x);
        if (after == 0)
            return 0;
        const double before = m_sorted[after - 1].x;
        return after == Size() || x - before <= m_sorted[after].x - x ? m_sorted.LowerBound(before) : after;
    }
    int nearest = -1;
    double least = 0;
    for (int i = 0; i < Size(); ++i) {
        const double distance = std::abs((*this)[i].x - x);
        if (distance < least || (nearest < 0 && distance == distance)) {
            nearest = i;
            least = distance;
        }
    }
    return nearest;
}

SpanStatistics ChartSeries::StatisticsOf(IndexRange range) const {
    SpanStatistics statistics;
    ValueBounds bounds;
    double sum = 0;
    const auto add = [&](double y) {
        if (y != y)
            return;
        ++statistics.count;
        sum += y;
        bounds.Add(y);
    };
    if (IsSorted()) {
        m_sorted.Visit(
            range,
            [&](const SortedChunk& chunk) {
                const SortedChunk::Summary& whole = chunk.Whole();
                statistics.count += whole.numbers;
                sum += whole.sum;
                bounds.Add(ValueBounds{whole.values.low, whole.values.high});
                return true;
            },
            [](const SortedChunk&, int, int, const Extremes&, bool) { return false; },
            [&](const SortedChunk& chunk, int from, int to) {
                std::for_each(chunk.Ys() + from, chunk.Ys() + to, add);
            });
    } else {
        for (int i = range.first; i <= range.last; ++i)
            add((*this)[i].y);
    }
    if (statistics.count == 0)
        return statistics;
    statistics.min = bounds.min;
    statistics.max = bounds.max;
    statistics.mean = sum / static_cast<double>(statistics.count);
    statistics.first = (*this)[EndNumber(range, true)].y;
    statistics.last = (*this)[EndNumber(range, false)].y;
    return statistics;
}

/// The first or the last point of `range` whose y is a number; there is one.
int ChartSeries::EndNumber(IndexRange range, bool first) const {
    if (!IsSorted()) {
        int i = first ? range.first : range.last;
        while (std::isnan((*this)[i].y))
            i += first ? 1 : -1;
        return i;
    }
    const auto isUnwanted = [](const Extremes& values, bool, double) { return values.low > values.high; };
    const auto isNumber = [](const SortedChunk& chunk, int k) { return !std::isnan(chunk.Y(k)); };
    return first ? *m_sorted.FindFirst(range, isUnwanted, isNumber)
                 : *m_sorted.FindLast(range, isUnwanted, isNumber);
}

std::int64_t ChartSeries::CountNotPositive(IndexRange range) const {
    std::int64_t count = 0;
    if (!IsSorted()) {
        for (int i = range.first; i <= range.last; ++i)
            count += (*this)[i].y <= 0 ? 1 : 0;
        return count;
    }
    m_sorted.Visit(
        range,
        [&](const SortedChunk& chunk) {
            count += chunk.Whole().notPositive;
            return true;
        },
        [](const SortedChunk&, int, int, const Extremes& values, bool) { return !(values.low <= 0); },
        [&](const SortedChunk& chunk, int from, int to) {
            for (int k = from; k < to; ++k)
                count += chunk.Y(k) <= 0 ? 1 : 0;
        });
    return count;
}

} // namespace kavlix
