// SPDX-License-Identifier: MIT
// FindNearestSample: the search for the sample nearest to a position, in the time of a few binary searches.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "chartdraw/core/PointBoxTree.h"
#include "plot/ValueBounds.h"

namespace kavlix {

/// A sample and the square of its distance.
struct NearestSample {
    int index = -1; ///< -1: there is none
    double distance = std::numeric_limits<double>::infinity();
};

/// The search in one series. `Along` and `Across` give the signed distances of an x and of a y from the position
/// that is looked for: functions that never change direction, NaN for values without a position. Samples are the
/// points whose values are finite and have a distance.
template <class Series, class Along, class Across> class SampleSearch {
public:
    /// `positiveOnly`: `across` is NaN for y of 0 and below.
    SampleSearch(const Series& series, const Along& along, const Across& across, bool positiveOnly)
        : m_series(series), m_along(along), m_across(across), m_positiveOnly(positiveOnly) {}

    /// The nearest sample, the first one of equally near ones. `x` is where `along` is 0, or near it.
    NearestSample Run(double x) {
        if (m_series.IsSorted())
            SearchSorted(x);
        else
            SearchUnsorted();
        return m_best;
    }

private:
    static constexpr int kFewest = 32; ///< parts of at most this number of points are read one by one

    /// Square of the distance of an interval, given the distances of its ends. 0 when one of them is unknown.
    static double OfInterval(double a, double b) {
        if (!((a < 0 && b < 0) || (a > 0 && b > 0)))
            return 0;
        const double nearest = std::min(std::fabs(a), std::fabs(b));
        return nearest * nearest;
    }

    void Try(int i) {
        const ChartPoint point = m_series[i];
        if (!std::isfinite(point.x) || !std::isfinite(point.y))
            return;
        const double dx = m_along(point.x);
        const double dy = m_across(point.y);
        const double distance = dx * dx + dy * dy;
        if (distance < m_best.distance || (distance == m_best.distance && i < m_best.index))
            m_best = {i, distance};
    }
    void TryAll(int first, int last) {
        for (int i = first; i <= last; ++i)
            Try(i);
    }

    // ---- Sorted: from the nearest x outwards, in parts of doubling size ----

    void SearchSorted(double x) {
        const int size = m_series.Size();
        int right = std::max(m_series.NearestInX(x), 0); // the next point to the right, and to the left
        if (right < size && std::isnan(m_along(m_series[right].x)))
            right = FirstWithPosition(right);
        int left = right - 1;
        for (int count = kFewest; right < size || left >= 0; count = std::min(2 * count, size)) {
            if (right < size && !IsWithinReach(right))
                right = size;
            if (left >= 0 && !IsWithinReach(left))
                left = -1;
            if (right < size) {
                const int last = count < size - right ? right + count - 1 : size - 1;
                SearchPart(right, last);
                right = last + 1;
            }
            if (left >= 0) {
                const int first = std::max(left - count + 1, 0);
                SearchPart(first, left);
                left = first - 1;
            }
        }
    }
    /// The first point from `first` on whose x has a position: on a logarithmic axis the first x above 0.
    int FirstWithPosition(int first) const {
        int end = m_series.Size();
        while (first < end) {
            const int middle = first + (end - first) / 2;
            if (std::isnan(m_along(m_series[middle].x)))
                first = middle + 1;
            else
                end = middle;
        }
        return first;
    }
    bool IsWithinReach(int i) const {
        const double dx = m_along(m_series[i].x);
        return dx * dx <= m_best.distance;
    }
    /// Least distance that points `first` to `last` can have; infinity when none of them is a sample.
    double Bound(int first, int last) const {
        const double from = m_series[first].x;
        const double to = m_series[last].x;
        const ValueBounds values = m_series.YBoundsBetween(from, to, m_positiveOnly);
        if (values.IsEmpty())
            return std::numeric_limits<double>::infinity();
        return OfInterval(m_along(from), m_along(to)) +
               OfInterval(m_across(values.min), m_across(values.max));
    }
    bool CanHoldNearest(double bound) const { return bound <= m_best.distance && std::isfinite(bound); }
    void SearchPart(int first, int last) {
        if (last - first < kFewest) {
            TryAll(first, last);
            return;
        }
        const int middle = first + (last - first) / 2;
        const double before = Bound(first, middle);
        const double behind = Bound(middle + 1, last);
        for (const bool isBefore : {before <= behind, before > behind}) // the nearer half first
            if (CanHoldNearest(isBefore ? before : behind))
                SearchPart(isBefore ? first : middle + 1, isBefore ? middle : last);
    }

    // ---- Unsorted: first in the block that can be nearest, then in all that can be nearer ----

    double Bound(const PointBox& box) const {
        return OfInterval(m_along(box.left), m_along(box.right)) +
               OfInterval(m_across(box.low), m_across(box.high));
    }
    void SearchUnsorted() {
        constexpr int kBlock = 1024;
        int first = 0;
        int last = -1;
        double nearest = std::numeric_limits<double>::infinity();
        m_series.Unsorted().Visit(
            0, m_series.Size(),
            [&](const PointBox& box, int from, int to) {
                if (to - from >= kBlock || box.HasGap())
                    return false;
                const double bound = Bound(box);
                if (bound < nearest) {
                    nearest = bound;
                    first = from;
                    last = to;
                }
                return true;
            },
            [&](int from, int behind) { TryAll(from, behind - 1); });
        SearchBoxes(first, last);
        SearchBoxes(0, m_series.Size() - 1);
    }
    void SearchBoxes(int first, int last) {
        m_series.Unsorted().Visit(
            first, last + 1,
            [&](const PointBox& box, int, int) { return !box.HasGap() && Bound(box) > m_best.distance; },
            [&](int from, int behind) { TryAll(from, behind - 1); });
    }

    const Series& m_series;
    const Along& m_along;
    const Across& m_across;
    bool m_positiveOnly;
    NearestSample m_best;
};

/// The sample of `series` nearest to a position: see SampleSearch.
template <class Series, class Along, class Across>
NearestSample FindNearestSample(const Series& series, double x, const Along& along, const Across& across,
                                bool positiveOnly) {
    return SampleSearch<Series, Along, Across>(series, along, across, positiveOnly).Run(x);
}

/// The sample whose x is nearest to `x`, the first one of equally near ones.
template <class Series> NearestSample FindNearestInX(const Series& series, double x) {
    return FindNearestSample(
        series, x, [x](double each) { return each - x; }, [](double) { return 0.0; }, false);
}

} // namespace kavlix
