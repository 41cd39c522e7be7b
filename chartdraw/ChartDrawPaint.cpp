// SPDX-License-Identifier: MIT
// CChartDraw: paints background, title, grid, axes and scales. ChartDrawPaintData paints the datasets.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartText.h"
#include "gdi/Guards.h"
#include "gdi/Mirroring.h"
#include "gdi/Offscreen.h"
#include "plot/LinearMap.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

constexpr int kUpwards = 900; // escapement of the Y caption, tenths of a degree

void DrawStroke(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

/// Calls `draw(tick, position)` for every tick of a scale that has a position on `map`.
template <class Draw> void ForTicks(const RoundScale& scale, const LinearMap& map, Draw draw) {
    for (int i = 0; i < scale.TickCount(); ++i)
        if (const auto position = map.Position(scale.Tick(i)))
            draw(i, *position);
}

bool GoesThroughZero(const RoundScale& scale, int tick) {
    return scale.Tick(tick) == 0 && scale.Min() < 0 && scale.Max() > 0;
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

LinearMap CChartDraw::XMap() const {
    return LinearMap(m_XScale->Min(), m_XScale->Max(), m_rectPlot.left, m_rectPlot.Width() - 1);
}

LinearMap CChartDraw::YMap() const {
    return LinearMap(m_YScale->Min(), m_YScale->Max(), m_rectPlot.bottom - 1, -(m_rectPlot.Height() - 1));
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
    CPen gridPen;
    gridPen.CreatePen(PS_SOLID, 0, m_GridColor);
    CPen zeroPen;
    zeroPen.CreatePen(PS_SOLID, 0, m_ZeroLineColor);
    SavedDcGuard saved(dc);
    // The lines at 0 are drawn last, in front of the others.
    for (const bool zero : {false, true}) {
        Select(dc, zero ? zeroPen : gridPen);
        if (m_GridX)
            ForTicks(*m_XScale, XMap(), [&](int tick, int x) {
                if (GoesThroughZero(*m_XScale, tick) == zero)
                    DrawStroke(dc, x, m_rectPlot.top, x, m_rectPlot.bottom);
            });
        if (m_GridY)
            ForTicks(*m_YScale, YMap(), [&](int tick, int y) {
                if (GoesThroughZero(*m_YScale, tick) == zero)
                    DrawStroke(dc, m_rectPlot.left, y, m_rectPlot.right, y);
            });
    }
    m_State->DrawBands(dc);
}

void CChartDraw::DrawAxes(CDC& dc) {
    if (m_rectPlot.IsRectEmpty())
        return;
    CPen pen;
    pen.CreatePen(PS_SOLID, 0, m_AxisColor);
    CFont font;
    MakeTextFont(font, 0, false);
    CFont upFont;
    MakeTextFont(upFont, kUpwards, false);
    SavedDcGuard saved(dc);
    Select(dc, pen);
    DrawStroke(dc, m_rectPlot.left, m_rectPlot.top, m_rectPlot.left, m_rectPlot.bottom);
    DrawStroke(dc, m_rectPlot.left, m_rectPlot.bottom - 1, m_rectPlot.right, m_rectPlot.bottom - 1);
    if (!m_ShowCaptions)
        return;
    dc.SetBkMode(TRANSPARENT);
    const int margin = static_cast<int>(kChartMargin * m_TextHeight);
    CRect room = m_rectChart;
    room.DeflateRect(margin, margin);
    if (!m_XLabel.IsEmpty()) {
        Select(dc, font);
        dc.SetTextColor(m_XLabelColor);
        DrawWithin(dc, m_rectPlot, room, room.bottom - m_TextHeight, m_XLabel);
    }
    if (!m_YLabel.IsEmpty()) {
        Select(dc, upFont);
        dc.SetTextColor(m_YLabelColor);
        if (m_ShowTitle && !m_Title.IsEmpty())
            room.top += m_TitleHeight + margin;
        if (!m_XLabel.IsEmpty())
            room.bottom -= m_TextHeight + margin;
        DrawWithin(dc, m_rectPlot, room, room.left, m_YLabel, true);
    }
}

void CChartDraw::DrawScale(CDC& dc, COLORREF textColor, UINT align,
                           const std::function<void()>& drawTicks) const {
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
    dc.SetTextAlign(align);
    drawTicks();
}

void CChartDraw::DrawXScale(CDC& dc) {
    int free = m_rectChart.left; // least x at which the next label may begin
    DrawScale(dc, m_XTickLabelColor, TA_CENTER | TA_TOP, [&] {
        ForTicks(*m_XScale, XMap(), [&](int tick, int x) {
            DrawStroke(dc, x, m_rectPlot.bottom, x, m_rectPlot.bottom + kTickLength);
            const std::string label = m_XScale->Label(tick);
            const int half = TextWidth(dc, label) / 2;
            if (x - half < free || x + half > m_rectChart.right)
                return;
            DrawTextAt(dc, x, m_rectPlot.bottom + kTickLength + kTickLabelGap, CString(label.c_str()));
            free = x + half + m_TextHeight / 2;
        });
    });
    m_State->DrawOverlay(dc);
}

void CChartDraw::DrawYScale(CDC& dc) {
    const int right = m_rectPlot.left - kTickLength;
    int free = m_rectChart.bottom + m_TextHeight; // greatest y at which the next label may end
    DrawScale(dc, m_YTickLabelColor, TA_RIGHT | TA_TOP, [&] {
        ForTicks(*m_YScale, YMap(), [&](int tick, int y) {
            DrawStroke(dc, right, y, m_rectPlot.left, y);
            const int top = y - m_TextHeight / 2;
            if (top + m_TextHeight > free)
                return;
            const std::string label = m_YScale->Label(tick);
            DrawTextAt(dc, right - kTickLabelGap, top, CString(label.c_str()));
            free = top;
        });
    });
}
