// SPDX-License-Identifier: MIT
// CScrollGraphCtrl: the graph over time.
#pragma once

#include <kavlix/GraphCtrl.h>

#include <memory>

namespace kavlix {
struct ScrollGraphCtrlState;
class TimeLine;
class TimeMap;
class ZoneRules;
struct CalendarTime;
struct ViewWindow;
} // namespace kavlix

/// A graph over time. Every sample index has a time stamp, which all datasets share. The plot shows a view of
/// fixed width on the time line, and a scroll bar under the plot moves the view. While the newest sample is
/// in view, the view follows the samples. Otherwise new samples do not move the view.
///
/// Feeding: the host calls InitData and SetHorzRange once, then for each instant AddXTickLabel(time), AddData
/// for every dataset, and RedrawData. Old samples stay until the host calls RemoveHeadData.
///
/// Units: time stamps are 32-bit signed seconds since 1970-01-01 00:00 UTC; labels show local time. X units
/// are twentieths of a second from the first time stamp, as 32-bit numbers, which wrap round 3.4 years after
/// the first time stamp. A sample without a time stamp stands at the first time stamp.
///
/// The line styles draw the samples in view and one neighbour on either side. Of the samples in view only
/// the first ones are drawn, as many as the view's width has seconds: a dataset with more than one sample a
/// second does not fill the view. The bar style is that of CGraphCtrl, over sample indices, but without X
/// ticks.
///
/// The control does not handle the mouse wheel; the host calls ProcessMouseWheel.
class KAVLIX_API CScrollGraphCtrl : public CGraphCtrl {
public:
    /// An empty graph with one minute in view.
    CScrollGraphCtrl();
    ~CScrollGraphCtrl() override;

    // ---- Samples and time stamps. Only RemoveHeadData repaints the graph. ----

    /// Removes all time stamps; datasets keep their samples.
    void InitData();
    /// Number of time stamps.
    int GetCurDataIndex() const;
    /// Appends the time stamp of the next sample index. Result 1; 0, after a message box, when memory ran
    /// out.
    int AddXTickLabel(long time);
    /// Appends a sample; the host adds its time stamp first. If the dataset's previous sample is in view and
    /// the new sample lies beyond nine tenths of the view's width, the view moves until the new sample stands
    /// there. Otherwise the scroll range may grow to hold the sample. `pReserved` is not used. Result 1; 0
    /// when `nDataset` is outside 0..12 or, after a message box, when memory ran out.
    int AddData(int nDataset, double y, double* pReserved);
    /// Appends a sample without a change to view and scroll range, to load recorded data. Results as those of
    /// AddData.
    int AddDataForOffline(int nDataset, double y, double* pReserved);
    /// Keeps only the first time stamp and the first sample of every dataset. An empty dataset gets a sample
    /// of the value 0, an empty list of time stamps the stamp 0. `nGrowBy` has no effect: the storage chooses
    /// its own growth. When memory runs out, a message box appears and nothing changes.
    void SetArraySize(int nGrowBy);

    /// Texts of sample `nIndex` in local time: "MM/DD" and "hh:mm:ss". Result 0, outputs unchanged, when the
    /// sample has no time stamp or memory runs out.
    BOOL GetXData(int nIndex, CString& date, CString& time) override;
    /// "YYYY/MM/DD hh:mm:ss" of sample `nIndex` in local time. Result 0, output unchanged, when the sample
    /// has no time stamp or memory runs out.
    int GetFullTime(int nIndex, CString& text) const;
    /// Seconds from the first time stamp to that of sample `nIndex`; 0 when the sample has none.
    long GetXOffset(int nIndex) const;
    /// Time stamp of sample `nIndex`; 0 when the sample has none.
    long GetTimeInfo(int nIndex) const;
    /// Removes the `nCount` oldest samples of every dataset and the `nCount` oldest time stamps. The oldest
    /// remaining time stamp becomes the origin of the x units. Removes the selection mark and calls
    /// UpdateScrollByRemove, which repaints the data.
    void RemoveHeadData(int nCount) override;
    /// Does the same as InitData.
    void ResetXTickLabel() override;

