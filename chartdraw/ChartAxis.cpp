// SPDX-License-Identifier: MIT
// CChartAxis: the properties of an axis, and the maps between values and positions. ChartDrawView has its ranges.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"

using namespace kavlix;

CChartAxis::CChartAxis(CChartDraw& chart, int nAxis)
    : m_State(std::make_unique<ChartAxisState>(chart, nAxis)) {
}

CChartAxis::~CChartAxis() = default;

void CChartAxis::SetKind(Kind kind) {
    m_State->kind = kind;
    m_State->chart.m_State->Changed();
}

CChartAxis::Kind CChartAxis::GetKind() const {
    return m_State->kind;
}

void CChartAxis::SetInverted(BOOL bInverted) {
    m_State->inverted = bInverted != FALSE;
    m_State->chart.m_State->Changed();
}

BOOL CChartAxis::IsInverted() const {
    return m_State->inverted;
}

void CChartAxis::SetTitle(CString text) {
    if (m_State->axis == ChartDrawState::kX)
        m_State->chart.SetXLabel(std::move(text));
    else if (m_State->axis == ChartDrawState::kY)
        m_State->chart.SetYLabel(std::move(text));
    else
        m_State->title = std::move(text);
    m_State->chart.m_State->Changed();
}

void CChartAxis::SetUnit(CString text) {
    m_State->unit = std::move(text);
    m_State->chart.m_State->Changed();
}

void CChartAxis::SetDecimals(int nDecimals) {
    constexpr int kMost = 15;
    m_State->decimals = std::clamp(nDecimals, -1, kMost);
    m_State->chart.m_State->Changed();
}

void CChartAxis::SetEngineering(BOOL bEngineering) {
    m_State->engineering = bEngineering != FALSE;
    m_State->chart.m_State->Changed();
}

void CChartAxis::SetLabelFunction(LabelFunction function) {
    m_State->label = std::move(function);
    m_State->chart.m_State->Changed();
}

BOOL CChartAxis::SetTimeZone(LPCTSTR pszZone) {
    if (!m_State->zone.Set(pszZone))
        return FALSE;
    m_State->chart.m_State->Changed();
    return TRUE;
}

void CChartAxis::SetOrigin(double dOrigin) {
    if (!std::isfinite(dOrigin))
        return;
    m_State->origin = dOrigin;
    m_State->chart.m_State->Changed();
}

double CChartAxis::GetOrigin() const {
    return m_State->origin;
}

void CChartAxis::SetAlwaysShown(BOOL bShown) {
    m_State->alwaysShown = bShown != FALSE;
    m_State->chart.m_State->Changed();
}

BOOL CChartAxis::GetPosition(double dValue, int& nPosition) const {
    const ChartDrawState& state = *m_State->chart.m_State;
    const std::optional<int> position =
        state.Plot().IsRectEmpty() ? std::nullopt : state.Map(m_State->axis).Position(dValue);
    if (!position)
        return FALSE;
    nPosition = *position;
    return TRUE;
}

double CChartAxis::GetValue(int nPosition) const {
    const ChartDrawState& state = *m_State->chart.m_State;
    return state.Plot().IsRectEmpty() ? std::nan("") : state.Map(m_State->axis).Value(nPosition);
}

namespace {

/// The map of a laid-out axis whose values are moved by `shift`.
AxisMap MapOf(const AxisLayout& layout, const CRect& plot, bool isX, double shift) {
    // From the lower end of the axis to the pixel at its upper end.
    int edge = isX ? plot.left : plot.bottom - 1;
    int extent = isX ? plot.Width() - 1 : -(plot.Height() - 1);
    if (layout.isInverted) {
        edge += extent;
        extent = -extent;
    }
    return AxisMap(layout.isLogarithmic, layout.min - shift, layout.max - shift, edge, extent);
}

} // namespace

AxisMap ChartDrawState::Map(int axis) const {
    return MapOf(Layout(axis), chart.m_rectPlot, axis == kX, 0);
}

AxisMap ChartDrawState::XMap(const CChartDraw::Dataset& dataset) const {
    return MapOf(Layout(kX), chart.m_rectPlot, true, ToAxis(dataset, 0));
}

AxisMap ChartDrawState::YMap(const CChartDraw::Dataset& dataset) const {
    return Map(dataset.usesY2 ? kY2 : kY);
}

const AxisLayout& ChartDrawState::Layout(int axis) const {
    return Axis(axis).m_State->layout;
}

std::int64_t ChartDrawState::CountNotShown() const {
    const auto isLogarithmic = [](const CChartAxis& axis) {
        return axis.GetKind() == CChartAxis::Logarithmic;
    };
    std::int64_t count = 0;
    for (const auto& dataset : chart.m_Datasets) {
        const ChartSeries& points = dataset->points;
        if (!dataset->visible || points.Size() == 0)
            continue;
        if (isLogarithmic(dataset->usesY2 ? y2Axis : yAxis) && !(points.YBounds().min > 0))
            count += points.CountNotPositive({0, points.Size() - 1});
        if (!isLogarithmic(xAxis))
            continue;
        if (points.IsSorted())
            count += points.IndicesBetween(-std::numeric_limits<double>::infinity(), 0).Count();
        else
            for (int i = 0; i < points.Size(); ++i)
                count += points[i].x <= 0 ? 1 : 0;
    }
    return count;
}

CString ChartDrawState::Caption(int axis) const {
    const ChartAxisState& state = *Axis(axis).m_State;
    const CString& text = axis == kX ? chart.m_XLabel : axis == kY ? chart.m_YLabel : state.title;
    if (state.unit.IsEmpty())
        return text;
    return text + (text.IsEmpty() ? _T("[") : _T(" [")) + state.unit + _T("]");
}

bool ChartDrawState::HasSecondYAxis() const {
    return y2Axis.m_State->alwaysShown ||
           std::any_of(
               chart.m_Datasets.begin(), chart.m_Datasets.end(),
               [](const auto& dataset) { return dataset->visible && dataset->usesY2; });
}

double ChartDrawState::ToAxis(const CChartDraw::Dataset& dataset, double x) const {
    const bool isLogarithmic = xAxis.m_State->kind == CChartAxis::Logarithmic;
    return isLogarithmic ? x : x + (dataset.origin - xAxis.m_State->origin);
}

double ChartDrawState::ToDataset(const CChartDraw::Dataset& dataset, double value) const {
    return value - ToAxis(dataset, 0);
}

void CChartDraw::GetXScale(double& dMin, double& dMax, double& dStep) const {
    const AxisLayout& layout = m_State->Layout(ChartDrawState::kX);
    dMin = layout.min;
    dMax = layout.max;
    dStep = layout.step;
}

void CChartDraw::GetYScale(double& dMin, double& dMax, double& dStep) const {
    const AxisLayout& layout = m_State->Layout(ChartDrawState::kY);
    dMin = layout.min;
    dMax = layout.max;
    dStep = layout.step;
}
