// SPDX-License-Identifier: MIT
// The graph page's content, texts and notifications. Its commands are in GraphPageCommands.

#include "monitor/GraphPage.h"

#include <afxres.h>

#include <kavlix/Kavlix.h>

#include <utility>

#include "monitor/Notifications.h"
#include "monitor/PictureCopy.h"
#include "monitor/recording/NumberText.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

BEGIN_MESSAGE_MAP(CGraphPage, CMonitorPage)
    ON_WM_CREATE()

    ON_NOTIFY(GCN_SELCHANGE, IDC_GRAPH, &CGraphPage::OnSelectionChanged)
    ON_NOTIFY(GCN_MOUSEMOVE, IDC_GRAPH, &CGraphPage::OnPointerMoved)
    ON_NOTIFY(MGN_MOUSELEAVE, IDC_GRAPH, &CGraphPage::OnPointerLeft)
    ON_NOTIFY(GCN_DBLCLK_LEGEND, IDC_GRAPH, &CGraphPage::OnLegendDoubleClick)
    ON_NOTIFY(GCN_DBLCLK_CAPTION, IDC_GRAPH, &CGraphPage::OnCaptionDoubleClick)
    ON_NOTIFY(GCN_MAXIMIZE, IDC_GRAPH, &CGraphPage::OnMaximize)
    ON_NOTIFY(GCN_REMOVEDATA, IDC_GRAPH, &CGraphPage::OnDataRemoved)
    ON_NOTIFY(MGN_COPIED, IDC_GRAPH, &CGraphPage::OnCopied)
    ON_NOTIFY(MGN_NOTCOPIED, IDC_GRAPH, &CGraphPage::OnNotCopied)

    ON_COMMAND(ID_EDIT_COPY, &CGraphPage::OnEditCopy)
    ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CGraphPage::OnUpdateEditCopy)
    ON_COMMAND_RANGE(ID_GRAPH_CLEAR_SELECTION_MARK, ID_GRAPH_REMOVE_DATA_BEFORE_MARK,
                     &CGraphPage::OnEditGraph)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_CLEAR_SELECTION_MARK, &CGraphPage::OnUpdateClearMark)
    ON_UPDATE_COMMAND_UI(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CGraphPage::OnUpdateRemoveData)

    ON_COMMAND_RANGE(ID_VIEW_LINE, ID_VIEW_TWO_AXES, &CGraphPage::OnViewStyle)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LINE, ID_VIEW_TWO_AXES, &CGraphPage::OnUpdateViewStyle)
    ON_COMMAND(ID_VIEW_LEGEND, &CGraphPage::OnViewLegend)
    ON_UPDATE_COMMAND_UI(ID_VIEW_LEGEND, &CGraphPage::OnUpdateViewLegend)
    ON_COMMAND_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CGraphPage::OnViewGrid)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CGraphPage::OnUpdateViewGrid)
    ON_COMMAND_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_FULL_RANGE, &CGraphPage::OnViewRange)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_FULL_RANGE, &CGraphPage::OnUpdateViewRange)
END_MESSAGE_MAP()

int CGraphPage::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CMonitorPage::OnCreate(lpCreateStruct) == failed)
        return failed;
    return m_graph.CreateChild(*this, IDC_GRAPH) ? 0 : failed;
}

void CGraphPage::Update() {
    const PageContent& content = Content();
    GraphSource source = content.Source();
    const bool same = source.recording == m_graph.Source().recording;
    const auto removed = static_cast<std::size_t>(content.lost - m_lost);
    if (std::exchange(m_generation, content.generation) != content.generation)
        m_graph.Show(std::move(source), content.settings);
    else if (std::exchange(m_cuts, content.cuts) != content.cuts)
        m_graph.ShowRest(std::move(source), removed, content.settings);
    else if (same && !(content.settings == m_graph.Settings()))
        m_graph.SetSettings(content.settings);
    else if (!same && content.settings == m_graph.Settings())
        m_graph.ShowGrown(std::move(source), removed);
    else if (!same)
        m_graph.ShowGrown(std::move(source), removed, content.settings);
    m_cuts = content.cuts;
    m_lost = content.lost;
}

