// SPDX-License-Identifier: MIT
// The scroll page: two graphs over time.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "monitor/LocalStamps.h"
#include "monitor/MonitorPage.h"
#include "monitor/MonitorScrollGraph.h"
#include "monitor/recording/ScrollChoice.h"
#include "monitor/recording/ScrollRows.h"

namespace kavlix::monitor {

/// Shows two graphs over time, one above the other, which scroll together and share their mark. Of live
/// readings the upper graph shows percents and the lower one rates. DivideByMagnitude divides the series of a
/// recording between the graphs. For a single series there is one graph.
class CScrollPage : public CMonitorPage {
public:
    explicit CScrollPage(PageHost& host) : CMonitorPage(host) {}

    void Update() override;
    bool WorkInIdle() override;
    std::vector<std::string> MarkTexts() override;
    std::vector<std::string> PointerTexts() override;
    std::vector<std::string> ViewTexts() override;
    bool HasMark() override { return m_graphs[0].MarkedRow() >= 0; }
    void ShowFilling(bool filling) override;

protected:
    void LayOut(CSize size) override;
    CWnd& FocusWindow() override { return m_graphs[m_active]; }

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnScrolled(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelectionChanged(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerMoved(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnPointerLeft(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnLegendDoubleClick(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCaptionDoubleClick(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnMaximize(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnDataRemoved(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnCopied(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnNotCopied(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg LRESULT OnMarkTime(WPARAM wParam, LPARAM lParam);

    afx_msg void OnEditGraph(UINT nID);
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateEditCopy(CCmdUI* pCmdUI);
    afx_msg void OnUpdateClearMark(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRemoveData(CCmdUI* pCmdUI);
    afx_msg void OnViewLegend();
    afx_msg void OnUpdateViewLegend(CCmdUI* pCmdUI);
    afx_msg void OnViewGrid(UINT nID);
    afx_msg void OnUpdateViewGrid(CCmdUI* pCmdUI);
    afx_msg void OnViewMove(UINT nID);
    afx_msg void OnUpdateViewMove(CCmdUI* pCmdUI);
    afx_msg void OnRange(UINT nID);
    afx_msg void OnUpdateRange(CCmdUI* pCmdUI);
    afx_msg void OnPause();
    afx_msg void OnUpdatePause(CCmdUI* pCmdUI);
    afx_msg void OnKeepAtMost();
    afx_msg void OnUpdateKeepAtMost(CCmdUI* pCmdUI);
    afx_msg void OnTindro();
    afx_msg void OnUpdateTindro(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t kGraphs = 2;

    /// The graph and dataset of one series of the content.
    struct Place {
        std::size_t graph = 0;
        std::size_t dataset = 0;
    };

    /// The position of the mouse pointer.
    struct Pointer {
        std::size_t graph = 0;
        CPoint point; ///< client pixels
    };

    void Begin();
    void Divide(const std::vector<bool>& below);
    std::vector<SeriesSettings> SeriesOf(std::size_t graph) const;
    void SetLooks();
    void FeedLive();
    void FeedSlice();
    void EndFeeding();
    void AddRows(const std::vector<recording::ScrollRow>& rows, std::uint64_t base, bool offline);
    std::vector<double> ValuesOf(const recording::ScrollRow& row);
    void TrimTo(std::uint64_t sample);

    std::size_t GraphOf(const NMHDR* notification) const;
    bool Has(std::size_t graph) const { return m_inUse > graph; }
    std::size_t FocusedGraph();
    void SetRange(std::size_t range);
    void FitGraphs();
    void ViewMoved();
    void ViewChanged();
    recording::ValueDigits Digits() const;
    std::size_t SampleOf(int row) const;
    std::vector<double> ShownValues(int row) const;
    std::string SeriesName(std::size_t series) const;

    CMonitorScrollGraph m_graphs[kGraphs];
    std::size_t m_inUse = 1;              ///< number of graphs in use: 1 or 2
    std::size_t m_active = 0;             ///< index of the graph that gets the focus
    std::optional<std::size_t> m_filling; ///< index of the graph that fills the window
    std::optional<Pointer> m_pointer;
    std::vector<Place> m_places; ///< one for each series of the content
    int m_wheel = 0;             ///< rotation of the mouse wheel that is not yet a whole step
    std::size_t m_range = 1;     ///< index into recording::kViewRanges
    bool m_tindro = false;
    bool m_paused = false;

    // Sample numbers count from the first sample that the content ever had.
    std::deque<recording::ScrollRow> m_rows; ///< the rows that the graphs hold
    LocalStamps m_stamps;
    std::uint64_t m_next = 0; ///< number of the next sample without a row

    // A recording while its rows are handed to the graphs.
    std::shared_ptr<const recording::Recording> m_feeding; ///< null: all rows were handed over
    std::uint64_t m_feedingFrom = 0;                       ///< number of the recording's first sample
    recording::ScrollPlan m_plan;
    std::vector<double> m_before; ///< last value of each series handed over; NaN: none yet

    // The content that the last Update showed.
    unsigned m_generation = 0;
    unsigned m_cuts = 0;
    GraphSettings m_settings;
};

} // namespace kavlix::monitor
