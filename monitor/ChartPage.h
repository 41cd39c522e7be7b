// SPDX-License-Identifier: MIT
// The chart page: one series against another.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "monitor/MonitorChart.h"
#include "monitor/MonitorPage.h"

namespace kavlix::monitor {

/// Shows one series against another, against its own previous value, or against time.
class CChartPage : public CMonitorPage {
public:
    using CMonitorPage::CMonitorPage;

    void Update() override;
    std::vector<std::string> MarkTexts() override;
    std::vector<std::string> PointerTexts() override;
    std::vector<std::string> ViewTexts() override;
    bool HasMark() override { return m_chart.Marked() != nullptr; }
    std::optional<std::size_t> MarkedSample() override;

protected:
    void LayOut(CSize size) override { m_chart.MoveWindow(0, 0, size.cx, size.cy); }
    CWnd& FocusWindow() override { return m_chart; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSelection(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointer(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEditCopy();
    afx_msg void OnSaveAs();
    afx_msg void OnChooseSeries();
    afx_msg void OnSwap();
    afx_msg void OnUpdateSwap(CCmdUI* pCmdUI);
    afx_msg void OnStyle(UINT nID);
    afx_msg void OnUpdateStyle(CCmdUI* pCmdUI);
    afx_msg void OnClearMark();
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    afx_msg void OnUpdateWithPoints(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    std::vector<std::string> TextsOf(const recording::ChartPoint& point) const;
    std::string XText(const recording::Recording& recording) const;
    void Rebuild();

    CMonitorChart m_chart;
    recording::ChartChoice m_choice;
    std::optional<ChartStyle> m_style; ///< the style that the person chose; none: the default

    // The content that the last Update showed.
    unsigned m_generation = 0;
    std::shared_ptr<const recording::Recording> m_recording;
    GraphSettings m_settings;
    std::optional<std::uint64_t> m_contentMark; ///< PageContent::marked at the last Update
    std::optional<std::uint64_t> m_mark; ///< this page's marked sample, counted like PageContent::marked
};

} // namespace kavlix::monitor
