// SPDX-License-Identifier: MIT
// A layer with the pixels of a chart's datasets, which moves sideways.
#pragma once

#include <afxwin.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "chartdraw/core/ColumnEnds.h"
#include "chartdraw/core/PannedColumns.h"
#include "plot/PixelRaster.h"

namespace kavlix {

/// 32-bit pixels of a plot and of what markers paint around it. Pixels that nothing was painted on are see-through. On
/// both sides lies a margin, so that moving the layer seldom moves pixels in memory.
class DatasetLayer {
public:
    /// Draws the datasets inside `part` of the plot; logical units are those of the plot.
    using Paint = std::function<void(CDC& dc, const CRect& part, ColumnEnds* ends)>;

    /// `plot` is not empty.
    explicit DatasetLayer(const CRect& plot);
    ~DatasetLayer();
    DatasetLayer(const DatasetLayer&) = delete;
    DatasetLayer& operator=(const DatasetLayer&) = delete;

    /// False when GDI could not make the layer; the other members must not be used then.
    bool IsReady() const { return m_pixels != nullptr; }
    /// The points of each column of the plot.
    const ColumnEnds& Ends() const { return m_ends; }
    /// Moves what is painted by `columns` to the left, or if negative to the right.
    void MoveLeft(int columns);
    const CRect& Plot() const { return m_plot; }
    /// Lets `paint` draw the whole plot anew.
    void PaintAll(const Paint& paint);
    /// Clears the columns of `span` and lets `paint` draw them. Markers and dots up to `reach` columns beside are drawn
    /// as well.
    void PaintColumns(const ColumnSpan& span, int reach, const Paint& paint);
    /// Lays the layer over the pixels of `raster`. `origin` is the device point of the logical origin.
    void LayOver(const PixelRaster& raster, const POINT& origin) const;

private:
    static constexpr int kMargin = 64;  ///< pixels
    static constexpr int kOverhang = 4; ///< pixels that a marker extends at most beyond the plot

    int Stride() const { return m_area.Width() + 2 * kMargin; }
    void MovePixels(int columns);
    void Clear(int begin, int count);
    std::uint32_t* At(int column, int row) const { return m_pixels + row * Stride() + column; }

    CRect m_plot;
    CRect m_area; ///< the plot with the overhang
    ColumnEnds m_ends;
    int m_offset = kMargin; ///< column of the bitmap at the left edge of m_area
    CBitmap m_bitmap;
    CDC m_dc;
    HGDIOBJ m_previous = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

} // namespace kavlix
