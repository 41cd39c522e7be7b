// SPDX-License-Identifier: MIT
// The chart control of the chart page.
#pragma once

#include <kavlix/ChartDraw.h>

#include <optional>
#include <string>
#include <vector>

#include "monitor/recording/ChartPoints.h"

namespace kavlix::monitor {

/// How the points are drawn.
enum class ChartStyle { Points, Lines, Both };

/// What a chart shows.
struct ChartPicture {
    std::vector<recording::ChartPoint> points;
    std::string title;
    std::string xLabel;
    std::string yLabel;
    COLORREF color = RGB(0, 0, 0);
    ChartStyle style = ChartStyle::Both;
    recording::ValueSpan xCovers; ///< fixed ends of the X scale; none: the scale follows the points
    recording::ValueSpan yCovers; ///< fixed ends of the Y scale; none: the scale follows the points
};

/// The chart control with the samples of a recording. One sample may be marked: by a click near it, by the
/// arrow keys, which move the mark in time, or by the host. Escape removes the mark.
class CMonitorChart : public CChartDraw {
public:
    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows another picture. The mark stays on its row if the new picture has a point for it. Repaints.
    void Show(ChartPicture picture);
    const ChartPicture& Picture() const { return m_picture; }

    /// Marks the point of this row of the recording; removes the mark when there is no such point. Repaints.
    void Mark(std::optional<std::size_t> row);

    /// The marked point; null without a mark. Valid until the next Show.
    const recording::ChartPoint* Marked() const;

    /// The point under the mouse pointer; null without one. Valid until the next Show.
    const recording::ChartPoint* Pointed() const;

    /// The point nearest to a position (client pixels), as an index into the picture's points. None when all
    /// are more than 12 pixels away.
    std::optional<std::size_t> PointUnder(CPoint position) const;

    /// Where a point is painted, in client pixels. None for a gap, for a place beyond the largest coordinate
    /// of a window (32,767), and before the first paint.
    std::optional<CPoint> PlaceOf(const recording::ChartPoint& point) const;

protected:
    void DrawDatasets(CDC& dc) override;

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    void Point(std::optional<std::size_t> point);
    void Step(int direction);

    ChartPicture m_picture;
    std::optional<std::size_t> m_marked;  ///< index into the points
    std::optional<std::size_t> m_pointed; ///< index into the points
    bool m_watchingLeave = false;         ///< Windows will send WM_MOUSELEAVE
};

} // namespace kavlix::monitor
