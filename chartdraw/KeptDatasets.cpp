// SPDX-License-Identifier: MIT
// KeptDatasets: when a layer is made, moved and dropped.
#include "chartdraw/KeptDatasets.h"

#include <algorithm>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/DatasetLayer.h"
#include "chartdraw/DatasetPainter.h"
#include "gdi/DirectPaint.h"
#include "plot/SeriesReduction.h"

namespace kavlix {
namespace {

constexpr int kLargestLayer = 1 << 23; // pixels
constexpr int kMarkerReach = 4;        // columns beside its point that a marker covers
constexpr int kWaits = 8;              // see m_waits
constexpr int kMostUnused = 8;         // see m_unused

/// Whether both are the same apart from the X map.
bool AreAlike(const KeptDataset& a, const KeptDataset& b) {
    return a.stamp == b.stamp && a.yMap == b.yMap && a.isVisible == b.isVisible && a.isLine == b.isLine &&
           a.showsLine == b.showsLine && a.style == b.style && a.lineSize == b.lineSize &&
           a.marker == b.marker && a.barWidth == b.barWidth && a.baseline == b.baseline &&
           a.fillTo == b.fillTo && a.color == b.color && a.fillColor == b.fillColor &&
           a.isHighlighted == b.isHighlighted;
}

bool HaveSameX(const KeptDataset& a, const KeptDataset& b) {
    return a.xMap == b.xMap;
}

KeptPicture PictureOf(const ChartDrawState& chart) {
    KeptPicture picture{chart.Plot(), chart.BackgroundColor(), {}};
    picture.datasets.reserve(static_cast<std::size_t>(chart.DatasetCount()));
    for (int i = 0; i < chart.DatasetCount(); ++i) {
        const ChartDrawState::ChartDataset& dataset = chart.Dataset(i);
        const bool isLine = dataset.style == CChartDraw::StyleLine && dataset.points.IsSorted();
        picture.datasets.push_back(
            {dataset.points.Stamp(), chart.XMap(dataset), chart.YMap(dataset), dataset.visible, isLine,
             dataset.showLine, dataset.style, dataset.lineSize, dataset.markerType, dataset.barWidth,
             dataset.baseline, dataset.fillTo, dataset.color, dataset.fillColor, chart.IsHighlighted(i)});
    }
    return picture;
}

bool AreAlike(const KeptPicture& a, const KeptPicture& b) {
    return a.plot == b.plot && a.background == b.background &&
           std::equal(
               a.datasets.begin(), a.datasets.end(), b.datasets.begin(), b.datasets.end(),
               [](const KeptDataset& x, const KeptDataset& y) { return AreAlike(x, y); });
}

bool AreSame(const KeptPicture& a, const KeptPicture& b) {
    return AreAlike(a, b) && std::equal(a.datasets.begin(), a.datasets.end(), b.datasets.begin(), &HaveSameX);
}

/// Columns beside its own one that a point of the datasets can paint.
int ReachOf(const KeptPicture& picture, bool hasDots) {
    int reach = 0; // thin strokes stay between the columns of their ends
    for (const KeptDataset& dataset : picture.datasets) {
        const int width = std::max(dataset.lineSize, 1) + (dataset.isHighlighted ? kHighlightWider : 0);
        if (dataset.isVisible && (width > 1 || dataset.marker != CDataset::MarkerNone || hasDots))
            reach = std::max({reach, kMarkerReach, SeriesReduction::Reach(width)});
    }
    return reach;
}

/// The X map of all visible datasets. Empty when they have different ones, or there is something else than lines.
std::optional<AxisMap> LinesXMap(const KeptPicture& picture) {
    std::optional<AxisMap> map;
    for (const KeptDataset& dataset : picture.datasets) {
        if (!dataset.isVisible)
            continue;
        if (!dataset.isLine || !dataset.showsLine || !dataset.yMap.IsMonotonic() ||
            (map && !(*map == dataset.xMap)))
            return std::nullopt;
        map.emplace(dataset.xMap);
    }
    return map;
}

/// The columns by which `after` shows the lines of `before` moved to the left. Empty when the pictures differ by more.
std::optional<int> ShiftBetween(const KeptPicture& before, const KeptPicture& after) {
    const std::optional<AxisMap> from = LinesXMap(before);
    const std::optional<AxisMap> to = LinesXMap(after);
    return from && to && AreAlike(before, after) ? PannedBy(*from, *to) : std::nullopt;
}

DatasetLayer::Paint PaintOf(const ChartDrawState& chart) {
    return [&chart](CDC& dc, const CRect& part, ColumnEnds* ends) { chart.PaintDatasets(dc, part, ends); };
}

std::int64_t PixelsOf(const CRect& plot) {
    return std::int64_t{plot.Width()} * plot.Height();
}

} // namespace

KeptDatasets::KeptDatasets() = default;
KeptDatasets::~KeptDatasets() = default;

void KeptDatasets::Draw(CDC& dc, const ChartDrawState& chart) {
    if (!DrawLayer(dc, chart))
        chart.PaintDatasets(dc, chart.Plot(), nullptr);
}

/// False when nothing was drawn and the datasets must be painted without a layer.
bool KeptDatasets::DrawLayer(CDC& dc, const ChartDrawState& chart) {
    KeptPicture now = PictureOf(chart);
    const bool isSame = m_last && AreSame(*m_last, now);
    const std::optional<int> shift = m_last && !isSame ? ShiftBetween(*m_last, now) : std::nullopt;
    if ((!isSame && !shift) || PixelsOf(now.plot) > kLargestLayer) {
        if (++m_unused > kMostUnused)
            m_layer.reset();
        m_isCurrent = false;
        m_last = std::move(now);
        m_waits = 0;
        return false;
    }
    const std::optional<PixelRaster> raster =
        ::GetMapMode(dc.GetSafeHdc()) == MM_TEXT ? DirectRaster(dc) : std::nullopt;
    if (!raster)
        return false;
    m_unused = 0;
    bool isCurrent = std::exchange(m_isCurrent, false); // also when something below throws
    if (isCurrent && shift && !Pan(*m_layer, now, *shift, chart)) {
        isCurrent = false;
        m_waits = kWaits;
    }
    if (!isCurrent && (isSame || m_waits-- <= 0)) {
        m_waits = 0;
        if (!m_layer || m_layer->Plot() != now.plot)
            m_layer = std::make_unique<DatasetLayer>(now.plot);
        isCurrent = m_layer->IsReady();
        if (isCurrent)
            m_layer->PaintAll(PaintOf(chart));
    }
    m_last = std::move(now);
    if (!isCurrent)
        return false;
    POINT origin = {0, 0};
    ::LPtoDP(dc.GetSafeHdc(), &origin, 1);
    m_layer->LayOver(*raster, origin);
    m_isCurrent = true;
    return true;
}

/// Moves the layer to what it is to show. False when that is of no use.
bool KeptDatasets::Pan(DatasetLayer& layer, const KeptPicture& now, int shift,
                       const ChartDrawState& chart) const {
    std::vector<const SortedPoints*> lines;
    for (std::size_t i = 0; i < now.datasets.size(); ++i)
        if (now.datasets[i].isVisible)
            lines.push_back(&chart.Dataset(static_cast<int>(i)).points.Sorted());
    const bool hadDots = layer.Ends().HasDots();
    const int reach = ReachOf(now, hadDots);
    const PannedPlot plot{*LinesXMap(*m_last),
                          *LinesXMap(now),
                          shift,
                          static_cast<int>(now.plot.left),
                          static_cast<int>(now.plot.right),
                          reach};
    const std::optional<std::vector<ColumnSpan>> spans = ColumnsToPaint(plot, layer.Ends(), lines);
    if (!spans)
        return false;
    layer.MoveLeft(shift);
    for (const ColumnSpan& span : *spans)
        layer.PaintColumns(span, reach, PaintOf(chart));
    // The first dot may extend beyond the columns that were painted.
    return hadDots || !layer.Ends().HasDots();
}

} // namespace kavlix
