// SPDX-License-Identifier: MIT
// CGraphCtrl: the axes with ticks, tick labels, unit texts and grid. XTickPainter draws the X tick labels,
// and the X ticks of the line styles with their grid lines.
#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "gdi/DottedPen.h"
#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Text.h"
#include "graphctrl/XTickPainter.h"
#include "graphctrl/core/AxisTicks.h"
#include "graphctrl/core/BarSlots.h"

using namespace kavlix;

namespace {

constexpr int kTickLabelRaise = 150; // from a Y tick up to the top of its label, logical units
// The Y unit text begins this far left of its tick strip's right edge; the Y2 unit text ends this far right
// of its tick strip's right edge. Logical units.
constexpr int kUnitOverlap = 50;

constexpr UINT kUnitAlignY = TA_LEFT | TA_BOTTOM;
constexpr UINT kUnitAlignY2 = TA_RIGHT | TA_BOTTOM;

void DrawLine(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

/// Cuts a number of more than 1024 characters to the part that can lie in `clip`, because GDI is slow at
/// texts of thousands of digits: the end of a right-aligned text, else its beginning. Other texts, and texts
/// whose cut part would not reach across `clip`, are returned whole. `at` is the reference point of the text.
std::string VisiblePart(const CDC& dc, const std::string& text, bool isRightAligned, const CPoint& at,
                        const CRect& clip) {
    constexpr std::size_t kLongNumber = 1024;
    if (text.size() <= kLongNumber)
        return text;
    const std::string part = text.substr(isRightAligned ? text.size() - kLongNumber : 0, kLongNumber);
    const double farthest = std::hypot(std::max(std::abs(clip.left - at.x), std::abs(clip.right - at.x)),
                                       std::max(std::abs(clip.top - at.y), std::abs(clip.bottom - at.y)));
    return MeasureText(dc, CString(part.c_str())).cx >= farthest ? part : text;
}

} // namespace

void CGraphCtrl::DrawYAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks, int nAxis) {
    const bool twoAxis = m_GraphStyle == GraphStyleTwoAxis;
    if (!twoAxis && nAxis != 0)
        return;
    const bool y2 = nAxis == 1;
    CPen axisPen;
    axisPen.CreatePen(PS_SOLID, 0, twoAxis ? m_Datasets[y2 ? 1 : 0].GetColor() : m_AxisColor);
    std::optional<DottedPen> gridPen;
    StockAfterGuard penAfter(dc, NULL_PEN);
    Select(dc, axisPen);
    const int axisX = y2 ? m_rectY2Axis.left : m_rectYAxis.right;
    DrawLine(dc, axisX, rectAxis.top, axisX, rectAxis.bottom);
    if (nTicks < 2)
        return;

    // A derived class may pass an axis far longer than the picture is high, so ticks outside the
    // clip are skipped.
    const int step = (rectLabel.bottom - rectLabel.top) / (nTicks - 1);
    const CRect clip = ClipBounds(dc);
    const auto isShown = [&](int y) {
        return y >= clip.top - kUnitsPerPixel && y <= clip.bottom + kUnitsPerPixel;
    };
    for (int i = 0, y = rectAxis.bottom; i < nTicks; ++i, y -= step)
        if (isShown(y))
            DrawLine(dc, rectAxis.left, y, rectAxis.right, y);
    if (m_GridY && nAxis == 0) {
        gridPen.emplace(dc, m_GridColor);
        Select(dc, gridPen->Pen());
        for (int i = 1, y = rectAxis.bottom - step; i < nTicks; ++i, y -= step)
            if (isShown(y) && !gridPen->Draw(CPoint(m_rectPlot.left, y), CPoint(m_rectPlot.right, y)))
                DrawLine(dc, m_rectPlot.left, y, m_rectPlot.right, y);
    }

    ValueTicks values = y2 ? ValueTicks(m_Y2VisibleMin, m_Y2VisibleMax, nTicks, m_Y2UnitExponent)
                           : ValueTicks(m_YVisibleMin, m_YVisibleMax, nTicks, m_YUnitExponent);
    SelectGuard font(dc, m_YTickLabelFont);
    dc.SetTextColor(y2 ? m_Y2TickLabelColor : m_YTickLabelColor);
    dc.SetTextAlign(y2 ? TA_LEFT | TA_TOP : TA_RIGHT | TA_TOP);
    const int decimals = y2 ? m_Y2TickLabelScale : m_YTickLabelScale;
    const int labelX = y2 ? rectAxis.right + kTickLabelGap : rectAxis.right - kTickLabelGap;
    const CRect box = TextBox(dc, LongestTick(decimals));
    const bool isBeside = labelX + box.right >= clip.left && labelX + box.left <= clip.right;
    for (int i = 0, y = rectAxis.bottom - kTickLabelRaise; i < nTicks; ++i, y -= step, values.Next()) {
        if (!isBeside || y + box.bottom < clip.top || y + box.top > clip.bottom)
            continue;
        const std::string text =
            VisiblePart(dc, FormatTick(values.Value(), decimals), !y2, CPoint(labelX, y), clip);
        DrawTextAt(dc, labelX, y, CString(text.c_str()));
    }

    Select(dc, m_UnitFont);
    dc.SetTextAlign(y2 ? kUnitAlignY2 : kUnitAlignY);
    DrawTextAt(dc, y2 ? rectAxis.right + kUnitOverlap : rectAxis.right - kUnitOverlap, rectAxis.top,
               y2 ? m_Y2Unit : m_YUnit);
}

