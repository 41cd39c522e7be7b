#pragma once

#include "chartdraw/core/ChartLine.h"
#include "chartdraw/core/ChartSeries.h"
#include "plot/LinearMap.h"

namespace kavlix {

/// Hands the points of a series to a ChartLine at the cost of the pixels: of points that follow one another
/// in a pixel column only those that can change a pixel, of points that follow one another beyond the same
/// edge of the view the first and the last. The picture is that of all points, pixel for pixel. Only a line
/// that goes back and forth across the view is walked whole.
class ChartWalk {
public:
    /// `view` as the line's SeriesReduction has it. All references must outlive the walk.
    ChartWalk(const ChartSeries& series, const LinearMap& xMap, const LinearMap& yMap, const Rect& view,
              ChartLine& line)
        : m_series(series), m_xMap(xMap), m_yMap(yMap), m_view(view), m_line(line) {}
    ChartWalk(const ChartWalk&) = delete;
    ChartWalk& operator=(const ChartWalk&) = delete;

    /// Hands on the whole series and ends the line.
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
    int Row(double y) const { return ToCoordinate(m_yMap.ExactPosition(y)); }
    int LastElsewhere(int row) const;

    const ChartSeries& m_series;
    const LinearMap& m_xMap;
    const LinearMap& m_yMap;
    Rect m_view;
    ChartLine& m_line;

    // Points that follow one another in one column, none when m_last lies below m_first.
    int m_column = 0;
    int m_first = 0;
    int m_last = -1;
    double m_low = 0;
    double m_high = 0;
    // X values between these lie in m_column for certain; none where the one is not below the other.
    double m_columnBegin = 0;
    double m_columnEnd = 0;
};

} // namespace kavlix
