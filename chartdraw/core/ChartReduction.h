// SPDX-License-Identifier: MIT
// Reduction of a series to the points that can change a pixel.
#pragma once

#include "chartdraw/core/ChartLine.h"
#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/ColumnBorders.h"
#include "chartdraw/core/ColumnEnds.h"
#include "plot/AxisMap.h"

namespace kavlix {

/// Passes the points of a series to `line` and leaves out points that change no pixel. The picture is the same,
/// pixel for pixel, as that of all points. Where x ascends, the cost grows with the pixels and not with the points.
/// A pen at a point outside `view` must not paint a visible pixel. `borders` are those of the columns of `view`.
/// `ends` receives the points of each column of a sorted series with monotonic maps, unless it is null.
void Reduce(const ChartSeries& series, const ColumnBorders& borders, const AxisMap& yMap, const Rect& view,
            ChartLine& line, ColumnEnds* ends = nullptr);

/// The reduction of an unsorted series. For many consecutive points in one pixel column, only a few points are
/// passed on, among them the extremes; for a block of points (see PointBoxTree) beyond one edge of the view, only
/// the first and the last. Lines that go back and forth between columns are passed on point by point.
class ChartReduction {
public:
    /// Arguments as of Reduce. The object copies `view`; all other arguments must outlive the object.
    ChartReduction(const UnsortedPoints& points, const AxisMap& xMap, const AxisMap& yMap, const Rect& view,
                   ChartLine& line)
        : m_points(points), m_xMap(xMap), m_yMap(yMap), m_rows(yMap), m_view(view), m_line(line) {}
    ChartReduction(const ChartReduction&) = delete;
    ChartReduction& operator=(const ChartReduction&) = delete;

    /// Passes on the whole series and ends the line.
    void Run();

private:
    bool TakeBox(const PointBox& box, int first, int last);
    void TakePoints(int first, int behind);
    void TakePoint(int i, const ChartPoint& point);
    bool IsInColumn(double x) const { return x > m_columnBegin && x < m_columnEnd; }
    bool IsBeyond(double left, double right, const PointBox& box) const;
    void Extend(int column, int first, int last, double low, double high);
    void FlushColumn();
    void AddColumn(int bottom, int top);
    void Add(int i);
    int Row(double y) const { return m_rows.Of(y); }
    int LastElsewhere(int row) const;

    const UnsortedPoints& m_points;
    const AxisMap& m_xMap;
    const AxisMap& m_yMap;
    AxisPixels m_rows;
    Rect m_view;
    ChartLine& m_line;

    // The open column: consecutive points in one pixel column that are not passed on yet.
    int m_column = 0;
    int m_first = 0; ///< index of the first point
    int m_last = -1; ///< index of the last point; less than m_first when there is no open column
    double m_low = 0;
    double m_high = 0;
    // Values of x between m_columnBegin and m_columnEnd certainly lie in m_column. When there are no such
    // values, m_columnBegin is not below m_columnEnd.
    double m_columnBegin = 0;
    double m_columnEnd = 0;
};

} // namespace kavlix
