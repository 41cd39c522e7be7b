// SPDX-License-Identifier: MIT
// CChartDraw: paints background, title, grid, axes and scales. ChartDrawPaintData paints the datasets.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartText.h"
#include "gdi/Guards.h"
#include "gdi/Mirroring.h"
#include "gdi/Offscreen.h"
#include "gdi/Text.h"
#include "plot/AxisMap.h"
#include "plot/LabelRow.h"

using namespace kavlix;

namespace {

constexpr int kUpwards = 900; // escapement of the Y caption, tenths of a degree

void DrawStroke(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

/// Calls `draw(label, position)` for every label that has a position on `map`.
template <class Draw> void ForLabels(const std::vector<AxisLabel>& labels, const AxisMap& map, Draw draw) {
    for (const AxisLabel& label : labels)
        if (const auto position = map.Position(label.value))
            draw(label, *position);
}

/// Draws a text centred in `inner`, or in `outer` if `inner` is too narrow. A text that is too wide for both
/// is shortened. `edge` is the y of the text's upper edge. With `isUpwards` the text runs upwards: its length
/// is compared with the rectangles' heights, and `edge` is the x of its left side.
void DrawWithin(CDC& dc, const CRect& inner, const CRect& outer, int edge, const CString& text,
                bool isUpwards = false) {
    const auto length = [&](const CRect& room) { return isUpwards ? room.Height() : room.Width(); };
    const CString shown = Shortened(dc, text, length(outer));
    const CPoint middle = (MeasureText(dc, shown).cx <= length(inner) ? inner : outer).CenterPoint();
    dc.SetTextAlign(TA_CENTER | TA_TOP);
    DrawTextAt(dc, isUpwards ? edge : middle.x, isUpwards ? middle.y : edge, shown);
}

} // namespace

void CChartDraw::OnPaint() {
    m_State->ReadyToTake();
    CPaintDC paintDc(this);
    CalcDatas();
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty())
        return;
    std::unique_ptr<Offscreen> picture = TakeOffscreen(m_Picture, paintDc, client.Size());
    if (!picture) {
        DrawChart(paintDc);
        return;
    }
    const int state = picture->Dc().SaveDC();
    DrawChart(picture->Dc());
    // Keep the picture only if its DC's state could be restored: the next paint draws on the same DC.
    const bool isUnchanged = state != 0 && picture->Dc().RestoreDC(state);
    paintDc.BitBlt(0, 0, client.Width(), client.Height(), &picture->Dc(), 0, 0, SRCCOPY);
    if (isUnchanged)
        m_Picture = std::move(picture);
}

LRESULT CChartDraw::OnPrintClient(WPARAM wParam, LPARAM) {
    CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    if (dc == nullptr)
        return Default();
    CalcDatas();
    const UnmirroredGuard unmirrored(*dc, m_rectChart.Width());
    DrawChart(*dc);
    return 0;
}

void CChartDraw::DrawChart(CDC& dc) {
    const AttribDcGuard asked(dc);
    PaintBkGnd(dc);
    DrawTitle(dc);
    DrawGrid(dc);
    DrawDatasets(dc);
    // After the data, so that axes and numbers stay readable.
    DrawAxes(dc);
    DrawYScale(dc);
    DrawXScale(dc);
}

void CChartDraw::PaintBkGnd(CDC& dc) {
    CBrush brush;
    if (brush.CreateSolidBrush(m_BkColor))
        dc.FillRect(&m_rectChart, &brush);
}

void CChartDraw::DrawTitle(CDC& dc) {
    if (!m_ShowTitle || m_Title.IsEmpty())
        return;
    CFont font;
    MakeTextFont(font, 0, true);
    SavedDcGuard saved(dc);
    Select(dc, font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_TitleColor);
    const int margin = static_cast<int>(kChartMargin * m_TextHeight);
    CRect room = m_rectChart;
    room.DeflateRect(margin, margin);
    DrawWithin(dc, room, room, room.top, m_Title);
}

