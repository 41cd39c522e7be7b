// SPDX-License-Identifier: MIT
// CChartDraw: places of title, captions, scales and plot, the scales themselves, and fonts.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartText.h"
#include "gdi/Guards.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

constexpr double kCaptionGap = 0.3; // text heights between a caption and the scale beside it
constexpr double kYLabelRoom = 2.5; // text heights from a Y label's top to the next one's, if possible
constexpr double kXLabelGap = 1.2;  // text heights between two X labels, if possible
// Text heights: if the plot is narrower or lower, captions, title and scales are left out, in this order.
constexpr double kSmallestPlot = 4;

constexpr int kTenthsOfPointPerInch = 720;
constexpr int kMostTicks = 100;

int WidestLabel(CDC& dc, const RoundScale& scale) {
    int widest = 0;
    for (int i = 0; i < std::min(scale.TickCount(), kMostTicks); ++i)
        widest = std::max(widest, TextWidth(dc, scale.Label(i)));
    return widest;
}

/// Number of steps of `room` pixels that fit into `length` pixels, limited to 2 to kMostTicks.
int StepsIn(int length, double room) {
    return std::clamp(static_cast<int>(length / std::max(room, 1.0)), 2, kMostTicks);
}

} // namespace

void CChartDraw::CalcDatas() {
    if (m_hWnd == nullptr)
        return;
    m_Changed = true;
    const CRect chart = m_rectChart;
    const CRect plot = m_rectPlot;
    const RoundScale xScale = *m_XScale;
    const RoundScale yScale = *m_YScale;
    try {
        Calculate();
    } catch (...) {
        m_rectChart = chart;
        m_rectPlot = plot;
        *m_XScale = xScale;
        *m_YScale = yScale;
        throw;
    }
    m_CalcSize = m_rectChart.Size();
    m_Changed = false;
}

void CChartDraw::Calculate() {
    GetClientRect(&m_rectChart);
    CClientDC dc(this);
    const auto makeFont = [this](CFont& font, bool title) {
        if (!MakeTextFont(font, 0, title))
            AfxThrowResourceException(); // otherwise the heights of the default font would be measured
    };
    m_FontPixels = std::max(1, ::MulDiv(m_FontSize, dc.GetDeviceCaps(LOGPIXELSY), kTenthsOfPointPerInch));
    {
        CFont font;
        makeFont(font, true);
        SelectGuard selected(dc, font);
        m_TitleHeight = TextHeight(dc);
    }
    CFont font;
    makeFont(font, false);
    SelectGuard selected(dc, font);
    m_TextHeight = TextHeight(dc);

    // In a small window the plot has priority: leave out one part after the other until the
    // plot is large enough.
    const int smallest = static_cast<int>(kSmallestPlot * m_TextHeight);
    m_ShowCaptions = m_ShowTitle = m_ShowScales = true;
    LayOut(dc);
    for (bool* part : {&m_ShowCaptions, &m_ShowTitle, &m_ShowScales}) {
        if (m_rectPlot.Width() >= smallest && m_rectPlot.Height() >= smallest)
            break;
        *part = false;
        LayOut(dc);
    }
    m_State->PlaceLegend(dc);
}

void CChartDraw::LayOut(CDC& dc) {
    const auto heights = [&](double count) { return static_cast<int>(count * m_TextHeight); };
    const int margin = heights(kChartMargin);
    CRect plot = m_rectChart;
    plot.DeflateRect(margin, margin);
    if (m_ShowTitle && !m_Title.IsEmpty())
        plot.top += m_TitleHeight + margin;
    m_State->LayOutLegend(dc, plot);
    if (m_ShowCaptions && !m_XLabel.IsEmpty())
        plot.bottom -= m_TextHeight + heights(kCaptionGap);
    if (m_ShowCaptions && !m_YLabel.IsEmpty())
        plot.left += m_TextHeight + heights(kCaptionGap);
    if (m_ShowScales)
        plot.bottom -= kTickLength + kTickLabelGap + m_TextHeight;

    *m_YScale = FindScale(false, StepsIn(plot.Height(), kYLabelRoom * m_TextHeight));
    if (m_ShowScales)
        plot.left += WidestLabel(dc, *m_YScale) + kTickLabelGap + kTickLength;
    FitXScale(dc, plot.Width());
    // The last X label is centred on the plot's right edge. Half a margin stays free to the right of it.
    if (m_ShowScales && m_XScale->TickCount() > 0) {
        const int half = TextWidth(dc, m_XScale->Label(m_XScale->TickCount() - 1)) / 2;
        plot.right -= std::max(0, half - margin / 2);
    }
    if (plot.right <= plot.left || plot.bottom <= plot.top)
        plot.SetRectEmpty();
    m_rectPlot = plot;
}

void CChartDraw::FitXScale(CDC& dc, int width) {
    double refused = 0; // the last step whose labels did not fit
    for (int steps = StepsIn(width, 2 * m_TextHeight); steps >= 2; --steps) {
        *m_XScale = FindScale(true, steps);
        if (m_XScale->Step() == refused)
            continue;
        refused = m_XScale->Step();
        const double distance = refused / (m_XScale->Max() - m_XScale->Min()) * width;
        if (WidestLabel(dc, *m_XScale) + kXLabelGap * m_TextHeight <= distance)
            break;
    }
}

RoundScale CChartDraw::FindScale(bool x, int mostSteps) const {
    const FixedScale& fixed = x ? m_XFixed : m_YFixed;
    if (fixed.fixed)
        return RoundScale::Fixed(fixed.min, fixed.max, fixed.step, mostSteps);
    ValueBounds bounds;
    for (const auto& dataset : m_Datasets)
        if (dataset->visible)
            bounds.Add(x ? dataset->points.XBounds() : dataset->points.YBounds());
    return RoundScale::Around(bounds, mostSteps);
}

BOOL CChartDraw::MakeTextFont(CFont& font, int escapement, bool title) const {
    constexpr int kTitleThirds = 4; // size of the title in thirds of the other texts' size
    LOGFONT record = {};
    record.lfHeight = -(title ? m_FontPixels * kTitleThirds / 3 : m_FontPixels);
    record.lfWeight = title ? FW_BOLD : FW_NORMAL;
    record.lfEscapement = record.lfOrientation = escapement;
    record.lfCharSet = DEFAULT_CHARSET;
    record.lfOutPrecision = OUT_TT_PRECIS;
    record.lfQuality = PROOF_QUALITY;
    const CString face =
        m_FontFace.Left(WholeCharacters(m_FontFace, m_FontFace.GetLength(), LF_FACESIZE - 1));
    lstrcpyn(record.lfFaceName, face, LF_FACESIZE);
    return font.CreateFontIndirect(&record);
}
