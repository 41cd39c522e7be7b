// What the graph chooses by the window's size: ranges with round labels, room for texts.

#include "monitor/MonitorGraph.h"

#include "monitor/recording/NumberText.h"
#include "monitor/recording/TextCut.h"

#include <algorithm>
#include <cmath>

namespace kavlix::monitor {

using recording::CutToFit;
using recording::ValueScale;
using recording::ValueSpan;

namespace {

// All lengths in logical units of 1/30 pixel.
constexpr int kTickDistance = 500;   // the control puts a tick of the value axis every so often
constexpr int kTickFontHeight = 350; // of the value axes' labels and the legend
constexpr int kTickLabelGap = 200;   // between tick labels and what is left of them
constexpr int kLegendGap = 450;      // right of the text of a legend row
constexpr int kMinLegendText = 600;
constexpr int kMarkerRoom = 150;   // half a marker and a little more
constexpr int kLabelFontLess = 50; // the axis labels' font is so much lower than the label unit
constexpr int kMinLabelUnit = 300; // lower axis labels cannot be read
constexpr int kLegendShare = 3;    // the legend takes at most one part in so many of the width
constexpr int kRegular = 400;
constexpr int kBold = 700;
constexpr int kPixel = 30;

constexpr const char* kCaptionFace = "Arial";
constexpr int kCaptionSize = 90;   // tenths of a point
constexpr int kCaptionMargin = 10; // pixels beside the caption's text

CString ToText(const std::string& text) {
    return CString(text.c_str());
}

ValueSpan SpanOfSeries(const recording::Recording& shown, std::size_t series) {
    return series < shown.series.size() ? recording::SpanOf(shown.series[series].values) : ValueSpan{};
}

} // namespace

void CMonitorGraph::Fit() {
    if (!GetSafeHwnd())
        return;
    ApplySettings();
    FitLegend();
    FeedSamples(MeasureLayout());
    FitTimeRange();
    const AxisTexts texts = ChooseAxisTexts();
    FitRanges(MeasureLayout());
    FitTexts(texts, MeasureLayout());
    Redraw();
}

void CMonitorGraph::ApplySettings() {
    SetGraphStyle(m_settings.style);
    SetTitleStyle(m_settings.titleStyle);
    SetGrid(m_settings.gridX, m_settings.gridY);
    ShowLegend(m_settings.legend && m_settings.style != GraphStyleTwoAxis);
    for (std::size_t i = 0; i < m_settings.series.size() && i < DatasetCount; ++i) {
        const SeriesSettings& series = m_settings.series[i];
        const int dataset = static_cast<int>(i);
        SetColor(dataset, series.color);
        SetLineSize(dataset, series.lineSize);
        SetMarkerType(dataset, series.marker);
        ShowDataset(dataset, series.visible);
    }

    constexpr COLORREF ink = RGB(70, 75, 85);
    SetTitleColor(ink);
    SetXLabelColor(ink);
    SetXTickLabelColor(ink);
    SetAxisColor(RGB(150, 155, 165));
    SetGridColor(RGB(205, 208, 214));
    SetCaptionColor(RGB(55, 71, 98));
    SetLegendColor(RGB(246, 247, 249));
    SetLegendTextColor(ink);
    // In the two-axis style the control gives each value axis the colour of its series.
    if (m_settings.style != GraphStyleTwoAxis) {
        SetYLabelColor(ink);
        // Without any series there is nothing the labels could be true of.
        SetYTickLabelColor(m_settings.series.empty() ? m_BkColor : ink);
    }
}

CMonitorGraph::Layout CMonitorGraph::MeasureLayout() {
    // The control lays itself out while it paints. A paint into one pixel, without samples, tells the layout
    // before anything is seen.
    CClientDC client(this);
    CDC dc;
    CBitmap bitmap;
    if (!dc.CreateCompatibleDC(&client) || !bitmap.CreateBitmap(1, 1, 1, 1, nullptr))
        return {};
    CBitmap* old = dc.SelectObject(&bitmap);
    SetMapModeAnisotropic(dc);
    m_measuring = true;
    DrawGraph(dc);
    m_measuring = false;
    dc.SelectObject(old);
    return {m_rectPlot.Height() / kTickDistance, m_rectPlot.Size()};
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

    const auto labelWidth = [this](const ValueScale& scale) {
        LONG width = 0;
        for (const std::string& label : recording::ValueLabels(scale))
            width = std::max(width, TextSize(label, kTickFontHeight, kRegular).cx);
        return static_cast<int>(width) + kTickLabelGap;
    };
    SetYTickLabelWidth(labelWidth(choice.y));
    SetY2TickLabelWidth(labelWidth(choice.y2));
}

void CMonitorGraph::FitTimeRange() {
    const std::size_t places = std::max(m_shown.recording.times.size(), m_source.samplesAtLeast);
    const double last = static_cast<double>(places) - 1;
    if (last >= 1) {
        // Markers of the first and the last sample stand whole in the plot.
        const bool markers =
            std::any_of(m_settings.series.begin(), m_settings.series.end(),
                        [](const auto& series) { return series.marker != CDataset::MarkerNone; });
        const bool room =
            markers && m_settings.style != GraphStyleBar && m_rectPlot.Width() > 4 * kMarkerRoom;
        const double pad = room ? last * kMarkerRoom / (m_rectPlot.Width() - 2 * kMarkerRoom) : 0;
        SetXVisibleMin(-pad);
        SetXVisibleMax(last + pad);
    } else {
        // One sample alone: in the middle as a point, over the whole width as a bar.
        SetXVisibleMin(-1);
        SetXVisibleMax(m_settings.style == GraphStyleBar ? 0 : 1);
    }
}

void CMonitorGraph::FitLegend() {
    ResetLegend();
    CRect client;
    GetClientRect(&client);
    const int room = client.Width() * kPixel / kLegendShare;
    LONG width = kMinLegendText;
    for (std::size_t i = 0; i < m_settings.series.size() && i < DatasetCount; ++i) {
        const std::string text = FitText(m_settings.series[i].name, room, kTickFontHeight, kRegular);
        SetLegend(static_cast<int>(i), ToText(text));
        width = std::max(width, TextSize(text, kTickFontHeight, kRegular).cx);
    }
    SetLegendWidth(static_cast<int>(width) + 2 * m_LegendMargin + m_LegendItemHeight + kLegendGap);
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

    // The control's axis labels grow with the window, as its text title does. The caption band stays small,
    // and what the labels would say stands in it; only two axes cannot be told apart without them.
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
    for (const std::string& text : texts.x) {
        if (xText.empty() && TextSize(text, height, kRegular).cx <= layout.plot.cx)
            xText = text;
    }
    SetXLabel(ToText(xText));
    SetYLabel(ToText(FitText(texts.y, static_cast<int>(layout.plot.cy), height, kRegular)));
    SetY2Label(ToText(FitText(texts.y2, static_cast<int>(layout.plot.cy), height, kRegular)));

    CRect client;
    GetClientRect(&client);
    SetTitle(ToText(FitText(m_settings.title, client.Width() * kPixel - 2 * kTickLabelGap, unit, kBold)));

    // The caption band shows the window's text.
    const std::string name = m_settings.series.size() == 1 ? ": " + m_settings.series[0].name : std::string();
    std::vector<std::string> captions;
    if (!m_shown.recording.times.empty()) {
        for (const std::string& rest : texts.x)
            captions.push_back(m_settings.title + name + ", " + rest);
    }
    captions.push_back(m_settings.title);
    SetCaptionFont(kCaptionSize, kCaptionFace);
    SetWindowText(ToText(FitCaption(captions)));
}

std::string CMonitorGraph::FitCaption(const std::vector<std::string>& texts) {
    CClientDC dc(this);
    CFont font;
    if (!font.CreatePointFont(kCaptionSize, kCaptionFace, &dc))
        return texts.back();
    CFont* const old = dc.SelectObject(&font);
    CRect client;
    GetClientRect(&client);
    // The text stands in the band's middle: the icon at its right end takes as much room on the left.
    const LONG icon = m_ShowIconMaximize ? m_rectIconMaximize.Width() / kPixel : 0;
    const LONG room = client.Width() - 2 * (kCaptionMargin + icon);
    const auto fits = [&](const std::string& text) { return dc.GetTextExtent(ToText(text)).cx <= room; };
    const auto found = std::find_if(texts.begin(), texts.end(), fits);
    const std::string caption = found != texts.end() ? *found : CutToFit(texts.back(), fits);
    dc.SelectObject(old);
    return caption;
}

CSize CMonitorGraph::TextSize(const std::string& text, int height, int weight) {
    CClientDC dc(this);
    SetMapModeAnisotropic(dc);
    CFont font;
    if (!font.CreateFont(height, 0, 0, 0, weight, FALSE, FALSE, 0, ANSI_CHARSET, OUT_TT_PRECIS,
                         CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial"))
        return CSize(0, 0);
    CFont* old = dc.SelectObject(&font);
    const CSize size = dc.GetTextExtent(ToText(text));
    dc.SelectObject(old);
    return size;
}

std::string CMonitorGraph::FitText(const std::string& text, int room, int height, int weight) {
    if (height <= 0)
        return text;
    return CutToFit(text,
                    [&](const std::string& tried) { return TextSize(tried, height, weight).cx <= room; });
}

} // namespace kavlix::monitor
