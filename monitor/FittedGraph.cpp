// SPDX-License-Identifier: MIT
// Look, layout and texts of the Monitor's graphs.

#include "monitor/FittedGraph.h"

#include <algorithm>

#include "monitor/Notifications.h"
#include "monitor/PictureCopy.h"
#include "monitor/TextConversion.h"
#include "monitor/recording/TextCut.h"

namespace kavlix::monitor {
namespace {

constexpr int kLegendGap = 450;     // logical units on the right of the text of a legend row
constexpr int kMinLegendText = 600; // least width of the column of legend texts, in logical units

constexpr int kLegendShare = 3;    // the legend's texts take at most 1/kLegendShare of the window's width
constexpr int kCaptionSize = 90;   // size of the caption font, in tenths of a point
constexpr int kCaptionMargin = 10; // pixels on each side of the caption's text

} // namespace

template <class Control> bool CFittedGraph<Control>::CreateChild(CWnd& parent, UINT id) {
    ShowFilling(false);
    return this->Create(_T("MFCGraphCtrl"), _T(""), WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0),
                        &parent, id) != FALSE;
}

template <class Control> void CFittedGraph<Control>::ApplyLook(const GraphSettings& settings,
                                                               const std::vector<SeriesSettings>& series) {
    this->SetGraphStyle(settings.style);
    this->SetTitleStyle(settings.titleStyle);
    this->SetGrid(settings.gridX, settings.gridY);
    this->ShowLegend(settings.legend && settings.style != CGraphCtrl::GraphStyleTwoAxis);
    for (std::size_t i = 0; i < series.size() && i < CGraphCtrl::DatasetCount; ++i) {
        const int dataset = static_cast<int>(i);
        this->SetColor(dataset, series[i].color);
        this->SetLineSize(dataset, series[i].lineSize);
        this->SetMarkerType(dataset, series[i].marker);
        this->ShowDataset(dataset, series[i].visible);
    }

    constexpr COLORREF ink = RGB(70, 75, 85);
    this->SetTitleColor(ink);
    this->SetXLabelColor(ink);
    this->SetXTickLabelColor(ink);
    this->SetAxisColor(RGB(150, 155, 165));
    this->SetGridColor(RGB(205, 208, 214));
    this->SetCaptionColor(RGB(55, 71, 98));
    this->SetLegendColor(RGB(246, 247, 249));
    this->SetLegendTextColor(ink);
    this->SetCaptionFont(kCaptionSize, kFontFace);
    // In the two-axis style, the control draws each value axis in the colour of its series.
    if (settings.style != CGraphCtrl::GraphStyleTwoAxis) {
        this->SetYLabelColor(ink);
        // No series: hide the labels, which would be meaningless.
        this->SetYTickLabelColor(series.empty() ? this->m_BkColor : ink);
    }
}

template <class Control> typename CFittedGraph<Control>::Layout CFittedGraph<Control>::MeasureLayout() {
    // The control computes its layout while it paints. Paint into a bitmap of one pixel, without samples and
    // X axis, which is fast.
    CClientDC client(this);
    CDC dc;
    CBitmap bitmap;
    if (!dc.CreateCompatibleDC(&client) || !bitmap.CreateBitmap(1, 1, 1, 1, nullptr))
        return {};
    CBitmap* old = dc.SelectObject(&bitmap);
    this->SetMapModeAnisotropic(dc);
    m_measuring = true;
    this->DrawGraph(dc);
    m_measuring = false;
    dc.SelectObject(old);
    return {this->m_rectPlot.Height() / recording::kValueTickDistance, this->m_rectPlot.Size()};
}

template <class Control>
void CFittedGraph<Control>::DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) {
    if (!m_measuring)
        Control::DrawXAxis(dc, rectLabel, rectAxis, nTicks);
}

template <class Control> void CFittedGraph<Control>::DrawGraphData(CDC& dc) {
    if (!m_measuring)
        Control::DrawGraphData(dc);
}

