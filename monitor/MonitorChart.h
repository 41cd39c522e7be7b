#pragma once

#include "monitor/recording/Pairing.h"

#include <kavlix/ChartDraw.h>

#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

// Codes of WM_NOTIFY messages to the parent, sent with a plain NMHDR.
constexpr UINT MCN_POINTER = 1420;   ///< the mouse pointer is on another point, or on none
constexpr UINT MCN_SELECTION = 1421; ///< a person marked another point or none

/// How the points are drawn.
enum class ChartStyle { Points, Lines, Both };

/// What a chart shows.
struct ChartPicture {
    std::vector<recording::PairedPoint> points;
    std::string title;
    std::string xLabel;
    std::string yLabel;
    COLORREF color = RGB(0, 0, 0);
    ChartStyle style = ChartStyle::Both;
    recording::ValueSpan xCovers; ///< what the scale shows whatever the points are; none: as the points need
    recording::ValueSpan yCovers;
};

/// The chart control with samples in it. One of them may be marked: by a click near it, with the arrow keys
/// that go on in time, or by the host; Escape takes the mark away.
class CMonitorChart : public CChartDraw {
public:
    /// Creates the control as a child window that takes part in the tab order.
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows another picture. Repaints.
    void Show(ChartPicture picture);
    const ChartPicture& Picture() const { return m_picture; }

    /// Marks the point of this row of the recording; none when there is no such point. Repaints.
    void Mark(std::optional<std::size_t> row);
    /// The marked point; null: none. Valid until the next Show.
    const recording::PairedPoint* Marked() const;

    /// The point under the mouse pointer; null: none. Valid until the next Show.
    const recording::PairedPoint* Pointed() const;

    /// The point that is nearest to a position (client pixels) and at most so far away that it is meant, as
    /// index into the picture's points.
    std::optional<std::size_t> PointUnder(CPoint position) const;

    /// Where a point is painted, client pixels; nothing for a gap or before the first paint.
    std::optional<CPoint> PlaceOf(const recording::PairedPoint& point) const;

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
    void Tell(UINT code);

    ChartPicture m_picture;
    std::optional<std::size_t> m_marked; ///< index into the points, as the next one
    std::optional<std::size_t> m_pointed;
    bool m_watchingLeave = false;
};

} // namespace kavlix::monitor
