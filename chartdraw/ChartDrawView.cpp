// SPDX-License-Identifier: MIT
// CChartDraw: the ranges in view, and what changes them except for mouse and keys.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"
#include "chartdraw/ChartLink.h"
#include "gdi/OutOfMemory.h"
#include "plot/RoundScale.h"

using namespace kavlix;

namespace {

constexpr int kVisibleSteps = 8; // most steps of the round range around the visible data

ChartAxis ToChartAxis(int axis) {
    return static_cast<ChartAxis>(axis);
}

CChartAxis::Kind KindOf(const ChartDrawState& state, int axis) {
    return state.Axis(axis).GetKind();
}

bool IsLogarithmic(const ChartDrawState& state, int axis) {
    return KindOf(state, axis) == CChartAxis::Logarithmic;
}

void SetKind(const ChartDrawState& state, int axis) {
    state.input->view.SetTime(ToChartAxis(axis), KindOf(state, axis) == CChartAxis::Time);
    state.input->view.SetLogarithmic(ToChartAxis(axis), IsLogarithmic(state, axis));
}

/// A range with round ends around the visible data. They keep a Y axis still while data moves through the view.
ViewRange RoundRangeAround(const ValueBounds& bounds, bool isLogarithmic) {
    if (!isLogarithmic) {
        const RoundScale scale = RoundScale::Around(bounds, kVisibleSteps);
        return {scale.Min(), scale.Max()};
    }
    constexpr double kRoom = 0.05; // as a share of the decades
    const double room = std::pow(bounds.max / bounds.min, kRoom);
    return bounds.min < bounds.max ? ViewRange{bounds.min / room, bounds.max * room}
                                   : ViewRange{bounds.min / 2, bounds.max * 2};
}

/// `timer` is the address of the chart's state.
void CALLBACK OnFollowTimer(HWND window, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(window, timer);
    ChartDrawState* const state = ChartDrawState::Of(window);
    // Another chart can have the window of the one that set the timer.
    if (reinterpret_cast<UINT_PTR>(state) == timer)
        state->TellFollowed();
}

} // namespace

ViewRanges ChartInputState::Ranges() const {
    ViewRanges ranges;
    for (int axis = 0; axis < ChartDrawState::kAxes; ++axis)
        ranges[static_cast<std::size_t>(axis)] = view.Axis(ToChartAxis(axis)).Range();
    return ranges;
}

// ---- Layout and data ----

ChartDrawState::WantedRange ChartDrawState::RangeOf(int axis) const {
    ChartView& view = input->view;
    const ChartAxis number = ToChartAxis(axis);
    SetKind(*this, axis);
    if (axis == kX)
        view.SetData(number, DataBounds(axis)); // the view follows
    if (!view.Axis(number).IsMoved()) {
        const ViewAxis& x = view.Axis(ChartAxis::X);
        const bool isXFixed = chart.m_XFixed.fixed;
        if (axis == kX && link && !isXFixed) {
            // All linked charts show the same range, not one rounded to their own ticks.
            const ValueBounds& whole = x.Data();
            if (whole.min < whole.max)
                return {true, whole.min, whole.max};
        }
        if (view.Mode(number) != ScaleMode::Visible || (!x.IsMoved() && !isXFixed))
            return {};
        const ViewRange inView = x.IsMoved() ? x.Range() : ViewRange{chart.m_XFixed.min, chart.m_XFixed.max};
        const ValueBounds bounds = DataBounds(axis, inView.min, inView.max);
        if (bounds.IsEmpty())
            return {};
        view.SetHome(number, RoundRangeAround(bounds, IsLogarithmic(*this, axis)));
    }
    const ViewRange& range = view.Axis(number).Range();
    return {true, range.min, range.max};
}

ValueBounds ChartDrawState::DataBounds(int axis) const {
    return axis == kX && link ? LinkedDataBounds() : OwnDataBounds(axis);
}

ValueBounds ChartDrawState::OwnDataBounds(int axis) const {
    const ValueBounds bounds = OwnDataBounds(axis, true);
    // An axis whose datasets the user has hidden by the legend keeps its range.
    return bounds.IsEmpty() && legend.GetPlace() != CChartLegend::Hidden ? OwnDataBounds(axis, false)
                                                                         : bounds;
}

