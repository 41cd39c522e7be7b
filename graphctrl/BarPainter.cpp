// SPDX-License-Identifier: MIT
// Paints one dataset as bars, and the selection mark of the bar style.
#include "graphctrl/BarPainter.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/core/SampleStore.h"

namespace kavlix {
namespace {

// A bar extends at most this far above or below the plot, logical units.
constexpr int kBeyondPlot = 3 * kUnitsPerPixel;

} // namespace

void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap,
                    const BarSelectionMark* selectionMark) {
    Select(dc, brush);
    const SampleStore& samples = dataset.Samples();
    std::optional<PixelRaster> raster = DirectRaster(dc);
    const std::optional<std::uint32_t> colour = DirectColour(dataset.GetColor());
    const bool isDirect = raster && colour && brush.GetSafeHandle() != nullptr;
    std::vector<POINT> corners;
    const auto fillCorners = [&] {
        if (corners.empty())
            return;
        dc.LPtoDP(corners.data(), static_cast<int>(corners.size()));
        for (std::size_t i = 0; i < corners.size(); i += 2)
            raster->Fill(FilledByRectangle(corners[i], corners[i + 1]), *colour);
        corners.clear();
    };
    // The frame of a metafile includes everything that is drawn, so bars must not extend far
    // outside the plot.
    const auto nearPlot = [&plot](int y) {
        return std::clamp(y, plot.top - kBeyondPlot, plot.bottom + kBeyondPlot);
    };
    for (int slot = 0; slot < range.Count(); ++slot) {
        const int index = range.first + slot;
        const double value = samples[index];
        if (selectionMark != nullptr && index == selectionMark->index && !std::isnan(value)) {
            if (isDirect)
                fillCorners();
            Select(dc, selectionMark->brush);
            dc.Rectangle(ToCRect(slots.Band(slot, plot)));
            Select(dc, brush);
            ::GdiFlush(); // the bars that follow may be written into the pixels directly
        }
        const std::optional<int> y = yMap.Position(value);
        if (!y || !dataset.m_Visible)
            continue;
        const int x = slots.SlotLeft(slot, plot.left) + offset;
        if (isDirect) {
            corners.push_back({x, nearPlot(*y)});
            corners.push_back({x + slots.barWidth, plot.bottom});
        } else {
            dc.Rectangle(x, nearPlot(*y), x + slots.barWidth, plot.bottom);
        }
    }
    if (isDirect)
        fillCorners();
}

} // namespace kavlix
