#pragma once

#include "monitor/FittedGraph.h"
#include "monitor/recording/SpanIndex.h"

#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// One of the graphs of the scroll page. Its view always begins at a sample, which is where the control takes
/// the first sample in view to stand, so that its time labels are true. It chooses a value axis with round
/// labels for what is in view.
class CMonitorScrollGraph : public CFittedGraph<CScrollGraphCtrl> {
public:
    /// What the value axis is, beyond the samples.
    struct Axis {
        recording::ValueSpan covers; ///< values it covers whatever the samples are
        std::string unit;            ///< `%`, `B/s`
    };

    /// Room beside the plot, in logical units. Graphs that share their times share it, too.
    struct Room {
        int tickLabels = 0;
        int legend = 0;
    };

    /// A sample of one series that stands under the mouse pointer.
    struct Pointed {
        int row = 0;
        std::size_t series = 0; ///< of this graph
    };

    /// Begins anew without samples. The number of series stays from then on.
    void Begin(const GraphSettings& settings, std::vector<SeriesSettings> series, Axis axis);
    void SetLook(const GraphSettings& settings, std::vector<SeriesSettings> series);

    // ---- Samples. Rows are counted from the oldest that is there. ----

    /// Adds a row: a value a series. The view follows while it shows the newest row. No repaint.
    void Append(long stamp, const std::vector<double>& values);
    /// The same without following, for many rows. Call ShowNewest or ReachNewest after the last.
    void AppendOffline(long stamp, const std::vector<double>& values);
    /// Removes the oldest rows; view and mark stay where they are as long as that is there.
    void TrimHead(int rows);
    /// As the control's command does: the mark goes; the view stays.
    void RemoveHeadData(int nCount) override;

    int Rows() const { return GetCurDataIndex(); }
    double ValueOf(std::size_t series, int row) const;

    // ---- View. All repaint and tell the parent nothing. ----

    bool ShowsNewest() const;
    /// Shows the newest row a tenth before the plot's right edge, and follows the next ones.
    void ShowNewest();
    void ShowOldest();
    /// Lets the scroll bar reach the newest row.
    void ReachNewest();
    /// Changes the width of the view. The newest row, the marked row or else the middle stays where it was,
    /// whichever of them is in view.
    void SetRange(int seconds);
    void ScrollTo(double position);
    double ScrollPosition() const { return m_dScrollPos; }
    /// Moves the view by half its width; -1 to the left, 1 to the right.
    void ScrollPages(int pages);
    void Wheel(short delta);
    /// Moves the view so that it shows the row, if it does not.
    void EnsureVisible(int row);
    int FirstVisible() const;
    int LastVisible() const;

    int MarkedRow() const;

    /// The sample nearest to a point (client pixels) in time, and of the series there the nearest.
    std::optional<Pointed> SampleUnder(CPoint point);

    // ---- Fitting into the window. ----

    /// Fits the value axis to what is in view. True when it changed: then the room has to be shared anew.
    bool FollowValues();
    /// Chooses everything that does not depend on the room.
    Room FitAndMeasure();
    /// Takes the room, chooses the rest and repaints.
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
    std::vector<recording::SpanIndex> m_spans; ///< one a series
};

} // namespace kavlix::monitor