ValueBounds ChartDrawState::OwnDataBounds(int axis, bool visibleOnly) const {
    const bool isLogarithmic = IsLogarithmic(*this, axis);
    ValueBounds bounds;
    for (const auto& dataset : chart.m_Datasets) {
        if ((visibleOnly && !dataset->visible) || (axis != kX && dataset->usesY2 != (axis == kY2)))
            continue;
        const ChartSeries& points = dataset->points;
        ValueBounds own = isLogarithmic ? (axis == kX ? points.PositiveXBounds() : points.PositiveYBounds())
                                        : (axis == kX ? points.XBounds() : points.YBounds());
        if (axis == kX && !own.IsEmpty())
            own = {ToAxis(*dataset, own.min), ToAxis(*dataset, own.max)};
        bounds.Add(own);
    }
    return bounds;
}

ValueBounds ChartDrawState::DataBounds(int axis, double xMin, double xMax) const {
    ValueBounds bounds;
    for (const auto& dataset : chart.m_Datasets)
        if (dataset->visible && dataset->usesY2 == (axis == kY2))
            bounds.Add(dataset->points.YBoundsBetween(ToDataset(*dataset, xMin), ToDataset(*dataset, xMax),
                                                      IsLogarithmic(*this, axis)));
    return bounds;
}

void ChartDrawState::LaidOut(int axis, double min, double max) {
    input->shown[static_cast<std::size_t>(axis)] = {min, max};
    const ChartAxis number = ToChartAxis(axis);
    if (!input->view.Axis(number).IsMoved())
        input->view.SetHome(number, {min, max});
}

void ChartDrawState::SetFixedHomes() {
    if (chart.m_XFixed.fixed)
        input->view.SetHome(ChartAxis::X, {chart.m_XFixed.min, chart.m_XFixed.max});
    if (chart.m_YFixed.fixed)
        input->view.SetHome(ChartAxis::Y, {chart.m_YFixed.min, chart.m_YFixed.max});
}

void ChartDrawState::ResetRange(int axis) {
    const ViewRanges before = input->Ranges();
    const bool wasMoved = input->view.Axis(ToChartAxis(axis)).IsMoved();
    input->view.SetMode(ToChartAxis(axis), ScaleMode::Whole);
    Changed();
    ViewChanged(*this, before, ViewCause::Setter);
    if (axis == kX && !wasMoved)
        ShareView();
}

void kavlix::RefreshView(ChartDrawState& state) {
    state.SetFixedHomes();
    state.input->view.SetY2Mirrored(state.yAxis.IsInverted() != state.y2Axis.IsInverted());
    for (int axis = 0; axis < ChartDrawState::kAxes; ++axis) {
        SetKind(state, axis);
        state.input->view.SetData(ToChartAxis(axis), state.DataBounds(axis));
    }
}

// ---- Changes ----

bool kavlix::ViewChanged(ChartDrawState& state, const ViewRanges& before, ViewCause cause) {
    ChartInputState& input = *state.input;
    if (input.Ranges() == before)
        return true;
    state.Changed();
    for (const int axis : {ChartDrawState::kY, ChartDrawState::kY2})
        state.RangeOf(axis); // in the mode Visible a new range of X changes those of Y
    input.shown = input.Ranges();
    CChartDraw& chart = state.chart;
    if (cause != ViewCause::Setter)
        chart.Redraw();
    bool isAlive = true;
    if (input.shown[0] != before[0]) {
        // Linked charts tell their parents, which may destroy this chart.
        const HWND window = chart.m_hWnd;
        const bool isKept = state.ShareView();
        isAlive = window == nullptr ? isKept : CWnd::FromHandlePermanent(window) == &chart;
    }
    if (isAlive && cause == ViewCause::User) {
        NMCHARTDRAW record = {};
        record.hdr.code = CDN_VIEW;
        state.Notify(record, isAlive);
    }
    return isAlive;
}

bool ChartDrawState::SetView(int axis, double min, double max, bool tell) {
    const ViewRanges before = input->Ranges();
    RefreshView(*this);
    if (!input->view.Axis(ToChartAxis(axis)).CanShow({min, max}))
        return false;
    input->view.SetRange(ToChartAxis(axis), {min, max});
    ViewChanged(*this, before, tell ? ViewCause::User : ViewCause::Host);
    return true;
}

bool ChartDrawState::TellFollowed() {
    if (!input->isFollowTimed)
        return true;
    ::KillTimer(chart.m_hWnd, reinterpret_cast<UINT_PTR>(this));
    input->isFollowTimed = false;
    ViewRanges before = input->Ranges();
    before[0] = input->followedFrom;
    bool isAlive = true;
    WithinResources([&] {
        RefreshView(*this);
        isAlive = ViewChanged(*this, before, ViewCause::User);
    });
    return isAlive;
}

