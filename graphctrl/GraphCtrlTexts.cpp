// SPDX-License-Identifier: MIT
// CGraphCtrl: its fonts, the title and the axis labels. Not here: tick labels and legend rows.
#include <kavlix/GraphCtrl.h>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/ShapeConversion.h"
#include "gdi/Text.h"
#include "graphctrl/core/GraphLayout.h"

using namespace kavlix;

namespace {

// Heights of the fonts in logical units.
constexpr int kYTickLabelFontHeight = 350;
constexpr int kXTickLabelFontHeight = 300;
constexpr int kUnitFontHeight = 450;
constexpr int kLegendFontHeight = 350;
constexpr int kLabelFontInset = 50; // height of a label row minus that of an axis label's font, logical units

// Directions of text, in tenths of a degree.
constexpr int kHorizontal = 0;
constexpr int kUpwards = 900;
constexpr int kDownwards = -900;

} // namespace

void CGraphCtrl::MakeFonts() {
    MakeFont(m_YTickLabelFont, kYTickLabelFontHeight, kHorizontal, FW_NORMAL);
    MakeFont(m_XTickLabelFont, kXTickLabelFontHeight, kUpwards, FW_NORMAL);
    MakeFont(m_UnitFont, kUnitFontHeight, kHorizontal, FW_NORMAL);
    MakeFont(m_LegendFont, kLegendFontHeight, kHorizontal, FW_NORMAL);
}

int CGraphCtrl::GetTitleTextHeight() {
    if (m_hWnd == nullptr)
        return 0;
    CClientDC dc(this);
    SetMapModeAnisotropic(dc);
    CRect client;
    GetClientRect(&client);
    return LabelUnit(ToRect(ToLogical(dc, client)));
}

void CGraphCtrl::DrawTitle(CDC& dc, int nHeight) {
    CFont bold;
    MakeFont(bold, nHeight, kHorizontal, FW_BOLD);
    SelectGuard font(dc, bold);
    dc.SetTextColor(m_TitleColor);
    dc.SetTextAlign(TA_CENTER);
    DrawTextAt(dc, (m_rectTitle.left + m_rectTitle.right) / 2, m_rectTitle.top, m_Title);
}

void CGraphCtrl::DrawAxisLabels(CDC& dc, const GraphLayout& layout) {
    const int height = layout.labelUnit - kLabelFontInset;
    const auto draw = [&](BOOL show, int escapement, COLORREF color, const Point& point,
                          const CString& text) {
        if (!show)
            return;
        CFont font;
        MakeFont(font, height, escapement, FW_NORMAL);
        SelectGuard selected(dc, font);
        dc.SetTextColor(color);
        dc.SetTextAlign(TA_CENTER);
        DrawTextAt(dc, point.x, point.y, text);
    };
    draw(m_ShowYLabel, kUpwards, m_YLabelColor, layout.yLabel, m_YLabel);
    draw(m_ShowY2Label && m_GraphStyle == GraphStyleTwoAxis, kDownwards, m_Y2LabelColor, layout.y2Label,
         m_Y2Label);
    draw(m_ShowXLabel, kHorizontal, m_XLabelColor, layout.xLabel, m_XLabel);
}
