// SPDX-License-Identifier: MIT
// CGraphCtrl: WM_PAINT and WM_PRINTCLIENT, the layout, and the order in which the parts are drawn.
#include <kavlix/GraphCtrl.h>

#include <memory>
#include <utility>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/Mirroring.h"
#include "gdi/Offscreen.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/core/GraphLayout.h"

using namespace kavlix;

namespace {

// Margins of the data region, which RedrawData invalidates; logical units.
constexpr int kDataRegionAbove = 600;  // above the plot, for the unit texts
constexpr int kDataRegionBeside = 900; // right of the plot, for X tick labels that extend beyond their band

/// `device` without its last column and row of pixels.
CRect LessOnePixel(const CRect& device) {
    return CRect(device.left, device.top, device.right - 1, device.bottom - 1);
}

} // namespace

void CGraphCtrl::OnPaint() {
    CPaintDC paintDc(this);
    CRect client;
    GetClientRect(&client);
    if (client.IsRectEmpty())
        return;

    SavedDcGuard saved(paintDc);
    SetMapModeAnisotropic(paintDc);
    std::unique_ptr<Offscreen> picture = TakeOffscreen(m_Picture, paintDc, client.Size());
    if (!picture) {
        DrawGraph(paintDc);
        return;
    }
    CDC& dc = picture->Dc();
    SetMapModeAnisotropic(dc);
    {
        SavedDcGuard restored(dc); // the DC is kept, and derived classes may leave objects selected
        DrawGraph(dc);
    }
    const CRect copied = ToLogical(paintDc, LessOnePixel(client));
    paintDc.BitBlt(0, 0, copied.right, copied.bottom, &dc, 0, 0, SRCCOPY);
    m_Picture = std::move(picture);
}

LRESULT CGraphCtrl::OnPrintClient(WPARAM wParam, LPARAM) {
    CDC* dc = CDC::FromHandle(reinterpret_cast<HDC>(wParam));
    if (dc == nullptr)
        return Default();
    CRect client;
    GetClientRect(&client);
    const UnmirroredGuard unmirrored(*dc, client.Width());
    SavedDcGuard saved(*dc);
    // The sender may have moved the origin of its DC to place the picture: keep the place.
    CPoint origin(0, 0);
    dc->LPtoDP(&origin);
    SetMapModeAnisotropic(*dc);
    dc->SetViewportOrg(origin);
    DrawGraph(*dc);
    return 0;
}

void CGraphCtrl::Redraw() {
    if (m_hWnd != nullptr)
        InvalidateRect(nullptr, FALSE);
}

void CGraphCtrl::RedrawData() {
    if (m_hWnd == nullptr)
        return;
    const WindowUnits units(m_hWnd);
    const CRect region(m_rectYTickLabel.left, m_rectYTickLabel.top - kDataRegionAbove,
                       m_rectXTickLabel.right + kDataRegionBeside, m_rectXTickLabel.bottom);
    const CRect device(units.ToDevice(region.TopLeft()), units.ToDevice(region.BottomRight()) + CSize(1, 1));
    InvalidateRect(units.IsReady() ? &device : nullptr, FALSE);
}

void CGraphCtrl::SetMapModeAnisotropic(CDC& dc) {
    SetControlMapping(dc);
}

void CGraphCtrl::DrawGraph(CDC& dc) {
    if (m_hWnd == nullptr)
        return;
    AttribDcGuard attributes(dc);
    TextSettingsGuard textSettings(dc);
    dc.SetBkMode(TRANSPARENT);
    CBrush background;
    background.CreateSolidBrush(m_BkColor);
    SelectGuard brush(dc, ::GetStockObject(BLACK_BRUSH));
    SelectGuard pen(dc, ::GetStockObject(WHITE_PEN));
    SelectGuard font(dc, ::GetCurrentObject(dc.GetSafeHdc(), OBJ_FONT));

    GetClientRect(&m_rectClient);
    m_rectClientInner = LessOnePixel(m_rectClient);
    // The viewport origin of `dc` may be anywhere, so client pixels are moved to device units first.
    const CPoint origin = dc.GetViewportOrg();
    const CRect client = ToLogical(dc, m_rectClient + origin);
    const CRect inner = m_rectClientInner + origin;

    Select(dc, background);
    dc.SelectStockObject(m_ShowBorder ? BLACK_PEN : NULL_PEN);
    dc.Rectangle(m_ShowBorder ? ToLogical(dc, inner) : client);

    CRgn clientClip;
    clientClip.CreateRectRgnIndirect(&inner);
    dc.SelectClipRgn(&clientClip);

    m_rectCaption.SetRectEmpty();
    m_rectIconMaximize.SetRectEmpty();
    if (m_TitleStyle == TitleStyleCaption)
        DrawCaption(dc);
    const GraphLayout layout = LayOut(client);
    if (m_TitleStyle != TitleStyleCaption)
        DrawTitle(dc, layout.labelUnit);

    DrawAxisLabels(dc, layout);
    if (layout.HasPlot()) {
        DrawYAxis(dc, m_rectYTickLabel, m_rectYAxis, layout.yTicks, 0);
        if (m_GraphStyle == GraphStyleTwoAxis)
            DrawYAxis(dc, m_rectY2TickLabel, m_rectY2Axis, layout.yTicks, 1);
        DrawXAxis(dc, m_rectXTickLabel, m_rectXAxis, layout.xTicks);

        ClipGuard plotClip(dc, ToDeviceWithEdges(dc, m_rectPlot), clientClip);
        DrawGraphData(dc);
    }
    if (m_ShowLegend && layout.HasLegend())
        DrawLegendArea(dc, client.right, clientClip);
    dc.SelectClipRgn(nullptr);
}

GraphLayout CGraphCtrl::LayOut(const CRect& client) {
    LayoutInput input;
    input.client = ToRect(client);
    input.twoAxis = m_GraphStyle == GraphStyleTwoAxis;
    input.bars = m_GraphStyle != GraphStyleLine && !input.twoAxis;
    input.caption = m_TitleStyle == TitleStyleCaption;
    input.captionBottom = m_rectCaption.bottom;
    input.showXLabel = m_ShowXLabel;
    input.showYLabel = m_ShowYLabel;
    input.showY2Label = m_ShowY2Label;
    input.showLegend = m_ShowLegend;
    input.xTickLabelHeight = m_XTickLabelHeight;
    input.yTickLabelWidth = m_YTickLabelWidth;
    input.y2TickLabelWidth = m_Y2TickLabelWidth;
    input.legendWidth = m_LegendWidth;

    const GraphLayout layout = ComputeLayout(input);
    m_rectTitle = ToCRect(layout.title);
    m_rectYTickLabel = ToCRect(layout.yTickLabel);
    m_rectYAxis = ToCRect(layout.yAxis);
    m_rectY2TickLabel = ToCRect(layout.y2TickLabel);
    m_rectY2Axis = ToCRect(layout.y2Axis);
    m_rectXTickLabel = ToCRect(layout.xTickLabel);
    m_rectXAxis = ToCRect(layout.xAxis);
    m_rectPlot = ToCRect(layout.plot);
    m_rectLegend = ToCRect(layout.legend);
    return layout;
}
