// SPDX-License-Identifier: MIT
// CChartDraw: charts that share the view of the X axis and the cursors.
#include "chartdraw/ChartLink.h"

#include <algorithm>

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

namespace {

/// How often handlers of CDN_VIEW can answer a range with another range before the charts keep what they show.
constexpr int kMostAnswers = 8;

/// Sets a flag until the end of the scope.
class FlagGuard {
public:
    explicit FlagGuard(bool& flag) : m_flag(flag) { m_flag = true; }
    ~FlagGuard() { m_flag = false; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

private:
    bool& m_flag;
};

} // namespace

std::optional<LinkedRange> ChartDrawState::ShownRange() {
    const double origin = xAxis.m_State->origin;
    const WantedRange wanted = RangeOf(kX);
    if (wanted.isExact)
        return LinkedRange{wanted.min, wanted.max, origin};
    if (!UnlessRefused([this] { return chart.PrepareExport(); })) // lays the chart out
        return std::nullopt;
    LinkedRange shown{0, 1, origin};
    xAxis.GetRange(shown.min, shown.max);
    return shown;
}

LinkedRange ChartDrawState::SharedRange() const {
    const double origin = xAxis.m_State->origin;
    const ViewAxis& view = input->view.Axis(ChartAxis::X);
    if (view.IsMoved())
        return {view.Range().min, view.Range().max, origin, false};
    return {chart.m_XFixed.min, chart.m_XFixed.max, origin, !chart.m_XFixed.fixed};
}

void ChartDrawState::ShowRange(const LinkedRange& range, bool tell) {
    if (SharedRange().IsSameAs(range))
        return;
    const LinkedRange own = range.From(xAxis.m_State->origin);
    if (!own.isWhole) {
        SetView(kX, own.min, own.max, tell);
        return;
    }
    const ViewRanges before = input->Ranges();
    chart.m_XFixed.fixed = false;
    RefreshView(*this);
    input->view.Fit(kAxisX);
    Changed();
    ViewChanged(*this, before, tell ? ViewCause::User : ViewCause::Host);
    chart.Redraw();
}

ValueBounds ChartDrawState::LinkedDataBounds() const {
    ValueBounds bounds;
    for (const ChartLinkState* const member : link->group->members) {
        ValueBounds own = member->chart->OwnDataBounds(kX);
        const double shift = member->chart->xAxis.m_State->origin - xAxis.m_State->origin;
        if (!own.IsEmpty())
            bounds.Add(ValueBounds{own.min + shift, own.max + shift});
    }
    return bounds;
}

bool ChartDrawState::ShareView() {
    if (!link)
        return true;
    const std::shared_ptr<ChartLinkGroup> group = link->group; // can outlive this chart
    const LinkedRange range = SharedRange();
    if (group->isSharing) {
        // The view was set by the loop below, or by a handler, which can set another range.
        if (!range.IsSameAs(group->shared))
            group->next = range;
        return true;
    }
    const FlagGuard sharing(group->isSharing);
    group->next = range;
    link->round = group->round + 1; // this chart shows the first range
    for (int i = 0; group->next && i < kMostAnswers; ++i) {
        group->shared = *group->next;
        group->next.reset();
        ++group->round;
        while (ChartLinkState* const member = group->NextMember()) {
            member->round = group->round;
            member->chart->ShowRange(group->shared, true);
        }
    }
    group->next.reset();
    return group->Has(this);
}

void ChartDrawState::ShareCursor(int nCursor) {
    if (!link || link->group->isMovingCursor)
        return;
    const std::shared_ptr<ChartLinkGroup> group = link->group;
    const FlagGuard moving(group->isMovingCursor);
    double x = 0;
    const bool isShown = cursor.GetPosition(nCursor, x) != FALSE;
    for (const ChartLinkState* const member : group->members) {
        ChartDrawState& other = *member->chart;
        if (&other == this)
            continue;
        if (isShown)
            other.cursor.SetPosition(nCursor, x + (xAxis.m_State->origin - other.xAxis.m_State->origin));
        else
            other.cursor.Hide(nCursor);
        other.chart.Redraw();
    }
}

void ChartDrawState::AlignWithLinked(CRect& plot) {
    if (!link)
        return;
    const CRect& client = Client();
    link->needed = {static_cast<int>(plot.left - client.left), static_cast<int>(client.right - plot.right)};
    link->used = link->needed;
    for (const ChartLinkState* const member : link->group->members) {
        link->used.left = std::max(link->used.left, member->needed.left);
        link->used.right = std::max(link->used.right, member->needed.right);
    }
    CRect aligned = plot;
    aligned.left = client.left + link->used.left;
    aligned.right = client.right - link->used.right;
    if (aligned.Width() >= plot.Width() / 2) // a chart much narrower than the others keeps its own plot
        plot = aligned;
}

void ChartDrawState::RedrawMisaligned() {
    if (!link)
        return;
    for (const ChartLinkState* const member : link->group->members)
        if (member != link.get() && !(member->used == link->used))
            member->chart->chart.Redraw();
}

void ChartDrawState::LeaveLink() {
    link.reset();
}

BOOL CChartDraw::LinkView(CChartDraw* pOther) {
    ASSERT(m_State->IsOwnerThread());
    if (pOther == this)
        return FALSE;
    if (pOther == nullptr) {
        m_State->LeaveLink();
        return TRUE;
    }
    ChartDrawState& other = *pOther->m_State;
    std::unique_ptr<ChartLinkState> joined;
    const bool isJoined = WithinResources([&] {
        if (!other.link)
            other.link = std::make_unique<ChartLinkState>(std::make_shared<ChartLinkGroup>(), &other);
        joined = std::make_unique<ChartLinkState>(other.link->group, m_State.get());
    });
    if (!isJoined)
        return FALSE;
    m_State->link = std::move(joined); // ends the former membership
    m_State->ShowRange(other.SharedRange(), false);
    return TRUE;
}
