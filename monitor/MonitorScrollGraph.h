// SPDX-License-Identifier: MIT
// The scrolling graph control of the scroll page.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "monitor/FittedGraph.h"
#include "monitor/recording/SpanIndex.h"

namespace kavlix::monitor {

/// One of the graphs of the scroll page. The view always begins exactly at a sample, because the control
/// draws its first visible sample at the left edge: otherwise the time labels would be wrong. The graph
/// chooses a value axis with round labels for the visible samples.
class CMonitorScrollGraph : public CFittedGraph<CScrollGraphCtrl> {
public:
    /// Properties of the value axis that do not follow from the samples.
    struct Axis {
        recording::ValueSpan covers; ///< values that the axis always covers
        std::string unit;            ///< unit of the values, `%` or `B/s`; empty: none
    };

    /// Widths beside the plot, in logical units. All graphs of the page use the same widths, so that their
    /// time axes line up.
    struct Room {
        int tickLabels = 0;
        int legend = 0;
    };

    /// The sample of one series under the mouse pointer.
    struct Pointed {
        int row = 0;
        std::size_t series = 0; ///< index within this graph
    };

    /// Removes all samples and begins with these series. A later SetLook must have the same number of series.
    void Begin(const GraphSettings& settings, std::vector<SeriesSettings> series, Axis axis);
    void SetLook(const GraphSettings& settings, std::vector<SeriesSettings> series);

    // ---- Samples. Row numbers count from the oldest row that exists. ----

    /// Adds a row with a value for each series. A view that shows the newest row follows. Does not repaint.
    void Append(long stamp, const std::vector<double>& values);

    /// Adds one of many rows; the view does not follow. The caller calls ShowNewest or ReachNewest after the
    /// last row.
    void AppendOffline(long stamp, const std::vector<double>& values);

    /// Removes the oldest rows. The view moves as with RemoveHeadData; the mark stays on its row while the
    /// row exists. Repaints.
    void TrimHead(int rows);

    /// Removes the oldest rows and the mark, as the control's menu command does. A view that shows the newest
    /// row goes on showing it; any other view stays on its rows while these rows exist. Repaints.
    void RemoveHeadData(int nCount) override;

    int Rows() const { return GetCurDataIndex(); }
    double ValueOf(std::size_t series, int row) const;

    // ---- View. The functions that change the view repaint; they do not notify the parent. ----

    bool ShowsNewest() const;

    /// Shows the newest row about a tenth of the view before the plot's right edge. A time line that is too
    /// short for this begins at the left edge.
    void ShowNewest();
    void ShowOldest();

    /// Extends the scroll range to the newest row and a tenth of the view beyond.
    void ReachNewest();

    /// Changes the width of the view, in seconds. A view that shows the newest row keeps doing so. Otherwise
    /// the marked row, if visible, or the middle of the view keeps its place.
    void SetRange(int seconds);

    /// Moves the left edge of the view to about `position`, in units of 1/20 s from the oldest row.
    void ScrollTo(double position);
    double ScrollPosition() const { return m_dScrollPos; }

    /// Moves the view by half its width for each page, to the left when `pages` is negative.
    void ScrollPages(int pages);
    void Wheel(short delta);

    /// Moves the view to the row if the row is not visible.
    void EnsureVisible(int row);
    int FirstVisible() const;
    int LastVisible() const;

    int MarkedRow() const;

    /// The sample under a point (client pixels). Of each visible series, the value at or near the row that is
    /// nearest in time counts; the result is the value nearest in height. None outside the plot.
    std::optional<Pointed> SampleUnder(CPoint point);

    // ---- Fitting into the window ----

    /// Fits the value axis to the visible samples. Returns true when the axis changed: then the caller must
    /// call FitAndMeasure and TakeRoom.
    bool FollowValues();

    /// Sets everything that does not depend on the widths in Room, and returns the widths that this graph
    /// needs.
    Room FitAndMeasure();

    /// Sets the widths, and everything that depends on them. Repaints.
    void TakeRoom(const Room& room);

protected:
    void DrawTimeLabel(CDC& dc, int x, int y, const CString& date, const CString& time) override;

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCopy();
    DECLARE_MESSAGE_MAP()

private:
    void AddToIndex(const std::vector<double>& values);
    double XOf(int row) const;
    void Clamp();
    void Settle(double before);
    void ShowView();
    std::optional<int> RowWithValue(std::size_t series, int row, int first, int last) const;
    recording::ValueSpan SpanInView() const;

    GraphSettings m_settings;
    std::vector<SeriesSettings> m_series;
    Axis m_axis;
    recording::ValueScale m_scale;
    int m_valueTicks = 0;
    std::vector<recording::SpanIndex> m_spans; ///< one for each series
};

} // namespace kavlix::monitor
