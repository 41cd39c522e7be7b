// SPDX-License-Identifier: MIT
// CChartDraw: places of title, captions, scales and plot, the scales themselves, and fonts.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "chartdraw/AxisTicks.h"
#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartText.h"
#include "chartdraw/core/ViewAxis.h"
#include "gdi/Guards.h"
#include "gdi/StringIds.h"
#include "plot/NumberFormat.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

// Text heights: if the plot is narrower or lower, captions, title, the dates below the clock and scales are left out, in this order.
constexpr double kSmallestPlot = 4;

constexpr int kTenthsOfPointPerInch = 720;

/// Keeps the ticks of all axes and gives them back unless the layout is complete.
class KeptLayouts {
public:
    explicit KeptLayouts(ChartDrawState& state) : m_state(state) {
        for (int axis = 0; axis < ChartDrawState::kAxes; ++axis)
            m_kept[axis] = std::move(state.AxisState(axis).layout);
    }
    KeptLayouts(const KeptLayouts&) = delete;
    KeptLayouts& operator=(const KeptLayouts&) = delete;
    ~KeptLayouts() {
        for (int axis = 0; axis < ChartDrawState::kAxes && !m_isComplete; ++axis)
            m_state.AxisState(axis).layout = std::move(m_kept[axis]);
    }
    void Complete() { m_isComplete = true; }

private:
    ChartDrawState& m_state;
    AxisLayout m_kept[ChartDrawState::kAxes];
    bool m_isComplete = false;
};

/// The range of a logarithmic axis around values above 0: from 1, 2 or 5 times a power of ten to another one.
ValueBounds RoundDecades(const ValueBounds& values) {
    const auto round = [](double value, bool isUp) {
        const int exponent = ExponentOf(value);
        double best = Scaled(isUp ? 10 : 1, -exponent);
        for (const double mantissa : {1.0, 2.0, 5.0}) {
            const double candidate = Scaled(mantissa, -exponent);
            if (isUp ? candidate >= value && candidate < best : candidate <= value && candidate > best)
                best = candidate;
        }
        return best;
    };
    const double min = round(values.min, false);
    const double max = round(values.max, true);
    return min < max ? ValueBounds{min, max} : ValueBounds{min / 10, max * 10};
}

/// The range itself, or a similar one that an axis can show.
ValueBounds Usable(const ValueBounds& range, CChartAxis::Kind kind) {
    ViewAxis axis;
    axis.SetTime(kind == CChartAxis::Time);
    axis.SetLogarithmic(kind == CChartAxis::Logarithmic);
    axis.SetHome({range.min, range.max});
    return {axis.Range().min, axis.Range().max};
}

/// What tells that `count` values are not shown; empty for 0. The text is a resource that hosts can replace.
CString NotShownText(std::int64_t count) {
    CString text;
    if (count > 0)
        text.LoadString(count == 1 ? IDS_CHART_NOT_SHOWN_ONE : IDS_CHART_NOT_SHOWN);
    text.Replace(_T("%1"), CString(std::to_string(count).c_str()));
    return text;
}

} // namespace

void CChartDraw::CalcDatas() {
    if (m_hWnd == nullptr)
        return;
    m_Changed = true;
    const CRect chart = m_rectChart;
    const CRect plot = m_rectPlot;
    KeptLayouts layouts(*m_State);
    try {
        Calculate();
    } catch (...) {
        m_rectChart = chart;
        m_rectPlot = plot;
        throw;
    }
    layouts.Complete();
    m_CalcSize = m_rectChart.Size();
    m_Changed = false;
    for (int axis = 0; axis < AxisCount(); ++axis)
        m_State->LaidOut(axis, m_State->Layout(axis).min, m_State->Layout(axis).max);
    m_State->RedrawMisaligned();
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
    for (int axis = 0; axis < ChartDrawState::kAxes; ++axis)
        m_State->AxisState(axis).UseFont(m_FontPixels, m_FontFace);

    m_State->note = NotShownText(m_State->CountNotShown());

    // In a small window the plot has priority: leave out one part after the other until the
    // plot is large enough.
    const int smallest = static_cast<int>(kSmallestPlot * m_TextHeight);
    bool& showPeriods = m_State->AxisState(ChartDrawState::kX).showsPeriods;
    m_ShowCaptions = m_ShowTitle = m_ShowScales = showPeriods = true;
    m_State->RangeOf(ChartDrawState::kX); // X follows the newest data before Y is fitted to what is in view
    LayOut(dc);
    for (bool* part : {&m_ShowCaptions, &m_ShowTitle, &showPeriods, &m_ShowScales}) {
        if (m_rectPlot.Width() >= smallest && m_rectPlot.Height() >= smallest)
            break;
        *part = false;
        LayOut(dc);
    }
    m_State->PlaceLegend(dc);
}

int CChartDraw::AxisCount() const {
    return m_State->HasSecondYAxis() ? ChartDrawState::kAxes : ChartDrawState::kY2;
}

