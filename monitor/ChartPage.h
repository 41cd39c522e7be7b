#pragma once

#include "monitor/MonitorChart.h"
#include "monitor/MonitorPage.h"

#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// The page with one series drawn against another, against the value before, or against time.
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
    std::vector<std::string> TextsOf(const recording::PairedPoint& point) const;
    std::string XText(const recording::Recording& recording) const;
    void Rebuild();

    CMonitorChart m_chart;
    recording::PairChoice m_choice;
    std::optional<ChartStyle> m_style; ///< what a person has chosen

    // What of the content is shown.
    unsigned m_generation = 0;
    std::shared_ptr<const recording::Recording> m_recording;
    GraphSettings m_settings;
    std::optional<std::uint64_t> m_contentMark; ///< that was seen last
    std::optional<std::uint64_t> m_mark;        ///< as PageContent::marked
};

} // namespace kavlix::monitor
