// SPDX-License-Identifier: MIT
// SortedReduction: the search for columns, and what is passed on of each.
#include "chartdraw/core/SortedReduction.h"

#include <algorithm>
#include <cmath>

#include "plot/ExtremesAccumulator.h"

namespace kavlix {
namespace {

constexpr int kFewInColumn = 4; // a column with at most this number of points passes on all of them
// Prefetch distance: columns with more points than this miss the cache, so their blocks are prefetched `kAhead`
// columns early.
constexpr int kPrefetchedColumn = 64;
constexpr int kAhead = 4;

} // namespace

void SortedReduction::Run() {
    const int size = m_points.Size();
    const bool isAscending = m_borders.IsAscending();
    // x of 0 and below have no position on a logarithmic axis.
    const int positioned = m_borders.Pixels().Map().IsLogarithmic() ? m_points.UpperBound(0) : 0;
    const int left = m_borders.Left();
    const int right = m_borders.Right();
    const auto isBefore = [&](double x) {
        return m_borders.Reaches(x, isAscending ? left : right) != isAscending;
    };
    const auto isNotBehind = [&](double x) {
        return m_borders.Reaches(x, isAscending ? right : left) != isAscending;
    };
    const int begin = std::max(m_points.Partition(isBefore), positioned);
    const int end = std::max(m_points.Partition(isNotBehind), begin);
    if (begin > positioned)
        AddOutside(begin - 1);
    int guess = 1;
    for (int i = begin; i < end;) {
        const int column = m_borders.Pixels().Of(m_reader.X(i));
        const int next = EndOfColumn(i, end, column, guess);
        guess = next - i;
        PrefetchAhead(next, end, guess);
        if (m_ends != nullptr)
            m_ends->Add(column, m_reader.X(i), m_reader.X(next - 1));
        AddColumn(column, i, next - 1);
        i = next;
    }
    if (end < size)
        AddOutside(end);
    m_line.End();
}

/// Prefetches what columns of `count` points read, some columns behind point `next`.
void SortedReduction::PrefetchAhead(int next, int end, int count) const {
    if (count <= kPrefetchedColumn)
        return;
    const std::int64_t summaries = next + std::int64_t{2 * kAhead} * count;
    if (summaries + count < end)
        m_points.PrefetchSummaries({static_cast<int>(summaries), static_cast<int>(summaries) + count});
    const std::int64_t border = next + std::int64_t{kAhead} * count;
    if (border < end)
        m_points.Prefetch(static_cast<int>(border));
}

/// The first point behind point `first` that has passed `column`; `end` when there is none. `guess` is the number
/// of points of the column before.
int SortedReduction::EndOfColumn(int first, int end, int column, int guess) {
    const auto isPast = [&](double x) { return m_borders.IsPast(x, column); };
    int next = first + 1;
    for (int few = guess <= kFewInColumn ? 2 * kFewInColumn : 0; few > 0; --few, ++next)
        if (next >= end || isPast(m_reader.X(next)))
            return next;
    for (; next < end;) {
        const SortedChunk& chunk = m_reader.ChunkAt(next);
        int inside = m_points.PlaceIn(chunk, next) - 1; // the place before may lie in the chunk before
        int outside = std::min(chunk.Size(), m_points.PlaceIn(chunk, end)) - 1;
        if (!isPast(outside + 1 == chunk.Size() ? chunk.LastX() : chunk.X(outside))) {
            next = m_points.IndexAt(chunk, outside) + 1;
            continue;
        }
        // Interpolation guesses the place; steps of growing size and a binary search find it.
        const double border = m_borders.EndOf(column);
        const double from = chunk.X(inside + 1);
        const double part = (border - from) / (chunk.X(outside) - from) * (outside - inside - 1);
        int probe = inside + 1 + TruncateToInt(part, 0, outside - inside - 1);
        int step = 1;
        if (isPast(chunk.X(probe))) {
            outside = probe;
            for (; outside - step > inside && isPast(chunk.X(outside - step)); step *= 2)
                outside -= step;
            inside = std::max(inside, outside - step);
        } else {
            inside = probe;
            for (; inside + step < outside && !isPast(chunk.X(inside + step)); step *= 2)
                inside += step;
            outside = std::min(outside, inside + step);
        }
        while (outside - inside > 1) {
            const int middle = inside + (outside - inside) / 2;
            (isPast(chunk.X(middle)) ? outside : inside) = middle;
        }
        return m_points.IndexAt(chunk, outside);
    }
    return end;
}

void SortedReduction::AddColumn(int column, int first, int last) {
    Extremes extremes;
    if (last - first < kFewInColumn)
        for (int i = first; i <= last; ++i)
            Add(i, column);
    else if (FindExtremes({first, last}, extremes))
        AddWithoutGap(column, first, last, extremes);
    else
        AddBetweenGaps(column, first, last);
}

/// The extremes of points. False when there may be a gap between or at these points.
bool SortedReduction::FindExtremes(IndexRange range, Extremes& extremes) const {
    ExtremesAccumulator values;
    bool mayHaveGap = false;
    const bool hasLimit = m_gapLimit < std::numeric_limits<double>::infinity();
    const auto look = [&](const Extremes& part, bool hasGap, double step) {
        mayHaveGap |= hasGap || step > m_gapLimit;
        values.Add(&part, 1);
        return true;
    };
    m_points.Visit(
        range,
        [&](const SortedChunk& chunk) {
            const SortedChunk::Summary& whole = chunk.Whole();
            return look(whole.values, whole.numbers < chunk.Size(), whole.largestStep);
        },
        [&](const SortedChunk& chunk, int k, int count, const Extremes& part, bool hasGap) {
            // A group's largest step is not known: look at its blocks.
            const double step = hasLimit ? SortedPoints::StepOfPart(chunk, k, count) : 0;
            return (step <= m_gapLimit || count == SortedChunk::kBlock) && look(part, hasGap, step);
        },
        [&](const SortedChunk& chunk, int from, int to) {
            values.Add(chunk.Ys() + from, to - from);
            for (int k = std::max(from, 1); hasLimit && k < to; ++k)
                mayHaveGap |= HasStepGap(chunk.X(k - 1), chunk.X(k));
        });
    if (hasLimit && !mayHaveGap)
        m_points.ForChunkStarts({range.first + 1, range.last},
                                [&](double before, double x) { mayHaveGap |= HasStepGap(before, x); });
    extremes = values.Result();
    return !mayHaveGap && !extremes.HasGap() && m_rows.HasPosition(extremes.low);
}

/// Passes on a column with gaps: the points between two gaps like a column of their own.
void SortedReduction::AddBetweenGaps(int column, int first, int last) {
    int begin = first; // the first point since the last gap
    Extremes extremes;
    const auto restart = [&](int at) {
        begin = at;
        extremes = {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    };
    const auto flush = [&](int end) {
        if (begin < end)
            AddWithoutGap(column, begin, end - 1, extremes);
    };
    const auto hasStepGap = [&](const SortedChunk& chunk, int k) {
        if (m_points.IndexAt(chunk, k) <= begin)
            return false;
        return HasStepGap(k > 0 ? chunk.X(k - 1) : m_points[m_points.IndexAt(chunk, k) - 1].x, chunk.X(k));
    };
    restart(first);
    const auto take = [&](const SortedChunk& chunk, int k, const Extremes& part, bool hasGap, double step) {
        if (hasGap || step > m_gapLimit || !m_rows.HasPosition(part.low) || hasStepGap(chunk, k))
            return false;
        extremes = {std::min(extremes.low, part.low), std::max(extremes.high, part.high)};
        return true;
    };
    m_points.Visit(
        {first, last},
        [&](const SortedChunk& chunk) {
            const SortedChunk::Summary& whole = chunk.Whole();
            return take(chunk, 0, whole.values, whole.numbers < chunk.Size(), whole.largestStep);
        },
        [&](const SortedChunk& chunk, int k, int count, const Extremes& part, bool hasGap) {
            return take(chunk, k, part, hasGap, SortedPoints::StepOfPart(chunk, k, count));
        },
        [&](const SortedChunk& chunk, int from, int to) {
            for (int k = from; k < to; ++k) {
                const int i = m_points.IndexAt(chunk, k);
                const double y = chunk.Y(k);
                if (!m_rows.HasPosition(y)) {
                    flush(i);
                    m_line.End();
                    restart(i + 1);
                    continue;
                }
                if (hasStepGap(chunk, k)) {
                    flush(i); // Add ends the line before point `i`
                    restart(i);
                }
                extremes = {std::min(extremes.low, y), std::max(extremes.high, y)};
            }
        });
    flush(last + 1);
}

/// Passes on consecutive points of a column without a gap, whose y lie between `extremes`: the first, the two
/// extreme pixels, and the last point.
void SortedReduction::AddWithoutGap(int column, int first, int last, Extremes extremes) {
    if (last - first < kFewInColumn) {
        for (int i = first; i <= last; ++i)
            Add(i, column);
        return;
    }
    Add(first, column);
    int before = -1;
    if (EndsAt(last)) {
        // GDI does not paint the last pixel of a line. It is painted only if an earlier point lies in the same
        // row and the line then leaves the row. So take the extremes only of the points up to the last one in
        // another row.
        const int row = m_rows.Of(m_reader.Y(last));
        const auto found = m_points.FindLast(
            {first, last},
            [&](const Extremes& part, bool hasGap, double) {
                return !hasGap && m_rows.Of(part.low) == row && m_rows.Of(part.high) == row;
            },
            [&](const SortedChunk& chunk, int k) { return m_rows.Of(chunk.Y(k)) != row; });
        if (!found) {
            Continue(last, column); // a wide pen draws a stroke without length as a dot
            return;
        }
        before = *found;
        // There is no gap before `last`, whatever the result says.
        static_cast<void>(FindExtremes({first, before}, extremes));
    }
    m_line.AddBetween({column, Row(extremes.low)});
    m_line.AddBetween({column, Row(extremes.high)});
    if (before >= 0)
        AddAfterExtremes(before, column);
    AddAfterExtremes(last, column);
}

/// Passes on a point of a column whose extremes the line has visited. A point that is not near breaks the path, and
/// the last pixel of a path is not painted: so the path first leaves the extreme pixel.
void SortedReduction::AddAfterExtremes(int i, int column) {
    const int row = Row(m_reader.Y(i));
    if (std::abs(row) == ChartLine::kNearest)
        m_line.AddBetween({column, row});
    Continue(i, column);
}

/// Whether the line ends at point `i`.
bool SortedReduction::EndsAt(int i) {
    return i + 1 == m_points.Size() || !m_rows.HasPosition(m_reader.Y(i + 1)) ||
           HasStepGap(m_reader.X(i), m_reader.X(i + 1));
}

/// Passes on point `i`, whose column is known. A step gap before it ends the line.
void SortedReduction::Add(int i, int column) {
    EndAtStepGap(i);
    Continue(i, column);
}

/// As Add, for a point without a gap before it.
void SortedReduction::Continue(int i, int column) {
    const double y = m_reader.Y(i);
    const int row = m_rows.Of(y);
    if (m_rows.HasPosition(y) && std::abs(row) < ChartLine::kNearest && m_line.AddNear({column, row}))
        m_pending = i;
    else
        AddExactly(i);
}

/// Passes on a point outside the view.
void SortedReduction::AddOutside(int i) {
    EndAtStepGap(i);
    AddExactly(i);
}

void SortedReduction::EndAtStepGap(int i) {
    if (m_gapLimit < std::numeric_limits<double>::infinity() && i > 0 &&
        HasStepGap(m_reader.X(i - 1), m_reader.X(i)))
        m_line.End();
}

void SortedReduction::AddExactly(int i) {
    const AxisMap& xMap = m_borders.Pixels().Map();
    const AxisMap& yMap = m_rows.Map();
    if (m_ends != nullptr && std::abs(yMap.ExactPosition(m_reader.Y(i))) >= ChartLine::kNearest)
        m_ends->AddFar();
    if (m_pending >= 0)
        m_line.SetLast(xMap.ExactPosition(m_reader.X(m_pending)), yMap.ExactPosition(m_reader.Y(m_pending)));
    m_pending = -1;
    m_line.Add(xMap.ExactPosition(m_reader.X(i)), yMap.ExactPosition(m_reader.Y(i)));
}

} // namespace kavlix
