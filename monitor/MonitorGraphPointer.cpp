// SPDX-License-Identifier: MIT
// The graph's mouse: the sample under the pointer, and notifications to the parent.

#include "monitor/MonitorGraph.h"

#include <algorithm>
#include <cmath>

#include "monitor/recording/NearestPoint.h"

namespace kavlix::monitor {

using recording::AxisRange;

namespace {

CPoint ToLogical(CPoint pixels) {
    return CPoint(pixels.x * recording::kUnitsPerPixel, pixels.y * recording::kUnitsPerPixel);
}

} // namespace

std::optional<CMonitorGraph::Pointed> CMonitorGraph::SampleUnder(CPoint point) {
    const CPoint logical = ToLogical(point);
    if (!m_rectPlot.PtInRect(logical))
        return std::nullopt;
    const int hit = GetIndexFromPt(logical);
    if (hit < 0 || static_cast<std::size_t>(hit) >= m_shown.recording.times.size())
        return std::nullopt;
    std::vector<std::size_t> indices;
    const auto series = recording::Nearest(DistancesFrom(logical, static_cast<std::size_t>(hit), indices));
    if (!series)
        return std::nullopt;
    return Pointed{m_shown.recording.times[indices[*series]], *series, ValueOf(*series, indices[*series])};
}

/// For every series, the distance of its sample at or near `index` from the point `logical`; NaN when the
/// series is not shown or has no value there. With bars the distance is horizontal, in logical units;
/// otherwise vertical, as a share of the plot's height. `indices` receives the index of each series' sample.
std::vector<double> CMonitorGraph::DistancesFrom(CPoint logical, std::size_t index,
                                                 std::vector<std::size_t>& indices) {
    const std::size_t drawn = std::min(m_shown.recording.series.size(), m_settings.series.size());
    indices.assign(drawn, index);
    std::vector<double> distances(drawn, recording::kNoValue);
    int barWidth = 0;
    int datasets = 0;
    int places = 0;
    const bool bars = m_GraphStyle == GraphStyleBar;
    if (bars && (!CalcBarSize(barWidth, datasets, places) || barWidth <= 0))
        return distances;

    // In joined files, a series may have its value beside the sample at `index`.
    const double perUnit = (m_XVisibleMax - m_XVisibleMin) / std::max(m_rectPlot.Width(), 1);
    const auto reach = static_cast<std::size_t>(
        std::clamp(perUnit * kPointerReach, 0.0, static_cast<double>(kPointerSamples)));
    const double height =
        static_cast<double>(m_rectPlot.bottom - logical.y) / std::max(m_rectPlot.Height(), 1);
    const std::size_t limit = m_GraphStyle == GraphStyleTwoAxis ? 2 : drawn;
    for (std::size_t i = 0; i < std::min(drawn, limit); ++i) {
        if (!m_settings.series[i].visible)
            continue;
        if (bars) {
            const LONG left = m_rectPlot.left + static_cast<LONG>(index) * barWidth * (datasets + 1);
            const double middle = left + barWidth * (static_cast<double>(i) + 0.5);
            distances[i] = std::isnan(ValueOf(i, index)) ? recording::kNoValue : std::abs(logical.x - middle);
            continue;
        }
        const std::vector<double>& values =
            (m_shown.samplesEach == 1 ? *m_source.recording : m_shown.recording).series[i].values;
        const double* const first = values.data() + (m_shown.samplesEach == 1 ? m_visible.first : 0);
        const auto found = recording::NearestValue(first, m_shown.recording.times.size(), index, reach);
        if (!found)
            continue;
        const bool right = m_GraphStyle == GraphStyleTwoAxis && i == 1;
        const AxisRange axis =
            right ? AxisRange{m_Y2VisibleMin, m_Y2VisibleMax} : AxisRange{m_YVisibleMin, m_YVisibleMax};
        indices[i] = *found;
        distances[i] = recording::AxisDistance(first[*found], axis, height);
    }
    return distances;
}

void CMonitorGraph::OnMouseMove(UINT nFlags, CPoint point) {
    WatchPointer();
    CGraphCtrl::OnMouseMove(nFlags, point);
}

void CMonitorGraph::OnMouseLeave() {
    PointerLeft();
}

void CMonitorGraph::OnCopy() {
    CopyAndTell();
}

} // namespace kavlix::monitor
