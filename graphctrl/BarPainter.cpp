// Paints one dataset as bars, with the selection mark of the bar style.
#include "graphctrl/BarPainter.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/core/SampleStore.h"

namespace kavlix {

namespace {

constexpr int kBeyondPlot =
    90; // bars are cut this far beyond the plot, where none of it is seen: three pixels

} // namespace

void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap, const BarSelectionMark* mark) {
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
    // A metafile's frame holds all that is drawn, seen or not.
    const auto nearPlot = [&plot](int y) {
        return std::clamp(y, plot.top - kBeyondPlot, plot.bottom + kBeyondPlot);
    };
    for (int slot = 0; slot < range.Count(); ++slot) {
        const int index = range.first + slot;
        const double value = samples[index];
        if (mark != nullptr && index == mark->index && !std::isnan(value)) {
            if (isDirect)
                fillCorners();
            Select(dc, mark->brush);
            dc.Rectangle(ToCRect(slots.Band(slot, plot)));
            Select(dc, brush);
            ::GdiFlush();
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
