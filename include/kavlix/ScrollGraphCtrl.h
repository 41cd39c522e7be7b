#pragma once

#include <memory>

#include <kavlix/GraphCtrl.h>

namespace kavlix {
class TimeLine;
class TimeMap;
class ZoneRules;
struct CalendarTime;
struct ViewWindow;
} // namespace kavlix

/// A graph over time: every sample index has a time stamp, shared by all datasets, and the plot shows a
/// window of fixed width on the time line, which a scroll bar under the plot moves. While the newest sample
/// is in view, the view follows the samples; once the user has scrolled back, it stays where it is.
///
/// Feed it so: once InitData and SetHorzRange; then for each instant AddXTickLabel(time) and AddData for
/// every dataset, and RedrawData. RemoveHeadData drops old samples; nothing else does.
///
/// Units: time stamps are 32-bit signed seconds since 1970-01-01 00:00 UTC, shown in local time. X units are
/// twentieths of a second from the first time stamp, on 32 bits: they wrap round 3.4 years after it. A time
/// stamp that does not exist counts as the first one.
///
/// The line styles draw the samples in view, at most one for each second of the view: of a dataset with more
/// samples a second the rest is not drawn. The bar style is that of CGraphCtrl, over sample indices.
///
/// The wheel is the host's: let it call ProcessMouseWheel.
class KAVLIX_API CScrollGraphCtrl : public CGraphCtrl {
public:
    /// An empty graph with one minute in view.
    CScrollGraphCtrl();
    ~CScrollGraphCtrl() override;

    // ---- Samples and time stamps. No repaint but where told. ----

    /// Removes all time stamps; datasets keep their samples.
    void InitData();
    /// Number of time stamps.
    int GetCurDataIndex() const;
    /// Appends the time stamp of the next sample index. Result 1; 0 when memory ran out, which a message box
    /// tells.
    int AddXTickLabel(long time);
    /// Appends a sample, whose time stamp should have been added before. While the newest sample is in view,
    /// the view moves so that this one stands at nine tenths of its width; otherwise the scroll range grows.
    /// The third argument is not used. Result 0 when `nDataset` is outside 0..12 or, after a message box,
    /// when memory ran out.
    int AddData(int nDataset, double y, double* pReserved);
    /// Appends a sample and leaves the view alone, to load recorded data. Results as AddData's.
    int AddDataForOffline(int nDataset, double y, double* pReserved);
    /// Cuts the time stamps and every dataset to their first element; an empty one gets a single 0. The
    /// storage grows in steps of its own, whatever `nGrowBy` asks for. When memory runs out, a message box
    /// tells it, and nothing is cut.
    void SetArraySize(int nGrowBy);

    /// Texts of sample `nIndex` in local time: "MM/DD" and "hh:mm:ss". Result 0, outputs unchanged, when
    /// there is no such time stamp or no memory.
    BOOL GetXData(int nIndex, CString& date, CString& time) override;
    /// "YYYY/MM/DD hh:mm:ss" of sample `nIndex` in local time. Result 0, output unchanged, when there is no
    /// such time stamp or no memory.
    int GetFullTime(int nIndex, CString& text) const;
    /// Seconds from the first time stamp to that of `nIndex`; 0 when there is none.
    long GetXOffset(int nIndex) const;
    /// Time stamp of sample `nIndex`; 0 when there is none.
    long GetTimeInfo(int nIndex) const;
    /// Removes the `nCount` oldest samples of every dataset and as many time stamps; the oldest one left
    /// becomes the origin of the x units. Clears the mark, rewinds the range, shows the newest sample,
    /// repaints the data.
    void RemoveHeadData(int nCount) override;
    /// The same as InitData.
    void ResetXTickLabel() override;

    // ---- View ----

    /// Shows `minutes` of the time line, ending a tenth of it behind the newest sample. Repaints the data.
    void SetHorzRange(double minutes);
    /// Rewinds view and range to the beginning.
    void InitScrollInfo();
    /// Shows position, page and range in the scroll bar, which redraws itself if one of them is another than
    /// it holds.
    void UpdateScrollInfo();
    /// Moves the view into the range at the left and the range's end out to the view's. No repaint.
    void Normalize();
    /// Rewinds the range and shows the newest sample of dataset 0; call Normalize, UpdateScrollInfo and
    /// RedrawData after it.
    void SetScrollLastPos();
    /// Rewinds the range and shows the newest sample of dataset 0. Repaints the data.
    void UpdateScrollByRemove();
    /// Moves the view by a hundredth of its width, to older samples when `delta` is not negative. Repaints
    /// the data if the view moved; never tells the parent.
    void ProcessMouseWheel(short delta);
    /// Whether the parent gets GCN_SCROLL when the user scrolls; default off.
    void SetScrollSync(int bSync) { m_bScrollSync = bSync; }
    /// Sends GCN_SCROLL with `position`, in x units, to the parent, whatever SetScrollSync says.
    void SendScrollInfo(double position);
    /// The first sample whose x is not below `x`; the last one is never looked at.
    int LowerBound(double x) const;
    /// The last sample of a view that begins at sample `nFirst` and has one sample a second; the second
    /// argument is not used. One past the last sample may come out.
    int UpperBound(int nFirst, double reserved) const;

