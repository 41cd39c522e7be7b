// SPDX-License-Identifier: MIT
// ChartSeries: the points of one dataset, with what painting and scales need to know about them.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>

#include "chartdraw/core/PointBoxTree.h"
#include "chartdraw/core/SortedPoints.h"
#include "chartdraw/core/StepHistogram.h"
#include "chartdraw/core/UnsortedPoints.h"
#include "plot/IndexRange.h"
#include "plot/Numeric.h"
#include "plot/ValueBounds.h"

namespace kavlix {

/// What is known about the numbers of a range of points. Without numbers all values are NaN.
struct SpanStatistics {
    std::int64_t count = 0; ///< values that are not NaN
    double min = std::numeric_limits<double>::quiet_NaN();
    double max = std::numeric_limits<double>::quiet_NaN();
    double mean = std::numeric_limits<double>::quiet_NaN();
    double first = std::numeric_limits<double>::quiet_NaN(); ///< the first of these values
    double last = std::numeric_limits<double>::quiet_NaN();  ///< the last of these values
};

/// The points of a dataset. Measurements over time come with x in order: a series is sorted as long as x never
/// decreases and is never NaN. At the first point that breaks this rule, all points are copied once into
/// another store, in order of arrival, and the series stays unsorted until Clear or Assign.
///
/// A y of NaN is a gap. So is a step of x that is larger than the gap limit, in a sorted series.
///
/// Append, AppendEven, Insert and Assign throw std::bad_alloc, with nothing changed, when memory runs out or an
/// int cannot count the points. No other function fails, unless its comment says so.
class ChartSeries {
public:
    using Value = ChartPoint;

    // ---- Points ----

    int Size() const { return m_unsorted ? m_unsorted->Size() : m_sorted.Size(); }
    /// Point `i`, which must exist.
    ChartPoint operator[](int i) const { return m_unsorted ? (*m_unsorted)[i] : m_sorted[i]; }
    /// Whether x never decreases and is never NaN.
    bool IsSorted() const { return m_unsorted == nullptr; }
    /// Adds a point behind the last one.
    void Append(double x, double y);
    /// Adds a point that may be late: in a sorted series at its place by x, behind points with the same x; in
    /// an unsorted series behind the last one. The result is its index; -1 when the history limit removes it.
    int Insert(double x, double y);
    /// Changes y of the last point. False without points.
    bool ReplaceLast(double y);
    /// Replaces all points by `count` new points. If `pX` is null, each point's x is its index.
    void Assign(const double* pX, const double* pY, int count);
    /// Removes all points and frees their memory. Limits, gaps and the rule of SetEven stay.
    void Clear();
    /// Removes the first `count` points; all when there are fewer.
    void RemoveHead(int count);
    /// Number of points removed from the head since the last Clear or Assign.
    std::int64_t Dropped() const { return m_dropped; }

    /// A number of this state of points and gaps, which no other state of any series in the process has had.
    std::uint64_t Stamp() const;

    /// Keeps at most the last `count` points, and of these the points from the last x - `span` on; 0 is no
    /// limit. The limits apply at once and at each new point.
    void SetLimit(int count, double span);

    /// For an empty series: lets AppendEven compute x as `start` + i * `step`, where i counts the points of
    /// AppendEven since the last Clear. False, with nothing changed, for a series with points, for a step of 0
    /// and below, and for infinite numbers and NaN. By default x is the index.
    bool SetEven(double start, double step);
    /// Adds a point whose x is computed, see SetEven.
    void AppendEven(double y);

    // ---- Gaps ----

    /// A step of x larger than `dx` is a gap; 0 turns this off.
    void SetGapLimit(double dx);
    /// A step of x larger than `k` times the median step is a gap; 0 turns this off. The median is known to 1 %.
    /// Throws std::bad_alloc, with nothing changed.
    void SetGapFactor(double k);
    /// The smaller of the two limits; infinity when both are off or the series is unsorted.
    double GapLimit() const;
    /// Whether the step from point `i` - 1 to point `i` is a gap.
    bool IsGapBefore(int i) const {
        const double limit = GapLimit();
        return limit < std::numeric_limits<double>::infinity() && i > 0 &&
               (*this)[i].x - (*this)[i - 1].x > limit;
    }

    // ---- Queries ----

    /// Bounds of the points whose x and y are both finite.
    const ValueBounds& XBounds() const { return Bounds().x; }
    const ValueBounds& YBounds() const { return Bounds().y; }
    /// Bounds of the x, and of the y, above 0 of these points.
    const ValueBounds& PositiveXBounds() const { return Bounds().positiveX; }
    const ValueBounds& PositiveYBounds() const { return Bounds().positiveY; }
    /// Bounds of the finite y, or of those above 0, of the points with `xMin` <= x <= `xMax`.
    ValueBounds YBoundsBetween(double xMin, double xMax, bool positiveOnly) const;
    /// The points with `xMin` <= x <= `xMax`; of an unsorted series all points.
    IndexRange IndicesBetween(double xMin, double xMax) const;
    /// The point whose x is nearest to `x`, the first one of equally near points; -1 when there is none.
    int NearestInX(double x) const;
    /// Statistics of the points of `range`, which exist. NaN values are left out.
    SpanStatistics StatisticsOf(IndexRange range) const;
    /// Number of points of `range` whose y is 0 or below.
    std::int64_t CountNotPositive(IndexRange range) const;

    // ---- For painters ----

    const SortedPoints& Sorted() const { return m_sorted; }        ///< the points of a sorted series
    const UnsortedPoints& Unsorted() const { return *m_unsorted; } ///< the points of an unsorted series

private:
    struct PointBounds {
        ValueBounds x, y, positiveX, positiveY;
    };

    const PointBounds& Bounds() const {
        if (!m_isXKnown || !m_isYKnown)
            FindBounds();
        return m_bounds;
    }
    bool StepsBack(double x) const { return !(x >= (m_sorted.IsEmpty() ? -kInfinity : m_sorted.LastX())); }
    void CheckRoom() const;
    void PrepareStep(double from, double to) {
        if (m_gapFactor > 0)
            m_steps.Prepare(to - from);
    }
    void CountStep(double from, double to, int count);
    void FinishAppend(double x, double y);
    void AppendUnsorted(double x, double y);
    void EnforceLimit();
    void AddToBounds(double x, double y) const;
    void ForgetBoundsOf(const ChartPoint& point) const;
    void FindBounds() const;
    ValueBounds XBoundsOf(IndexRange range) const;
    int EndNumber(IndexRange range, bool first) const;
    ValueBounds YBoundsOf(IndexRange range, bool positiveOnly) const;

    SortedPoints m_sorted;
    std::unique_ptr<UnsortedPoints> m_unsorted; ///< null while the series is sorted
    std::int64_t m_dropped = 0;
    mutable std::uint64_t m_stamp = 0; ///< 0: points or gaps have changed since the last Stamp
    int m_countLimit = 0;
    double m_spanLimit = 0;
    SortedChunk::Formula m_even; ///< x of the next point of AppendEven
    double m_gapLimit = 0;
    double m_gapFactor = 0;
    StepHistogram m_steps; ///< the steps of a sorted series, while a gap factor is set
    mutable std::optional<double> m_effectiveGapLimit;
    mutable PointBounds m_bounds;
    mutable bool m_isXKnown = true; ///< m_bounds.x and positiveX are those of the points
    mutable bool m_isYKnown = true; ///< m_bounds.y and positiveY are those of the points
};

} // namespace kavlix
