// SPDX-License-Identifier: MIT
// The chart page: series over time, or one series against another.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "monitor/MonitorChart.h"
#include "monitor/MonitorPage.h"

namespace kavlix::monitor {

/// Shows all series over true time, one series against another, or a series against its own previous value.
class CChartPage : public CMonitorPage {
public:
    using CMonitorPage::CMonitorPage;

    void Update() override;
    std::vector<std::string> MarkTexts() override;
    std::vector<std::string> PointerTexts() override;
    std::vector<std::string> ViewTexts() override;
    bool HasMark() override { return m_chart.Marked().has_value(); }
    std::optional<std::size_t> MarkedSample() override;
    recording::VisibleRange VisibleSamples() override;

protected:
    void LayOut(CSize size) override { m_chart.MoveWindow(0, 0, size.cx, size.cy); }
    CWnd& FocusWindow() override { return m_chart; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnMarked(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCursor(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnView(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDatasetShown(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnMenu(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEditCopy();
    afx_msg void OnSaveAs();
    afx_msg void OnSaveData();
    afx_msg void OnChooseSeries();
    afx_msg void OnSwap();
    afx_msg void OnUpdateSwap(CCmdUI* pCmdUI);
    afx_msg void OnStyle(UINT nID);
    afx_msg void OnUpdateStyle(CCmdUI* pCmdUI);
    afx_msg void OnLegend();
    afx_msg void OnUpdateLegend(CCmdUI* pCmdUI);
    afx_msg void OnViewRange(UINT nID);
    afx_msg void OnFit();
    afx_msg void OnBack();
    afx_msg void OnNewest();
    afx_msg void OnUpdateNewest(CCmdUI* pCmdUI);
    afx_msg void OnClearMark();
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    afx_msg void OnUpdateWithSamples(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string> TextsOf(std::size_t row, CMonitorChart::Cursor cursor);
    void ShowPicture(bool asNew);
    void ChangePicture(bool asNew);
    void TakeMark();

    CMonitorChart m_chart;
    recording::ChartChoice m_choice;
    std::optional<ChartStyle> m_style; ///< the style that the person chose; none: the default

    // The content that the last Update showed.
    unsigned m_generation = 0;
    std::uint64_t m_lost = 0;
    std::optional<std::uint64_t> m_contentMark; ///< PageContent::marked at the last Update
    std::optional<std::uint64_t> m_mark; ///< this page's marked sample, counted like PageContent::marked
};

} // namespace kavlix::monitor