    // ---- Export of the mark's time ----

    /// Whether the menu offers "Send Selection Mark info to Tindro"; default off.
    void SetTindroMode(bool bOn) { m_bTindroMode = bOn; }
    /// The time text that was exported last; empty before the first.
    CString GetTimeInfoFromSelectionMark() const { return m_strSelectionMarkTime; }
    /// Sends WM_GRAPH_SELMARKTIME with that text to the parent, if there is one.
    void SendSelectionMarkTime();

    void InsertGraphMenu(CMenu& menu) override;

    // ---- Time ticks ----

    /// The tick step in seconds for a view with at most `nTicks` ticks; `spacing` receives the distance of
    /// two ticks in logical units.
    int SelectTickUnit(int nTicks, double& spacing) const;
    /// Distance of the first tick from the plot's left edge in logical units, as if sample `nIndex` stood
    /// there. `spacing` receives the distance of two ticks, `fullTime` the first tick's text. `nUnit` in
    /// seconds; 0 when it is below 1.
    int ComputeFirstTickPos(int nIndex, int nUnit, int& spacing, CString& fullTime) const;
    /// The same for a step in seconds, minutes and hours.
    int SecondTickPos(int nIndex, int nSeconds, CString& fullTime) const;
    int MinuteTickPos(int nIndex, int nMinutes, CString& fullTime) const;
    int HourTickPos(int nIndex, int nHours, CString& fullTime) const;
    /// Full time text of the local time `date` ("YYYY/MM/DD") `time` ("hh:mm:ss") and `nUnit` seconds more.
    /// What cannot be read comes back as it is. A local time text does not tell which of the two it is in the
    /// hour that comes twice when clocks go back: steps of up to an hour from such a text lead back into that
    /// hour for ever. To walk along time, add to a time stamp instead.
    CString GetNextTickTime(int nUnit, CString& date, CString& time) const;

protected:
    /// Draws the time axis. Ticks stand apart by the truncated distance of two, so that they drift to the
    /// left of their times in long views; of ticks in one device column the first is drawn. Where labels
    /// would touch, only ticks at longer round times have one.
    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override;
    /// Draws the upright label of the tick at `x`, its end at `y`: the clock time `time` alone where `date`
    /// is empty, else `date` ("MM/DD") and `time` side by side. Font and colour are selected; the text
    /// alignment is that of the label before.
    virtual void DrawTimeLabel(CDC& dc, int x, int y, const CString& date, const CString& time);
    void DrawGraphData(CDC& dc) override;
    /// Lines: of the samples painted last the one nearest in x, -1 outside the plot. Bars: as CGraphCtrl.
    int GetIndexFromPt(CPoint point) override;
    CPoint GetPtFromIndex(int nIndex) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnSendSelectionMarkInfoToTindro();
    DECLARE_MESSAGE_MAP()

protected:
    CScrollBar
        m_wndScrollBar; ///< under the plot; without a window when the control was bound to a dialog item

private:
    std::unique_ptr<kavlix::TimeLine> m_arrTime;
    std::unique_ptr<kavlix::ZoneRules> m_zoneRules; ///< what the system told for the time labels

protected:
    // In x units.
    double m_dScrollPos; ///< left edge of the view
    double m_dScrollMax; ///< right end of the scroll range
    double m_dScrollMin; ///< left end of the scroll range
    double m_dViewWidth;

    int m_nUnitsPerSecond; ///< x units a second; SetHorzRange and SelectTickUnit read it
    bool m_bTindroMode;
    CString m_strSelectionMarkTime;
    int m_bScrollSync;
    int m_bFollowed;  ///< the last AddData moved the view with the samples
    int m_nDrawFirst; ///< samples of the last paint
    int m_nDrawLast;

private:
    int m_nToldPos; ///< of the scroll bar, when UpdateScrollInfo looked last
    int m_nToldPage;

    kavlix::ViewWindow GetView() const;
    void SetView(const kavlix::ViewWindow& view);
    kavlix::TimeMap GetTimeMap() const;
    bool NotifyScroll(double position);
    void RaiseScrollBar();
    double UnitsPerSecond() const;
    int TickPos(int nIndex, int nStep, int (*secondsToRound)(const kavlix::CalendarTime&, int),
                CString& fullTime) const;
};