template <class Control> int CFittedGraph<Control>::FitLegend(const std::vector<SeriesSettings>& series) {
    this->ResetLegend();
    CRect client;
    this->GetClientRect(&client);
    const int room = client.Width() * kPixel / kLegendShare;
    LONG width = kMinLegendText;
    for (std::size_t i = 0; i < series.size() && i < CGraphCtrl::DatasetCount; ++i) {
        const std::string text = FitText(series[i].name, room, kTickFontHeight, FW_NORMAL);
        this->SetLegend(static_cast<int>(i), ToText(text));
        width = std::max(width, TextSize(text, kTickFontHeight, FW_NORMAL).cx);
    }
    return static_cast<int>(width) + 2 * this->m_LegendMargin + this->m_LegendItemHeight + kLegendGap;
}

template <class Control> int CFittedGraph<Control>::TickLabelWidth(const recording::ValueScale& scale) {
    LONG width = 0;
    for (const std::string& label : recording::ValueLabels(scale))
        width = std::max(width, TextSize(label, kTickFontHeight, FW_NORMAL).cx);
    return static_cast<int>(width) + kTickLabelGap;
}

template <class Control> void CFittedGraph<Control>::FitCaption(const std::vector<std::string>& texts) {
    CClientDC dc(this);
    CFont font;
    if (!font.CreatePointFont(kCaptionSize, kFontFace, &dc)) {
        this->SetWindowText(ToText(texts.back()));
        return;
    }
    CFont* const old = dc.SelectObject(&font);
    CRect client;
    this->GetClientRect(&client);
    // The text is centred in the band, so the icon at the right end takes the same width away on the left.
    const LONG icon = this->m_ShowIconMaximize ? this->m_rectIconMaximize.Width() / kPixel : 0;
    const LONG room = client.Width() - 2 * (kCaptionMargin + icon);
    const auto fits = [&](const std::string& text) { return dc.GetTextExtent(ToText(text)).cx <= room; };
    const auto found = std::find_if(texts.begin(), texts.end(), fits);
    const std::string caption = found != texts.end() ? *found : recording::CutToFit(texts.back(), fits);
    dc.SelectObject(old);
    this->SetWindowText(ToText(caption));
}

template <class Control>
CSize CFittedGraph<Control>::TextSize(const std::string& text, int height, int weight) {
    CClientDC dc(this);
    this->SetMapModeAnisotropic(dc);
    CFont font;
    if (!font.CreateFont(height, 0, 0, 0, weight, FALSE, FALSE, 0, ANSI_CHARSET, OUT_TT_PRECIS,
                         CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, kFontFace))
        return CSize(0, 0);
    CFont* old = dc.SelectObject(&font);
    const CSize size = dc.GetTextExtent(ToText(text));
    dc.SelectObject(old);
    return size;
}

template <class Control>
std::string CFittedGraph<Control>::FitText(const std::string& text, int room, int height, int weight) {
    if (height <= 0)
        return text;
    return recording::CutToFit(
        text, [&](const std::string& tried) { return TextSize(tried, height, weight).cx <= room; });
}

template <class Control> bool CFittedGraph<Control>::IsOnIcon(CPoint point) const {
    return this->m_TitleStyle == CGraphCtrl::TitleStyleCaption &&
           this->m_rectIconMaximize.PtInRect(CPoint(point.x * kPixel, point.y * kPixel));
}

template <class Control> void CFittedGraph<Control>::WatchPointer() {
    if (m_watchingLeave)
        return;
    m_watchingLeave = WatchMouseLeave(*this);
}

template <class Control> void CFittedGraph<Control>::PointerLeft() {
    m_watchingLeave = false;
    NotifyParent(*this, MGN_MOUSELEAVE);
}

template <class Control> void CFittedGraph<Control>::CopyAndTell() {
    const bool reached = CopyReaches(*this, [this] { return this->CopyToClipboard() != 0; });
    NotifyParent(*this, reached ? MGN_COPIED : MGN_NOTCOPIED);
}

template class CFittedGraph<CGraphCtrl>;
template class CFittedGraph<CScrollGraphCtrl>;

} // namespace kavlix::monitor
