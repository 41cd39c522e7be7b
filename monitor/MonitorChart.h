// SPDX-License-Identifier: MIT
// The chart control of the chart page.
#pragma once

#include <kavlix/ChartDraw.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "monitor/GraphSettings.h"
#include "monitor/recording/ChartPoints.h"

namespace kavlix::monitor {

/// How the points are drawn.
enum class ChartStyle { Points, Lines, Both };

/// What a chart shows.
struct ChartPicture {
    std::shared_ptr<const recording::Recording> recording; ///< null or without times: an empty chart
    GraphSettings settings;
    recording::ChartChoice choice;
    std::optional<ChartStyle>
        style;                   ///< none: lines over time, with the markers of the settings; else by count
    recording::ValueSpan covers; ///< fixed ends of the scales of values; none: they follow the data
    bool isLive = false;         ///< samples are added: the view follows the newest one
};

/// The chart control with the samples of a recording: all series over time, or one against another. One sample
/// may be marked: by a click, by the arrow keys, which move the mark in time, or by the host. Escape removes the
/// mark. Over time the mark is the chart's second cursor.
class CMonitorChart : public CChartDraw {
public:
    /// The cursors of the chart.
    enum Cursor { PointerCursor, MarkCursor };

    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows another picture. With `asNew` the view is the whole picture; otherwise it stays. Removes the mark.
    /// Repaints.
    void Show(ChartPicture picture, bool asNew);
    /// Shows the same series over time with rows removed at the head and rows added. View and mark stay. Repaints.
    void Grow(std::shared_ptr<const recording::Recording> recording, std::size_t removed);
    const ChartPicture& Picture() const { return m_picture; }
    ChartStyle Style() const;
    bool IsOverTime() const { return m_picture.choice.kind == recording::ChartX::Time; }
    bool HasSamples() const { return m_picture.recording && !m_picture.recording->times.empty(); }

    /// Marks a row of the recording; removes the mark when the chart shows no sample of the row. Repaints.
    void Mark(std::optional<std::size_t> row);
    /// The marked row; none without a mark.
    std::optional<std::size_t> Marked();
    /// The row of the sample at the chart's first cursor, which follows the pointer; none without one.
    std::optional<std::size_t> Pointed();
    /// The row of the sample of a series at a cursor over time; none without one.
    std::optional<std::size_t> RowOfSeries(Cursor cursor, std::size_t series);

    /// The points of one series against another; empty over time.
    const std::vector<recording::ChartPoint>& Points() const { return m_points; }
    /// The point of a row; null for a gap, and when there is none.
    const recording::ChartPoint* PointOf(std::size_t row) const;
    /// The captions of one series against another.
    std::string XText() const;
    std::string YText() const { return m_picture.settings.series[m_picture.choice.y].name; }
    /// The rows in view. The recording must have rows.
    recording::VisibleRange Visible();

    /// Moves the X axis to the newest sample, and on with each one that is added.
    void FollowNewest();

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void ShowOverTime(bool asNew, bool newSamples);
    void ShowPoints();
    void ApplySettings();
    void ResetView();
    void PlaceLegend();
    void Step(int direction);
    std::optional<std::size_t> RowAtCursor(Cursor cursor);

    ChartPicture m_picture;
    std::vector<recording::ChartPoint> m_points;
    recording::Time m_origin = 0;        ///< where the seconds of the X axis count from, over time
    std::optional<std::size_t> m_marked; ///< the row of the marked point; over time the second cursor has it
    CPoint m_pressed{-1, -1};            ///< where the left button went down, client pixels
};

} // namespace kavlix::monitor
