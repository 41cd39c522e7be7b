// SPDX-License-Identifier: MIT
// The view on the time line: scroll bar, wheel, range and GCN_SCROLL.
#include <kavlix/ScrollGraphCtrl.h>

#include <algorithm>
#include <optional>

#include "plot/Numeric.h"
#include "scrollgraph/core/TimeLine.h"
#include "scrollgraph/core/ViewWindow.h"

using namespace kavlix;

namespace {

constexpr double kSecondsPerMinute = 60.0;

std::optional<ScrollStep> StepOf(UINT code) {
    switch (code) {
    case SB_LINELEFT:
        return ScrollStep::LineLeft;
    case SB_LINERIGHT:
        return ScrollStep::LineRight;
    case SB_PAGELEFT:
        return ScrollStep::PageLeft;
    case SB_PAGERIGHT:
        return ScrollStep::PageRight;
    case SB_THUMBTRACK:
        return ScrollStep::ThumbTo;
    default: // SB_THUMBPOSITION at the end of a drag repeats the last SB_THUMBTRACK
        return std::nullopt;
    }
}

/// Whether the bar already has the values that setting `wanted` would give it. Setting equal values redraws
/// the bar, which takes milliseconds on some systems.
bool Holds(const CScrollBar& bar, const SCROLLINFO& wanted) {
    SCROLLINFO held = {};
    held.cbSize = sizeof(held);
    held.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    if (!::GetScrollInfo(bar.m_hWnd, SB_CTL, &held))
        return false;
    // Windows limits page and position in this way when they are set.
    const UINT page = std::min(wanted.nPage, static_cast<UINT>(wanted.nMax - wanted.nMin + 1));
    const int lastPos = wanted.nMax - std::max(static_cast<int>(page) - 1, 0);
    return held.nMin == wanted.nMin && held.nMax == wanted.nMax && held.nPage == page &&
           held.nPos == std::clamp(wanted.nPos, wanted.nMin, lastPos);
}

} // namespace

ViewWindow CScrollGraphCtrl::GetView() const {
    return {m_dScrollPos, m_dScrollMax, m_dScrollMin, m_dViewWidth};
}

void CScrollGraphCtrl::SetView(const ViewWindow& view) {
    m_dScrollPos = view.pos;
    m_dScrollMax = view.max;
    m_dScrollMin = view.min;
    m_dViewWidth = view.width;
}

void CScrollGraphCtrl::SetHorzRange(double minutes) {
    m_dViewWidth = m_nUnitsPerSecond * minutes * kSecondsPerMinute;
    UpdateScrollByRemove();
}

void CScrollGraphCtrl::InitScrollInfo() {
    m_dScrollPos = 0;
    m_dScrollMin = 0;
    m_dScrollMax = ViewWindow::kInitialMax;
    UpdateScrollInfo();
}

void CScrollGraphCtrl::UpdateScrollInfo() {
    if (!::IsWindow(m_wndScrollBar.m_hWnd))
        return;
    const ViewWindow view = GetView();
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = ViewWindow::kBarRange;
    info.nPage = static_cast<UINT>(view.BarPage());
    info.nPos = view.BarPosition();
    if (!Holds(m_wndScrollBar, info))
        m_wndScrollBar.SetScrollInfo(&info, TRUE);
    m_nToldPage = view.BarPage();
    m_nToldPos = info.nPos;
}

void CScrollGraphCtrl::Normalize() {
    ViewWindow view = GetView();
    view.Normalize();
    SetView(view);
}

void CScrollGraphCtrl::SetScrollLastPos() {
    ViewWindow view = GetView();
    view.Rewind();
    view.Follow(m_arrTime->X(m_Datasets[0].GetSize() - 1));
    SetView(view);
}

void CScrollGraphCtrl::UpdateScrollByRemove() {
    SetScrollLastPos();
    Normalize();
    RedrawData();
    UpdateScrollInfo();
}

void CScrollGraphCtrl::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar*) {
    const std::optional<ScrollStep> step = StepOf(nSBCode);
    ViewWindow view = GetView();
    if (!step || !view.Step(*step, nPos))
        return;
    SetView(view);
    RedrawData();
    UpdateScrollInfo();
    if (m_bScrollSync && !NotifyScroll(m_dScrollPos))
        return;
    RaiseScrollBar();
}

void CScrollGraphCtrl::ProcessMouseWheel(short delta) {
    ViewWindow view = GetView();
    if (!view.Wheel(delta))
        return;
    SetView(view);
    RedrawData();
    UpdateScrollInfo();
}

bool CScrollGraphCtrl::NotifyScroll(double position) {
    NMGRAPHCTRL record = {};
    record.nIndex = TruncateToInt(position);
    return Notify(record, GCN_SCROLL);
}

void CScrollGraphCtrl::SendScrollInfo(double position) {
    NotifyScroll(position);
}

int CScrollGraphCtrl::LowerBound(double x) const {
    return m_arrTime->LowerBound(x);
}

int CScrollGraphCtrl::UpperBound(int nFirst, double) const {
    return m_arrTime->UpperBound(nFirst, m_dViewWidth);
}
