// SPDX-License-Identifier: MIT
// The graph page: one graph over the samples.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "monitor/MonitorGraph.h"
#include "monitor/MonitorPage.h"

namespace kavlix::monitor {

/// Shows one graph, with lines, bars or two axes: of the recording, or of the last minutes of live readings.
class CGraphPage : public CMonitorPage {
public:
    using CMonitorPage::CMonitorPage;

    void Update() override;
    std::vector<std::string> MarkTexts() override;
    std::vector<std::string> PointerTexts() override;
    std::vector<std::string> ViewTexts() override;
    bool HasMark() override { return m_graph.SelectionMark().index >= 0; }
    std::optional<std::size_t> MarkedSample() override { return m_graph.MarkedSample(); }
    void ShowFilling(bool filling) override;
    recording::VisibleRange VisibleSamples() override { return m_graph.Visible(); }

protected:
    void LayOut(CSize size) override { m_graph.MoveWindow(0, 0, size.cx, size.cy); }
    CWnd& FocusWindow() override { return m_graph; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSelectionChanged(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerMoved(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerLeft(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnLegendDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCaptionDoubleClick(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnMaximize(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDataRemoved(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCopied(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnNotCopied(NMHDR* pNMHDR, LRESULT* pResult);

    afx_msg void OnEditGraph(UINT nID);
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateEditCopy(CCmdUI* pCmdUI);
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRemoveData(CCmdUI* pCmdUI);
    afx_msg void OnViewStyle(UINT nID);
    afx_msg void OnUpdateViewStyle(CCmdUI* pCmdUI);
    afx_msg void OnViewLegend();
    afx_msg void OnUpdateViewLegend(CCmdUI* pCmdUI);
    afx_msg void OnViewGrid(UINT nID);
    afx_msg void OnUpdateViewGrid(CCmdUI* pCmdUI);
    afx_msg void OnViewRange(UINT nID);
    afx_msg void OnUpdateViewRange(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    recording::ValueDigits Digits() const;
    std::size_t SampleCount() const;

    CMonitorGraph m_graph;
    std::optional<CPoint> m_pointer; ///< the mouse pointer in the graph, client pixels

    // The content that the last Update showed.
    unsigned m_generation = 0;
    unsigned m_cuts = 0;
    std::uint64_t m_lost = 0;
};

} // namespace kavlix::monitor