    // ---- View ----

    /// Sets the width of the view to `minutes` and calls UpdateScrollByRemove, which repaints the data.
    void SetHorzRange(double minutes);
    /// Moves the view to x = 0, makes the scroll range 0 to 1200 x units (one minute) and calls
    /// UpdateScrollInfo. No repaint of the graph.
    void InitScrollInfo();
    /// Passes position, page and range to the scroll bar when one of them has changed; the bar then redraws
    /// itself.
    void UpdateScrollInfo();
    /// Moves a view that begins before the scroll range to the range's left end. If the view then ends after
    /// the range, extends the range to the view's right edge. No repaint.
    void Normalize();
    /// Moves the view to the newest sample of dataset 0. First sets the view to x = 0 and the right end of
    /// the scroll range to 1200 x units. If the sample then lies beyond nine tenths of the view's width,
    /// moves the view until the sample stands there. The caller then calls Normalize, UpdateScrollInfo and
    /// RedrawData.
    void SetScrollLastPos();
    /// Shows the newest sample of dataset 0 and repaints the data: calls SetScrollLastPos, Normalize,
    /// RedrawData and UpdateScrollInfo.
    void UpdateScrollByRemove();
    /// Moves the view by a hundredth of its width within the scroll range, to older samples when `delta` is
    /// not negative. Repaints the data if the view moved. Sends no notification.
    void ProcessMouseWheel(short delta);
    /// Whether GCN_SCROLL is sent to the parent when the user moves the scroll bar.
    void SetScrollSync(int bSync) { m_bScrollSync = bSync; }
    /// Sends GCN_SCROLL with `position`, in whole x units, to the parent, independent of SetScrollSync.
    void SendScrollInfo(double position);
    /// The first sample whose x is not below `x`, by binary search over all samples but the last; the last
    /// sample when there is no such sample; 0 without samples.
    int LowerBound(double x) const;
    /// The last sample of a view that begins at sample `nFirst`, as if there were one sample a second.
    /// `reserved` is not used. The result can be one past the last sample.
    int UpperBound(int nFirst, double reserved) const;

    // ---- Export of the selection mark's time ----

    /// Whether the menu offers "Send Selection Mark info to Tindro".
    void SetTindroMode(bool bOn) { m_bTindroMode = bOn; }
    /// The time text that the menu command exported last; empty before the first export.
    CString GetTimeInfoFromSelectionMark() const { return m_strSelectionMarkTime; }
    /// Sends WM_GRAPH_SELMARKTIME with the text of GetTimeInfoFromSelectionMark to the parent, if the control
    /// has a parent.
    void SendSelectionMarkTime();

    void InsertGraphMenu(CMenu& menu) override;

    // ---- Time ticks ----

