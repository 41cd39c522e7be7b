// SPDX-License-Identifier: MIT
// What all pages have in common.

#include "monitor/MonitorPage.h"

namespace kavlix::monitor {

GraphSource PageContent::Source() const {
    if (live)
        return {live->History(), LiveReadings::AxisSpan(), live->AxisText(), LiveReadings::kShownAtLeast};
    if (recording && !recording->Empty())
        return {recording, {}, {}, 0};
    return {};
}

std::optional<std::size_t> PageContent::MarkedSample() const {
    const GraphSource source = Source();
    if (!marked || *marked < lost || !source.recording || *marked - lost >= source.recording->times.size())
        return std::nullopt;
    return static_cast<std::size_t>(*marked - lost);
}

BEGIN_MESSAGE_MAP(CMonitorPage, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

bool CMonitorPage::CreatePage(CWnd& frame, UINT id) {
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(windowClass, _T(""), WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                  &frame, id) != FALSE;
}

std::vector<std::string> CMonitorPage::ViewTexts() {
    const PageContent& content = Content();
    if (content.live)
        return {content.live->LatestText()};
    if (!content.recording)
        return {};
    if (content.recording->Empty())
        return {"Nothing to show"};
    std::string text = RangeText(*content.recording, {0, content.recording->times.size() - 1});
    if (content.recording->cancelled)
        text += "   reading was stopped";
    return {text};
}

recording::VisibleRange CMonitorPage::VisibleSamples() {
    const GraphSource source = Content().Source();
    const std::size_t count = source.recording ? source.recording->times.size() : 0;
    return {0, count == 0 ? 0 : count - 1};
}

std::vector<std::string> CMonitorPage::TextsOfSample(recording::Time time, const std::vector<double>& values,
                                                     const std::vector<recording::Time>& times,
                                                     recording::ValueDigits digits) const {
    const std::vector<SeriesSettings>& series = Content().settings.series;
    std::vector<recording::NamedValue> named;
    for (const bool visible : {true, false}) {
        for (std::size_t i = 0; i < values.size() && i < series.size(); ++i)
            if (series[i].visible == visible)
                named.push_back({series[i].name, values[i], times[i]});
    }
    return recording::SampleTexts(time, named, digits);
}

std::string CMonitorPage::RangeText(const recording::Recording& recording, recording::VisibleRange range) {
    constexpr recording::Time shortSpan = 10 * recording::kMicrosPerSecond;
    const recording::Time first = recording.times[range.first];
    const recording::Time last = recording.times[range.last];
    const auto text = [&](recording::Time time) {
        return last - first < shortSpan ? recording::FormatExact(time)
                                        : recording::FormatDateTime(time, recording::TimePrecision::Seconds);
    };
    return text(first) + "  to  " + text(last) + (recording.Zoned() ? "  UTC" : "");
}

void CMonitorPage::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    LayOut(CSize(cx, cy));
}

void CMonitorPage::OnSetFocus(CWnd*) {
    FocusWindow().SetFocus();
}

BOOL CMonitorPage::OnEraseBkgnd(CDC*) {
    // Child windows cover the page.
    return TRUE;
}

} // namespace kavlix::monitor
