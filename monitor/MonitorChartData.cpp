// SPDX-License-Identifier: MIT
// What the chart shows: datasets, axes, legend and view.

#include "monitor/MonitorChart.h"

#include <algorithm>
#include <string>
#include <utility>

#include "monitor/TextConversion.h"
#include "monitor/recording/GraphUnits.h"

namespace kavlix::monitor {

using recording::ChartPoint, recording::ChartX, recording::Recording;

namespace {

/// Neighbouring samples farther apart than this number of median steps are not joined. A smaller factor would tear
/// the line of samples that come at irregular times.
constexpr double kGapFactor = 5;

constexpr double kLiveSeconds = 60;           // of live readings in view at first
constexpr std::size_t kPointsWithLines = 500; // with more points, the lines between them hide the picture

// The legend stands beside the plot if its names need at most 1 / kLegendPart of the width, otherwise below.
constexpr int kLegendPart = 5;
constexpr int kLetterWidth = 7; // about that of a letter in the legend, pixels
constexpr int kRowHeight = 18;  // of the legend, about, pixels

} // namespace

std::string CMonitorChart::XText() const {
    return m_picture.choice.kind == ChartX::Series ? m_picture.settings.series[m_picture.choice.x].name
                                                   : YText() + ", one sample before";
}

ChartStyle CMonitorChart::Style() const {
    if (m_picture.style)
        return *m_picture.style;
    if (!IsOverTime())
        return m_points.size() <= kPointsWithLines ? ChartStyle::Both : ChartStyle::Points;
    const std::vector<SeriesSettings>& series = m_picture.settings.series;
    return std::any_of(series.begin(), series.end(),
                       [](const SeriesSettings& one) { return one.marker != CDataset::MarkerNone; })
               ? ChartStyle::Both
               : ChartStyle::Lines;
}

void CMonitorChart::Show(ChartPicture picture, bool asNew) {
    const bool newSamples = asNew || picture.recording != m_picture.recording;
    m_picture = std::move(picture);
    SetViewFlags(IsOverTime() ? ViewAll : ViewAll | ViewZoomBoth);
    m_points.clear();
    m_marked.reset();
    GetReferences().RemoveAll();
    if (asNew || !HasSamples()) {
        GetCursor().SetMode(CChartCursor::Off);
        RemoveAllDatasets();
    }
    SetTitle(ToText(m_picture.settings.title));
    if (!HasSamples() || m_picture.choice.y >= m_picture.settings.series.size()) {
        SetXLabel(_T(""));
        SetYLabel(_T(""));
    } else if (IsOverTime()) {
        ShowOverTime(asNew, newSamples);
    } else {
        ShowPoints();
    }
    if (asNew)
        ResetView();
    Redraw();
}

void CMonitorChart::ShowOverTime(bool asNew, bool newSamples) {
    const Recording& recording = *m_picture.recording;
    if (asNew) {
        m_origin = recording::FloorTo(recording.times.front(), recording::kMicrosPerSecond);
        CChartAxis& axis = GetXAxis();
        axis.SetKind(CChartAxis::Time);
        axis.SetOrigin(recording::SecondsFrom(0, m_origin));
        // Times that name a zone were converted to UTC. Others are shown as the clock wrote them: as if in UTC.
        axis.SetTimeZone(_T("UTC"));
        axis.SetTitle(recording.Zoned() ? _T("UTC") : _T(""));
    }
    const std::size_t count = std::min(recording.series.size(), m_picture.settings.series.size());
    while (static_cast<std::size_t>(GetDatasetCount()) < count && AddDataset() >= 0)
        ;
    for (int i = 0; newSamples && i < GetDatasetCount(); ++i) {
        const auto samples = recording::SamplesOverTime(recording, static_cast<std::size_t>(i), m_origin);
        SetDatasetOrigin(i, recording::SecondsFrom(0, m_origin));
        SetData(i, samples.x.data(), samples.y.data(), static_cast<int>(samples.x.size()));
        SetGapFactor(i, kGapFactor);
    }
    ApplySettings();
    GetCursor().SetMode(CChartCursor::All);
}

/// Gives each series over time its name, colour, line and marker.
void CMonitorChart::ApplySettings() {
    const GraphSettings& settings = m_picture.settings;
    const ChartStyle style = Style();
    for (int i = 0; i < GetDatasetCount(); ++i) {
        const SeriesSettings& series = settings.series[static_cast<std::size_t>(i)];
        const bool chosen = m_picture.style && series.marker == CDataset::MarkerNone;
        SetDatasetName(i, ToText(series.name));
        SetColor(i, series.color);
        SetLineSize(i, series.lineSize / recording::kUnitsPerPixel);
        ShowLine(i, style != ChartStyle::Points);
        SetMarkerType(i, style == ChartStyle::Lines ? CDataset::MarkerNone
                         : chosen                   ? CDataset::MarkerCircle
                                                    : series.marker);
        ShowDataset(i, series.visible);
    }
    SetYLabel(settings.series.size() == 1 ? ToText(settings.series[0].name) : CString());
    PlaceLegend();
}

/// Puts the legend where its rows fit.
void CMonitorChart::PlaceLegend() {
    CChartLegend& legend = GetLegend();
    if (!IsOverTime() || !m_picture.settings.legend) {
        legend.SetPlace(CChartLegend::Hidden);
        return;
    }
    std::size_t longest = 0;
    for (const SeriesSettings& series : m_picture.settings.series)
        longest = std::max(longest, static_cast<std::size_t>(ToText(series.name).GetLength()));
    CRect client;
    GetClientRect(&client);
    const auto width = static_cast<std::size_t>(client.Width() / kLegendPart / kLetterWidth);
    const auto rows = static_cast<std::size_t>(client.Height() / kRowHeight);
    const bool fits = longest <= width && m_picture.settings.series.size() <= rows;
    legend.SetPlace(fits ? CChartLegend::Right : CChartLegend::Bottom);
}

void CMonitorChart::ShowPoints() {
    const SeriesSettings& series = m_picture.settings.series[m_picture.choice.y];
    m_points = recording::ChartPointsOf(*m_picture.recording, m_picture.choice);
    std::vector<double> x;
    std::vector<double> y;
    for (const ChartPoint& point : m_points) {
        x.push_back(point.x);
        y.push_back(point.y);
    }
    if (GetDatasetCount() == 0)
        AddDataset();
    SetData(0, x.data(), y.data(), static_cast<int>(x.size()));
    SetColor(0, series.color);
    SetDatasetName(0, ToText(series.name));
    ShowLine(0, Style() != ChartStyle::Points);
    SetMarkerType(0, Style() != ChartStyle::Lines ? CDataset::MarkerCircle : CDataset::MarkerNone);
    CChartAxis& axis = GetXAxis();
    axis.SetKind(CChartAxis::Linear);
    axis.SetOrigin(0);
    SetXLabel(ToText(XText()));
    SetYLabel(ToText(YText()));
    PlaceLegend();
    GetCursor().SetMode(CChartCursor::Nearest);
}

void CMonitorChart::ResetView() {
    GetXAxis().SetRangeMode(CChartAxis::WholeData);
    GetYAxis().SetRangeMode(CChartAxis::WholeData);
    const recording::ValueSpan& covers = m_picture.covers;
    if (covers.any)
        SetYScale(covers.min, covers.max);
    if (!IsOverTime() && covers.any)
        SetXScale(covers.min, covers.max);
    if (IsOverTime() && m_picture.isLive && HasSamples()) {
        const double newest = recording::SecondsFrom(m_origin, m_picture.recording->times.back());
        GetXAxis().SetRange(newest - kLiveSeconds, newest);
        FollowNewest();
    }
}

void CMonitorChart::FollowNewest() {
    GetXAxis().SetRangeMode(CChartAxis::Follow);
    Redraw();
}

void CMonitorChart::Grow(std::shared_ptr<const Recording> recording, std::size_t removed) {
    const std::size_t before = m_picture.recording->times.size();
    m_picture.recording = std::move(recording);
    removed = std::min(removed, before);
    for (int i = 0; i < GetDatasetCount(); ++i) {
        // Live readings come from one source: each row is a sample of every series.
        RemoveHeadData(i, static_cast<int>(removed));
        const auto samples = recording::SamplesOverTime(*m_picture.recording, static_cast<std::size_t>(i),
                                                        m_origin, before - removed);
        for (std::size_t sample = 0; sample < samples.x.size(); ++sample)
            AddData(i, samples.x[sample], samples.y[sample]);
    }
    Redraw();
}

recording::VisibleRange CMonitorChart::Visible() {
    const std::vector<recording::Time>& times = m_picture.recording->times;
    if (!IsOverTime() || GetXAxis().GetRangeMode() == CChartAxis::WholeData)
        return {0, times.size() - 1};
    double from = 0;
    double to = 0;
    GetXAxis().GetRange(from, to);
    return recording::RowsBetween(times, m_origin, from, to);
}

} // namespace kavlix::monitor