    /// The shortest round tick step, in seconds, that divides the view into at most `nTicks` + 1 whole steps;
    /// 3 hours if none does. `spacing` receives the distance between two ticks in logical units.
    int SelectTickUnit(int nTicks, double& spacing) const;
    /// Distance of the first tick from the plot's left edge in logical units, as if sample `nIndex` stood at
    /// that edge. `nUnit` is the tick step in seconds; the result is 0 when `nUnit` is below 1. `spacing`
    /// receives the distance between two ticks in logical units, `fullTime` the first tick's time as text.
    int ComputeFirstTickPos(int nIndex, int nUnit, int& spacing, CString& fullTime) const;
    /// @{
    /// The distance of the first tick as in ComputeFirstTickPos, for a step in seconds, minutes or hours.
    int SecondTickPos(int nIndex, int nSeconds, CString& fullTime) const;
    int MinuteTickPos(int nIndex, int nMinutes, CString& fullTime) const;
    int HourTickPos(int nIndex, int nHours, CString& fullTime) const;
    /// @}
    /// Full time text of the moment `nUnit` seconds after the local time `date` ("YYYY/MM/DD") `time`
    /// ("hh:mm:ss"). If these are no valid time of the years 1900 to 9999, the result is both texts,
    /// unchanged, with a blank between. When clocks go back, one hour of local time occurs twice, and the
    /// text does not say which of the two is meant: repeated steps of up to an hour may never leave that
    /// hour. To walk over time, add seconds to a time stamp instead.
    CString GetNextTickTime(int nUnit, CString& date, CString& time) const;

protected:
    /// Draws the time axis; in the bar style the axis line only. The distance between two ticks is truncated
    /// to logical units, so in long views ticks drift to the left of their times. Of several ticks in one
    /// device column only the first is drawn. If the labels of all ticks would touch, only the ticks at
    /// multiples of a longer step have labels.
    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override;
    /// Draws the label of the tick at `x`. Its texts run upwards and end at `y` (both logical units). With an
    /// empty `date` the label is the clock time `time` alone, otherwise `date` ("MM/DD") and `time` side by
    /// side. The caller has selected font and colour. A label without a date uses the text alignment that the
    /// label before it has set.
    virtual void DrawTimeLabel(CDC& dc, int x, int y, const CString& date, const CString& time);
    void DrawGraphData(CDC& dc) override;
    /// In the line styles, the sample nearest in x of those drawn at the last paint; -1 for a point outside
    /// the plot. In the bar style, the result of CGraphCtrl.
    int GetIndexFromPt(CPoint point) override;
    CPoint GetPtFromIndex(int nIndex) override;

    /// @{
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct); ///< Handles its message or command.
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnSendSelectionMarkInfoToTindro();
    /// @}
    DECLARE_MESSAGE_MAP()

protected:
    CScrollBar m_wndScrollBar; ///< under the plot; has no window when the control is bound to a dialog item

private:
    std::unique_ptr<kavlix::ScrollGraphCtrlState>
        m_State; ///< members of later versions; the size of the class stays
    std::unique_ptr<kavlix::TimeLine> m_arrTime;
    std::unique_ptr<kavlix::ZoneRules> m_zoneRules; ///< the system's rules of local time, kept for the labels

protected:
    // An x unit is 1/20 second.
    double m_dScrollPos = 0;      ///< left edge of the view, x units
    double m_dScrollMax = 1200.0; ///< right end of the scroll range, x units
    double m_dScrollMin = 0;      ///< left end of the scroll range, x units
    double m_dViewWidth = 1200.0; ///< width of the view, x units

    int m_nUnitsPerSecond = 20; ///< x units a second in SetHorzRange and SelectTickUnit; elsewhere always 20
    bool m_bTindroMode = false; ///< see SetTindroMode
    CString m_strSelectionMarkTime; ///< see GetTimeInfoFromSelectionMark
    int m_bScrollSync = FALSE;      ///< see SetScrollSync
    int m_bFollowed = FALSE;        ///< whether the last AddData moved the view
    int m_nDrawFirst = -1; ///< first sample drawn at the last paint in a line style; -1 before that paint
    int m_nDrawLast = -1;  ///< last sample drawn at the last paint in a line style; -1 for none

private:
    int m_nToldPos = -1;  ///< position that UpdateScrollInfo passed to the scroll bar last
    int m_nToldPage = -1; ///< page that UpdateScrollInfo passed to the scroll bar last

    kavlix::ViewWindow GetView() const;
    void SetView(const kavlix::ViewWindow& view);
    kavlix::TimeMap GetTimeMap() const;
    bool NotifyScroll(double position);
    void RaiseScrollBar();
    double UnitsPerSecond() const;
    int TickPos(int nIndex, int nStep, int (*secondsToRound)(const kavlix::CalendarTime&, int),
                CString& fullTime) const;
};

KAVLIX_CHECK_HOST(CScrollGraphCtrl)
