#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "gdi/DirectPaint.h"
#include "gdi/Guards.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/GraphCtrlPainters.h"
#include "graphctrl/core/SampleStore.h"

namespace kavlix {

namespace {

constexpr int kBeyondPlot =
    90; // bars are cut this far beyond the plot, where none of it is seen: three pixels

} // namespace

void DrawSeriesBars(CDC& dc, const CDataset& dataset, CBrush& brush, const BarSlots& slots, int offset,
                    IndexRange range, const Rect& plot, const LinearMap& yMap, const BarMark* mark) {
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

using namespace kavlix;

BOOL CGraphCtrl::CalcBarSize(int& nBarWidth, int& nDatasets, int& nVisiblePoints) {
    int sizes[DatasetCount];
    GetSizes(sizes);
    BarSlots slots;
    if (!ComputeBarSlots(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax, m_rectPlot.Width(), slots))
        return FALSE;
    nBarWidth = slots.barWidth;
    nDatasets = slots.datasets;
    nVisiblePoints = slots.visible;
    return TRUE;
}

void CGraphCtrl::DrawBars(CDC& dc) {
    CBrush cursorBrush;
    cursorBrush.CreateSolidBrush(m_BoxCursorColor);
    CBrush brushes[DatasetCount];
    for (int i = 0; i < DatasetCount; ++i)
        brushes[i].CreateSolidBrush(m_Datasets[i].GetColor());
    StockAfterGuard brushAfter(dc, NULL_BRUSH);
    StockAfterGuard penAfter(dc, NULL_PEN);
    dc.SelectStockObject(NULL_PEN);

    BarSlots slots;
    if (!CalcBarSize(slots.barWidth, slots.datasets, slots.visible))
        return;
    // Bars without width cover nothing.
    if (slots.barWidth == 0)
        return;
    const Rect plot = ToRect(m_rectPlot);
    const LinearMap yMap(m_YVisibleMin, m_YVisibleMax, plot.bottom, -plot.Height());
    const BarMark mark{m_SelectionMarkPos, cursorBrush};
    int offset = 0;
    for (int i = 0; i < DatasetCount; ++i) {
        const CDataset& dataset = m_Datasets[i];
        if (dataset.GetSize() == 0)
            continue;
        // The first dataset with samples draws the mark, before its own bar, so that it lies behind the
        // group. A hidden dataset keeps its place.
        const IndexRange range = IndicesInSlots(dataset.GetSize(), m_XVisibleMin, slots);
        DrawSeriesBars(dc, dataset, brushes[i], slots, offset, range, plot, yMap,
                       offset == 0 ? &mark : nullptr);
        offset += slots.barWidth;
    }
}

void CGraphCtrl::GetSizes(int (&sizes)[DatasetCount]) const {
    for (int i = 0; i < DatasetCount; ++i)
        sizes[i] = m_Datasets[i].GetSize();
}
