// SPDX-License-Identifier: MIT
// Reduction of a sorted series to the points that can change a pixel, column by column.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "chartdraw/core/ChartLine.h"
#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/ColumnBorders.h"
#include "chartdraw/core/ColumnEnds.h"

namespace kavlix {

/// Passes the points of a sorted series to a ChartLine and leaves out points that change no pixel: only points in
/// view and one on each side are read, and of many points in one pixel column only the first, lowest, highest and
/// last are passed on. The cost grows with the pixels and not with the points.
class SortedReduction {
public:
    /// The columns of `borders` are those of the view; a pen at a point outside must not paint a visible pixel.
    /// `yMap` is monotonic. `ends` receives the points of each column unless it is null. All arguments must outlive
    /// the object.
    SortedReduction(const ChartSeries& series, const ColumnBorders& borders, const AxisMap& yMap,
                    ChartLine& line, ColumnEnds* ends = nullptr)
        : m_points(series.Sorted()), m_borders(borders), m_rows(yMap), m_line(line), m_ends(ends),
          m_gapLimit(series.GapLimit()), m_reader(m_points) {}
    SortedReduction(const SortedReduction&) = delete;
    SortedReduction& operator=(const SortedReduction&) = delete;

    /// Passes on the whole series and ends the line.
    void Run();

private:
    void PrefetchAhead(int next, int end, int count) const;
    int EndOfColumn(int first, int end, int column, int guess);
    void AddColumn(int column, int first, int last);
    bool FindExtremes(IndexRange range, Extremes& extremes) const;
    void AddBetweenGaps(int column, int first, int last);
    void AddWithoutGap(int column, int first, int last, Extremes extremes);
    void AddAfterExtremes(int i, int column);
    void Add(int i, int column);
    void Continue(int i, int column);
    void AddOutside(int i);
    void EndAtStepGap(int i);
    void AddExactly(int i);
    bool HasStepGap(double from, double to) const { return to - from > m_gapLimit; }
    bool EndsAt(int i);
    int Row(double y) const { return std::clamp(m_rows.Of(y), -ChartLine::kNearest, ChartLine::kNearest); }

    const SortedPoints& m_points;
    const ColumnBorders& m_borders;
    AxisPixels m_rows;
    ChartLine& m_line;
    ColumnEnds* m_ends;
    double m_gapLimit;
    SortedPoints::Reader m_reader;
    int m_pending = -1; ///< the last point, if the line knows only its pixel
};

} // namespace kavlix
