// SPDX-License-Identifier: MIT
// The painted datasets of a chart, kept for its next paint.
#pragma once

#include <afxwin.h>

#include <kavlix/ChartDraw.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "plot/AxisMap.h"

namespace kavlix {

class DatasetLayer;

/// What a dataset is drawn from.
struct KeptDataset {
    std::uint64_t stamp; ///< ChartSeries::Stamp
    AxisMap xMap;
    AxisMap yMap;
    bool isVisible;
    bool isLine; ///< the line has the style StyleLine and x in order
    bool showsLine;
    int style;
    int lineSize;
    int marker;
    double barWidth;
    double baseline;
    const void* fillTo;
    COLORREF color;
    COLORREF fillColor;
    bool isHighlighted;
};

/// What a picture of all datasets is drawn from.
struct KeptPicture {
    CRect plot;
    COLORREF background;
    std::vector<KeptDataset> datasets;
};

/// Paints the datasets into a layer of their own, when they are painted the second time from the same data. As long
/// as nothing but the X range changes, and that by whole pixels, a paint then needs only to move the layer, to paint
/// the columns that come into view, and to lay it over the background. The picture is the same, pixel for pixel.
///
/// The layer takes 4 bytes for a pixel of the plot and of a margin, no memory for points. It is freed after some
/// paints that could not use it.
class KeptDatasets {
public:
    KeptDatasets();
    ~KeptDatasets();
    KeptDatasets(const KeptDatasets&) = delete;
    KeptDatasets& operator=(const KeptDatasets&) = delete;

    /// Draws the datasets of `chart` into the plot, by PaintDatasets or from the layer.
    void Draw(CDC& dc, const ChartDrawState& chart);

private:
    bool DrawLayer(CDC& dc, const ChartDrawState& chart);
    bool Pan(DatasetLayer& layer, const KeptPicture& now, int shift, const ChartDrawState& chart) const;

    std::optional<KeptPicture> m_last; ///< of the last paint
    std::unique_ptr<DatasetLayer> m_layer;
    bool m_isCurrent = false; ///< the layer shows m_last
    int m_unused = 0; ///< paints since the layer was of use; making one takes longer than painting into it
    int m_waits = 0;  ///< pans without a layer until the next try, after a pan that a layer was of no use for
};

} // namespace kavlix