void CChartDraw::DrawGrid(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    m_State->DrawBands(dc);
    CPen gridPen;
    gridPen.CreatePen(PS_SOLID, 0, m_GridColor);
    CPen zeroPen;
    zeroPen.CreatePen(PS_SOLID, 0, m_ZeroLineColor);
    SavedDcGuard saved(dc);
    // The lines at 0 are drawn last, in front of the others.
    for (const bool zero : {false, true}) {
        Select(dc, zero ? zeroPen : gridPen);
        for (const int axis : {ChartDrawState::kX, ChartDrawState::kY}) {
            if (!(axis == ChartDrawState::kX ? m_GridX : m_GridY))
                continue;
            const AxisLayout& layout = m_State->Layout(axis);
            ForLabels(layout.ticks, m_State->Map(axis), [&](const AxisLabel& tick, int at) {
                if ((tick.value == 0 && layout.goesThroughZero) != zero)
                    return;
                if (axis == ChartDrawState::kX)
                    DrawStroke(dc, at, m_rectPlot.top, at, m_rectPlot.bottom);
                else
                    DrawStroke(dc, m_rectPlot.left, at, m_rectPlot.right, at);
            });
        }
    }
}

void CChartDraw::DrawAxes(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, m_AxisColor);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    DrawStroke(dc, m_rectPlot.left, m_rectPlot.top, m_rectPlot.left, m_rectPlot.bottom);
    DrawStroke(dc, m_rectPlot.left, m_rectPlot.bottom - 1, m_rectPlot.right, m_rectPlot.bottom - 1);
    if (AxisCount() > ChartDrawState::kY2)
        DrawStroke(dc, m_rectPlot.right - 1, m_rectPlot.top, m_rectPlot.right - 1, m_rectPlot.bottom);
    if (m_ShowCaptions)
        DrawCaptions(dc);
}

void CChartDraw::DrawCaptions(CDC& dc) const {
    const auto caption = [&](int axis) { return axis < AxisCount() ? m_State->Caption(axis) : CString(); };
    dc.SetBkMode(TRANSPARENT);
    const int margin = static_cast<int>(kChartMargin * m_TextHeight);
    CRect room = m_rectChart;
    room.DeflateRect(margin, margin);
    if (const CString x = caption(ChartDrawState::kX); !x.IsEmpty()) {
        CFont font;
        MakeTextFont(font, 0, false);
        SelectGuard selected(dc, font);
        dc.SetTextColor(m_XLabelColor);
        DrawWithin(dc, m_rectPlot, room, m_rectPlot.bottom + ScaleRoom(ChartDrawState::kX) + CaptionGap(), x);
        room.bottom -= m_TextHeight + margin;
    }
    const CString y = caption(ChartDrawState::kY);
    const CString y2 = caption(ChartDrawState::kY2);
    if (y.IsEmpty() && y2.IsEmpty())
        return;
    CFont font;
    MakeTextFont(font, kUpwards, false);
    SelectGuard selected(dc, font);
    dc.SetTextColor(m_YLabelColor);
    if (m_ShowTitle && !m_Title.IsEmpty())
        room.top += m_TitleHeight + margin;
    if (!y.IsEmpty())
        DrawWithin(dc, m_rectPlot, room, room.left, y, true);
    if (!y2.IsEmpty())
        DrawWithin(dc, m_rectPlot, room, m_rectPlot.right + ScaleRoom(ChartDrawState::kY2) + CaptionGap(), y2,
                   true);
}

void CChartDraw::DrawScale(CDC& dc, COLORREF textColor, const std::function<void()>& drawTicks) const {
    if (!m_ShowScales || m_rectPlot.IsRectEmpty())
        return;
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, m_AxisColor);
    CFont font;
    MakeTextFont(font, 0, false);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    Select(dc, font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(textColor);
    drawTicks();
}

