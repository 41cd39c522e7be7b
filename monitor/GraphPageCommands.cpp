// SPDX-License-Identifier: MIT
// The graph page's commands.

#include "monitor/GraphPage.h"

#include <afxres.h>

#include <algorithm>
#include <utility>

#include "monitor/resource.h"

namespace kavlix::monitor {

using recording::VisibleRange;

namespace {

constexpr std::size_t kFewestShown = 8; // samples in view at the greatest zoom

/// The range, moved by `by` samples but not beyond an end of the recording, which has `count` samples.
VisibleRange Moved(VisibleRange range, std::ptrdiff_t by, std::size_t count) {
    const std::size_t size = range.last - range.first + 1;
    const std::size_t end = count - std::min(size, count);
    const std::size_t room = by < 0 ? range.first : end - std::min(range.first, end);
    const std::size_t step = std::min(static_cast<std::size_t>(by < 0 ? -by : by), room);
    range.first = by < 0 ? range.first - step : range.first + step;
    range.last = range.first + size - 1;
    return range;
}

/// A range of `size` samples with `middle` in the middle, or as near to it as the recording's ends allow.
VisibleRange Around(std::size_t middle, std::size_t size, std::size_t count) {
    size = std::min(size, count);
    const std::size_t first = std::min(middle - std::min(middle, size / 2), count - size);
    return {first, first + size - 1};
}

} // namespace

void CGraphPage::OnEditGraph(UINT nID) {
    m_graph.SendMessage(WM_COMMAND, nID);
}

void CGraphPage::OnEditCopy() {
    OnEditGraph(ID_EDIT_COPY);
}

void CGraphPage::OnUpdateEditCopy(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!Content().settings.series.empty());
}

void CGraphPage::OnUpdateClearMark(CCmdUI* pCmdUI) {
    pCmdUI->Enable(m_graph.SelectionMark().index >= 0);
}

void CGraphPage::OnUpdateRemoveData(CCmdUI* pCmdUI) {
    const int mark = m_graph.SelectionMark().index;
    pCmdUI->Enable(mark >= 0 && m_graph.FirstSampleOf(mark) > 0);
}

void CGraphPage::OnViewStyle(UINT nID) {
    GraphSettings settings = Content().settings;
    settings.style = static_cast<CGraphCtrl::GraphStyle>(nID - ID_VIEW_LINE);
    Host().ChangeSettings(std::move(settings));
}

void CGraphPage::OnUpdateViewStyle(CCmdUI* pCmdUI) {
    const GraphSettings& settings = Content().settings;
    pCmdUI->SetRadio(static_cast<UINT>(settings.style) == pCmdUI->m_nID - ID_VIEW_LINE);
    // The two-axis style needs two series.
    pCmdUI->Enable(settings.series.size() >= (pCmdUI->m_nID == ID_VIEW_TWO_AXES ? 2u : 1u));
}

void CGraphPage::OnViewLegend() {
    GraphSettings settings = Content().settings;
    settings.legend = !settings.legend;
    Host().ChangeSettings(std::move(settings));
}

void CGraphPage::OnUpdateViewLegend(CCmdUI* pCmdUI) {
    const GraphSettings& settings = Content().settings;
    const bool possible = settings.style != CGraphCtrl::GraphStyleTwoAxis;
    pCmdUI->SetCheck(possible && settings.legend);
    pCmdUI->Enable(possible);
}

void CGraphPage::OnViewGrid(UINT nID) {
    GraphSettings settings = Content().settings;
    bool& grid = nID == ID_VIEW_GRID_X ? settings.gridX : settings.gridY;
    grid = !grid;
    Host().ChangeSettings(std::move(settings));
}

void CGraphPage::OnUpdateViewGrid(CCmdUI* pCmdUI) {
    const GraphSettings& settings = Content().settings;
    const bool forTime = pCmdUI->m_nID == ID_VIEW_GRID_X;
    pCmdUI->SetCheck(forTime ? settings.gridX : settings.gridY);
    // With bars, the control draws no grid lines at the time ticks.
    pCmdUI->Enable(!forTime || settings.style != CGraphCtrl::GraphStyleBar);
}

void CGraphPage::OnViewRange(UINT nID) {
    const std::size_t count = SampleCount();
    if (count == 0)
        return;
    const VisibleRange now = m_graph.Visible();
    const std::size_t size = now.last - now.first + 1;
    const std::size_t middle = m_graph.MarkedSample().value_or(now.first + size / 2);
    const auto page = static_cast<std::ptrdiff_t>(std::max<std::size_t>(size / 2, 1));
    switch (nID) {
    case ID_VIEW_ZOOM_IN:
        m_graph.SetVisible(Around(middle, std::max(size / 2, std::min(kFewestShown, size)), count));
        break;
    case ID_VIEW_ZOOM_OUT:
        m_graph.SetVisible(Around(middle, size > count / 2 ? count : size * 2, count));
        break;
    case ID_VIEW_EARLIER:
        m_graph.SetVisible(Moved(now, -page, count));
        break;
    case ID_VIEW_LATER:
        m_graph.SetVisible(Moved(now, page, count));
        break;
    default:
        m_graph.SetVisible({0, count - 1});
        break;
    }
    Host().ShowSelection();
}

void CGraphPage::OnUpdateViewRange(CCmdUI* pCmdUI) {
    const std::size_t count = SampleCount();
    const VisibleRange now = m_graph.Visible();
    bool possible = count > 0;
    switch (pCmdUI->m_nID) {
    case ID_VIEW_ZOOM_IN:
        possible = possible && now.last - now.first + 1 > kFewestShown;
        break;
    case ID_VIEW_EARLIER:
        possible = possible && now.first > 0;
        break;
    case ID_VIEW_LATER:
        possible = possible && now.last + 1 < count;
        break;
    default:
        possible = possible && !m_graph.ShowsAll();
        break;
    }
    pCmdUI->Enable(possible);
}

} // namespace kavlix::monitor
