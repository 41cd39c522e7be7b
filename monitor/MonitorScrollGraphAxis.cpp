// The time axis: the control's ticks, but with dates that keep clear of the clock times in every font, and
// with longer steps where many days stand in little room.

#include "monitor/MonitorScrollGraph.h"

namespace kavlix::monitor {

namespace {

// Logical units.
constexpr int kLeastDistance = 490; // of ticks whose labels do not touch
constexpr int kLongDistance = 700;  // of ticks that may all have a date
constexpr int kLabelGap = 100;      // between axis strip and labels
constexpr int kClockShift = 110;    // a clock time alone stands that much left of its tick
constexpr int kDateShift = 10;      // a date stands that much right of its tick, the clock time beside it

constexpr int kFewestTicks = 2;
constexpr int kDateChars = 10; // YYYY/MM/DD
constexpr int kMonthAt = 5;

} // namespace

void CMonitorScrollGraph::DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) {
    double distance = 0;
    int seconds = SelectTickUnit(nTicks, distance);
    if (nTicks < kFewestTicks || distance < 1 || Rows() == 0) {
        CFittedGraph::DrawXAxis(dc, rectLabel, rectAxis, nTicks);
        return;
    }
    if (distance < kLeastDistance) {
        for (; distance < kLongDistance; distance *= 2)
            seconds *= 2;
    }
    const int saved = dc.SaveDC();
    DrawTicks(dc, rectLabel, rectAxis, seconds);
    dc.RestoreDC(saved);
}

void CMonitorScrollGraph::DrawTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, int seconds) {
    CPen axisPen(PS_SOLID, 0, m_AxisColor);
    CPen gridPen(PS_DOT, 0, m_GridColor);
    dc.SelectObject(&axisPen);
    dc.MoveTo(rectAxis.left, rectAxis.top);
    dc.LineTo(rectAxis.right, rectAxis.top);
    dc.SelectObject(&m_XTickLabelFont);
    dc.SetTextColor(m_XTickLabelColor);
    const int y = rectLabel.top + kLabelGap;
    int distance = 0;
    CString full;
    CString dateBefore;
    for (int x = m_rectPlot.left + ComputeFirstTickPos(FirstVisible(), seconds, distance, full);
         x <= m_rectPlot.right; x += distance) {
        dc.SelectObject(&axisPen);
        dc.MoveTo(x, rectAxis.bottom);
        dc.LineTo(x, rectAxis.top);
        if (m_GridX) {
            dc.SelectObject(&gridPen);
            dc.LineTo(x, m_rectPlot.top);
        }
        CString date = full.Left(kDateChars);
        CString clock = full.Mid(kDateChars + 1);
        dc.SetTextAlign(TA_RIGHT | TA_TOP);
        dc.TextOut(date == dateBefore ? x - kClockShift : x, y, clock);
        if (date != dateBefore) {
            dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
            dc.TextOut(x + kDateShift, y, date.Mid(kMonthAt));
        }
        dateBefore = date;
        full = GetNextTickTime(seconds, date, clock);
    }
    // The pens must not be selected when they go.
    dc.SelectStockObject(NULL_PEN);
}

} // namespace kavlix::monitor
