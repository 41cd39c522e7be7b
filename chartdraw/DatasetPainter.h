// SPDX-License-Identifier: MIT
// DatasetPainter: draws the lines and markers of a chart's datasets.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>

#include <cstdint>
#include <optional>

#include "chartdraw/core/ChartSeries.h"
#include "chartdraw/core/ColumnBorders.h"
#include "plot/AxisMap.h"
#include "plot/PixelRaster.h"

namespace kavlix {

class BarShape;
class ColumnEnds;
class ColumnRows;
class PixelPath;
class PixelSet;

/// A dataset as it is drawn. The maps lead from values to logical units of one pixel.
struct DrawnDataset {
    const ChartSeries& points;
    AxisMap xMap;
    AxisMap yMap;
    COLORREF color;
    int lineSize; ///< pixels; 0 and 1 both draw one pixel
    CDataset::MarkerType markerType;
    bool isStepped; ///< the line goes horizontally, then vertically
};

/// Pixels by which the line of the highlighted dataset is wider.
constexpr int kHighlightWider = 2;

/// Draws datasets into one plot of a DC. What all of them need is found only once: the pixels of the DC, if they can
/// be written directly, and the borders of the pixel columns.
class DatasetPainter {
public:
    /// `plot` is in logical units and is not empty. `ends` receives the points of each column of the lines, see Reduce,
    /// unless it is null. `dc` and `ends` must outlive the object.
    DatasetPainter(CDC& dc, const CRect& plot, ColumnEnds* ends);
    DatasetPainter(const DatasetPainter&) = delete;
    DatasetPainter& operator=(const DatasetPainter&) = delete;

    /// Draws the line, cut at the plot's edges.
    void DrawLine(const DrawnDataset& dataset);
    /// Fills the area from the line to `baseline`.
    void DrawArea(const DrawnDataset& dataset, double baseline, COLORREF color);
    /// Fills the area between the lines of two datasets.
    void DrawArea(const DrawnDataset& dataset, const DrawnDataset& other, COLORREF color);
    /// Draws bars from `baseline` to each point, `width` wide in units of x and at least a pixel.
    void DrawBars(const DrawnDataset& dataset, double baseline, double width, COLORREF color);
    /// Draws strokes from `baseline` to each point, as wide as the line.
    void DrawImpulses(const DrawnDataset& dataset, double baseline);
    /// Draws a marker at each point inside the plot.
    void DrawMarkers(const DrawnDataset& dataset);

private:
    const ColumnBorders& BordersOf(const AxisMap& xMap, const Rect& view);
    ColumnRows OutlineOf(const DrawnDataset& dataset);
    void DrawBars(const DrawnDataset& dataset, double baseline, const BarShape& bars, COLORREF color);
    void Fill(const ColumnRows& rows, COLORREF color);
    void Walk(const DrawnDataset& dataset, const Rect& view, PixelPath& path, PixelSet& lonePixels);
    void DrawByGdi(const DrawnDataset& dataset, const Rect& view, PixelSet& lonePixels);

    CDC& m_dc;
    CRect m_plot;
    ColumnEnds* m_ends;
    POINT m_origin = {0, 0};                 ///< device point of the logical origin
    std::optional<PixelRaster> m_raster;     ///< the pixels of the DC
    std::optional<PixelRaster> m_plotRaster; ///< the part of m_raster inside the plot
    std::optional<ColumnBorders> m_borders;  ///< of the last dataset
};

} // namespace kavlix