void CChartDraw::DrawXScale(CDC& dc) {
    DrawScale(dc, m_XTickLabelColor, [&] {
        const AxisLayout& layout = m_State->Layout(ChartDrawState::kX);
        const AxisMap map = m_State->Map(ChartDrawState::kX);
        const int bottom = m_rectPlot.bottom;
        for (const double value : layout.minorTicks)
            if (const auto x = map.Position(value))
                DrawStroke(dc, *x, bottom, *x, bottom + kMinorTickLength);
        dc.SetTextAlign(TA_CENTER | TA_TOP);
        const int top = bottom + kTickLength + kTickLabelGap;
        LabelRow row = XLabelRow(dc);
        ForLabels(layout.ticks, map, [&](const AxisLabel& label, int x) {
            DrawStroke(dc, x, bottom, x, bottom + kTickLength);
            const int half = label.width / 2;
            if (row.Take(x - half, 2 * half))
                DrawTextAt(dc, x, top, label.text);
        });
        if (m_State->AxisState(ChartDrawState::kX).showsPeriods)
            DrawPeriods(dc, top + m_TextHeight);
    });
    m_State->DrawOverlay(dc);
}

LabelRow CChartDraw::XLabelRow(CDC& dc) const {
    // The caption of a Y axis that is longer than the plot reaches down to the labels of the X axis.
    constexpr int kTurned = 2; // pixels by which a turned text may be longer
    const auto reachesDown = [&](int axis) {
        return m_ShowCaptions && axis < AxisCount() &&
               m_State->AxisState(axis).widths.Of(dc, m_State->Caption(axis)) > m_rectPlot.Height() - kTurned;
    };
    int left = m_rectChart.left;
    int right = m_rectChart.right;
    if (reachesDown(ChartDrawState::kY))
        left = m_rectPlot.left - ScaleRoom(ChartDrawState::kY);
    if (reachesDown(ChartDrawState::kY2))
        right = m_rectPlot.right + ScaleRoom(ChartDrawState::kY2);
    return LabelRow(left, right, m_TextHeight / 2);
}

void CChartDraw::DrawPeriods(CDC& dc, int top) const {
    const AxisLayout& layout = m_State->Layout(ChartDrawState::kX);
    dc.SetTextAlign(TA_LEFT | TA_TOP);
    LabelRow row = XLabelRow(dc);
    const auto draw = [&](const AxisLabel& label, int left) {
        if (const auto place = row.TakeNear(left, label.width))
            DrawTextAt(dc, *place, top, label.text);
    };
    ForLabels(layout.periods, m_State->Map(ChartDrawState::kX),
              [&](const AxisLabel& label, int x) { draw(label, x - label.width / 2); });
    // The date at the beginning of the view, unless another date needs the place.
    if (!layout.start.text.IsEmpty())
        draw(layout.start, layout.isInverted ? m_rectPlot.right - layout.start.width : m_rectPlot.left);
}

void CChartDraw::DrawYScale(CDC& dc) {
    DrawScale(
        dc, m_YTickLabelColor,
        [&] {
            for (int axis = ChartDrawState::kY; axis < AxisCount(); ++axis)
                DrawYTicks(dc, axis);
            if (m_ShowCaptions && !m_State->note.IsEmpty()) {
                dc.SetTextAlign(TA_LEFT | TA_TOP);
                DrawTextAt(dc, m_rectPlot.left, m_rectPlot.top - CaptionGap() - m_TextHeight,
                           Shortened(dc, m_State->note, m_rectPlot.Width()));
            }
        });
}

void CChartDraw::DrawYTicks(CDC& dc, int axis) const {
    const AxisLayout& layout = m_State->Layout(axis);
    const AxisMap map = m_State->Map(axis);
    const bool isLeft = axis == ChartDrawState::kY;
    const auto drawTick = [&](int y, int length) {
        const int edge = isLeft ? m_rectPlot.left - length : m_rectPlot.right;
        DrawStroke(dc, edge, y, edge + length, y);
    };
    for (const double value : layout.minorTicks)
        if (const auto y = map.Position(value))
            drawTick(*y, kMinorTickLength);
    dc.SetTextAlign((isLeft ? TA_RIGHT : TA_LEFT) | TA_TOP);
    const int distance = kTickLength + kTickLabelGap;
    const int x = isLeft ? m_rectPlot.left - distance : m_rectPlot.right + distance;
    LabelRow row(m_rectChart.top, m_rectChart.bottom, 0);
    ForLabels(layout.ticks, map, [&](const AxisLabel& label, int y) {
        drawTick(y, kTickLength);
        const int top = y - m_TextHeight / 2;
        if (row.Take(top, m_TextHeight))
            DrawTextAt(dc, x, top, label.text);
    });
}
