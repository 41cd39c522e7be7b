// SPDX-License-Identifier: MIT
// PannedColumns: the comparison of columns before and after a pan.
#include "chartdraw/core/PannedColumns.h"

#include <algorithm>
#include <cmath>

#include "chartdraw/core/AxisPixels.h"
#include "chartdraw/core/ChartLine.h"

namespace kavlix {
namespace {

constexpr double kWhole = 0.01; // pixels that a move differs at most from a whole number
constexpr int kMostMoved =
    32; // columns with points that rounding has moved; with more, painting all is faster
constexpr int kLeastPart = 2; // at least 1 / kLeastPart of the picture is kept

/// Collects the columns to paint.
class Search {
public:
    Search(const PannedPlot& plot, const std::vector<const SortedPoints*>& lines)
        : m_plot(plot), m_lines(lines), m_before(plot.before), m_after(plot.after),
          m_begin(std::max(plot.left, plot.left - plot.shift)),
          m_end(std::min(plot.right, plot.right - plot.shift)) {}

    std::optional<std::vector<ColumnSpan>> Run(const ColumnEnds& ends) {
        Add(m_plot.left, m_begin);
        Add(m_end, m_plot.right);
        int moved = 0;
        for (int column = m_begin; column < m_end; ++column) {
            const ColumnEnds::Ends& each = ends.Of(column + m_plot.shift);
            if (each.IsEmpty() || (m_after.Of(each.low) == column && m_after.Of(each.high) == column))
                continue;
            if (++moved > kMostMoved)
                return std::nullopt;
            AddAround(column);
        }
        const bool isAscending = m_plot.before.IsAscending();
        for (const SortedPoints* line : m_lines) {
            CheckStroke(*line, FirstAt(*line, isAscending ? m_begin : m_end - 1));
            CheckStroke(*line, FirstBehind(*line, isAscending ? m_end - 1 : m_begin));
        }
        return Joined();
    }

private:
    /// The column of the picture before, moved.
    int Moved(double x) const { return m_before.Of(x) - m_plot.shift; }
    /// The first point in `column` of the moved picture or behind it, and the first one behind it, in order of x.
    int FirstAt(const SortedPoints& line, int column) const {
        const bool isAscending = m_plot.before.IsAscending();
        return line.Partition([&](double x) { return isAscending ? Moved(x) < column : Moved(x) > column; });
    }
    int FirstBehind(const SortedPoints& line, int column) const {
        const bool isAscending = m_plot.before.IsAscending();
        return line.Partition(
            [&](double x) { return isAscending ? Moved(x) <= column : Moved(x) >= column; });
    }
    bool IsNear(double x) const {
        return ChartLine::IsNear(m_plot.before.ExactPosition(x)) &&
               ChartLine::IsNear(m_plot.after.ExactPosition(x));
    }
    void Add(int from, int to) {
        m_spans.push_back(
            {std::max(from - m_plot.reach, m_plot.left), std::min(to + m_plot.reach, m_plot.right)});
    }
    /// Adds the columns from those of point `first` to those of point `last`.
    void AddBetween(const SortedPoints& line, int first, int last) {
        const double a = line[first].x;
        const double b = line[last].x;
        const auto [low, high] = std::minmax({Moved(a), m_after.Of(a), Moved(b), m_after.Of(b)});
        Add(low, high + 1);
    }
    /// Adds the strokes to and from the points of a column.
    void AddAround(int column) {
        Add(column, column + 1);
        for (const SortedPoints* line : m_lines) {
            const int first = FirstAt(*line, column);
            const int behind = FirstBehind(*line, column);
            if (first < behind)
                AddBetween(*line, std::max(first - 1, 0), std::min(behind, line->Size() - 1));
        }
    }
    /// Adds the stroke from point `i` - 1 to point `i`, if there is one, unless both ends move by the shift.
    void CheckStroke(const SortedPoints& line, int i) {
        if (i <= 0 || i >= line.Size())
            return;
        for (const int end : {i - 1, i}) {
            const double x = line[end].x;
            if (!IsNear(x) || Moved(x) != m_after.Of(x)) {
                AddBetween(line, i - 1, i);
                return;
            }
        }
    }
    /// The collected columns, in order and joined; empty when they are most of the plot.
    std::optional<std::vector<ColumnSpan>> Joined() {
        std::sort(m_spans.begin(), m_spans.end(),
                  [](const ColumnSpan& a, const ColumnSpan& b) { return a.from < b.from; });
        std::vector<ColumnSpan> joined;
        int columns = 0;
        for (const ColumnSpan& span : m_spans) {
            if (span.from >= span.to)
                continue;
            if (!joined.empty() && span.from <= joined.back().to)
                joined.back().to = std::max(joined.back().to, span.to);
            else
                joined.push_back(span);
        }
        for (const ColumnSpan& span : joined)
            columns += span.to - span.from;
        if (columns > (m_plot.right - m_plot.left) / kLeastPart)
            return std::nullopt;
        return joined;
    }

    const PannedPlot& m_plot;
    const std::vector<const SortedPoints*>& m_lines;
    AxisPixels m_before;
    AxisPixels m_after;
    int m_begin; ///< the columns of which both pictures have pixels
    int m_end;
    std::vector<ColumnSpan> m_spans;
};

} // namespace

std::optional<int> PannedBy(const AxisMap& before, const AxisMap& after) {
    const LinearMap& from = before.Linear();
    const LinearMap& to = after.Linear();
    if (before.IsLogarithmic() || after.IsLogarithmic() || !before.IsMonotonic() || !after.IsMonotonic() ||
        from.Edge() != to.Edge())
        return std::nullopt;
    const double shift = (to.Min() - from.Min()) * from.Slope();
    const double whole = std::round(shift);
    // How far the widths differ, over the range.
    const double extent = from.Slope() * from.Range();
    const double stretch = to.Slope() * from.Range() - extent;
    if (!(std::abs(shift - whole) <= kWhole) || !(std::abs(stretch) <= kWhole) ||
        !(std::abs(whole) <= std::abs(extent)))
        return std::nullopt;
    return static_cast<int>(whole);
}

std::optional<std::vector<ColumnSpan>> ColumnsToPaint(const PannedPlot& plot, const ColumnEnds& ends,
                                                      const std::vector<const SortedPoints*>& lines) {
    if (ends.HasFar() || std::abs(plot.shift) >= plot.right - plot.left)
        return std::nullopt;
    return Search(plot, lines).Run(ends);
}

} // namespace kavlix
