#include <kavlix/ScrollGraphCtrl.h>

#include <cstdio>

#include "gdi/DottedPen.h"
#include "gdi/Guards.h"
#include "gdi/Text.h"
#include "graphctrl/AxisTicks.h"
#include "graphctrl/GraphCtrlPainters.h"
#include "graphctrl/Numeric.h"
#include "scrollgraph/ScrollGraphCtrlClock.h"
#include "scrollgraph/TimeLine.h"

using namespace kavlix;

namespace {

// Logical units.
constexpr int kLabelGap = 100;   // between axis strip and tick labels
constexpr int kClockShift = 110; // a clock time alone stands that much left of its tick
constexpr int kDateShift = 70;   // a date stands that much right of its tick, the clock time beside it
constexpr int kMinTickDistance = kPixel;

} // namespace

double CScrollGraphCtrl::UnitsPerSecond() const {
    return m_rectPlot.Width() * static_cast<double>(kXUnitsPerSecond) / m_dViewWidth;
}

int CScrollGraphCtrl::SelectTickUnit(int nTicks, double& spacing) const {
    const int seconds = TruncateToInt(m_dViewWidth / m_nUnitsPerSecond);
    const int step = SelectTickStep(seconds, nTicks);
    spacing = static_cast<double>(step * kXUnitsPerSecond) * m_rectPlot.Width() / m_dViewWidth;
    return step;
}

int CScrollGraphCtrl::TickPos(int nIndex, int nStep, int (*secondsToRound)(const CalendarTime&, int),
                              CString& fullTime) const {
    const std::int64_t time = m_arrTime->At(nIndex);
    const SystemClock clock(*m_zoneRules);
    const int delta = nStep > 0 ? secondsToRound(clock.ToLocal(time), nStep) : 0;
    fullTime = FullTimeText(clock.ToLocal(time + delta)).c_str();
    return ToCoordinate(UnitsPerSecond() * delta);
}

int CScrollGraphCtrl::SecondTickPos(int nIndex, int nSeconds, CString& fullTime) const {
    return TickPos(nIndex, nSeconds, SecondsToRoundSecond, fullTime);
}

int CScrollGraphCtrl::MinuteTickPos(int nIndex, int nMinutes, CString& fullTime) const {
    return TickPos(nIndex, nMinutes, SecondsToRoundMinute, fullTime);
}

int CScrollGraphCtrl::HourTickPos(int nIndex, int nHours, CString& fullTime) const {
    return TickPos(nIndex, nHours, SecondsToRoundHour, fullTime);
}

int CScrollGraphCtrl::ComputeFirstTickPos(int nIndex, int nUnit, int& spacing, CString& fullTime) const {
    spacing = ToCoordinate(nUnit * UnitsPerSecond());
    return TickPos(nIndex, nUnit, SecondsToRoundTime, fullTime);
}

CString CScrollGraphCtrl::GetNextTickTime(int nUnit, CString& date, CString& time) const {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    constexpr int firstYear = 1900;
    constexpr int lastYear = 9999;
    const bool read = std::sscanf(date, "%d/%d/%d", &year, &month, &day) == 3 &&
                      std::sscanf(time, "%d:%d:%d", &hour, &minute, &second) == 3;
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    if (!read || !within(year, firstYear, lastYear) || !within(month, 1, 12) || !within(day, 1, 31) ||
        !within(hour, 0, 23) || !within(minute, 0, 59) || !within(second, 0, 59))
        return date + " " + time;
    const SystemClock clock(*m_zoneRules);
    const auto start = clock.FromLocal({year, month, day, hour, minute, second});
    if (!start) // no such day in that month
        return date + " " + time;
    return FullTimeText(clock.ToLocal(*start + nUnit)).c_str();
}

void CScrollGraphCtrl::DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) {
    CPen axisPen;
    axisPen.CreatePen(PS_SOLID, 0, m_AxisColor);
    std::optional<DottedPen> gridPen;
    StockAfterGuard penAfter(dc, NULL_PEN);
    Select(dc, axisPen);
    dc.MoveTo(m_rectXAxis.left, m_rectXAxis.top);
    dc.LineTo(m_rectXAxis.right, m_rectXAxis.top);
    if (nTicks < 2 || m_Datasets[0].GetSize() == 0)
        return;
    if (m_GridX)
        gridPen.emplace(dc, m_GridColor);
    SelectGuard font(dc, m_XTickLabelFont);
    dc.SetTextColor(m_XTickLabelColor);
    if (m_GraphStyle != GraphStyleLine && m_GraphStyle != GraphStyleTwoAxis)
        return;

    // The first sample in view is taken to stand at the plot's left edge.
    const int first = m_arrTime->LowerBound(m_dScrollPos);
    double exactSpacing = 0;
    const int unit = SelectTickUnit(nTicks, exactSpacing);
    const int spacing = ToCoordinate(exactSpacing);
    // Of more ticks than there are pixels only some can be seen.
    const int every = spacing > 0 ? (kMinTickDistance + spacing - 1) / spacing : 1;
    const SystemClock clock(*m_zoneRules);
    TimeTicks ticks(clock, m_arrTime->At(first), unit, every);
    const int y = rectLabel.top + kLabelGap;
    std::int64_t x = std::int64_t{m_rectPlot.left} + ToCoordinate(UnitsPerSecond() * ticks.FirstOffset());
    while (x <= m_rectPlot.right) {
        const int tickX = static_cast<int>(x);
        DrawXTick(dc, tickX, rectAxis, axisPen, gridPen ? &*gridPen : nullptr, m_rectPlot.top);
        const CString clockText = ticks.Clock().c_str();
        if (ticks.ShowsDate()) {
            dc.SetTextAlign(TA_RIGHT | TA_BOTTOM);
            DrawTextAt(dc, tickX + kDateShift, y, ticks.Date().c_str() + kMonthAt);
            dc.SetTextAlign(TA_RIGHT);
            DrawTextAt(dc, tickX, y, clockText);
        } else {
            DrawTextAt(dc, tickX - kClockShift, y, clockText);
        }
        if (spacing <= 0)
            break; // no view, no next tick
        x += std::int64_t{spacing} * every;
        ticks.Next();
    }
}
