// What the main window says about what it shows: in the status bar, or in its title while a graph fills it.

#include "monitor/MainFrame.h"

#include "monitor/recording/CheckReport.h"
#include "monitor/recording/NumberText.h"

#include <afxres.h>

#include <algorithm>
#include <utility>

namespace kavlix::monitor {

namespace {

constexpr UINT kNoticeTime = 4000; // milliseconds
constexpr int kTitleButtons = 5;   // icon, three buttons and the space between them, each about so wide

bool FitsTitleBar(CWnd& frame, const std::string& title) {
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    CFont font;
    if (!::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0) ||
        !font.CreateFontIndirect(&metrics.lfCaptionFont))
        return true;
    CRect window;
    frame.GetWindowRect(&window);
    CWindowDC dc(&frame);
    CFont* const old = dc.SelectObject(&font);
    const LONG width = dc.GetTextExtent(title.c_str()).cx;
    dc.SelectObject(old);
    return width <= window.Width() - kTitleButtons * ::GetSystemMetrics(SM_CXSIZE);
}

} // namespace

/// Begins to show other data.
void CMainFrame::NameSource(const std::string& title) {
    m_title = title;
    m_notice.clear();
    m_texts.pointer.clear();
    m_status.ForgetPointerRoom();
    ShowStatus();
}

void CMainFrame::SetStatus(std::vector<std::string> text, const std::string& summary) {
    m_texts.text = std::move(text);
    m_texts.summary = summary;
    ShowStatus();
}

void CMainFrame::ShowStatus() {
    StatusTexts texts = m_texts;
    if (!m_notice.empty())
        texts.text = {m_notice};
    std::string title = m_title;
    if (m_filling) {
        // Text and pointer get shorter together until the title bar has room for them.
        const std::size_t forms = std::max(texts.text.size(), texts.pointer.size());
        for (std::size_t form = 0; form < forms; ++form) {
            title = texts.text.empty() ? m_title : texts.text[std::min(form, texts.text.size() - 1)];
            if (!texts.pointer.empty())
                title += "   |   " + texts.pointer[std::min(form, texts.pointer.size() - 1)];
            if (FitsTitleBar(*this, title))
                break;
        }
    } else {
        m_status.Show(texts);
    }
    CString shown;
    GetWindowText(shown);
    if (shown != title.c_str())
        SetWindowText(title.c_str());
}

/// Says something until the person does something else, or for a short time. Nothing: takes it back.
void CMainFrame::Say(const std::string& notice) {
    m_notice = notice;
    if (notice.empty())
        KillTimer(kNoticeTimer);
    else
        SetTimer(kNoticeTimer, kNoticeTime, nullptr);
    ShowStatus();
}

/// How exactly the picture's values are told.
recording::ValueDigits CMainFrame::Digits() const {
    return m_live || m_graph.SamplesEach() > 1 ? recording::ValueDigits::Computed
                                               : recording::ValueDigits::AsRead;
}

std::vector<std::string> CMainFrame::MarkTexts(const CMonitorGraph::Mark& mark) const {
    // The series that are seen first: of a long text the end may be cut.
    const std::vector<SeriesSettings>& series = m_graph.Settings().series;
    std::vector<recording::NamedValue> values;
    for (const bool visible : {true, false}) {
        for (std::size_t i = 0; i < mark.values.size() && i < series.size(); ++i) {
            if (series[i].visible == visible)
                values.push_back({series[i].name, mark.values[i], mark.times[i]});
        }
    }
    return recording::SampleTexts(mark.time, values, Digits());
}

std::vector<std::string> CMainFrame::PointerTexts() {
    const auto pointed = m_pointer ? m_graph.SampleUnder(*m_pointer) : std::nullopt;
    if (!pointed)
        return {};
    return recording::SampleTexts(
        pointed->time, {{m_graph.Settings().series[pointed->series].name, pointed->value, {}}}, Digits());
}

std::string CMainFrame::RangeText() const {
    if (SampleCount() == 0)
        return "Nothing to show";
    const recording::VisibleRange range = m_graph.Visible();
    std::string text =
        recording::FormatDateTime(m_recording->times[range.first], recording::TimePrecision::Seconds) +
        "  to  " +
        recording::FormatDateTime(m_recording->times[range.last], recording::TimePrecision::Seconds) +
        (m_recording->Zoned() ? "  UTC" : "");
    if (m_graph.SamplesEach() > 1)
        text += (m_graph.Settings().style == CGraphCtrl::GraphStyleBar ? "   each bar the mean of "
                                                                       : "   lowest and highest of every ") +
                recording::FormatCount(m_graph.SamplesEach()) + " samples";
    if (m_recording->cancelled)
        text += "   reading was stopped";
    return text;
}

/// After something that a person did to what is shown.
void CMainFrame::ShowSelection() {
    m_notice.clear();
    RefreshStatus();
}

void CMainFrame::RefreshStatus() {
    // While files are read, the status bar tells how far.
    if (m_loader)
        return;
    const CMonitorGraph::Mark mark = m_graph.SelectionMark();
    std::vector<std::string> texts;
    if (mark.index >= 0)
        texts = MarkTexts(mark);
    else if (m_live)
        texts = {m_live->LatestText()};
    else if (m_recording)
        texts = {RangeText()};
    m_texts.pointer = PointerTexts();
    SetStatus(std::move(texts), m_recording ? recording::StatusLine(*m_recording) : std::string());
}

void CMainFrame::OnSelectionChanged(NMHDR*, LRESULT* pResult) {
    ShowSelection();
    *pResult = 0;
}

void CMainFrame::OnPointerMoved(NMHDR* pNMHDR, LRESULT* pResult) {
    m_pointer = CPoint(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt);
    *pResult = 0;
    std::vector<std::string> texts = PointerTexts();
    if (texts == m_texts.pointer)
        return;
    m_texts.pointer = std::move(texts);
    ShowStatus();
}

void CMainFrame::OnPointerLeft(NMHDR*, LRESULT* pResult) {
    m_pointer.reset();
    *pResult = 0;
    if (m_texts.pointer.empty())
        return;
    m_texts.pointer.clear();
    ShowStatus();
}

void CMainFrame::OnCopied(NMHDR*, LRESULT* pResult) {
    Say("Copied: the picture is on the clipboard");
    *pResult = 0;
}

void CMainFrame::OnNotCopied(NMHDR*, LRESULT* pResult) {
    Say("Not copied: another program holds the clipboard. Try again");
    *pResult = 0;
}

} // namespace kavlix::monitor
