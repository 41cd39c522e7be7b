// SPDX-License-Identifier: MIT
// The time axis: choice of the tick step, ticks, labels and vertical grid lines.
#include <kavlix/ScrollGraphCtrl.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "gdi/DottedPen.h"
#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Text.h"
#include "graphctrl/XTickPainter.h"
#include "graphctrl/core/AxisTicks.h"
#include "plot/Numeric.h"
#include "scrollgraph/SystemClock.h"
#include "scrollgraph/core/TimeLine.h"
#include "scrollgraph/core/TimeTicks.h"

using namespace kavlix;

namespace {

static_assert(kDateShift == kUpperLineShift, "TimeTicks and DrawTwoLines place dates alike");

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
    const int offset = TickPos(nIndex, nUnit, SecondsToRoundTime, fullTime);
    spacing = ToCoordinate(nUnit * UnitsPerSecond());
    return offset;
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
    const bool read = _stscanf(date, _T("%d/%d/%d"), &year, &month, &day) == 3 &&
                      _stscanf(time, _T("%d:%d:%d"), &hour, &minute, &second) == 3;
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    if (!read || !within(year, firstYear, lastYear) || !within(month, 1, 12) || !within(day, 1, 31) ||
        !within(hour, 0, 23) || !within(minute, 0, 59) || !within(second, 0, 59))
        return date + _T(" ") + time;
    const SystemClock clock(*m_zoneRules);
    const auto start = clock.FromLocal({year, month, day, hour, minute, second});
    if (!start) // the month has no such day
        return date + _T(" ") + time;
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

    // Ticks are placed as if the first sample in view stood at the plot's left edge.
    const int first = m_arrTime->LowerBound(m_dScrollPos);
    double exactSpacing = 0;
    const int unit = SelectTickUnit(nTicks, exactSpacing);
    const int spacing = ToCoordinate(exactSpacing);
    const int height = TextHeight(dc);
    const SystemClock clock(*m_zoneRules);
    TimeTicks ticks(clock, m_arrTime->At(first), unit, spacing, height);
    const std::int64_t begin =
        std::int64_t{m_rectPlot.left} + ToCoordinate(UnitsPerSecond() * ticks.FirstOffset());
    const auto place = [&](std::int64_t tick) { return begin + tick * spacing; };
    // Draw only ticks that can be visible or whose labels can: those up to the plot's right edge that lie in
    // the client area or at most `reach` logical units outside. With a spacing of 0 there is at most one
    // tick.
    const std::int64_t reach = 2 * std::int64_t{height};
    const auto ticksBefore = [&](std::int64_t x) {
        return x <= begin ? 0 : spacing > 0 ? (x - begin + spacing - 1) / spacing : 1;
    };
    const std::int64_t firstSeen = ticksBefore(std::int64_t{m_rectClient.left} * kUnitsPerPixel - reach);
    const std::int64_t endSeen = ticksBefore(
        std::min(std::int64_t{m_rectPlot.right}, std::int64_t{m_rectClient.right} * kUnitsPerPixel + reach) +
        1);

    std::vector<POINT> pixels;
    for (std::int64_t tick = firstSeen; tick < endSeen; ++tick)
        pixels.push_back({static_cast<LONG>(place(tick)), rectAxis.top});
    dc.LPtoDP(pixels.data(), static_cast<int>(pixels.size()));
    ticks.GoTo(firstSeen);
    DottedPen* const grid = gridPen ? &*gridPen : nullptr;
    const bool isGridLast = grid != nullptr && grid->IsDirect();
    std::vector<int> gridColumns;
    for (std::int64_t tick = firstSeen; tick < endSeen; ++tick) {
        const int x = static_cast<int>(place(tick));
        const auto pixel = pixels.begin() + (tick - firstSeen);
        if (pixel == pixels.begin() || pixel->x != pixel[-1].x)
            DrawXTick(dc, x, rectAxis, axisPen, isGridLast ? nullptr : grid, m_rectPlot.top);
        if (isGridLast && (gridColumns.empty() || gridColumns.back() != pixel->x))
            gridColumns.push_back(static_cast<int>(pixel->x));
        if (tick != ticks.Tick())
            continue;
        DrawTimeLabel(dc, x, rectLabel.top + kTickLabelGap,
                      CString(ticks.ShowsDate() ? ticks.Date().c_str() + kMonthAt : ""),
                      CString(ticks.Clock().c_str()));
        ticks.Next();
    }
    if (isGridLast)
        grid->DrawColumns(gridColumns, static_cast<int>(rectAxis.top), static_cast<int>(m_rectPlot.top));
}

void CScrollGraphCtrl::DrawTimeLabel(CDC& dc, int x, int y, const CString& date, const CString& time) {
    if (date.IsEmpty()) {
        DrawTextAt(dc, x - kClockShift, y, time);
        return;
    }
    DrawTwoLines(dc, x, y, date, time);
}
