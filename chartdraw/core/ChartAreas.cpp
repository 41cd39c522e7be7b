// SPDX-License-Identifier: MIT
// Bars column by column, from the extremes of the points that each column shows; outlines of areas.
#include "chartdraw/core/ChartAreas.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "chartdraw/core/ChartReduction.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

/// The extremes of the values with a position; low > high when there is none.
Extremes ExtremesOnAxis(const SortedPoints& points, IndexRange range, const AxisPixels& rows) {
    Extremes all = {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    const auto take = [&](const Extremes& part) {
        if (part.low <= part.high && !rows.HasPosition(part.low))
            return false;
        all = {std::min(all.low, part.low), std::max(all.high, part.high)};
        return true;
    };
    points.Visit(
        range, [&](const SortedChunk& chunk) { return take(chunk.Whole().values); },
        [&](const SortedChunk&, int, int, const Extremes& part, bool) { return take(part); },
        [&](const SortedChunk& chunk, int from, int to) {
            for (int k = from; k < to; ++k)
                if (rows.HasPosition(chunk.Y(k)))
                    take({chunk.Y(k), chunk.Y(k)});
        });
    return all;
}

/// Covers a bar in one column, to the rows of two values.
void CoverBar(ColumnRows& rows, int column, int base, int a, int b) {
    rows.Cover(column, std::min({base, a, b}), std::max({base, a, b}));
}

} // namespace

std::optional<int> BaselineRow(const AxisMap& yMap, double baseline) {
    const std::optional<int> row = yMap.Position(baseline);
    if (!row && yMap.IsLogarithmic() && yMap.IsMonotonic())
        return yMap.Linear().Edge();
    return row;
}

BarShape::Columns BarShape::At(double x) const {
    if (m_pixels > 0) {
        const int left = ToCoordinate(m_xMap.ExactPosition(x)) - m_pixels / 2;
        return {left, left + m_pixels};
    }
    // On a logarithmic axis the beginning of a wide bar has no position: it lies before all values.
    const auto positionOf = [this](double value) {
        const int before = m_xMap.IsAscending() ? -kCoordinateLimit : kCoordinateLimit;
        return m_xMap.Position(value).value_or(before);
    };
    const int a = positionOf(x - m_half);
    const int b = positionOf(x + m_half);
    return {std::min(a, b), std::max(std::max(a, b), std::min(a, b) + 1)};
}

void CoverBars(const ChartSeries& series, const BarShape& bars, const AxisMap& yMap, int base,
               ColumnRows& rows) {
    const AxisPixels pixels(yMap);
    const AxisMap& xMap = bars.XMap();
    if (!xMap.IsMonotonic() || !yMap.IsMonotonic())
        return;
    if (!series.IsSorted()) {
        for (int i = 0; i < series.Size(); ++i) {
            const ChartPoint point = series[i];
            if (!pixels.HasPosition(point.y) || !xMap.Position(point.x))
                continue;
            const BarShape::Columns columns = bars.At(point.x);
            const int row = pixels.Of(point.y);
            for (int x = std::max(columns.left, rows.Left()); x < std::min(columns.right, rows.Right()); ++x)
                CoverBar(rows, x, base, row, row);
        }
        return;
    }
    // A column shows the bars of consecutive points, because the edges of bars move in one direction.
    const SortedPoints& points = series.Sorted();
    const bool isAscending = xMap.IsAscending();
    const AxisPixels xPixels(xMap);
    const int positioned = xMap.IsLogarithmic() ? points.UpperBound(0) : 0;
    for (int column = rows.Left(); column < rows.Right(); ++column) {
        const auto isBefore = [&](double x) {
            const BarShape::Columns columns = bars.At(x);
            return !xPixels.HasPosition(x) || (isAscending ? columns.right <= column : columns.left > column);
        };
        const auto isNotBehind = [&](double x) {
            const BarShape::Columns columns = bars.At(x);
            return !xPixels.HasPosition(x) || (isAscending ? columns.left <= column : columns.right > column);
        };
        const int first = std::max(points.Partition(isBefore), positioned);
        const int behind = points.Partition(isNotBehind);
        const Extremes extremes = ExtremesOnAxis(points, {first, behind - 1}, pixels);
        if (extremes.low <= extremes.high)
            CoverBar(rows, column, base, pixels.Of(extremes.low), pixels.Of(extremes.high));
    }
}

void CoverLine(const ChartSeries& series, const ColumnBorders& borders, const AxisMap& yMap, bool isStepped,
               ColumnRows& rows) {
    PixelSet lonePixels({0, 0, 0, 0});
    ChartLine line(rows, lonePixels, isStepped ? ChartLine::SteppedOutline : ChartLine::Outline);
    // No row lies above or below this view.
    const Rect view{borders.Left(), -kCoordinateLimit, borders.Right(), kCoordinateLimit + 1};
    Reduce(series, borders, yMap, view, line);
}

} // namespace kavlix
