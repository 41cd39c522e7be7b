// SPDX-License-Identifier: MIT
// What the graph chooses from the window's size: ranges with round labels, and room for texts.

#include "monitor/MonitorGraph.h"

#include <algorithm>
#include <cmath>

#include "monitor/TextConversion.h"
#include "monitor/recording/NumberText.h"

namespace kavlix::monitor {

using recording::ValueSpan;

namespace {

constexpr int kMarkerRoom = 150;   // logical units: half a marker and a margin
constexpr int kLabelFontLess = 50; // logical units by which a label's font is less high than the label
constexpr int kMinLabelUnit = 300; // least height of a label in logical units: smaller ones are illegible

ValueSpan SpanOfSeries(const recording::Recording& shown, std::size_t series) {
    return series < shown.series.size() ? recording::SpanOf(shown.series[series].values) : ValueSpan{};
}

} // namespace

void CMonitorGraph::Fit() {
    if (!GetSafeHwnd())
        return;
    ApplyLook(m_settings, m_settings.series);
    SetLegendWidth(FitLegend(m_settings.series));
    FeedSamples(MeasureLayout());
    FitTimeRange();
    const AxisTexts texts = ChooseAxisTexts();
    FitRanges(MeasureLayout());
    FitTexts(texts, MeasureLayout());
    Redraw();
}

void CMonitorGraph::FitRanges(const Layout& layout) {
    const recording::Recording& shown = m_shown.recording;
    recording::ViewRequest request;
    request.style = static_cast<recording::ViewStyle>(m_settings.style);
    request.valueTicks = std::max(layout.valueTicks, 2);
    request.plotWidth = std::max(static_cast<int>(layout.plot.cx), 1);
    recording::ViewChoice choice = recording::ChooseView(shown, request);
    if (m_source.axisCovers.any) {
        ValueSpan span = m_source.axisCovers;
        const std::size_t shared = m_settings.style == GraphStyleTwoAxis ? 1 : shown.series.size();
        for (std::size_t i = 0; i < shared; ++i)
            span.Take(SpanOfSeries(shown, i));
        choice.y = recording::ChooseValueScale(span, request.valueTicks);
    }

    SetYVisibleMin(choice.y.min);
    SetYVisibleMax(choice.y.max);
    SetYUnit(ToText(choice.y.unit), choice.y.unitExponent, choice.y.decimals);
    SetY2VisibleMin(choice.y2.min);
    SetY2VisibleMax(choice.y2.max);
    SetY2Unit(ToText(choice.y2.unit), choice.y2.unitExponent, choice.y2.decimals);

    SetYTickLabelWidth(TickLabelWidth(choice.y));
    SetY2TickLabelWidth(TickLabelWidth(choice.y2));
}

void CMonitorGraph::FitTimeRange() {
    const std::size_t places = std::max(m_shown.recording.times.size(), m_source.samplesAtLeast);
    const double last = static_cast<double>(places) - 1;
    if (last >= 1) {
        // Room for the whole markers of the first and the last sample.
        const bool markers =
            std::any_of(m_settings.series.begin(), m_settings.series.end(),
                        [](const auto& series) { return series.marker != CDataset::MarkerNone; });
        const bool room =
            markers && m_settings.style != GraphStyleBar && m_rectPlot.Width() > 4 * kMarkerRoom;
        const double pad = room ? last * kMarkerRoom / (m_rectPlot.Width() - 2 * kMarkerRoom) : 0;
        SetXVisibleMin(-pad);
        SetXVisibleMax(last + pad);
    } else {
        // At most one sample: a point in the middle, or a bar over the whole width.
        SetXVisibleMin(-1);
        SetXVisibleMax(m_settings.style == GraphStyleBar ? 0 : 1);
    }
}

CMonitorGraph::AxisTexts CMonitorGraph::ChooseAxisTexts() {
    const auto seriesName = [this](std::size_t i) {
        return i < m_settings.series.size() ? m_settings.series[i].name : std::string();
    };
    const bool twoAxes = m_settings.style == GraphStyleTwoAxis;
    AxisTexts texts;
    texts.y = twoAxes || m_settings.series.size() == 1 ? seriesName(0) : m_source.valueLabel;
    texts.y2 = twoAxes ? seriesName(1) : std::string();
    if (m_fedBars && m_shown.samplesEach > 1) {
        const std::string mean =
            "each bar the mean of " + recording::FormatCount(m_shown.samplesEach) + " samples";
        texts.x.push_back(m_timeTitle + ", " + mean);
    }
    texts.x.push_back(m_timeTitle);

    // The control's axis labels grow with the window, as its text title does. The caption band stays small
    // and contains the text of the X label, so a graph with a caption band has no axis labels. Only two value
    // axes need their labels in any case.
    const bool labels = m_settings.titleStyle == TitleStyleText && GetTitleTextHeight() >= kMinLabelUnit;
    ShowXLabel(labels);
    ShowYLabel((labels || twoAxes) && !texts.y.empty());
    ShowY2Label(!texts.y2.empty());
    return texts;
}

void CMonitorGraph::FitTexts(const AxisTexts& texts, const Layout& layout) {
    const int unit = GetTitleTextHeight();
    const int height = unit - kLabelFontLess;
    std::string xText;
    for (const std::string& text : texts.x)
        if (xText.empty() && TextSize(text, height, FW_NORMAL).cx <= layout.plot.cx)
            xText = text;
    SetXLabel(ToText(xText));
    SetYLabel(ToText(FitText(texts.y, static_cast<int>(layout.plot.cy), height, FW_NORMAL)));
    SetY2Label(ToText(FitText(texts.y2, static_cast<int>(layout.plot.cy), height, FW_NORMAL)));

    CRect client;
    GetClientRect(&client);
    SetTitle(ToText(FitText(m_settings.title, client.Width() * kPixel - 2 * kTickLabelGap, unit, FW_BOLD)));

    // The caption band shows the window's text: the title with as much of the X axis' text as fits.
    const std::string name = m_settings.series.size() == 1 ? ": " + m_settings.series[0].name : std::string();
    std::vector<std::string> captions;
    if (!m_shown.recording.times.empty())
        for (const std::string& rest : texts.x)
            captions.push_back(m_settings.title + name + ", " + rest);
    captions.push_back(m_settings.title);
    FitCaption(captions);
}

} // namespace kavlix::monitor