int CChartDraw::CaptionGap() const {
    return static_cast<int>(kCaptionGap * m_TextHeight);
}

int CChartDraw::ScaleRoom(int axis) const {
    if (!m_ShowScales)
        return 0;
    const ChartAxisState& state = m_State->AxisState(axis);
    const bool hasPeriods = state.kind == CChartAxis::Time && state.showsPeriods;
    const int labels =
        axis == ChartDrawState::kX ? m_TextHeight * (hasPeriods ? 2 : 1) : state.layout.WidestLabel();
    return kTickLength + kTickLabelGap + labels;
}

void CChartDraw::LayOut(CDC& dc) {
    const auto hasCaption = [&](int axis) { return m_ShowCaptions && !m_State->Caption(axis).IsEmpty(); };
    const int margin = static_cast<int>(kChartMargin * m_TextHeight);
    const int caption = m_TextHeight + CaptionGap();
    const bool hasY2 = AxisCount() > ChartDrawState::kY2;
    CRect plot = m_rectChart;
    plot.DeflateRect(margin, margin);
    if (m_ShowTitle && !m_Title.IsEmpty())
        plot.top += m_TitleHeight + margin;
    m_State->LayOutLegend(dc, plot);
    if (m_ShowCaptions && !m_State->note.IsEmpty())
        plot.top += caption;
    const int right = plot.right;
    if (hasCaption(ChartDrawState::kX))
        plot.bottom -= caption;
    if (hasCaption(ChartDrawState::kY))
        plot.left += caption;
    if (hasY2 && hasCaption(ChartDrawState::kY2))
        plot.right -= caption;
    plot.bottom -= ScaleRoom(ChartDrawState::kX);

    FindTicks(dc, ChartDrawState::kY, plot.Height());
    plot.left += ScaleRoom(ChartDrawState::kY);
    if (hasY2) {
        FindTicks(dc, ChartDrawState::kY2, plot.Height());
        plot.right -= ScaleRoom(ChartDrawState::kY2);
    }
    m_State->AlignWithLinked(plot);
    FindTicks(dc, ChartDrawState::kX, plot.Width());
    // The last X label is centred on the plot's right edge. Half a margin stays free to the right of it. In other
    // ranges the last label lies anywhere, and the plot keeps its width.
    const AxisLayout& x = m_State->Layout(ChartDrawState::kX);
    if (m_ShowScales && !x.ticks.empty() && !m_State->RangeOf(ChartDrawState::kX).isExact &&
        m_State->xAxis.GetKind() != CChartAxis::Time) {
        const int half = x.ticks.back().width / 2;
        plot.right = std::min<int>(plot.right, right - half + margin / 2);
    }
    if (plot.right <= plot.left || plot.bottom <= plot.top)
        plot.SetRectEmpty();
    m_rectPlot = plot;
}

void CChartDraw::FindTicks(CDC& dc, int axis, int length) {
    ChartAxisState& state = m_State->AxisState(axis);
    const AxisRoom room = {length, m_TextHeight, axis == ChartDrawState::kX,
                           [&](const CString& text) { return state.widths.Of(dc, text); }};
    const FixedScale none; // the second Y axis has no SetYScale
    const FixedScale& fixed = axis == ChartDrawState::kX   ? m_XFixed
                              : axis == ChartDrawState::kY ? m_YFixed
                                                           : none;
    const ChartDrawState::WantedRange range = m_State->RangeOf(axis);
    ValueBounds values;
    if (!range.isExact && !fixed.fixed)
        values = m_State->DataBounds(axis);

    if (state.kind == CChartAxis::Linear) {
        state.layout = FindLinearTicks(state, room, [&](int mostSteps) {
            if (range.isExact)
                return RoundScale::Fixed(range.min, range.max, 0, mostSteps);
            return fixed.fixed ? RoundScale::Fixed(fixed.min, fixed.max, fixed.step, mostSteps)
                               : RoundScale::Around(values, mostSteps);
        });
        return;
    }
    ValueBounds shown = range.isExact ? ValueBounds{range.min, range.max} : values;
    if (!range.isExact && fixed.fixed)
        shown = {fixed.min, fixed.max};
    if (state.kind == CChartAxis::Logarithmic) {
        // Nothing above 0: any decade.
        if (shown.IsEmpty() || !(shown.max > 0))
            shown = {1, 10};
        if (!(shown.min > 0))
            shown.min = shown.max / 1000;
        if (!range.isExact && !fixed.fixed)
            shown = RoundDecades(shown);
        shown = Usable(shown, state.kind);
        state.layout = FindLogTicks(state, room, shown.min, shown.max);
        return;
    }
    if (shown.IsEmpty())
        shown = {0, 1};
    if (!(shown.min < shown.max)) // a single time
        shown = {shown.min - 1, shown.min + 1};
    shown = Usable(shown, state.kind);
    state.layout = FindTimeTicks(state, room, shown.min, shown.max);
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