void CGraphPage::ShowFilling(bool filling) {
    m_graph.ShowFilling(filling);
    m_pointer.reset();
    m_graph.Redraw();
}

/// The number of digits of the values in the status bar.
recording::ValueDigits CGraphPage::Digits() const {
    return Content().live || m_graph.SamplesEach() > 1 ? recording::ValueDigits::Computed
                                                       : recording::ValueDigits::AsRead;
}

std::vector<std::string> CGraphPage::MarkTexts() {
    const CMonitorGraph::Mark mark = m_graph.SelectionMark();
    if (mark.index < 0)
        return {};
    return TextsOfSample(mark.time, mark.values, mark.times, Digits());
}

std::vector<std::string> CGraphPage::PointerTexts() {
    const auto pointed = m_pointer ? m_graph.SampleUnder(*m_pointer) : std::nullopt;
    if (!pointed)
        return {};
    return recording::SampleTexts(
        pointed->time, {{m_graph.Settings().series[pointed->series].name, pointed->value, {}}}, Digits());
}

std::vector<std::string> CGraphPage::ViewTexts() {
    if (SampleCount() == 0)
        return CMonitorPage::ViewTexts();
    const recording::Recording& recording = *Content().recording;
    std::string text = RangeText(recording, m_graph.Visible());
    if (m_graph.SamplesEach() > 1)
        text += (m_graph.Settings().style == CGraphCtrl::GraphStyleBar ? "   each bar the mean of "
                                                                       : "   lowest and highest of every ") +
                recording::FormatCount(m_graph.SamplesEach()) + " samples";
    if (recording.cancelled)
        text += "   reading was stopped";
    return {text};
}

std::size_t CGraphPage::SampleCount() const {
    const auto& recording = Content().recording;
    return recording && !recording->Empty() ? recording->times.size() : 0;
}

void CGraphPage::OnSelectionChanged(NMHDR*, LRESULT* pResult) {
    Host().ShowSelection();
    *pResult = 0;
}

void CGraphPage::OnPointerMoved(NMHDR* pNMHDR, LRESULT* pResult) {
    m_pointer = CPoint(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt);
    Host().ShowPointer();
    *pResult = 0;
}

void CGraphPage::OnPointerLeft(NMHDR*, LRESULT* pResult) {
    m_pointer.reset();
    Host().ShowPointer();
    *pResult = 0;
}

void CGraphPage::OnCopied(NMHDR*, LRESULT* pResult) {
    Host().Say(CopyTextOf(true));
    *pResult = 0;
}

void CGraphPage::OnNotCopied(NMHDR*, LRESULT* pResult) {
    Host().Say(CopyTextOf(false));
    *pResult = 0;
}

void CGraphPage::OnDataRemoved(NMHDR* pNMHDR, LRESULT* pResult) {
    const int count = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nCount;
    *pResult = 0;
    // A count below 0: the mark was removed while the message box was open. Files on disk are never changed.
    if (count >= 0) {
        const std::size_t before = Content().live ? Content().live->CountBeforeHistory() : 0;
        const std::size_t removed = m_graph.FirstSampleOf(count);
        Host().RemoveHead(removed > 0 ? before + removed : 0);
    }
    Host().ShowSelection();
}

void CGraphPage::OnLegendDoubleClick(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int row = reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->nIndex;
    GraphSettings settings = Content().settings;
    if (row < 0 || static_cast<std::size_t>(row) >= settings.series.size())
        return;
    bool& visible = settings.series[static_cast<std::size_t>(row)].visible;
    visible = !visible;
    Host().ChangeSettings(std::move(settings));
}

void CGraphPage::OnMaximize(NMHDR*, LRESULT* pResult) {
    Host().Fill(!Host().Filled());
    *pResult = 0;
}

void CGraphPage::OnCaptionDoubleClick(NMHDR* pNMHDR, LRESULT* pResult) {
    // The first click of a double-click on the icon has already filled the window or restored it.
    if (!m_graph.IsOnIcon(CPoint(reinterpret_cast<const NMGRAPHCTRL*>(pNMHDR)->pt)))
        Host().Fill(!Host().Filled());
    *pResult = 0;
}

} // namespace kavlix::monitor