void ChartDrawState::DataChanged() {
    if (input->view.Mode(ChartAxis::X) != ScaleMode::Follow || input->isFollowTimed ||
        chart.m_hWnd == nullptr)
        return;
    // The layout lets the view follow. CDN_VIEW goes to the parent later, and the range to linked charts, once for
    // all data that has come by then, so that no message runs inside of AddData.
    input->followedFrom = input->view.Axis(ChartAxis::X).Range();
    input->isFollowTimed = ::SetTimer(chart.m_hWnd, reinterpret_cast<UINT_PTR>(this), 0, &OnFollowTimer) != 0;
}

// ---- The axes' members ----

void CChartAxis::SetRangeMode(RangeMode mode) {
    CChartDraw& chart = m_State->chart;
    ChartDrawState& state = *chart.m_State;
    ChartView& view = state.input->view;
    const ViewRanges before = state.input->Ranges();
    const ChartAxis axis = ToChartAxis(m_State->axis);
    const bool isX = axis == ChartAxis::X;
    RefreshView(state);
    if (mode == Fixed) {
        const ViewRange range = view.Axis(axis).Range();
        view.SetMode(axis, ScaleMode::Whole);
        view.SetRange(axis, range);
    } else if (mode == Follow && isX) {
        const ValueBounds& data = view.Axis(axis).Data();
        if (chart.m_Changed && !view.Axis(axis).IsMoved() && !data.IsEmpty()) // the home range is outdated
            view.SetHome(axis, RoundRangeAround(data, view.Axis(axis).IsLogarithmic()));
        view.SetMode(axis, ScaleMode::Follow);
    } else if (mode == WholeData || mode == VisibleData) {
        view.SetMode(axis, mode == VisibleData && !isX ? ScaleMode::Visible : ScaleMode::Whole);
        if (axis != ChartAxis::Y2)
            (isX ? chart.m_XFixed : chart.m_YFixed).fixed = false;
    }
    state.Changed();
    ViewChanged(state, before, ViewCause::Setter);
}

CChartAxis::RangeMode CChartAxis::GetRangeMode() const {
    const ChartView& view = m_State->chart.m_State->input->view;
    const ChartAxis axis = ToChartAxis(m_State->axis);
    if (view.Mode(axis) == ScaleMode::Follow)
        return Follow;
    const bool isScaleFixed = (axis == ChartAxis::X && m_State->chart.m_XFixed.fixed) ||
                              (axis == ChartAxis::Y && m_State->chart.m_YFixed.fixed);
    if (view.Axis(axis).IsMoved() || isScaleFixed)
        return Fixed;
    return view.Mode(axis) == ScaleMode::Visible ? VisibleData : WholeData;
}

BOOL CChartAxis::SetRange(double dMin, double dMax) {
    ChartDrawState& state = *m_State->chart.m_State;
    ChartView& view = state.input->view;
    const ChartAxis axis = ToChartAxis(m_State->axis);
    const ViewRanges before = state.input->Ranges();
    RefreshView(state);
    if (!view.Axis(axis).CanShow({dMin, dMax}))
        return FALSE;
    if (view.Mode(axis) == ScaleMode::Follow)
        view.SetMode(axis, ScaleMode::Whole);
    view.SetRange(axis, {dMin, dMax});
    state.Changed();
    ViewChanged(state, before, ViewCause::Setter);
    return TRUE;
}

void CChartAxis::GetRange(double& dMin, double& dMax) const {
    const ViewRange& shown = m_State->chart.m_State->input->shown[static_cast<std::size_t>(m_State->axis)];
    dMin = shown.min;
    dMax = shown.max;
}

// ---- The chart's members ----

void CChartDraw::SetViewFlags(UINT nFlags) {
    ChartInputState& input = *m_State->input;
    input.flags = nFlags;
    const DragPurpose purpose = input.pointer.Purpose();
    if ((purpose == DragPurpose::Pan && input.PanAxes() == 0) ||
        (purpose == DragPurpose::Box && input.ZoomAxes() == 0))
        EndDrag(*m_State, false);
}

UINT CChartDraw::GetViewFlags() const {
    return m_State->input->flags;
}

void CChartDraw::FitView() {
    FitAll(
        *m_State, ViewCause::Host, [this] { CalcDatas(); });
}

BOOL CChartDraw::ViewBack() {
    return GoBack(
        *m_State, ViewCause::Host, [this] { CalcDatas(); });
}