void CGraphCtrl::DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) {
    CPen axisPen;
    axisPen.CreatePen(PS_SOLID, 0, m_AxisColor);
    StockAfterGuard penAfter(dc, NULL_PEN);
    Select(dc, axisPen);
    DrawLine(dc, m_rectXAxis.left, m_rectXAxis.top, m_rectXAxis.right, m_rectXAxis.top);
    if (nTicks < 2)
        return;

    SelectGuard font(dc, m_XTickLabelFont);
    dc.SetTextColor(m_XTickLabelColor);
    dc.SetTextAlign(TA_RIGHT);
    const CRect clip = ClipBounds(dc);
    const CRect box = TextBox(dc, kLongestText);
    TickRoom room;
    room.left = m_rectPlot.left;
    room.minGap = (rectLabel.right - rectLabel.left) / (nTicks - 1);
    room.from = clip.left - box.right - kSingleLineShift;
    room.to = clip.right - box.left;
    if (m_GraphStyle == GraphStyleBar)
        DrawBarTicks(dc, rectLabel, rectAxis, room);
    else if (m_GraphStyle == GraphStyleLine || m_GraphStyle == GraphStyleTwoAxis)
        DrawLineTicks(dc, rectLabel, rectAxis, axisPen, room);
}

void CGraphCtrl::DrawLineTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, CPen& axisPen,
                               const TickRoom& room) {
    std::optional<DottedPen> gridPen;
    if (m_GridX)
        gridPen.emplace(dc, m_GridColor);
    StockAfterGuard penAfter(dc, NULL_PEN);
    LineTicks(
        XMap(), m_XVisibleMin, m_XVisibleMax, m_Datasets[0].GetSize(), room,
        [&](int x) { return NextColumn(dc, x); },
        [&](int index, int x) {
            DrawXTick(dc, x, rectAxis, axisPen, gridPen ? &*gridPen : nullptr, m_rectPlot.top);
            DrawTickLabel(dc, rectLabel, x, index);
        });
}

void CGraphCtrl::DrawBarTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, const TickRoom& room) {
    BarSlots slots;
    if (!CalcBarSize(slots.barWidth, slots.datasets, slots.visible))
        return;
    // A sample index has the same slot in every dataset. The first dataset with a visible sample
    // fills all slots.
    for (const CDataset& dataset : m_Datasets) {
        const IndexRange range = IndicesInSlots(dataset.GetSize(), m_XVisibleMin, slots);
        if (range.IsEmpty())
            continue;
        ThinTicks(
            range.Count(), room, [&](int slot) { return slots.SlotMiddle(slot, m_rectPlot.left); },
            [&](int x) { return NextColumn(dc, x); },
            [&](int slot, int x) {
                DrawLine(dc, x, rectAxis.bottom, x, rectAxis.top);
                DrawTickLabel(dc, rectLabel, x, range.first + slot);
            });
        return;
    }
}

void CGraphCtrl::DrawTickLabel(CDC& dc, const CRect& rectLabel, int x, int nIndex) {
    CString up;
    CString down;
    CGraphCtrl::GetXData(nIndex, up, down);
    DrawXTickLabel(dc, x, rectLabel.top + kTickLabelGap, up, down, m_XTickLabelUpStringMaxLength);
}
