// SPDX-License-Identifier: MIT
// CChartDraw: charts that share the view of the X axis and the cursors.
#include "chartdraw/ChartLink.h"

#include "chartdraw/ChartAxisState.h"
#include "chartdraw/ChartDrawState.h"
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

bool ChartDrawState::Shows(const LinkedRange& range) const {
    const WantedRange wanted = RangeOf(kX);
    return wanted.isExact && range.IsSameAs({wanted.min, wanted.max, xAxis.m_State->origin});
}

void ChartDrawState::ShowRange(const LinkedRange& range, bool tell) {
    const LinkedRange own = range.From(xAxis.m_State->origin);
    if (!Shows(range))
        SetView(kX, own.min, own.max, tell);
}

bool ChartDrawState::ShareView() {
    if (!link)
        return true;
    const std::shared_ptr<ChartLinkGroup> group = link->group; // can outlive this chart
    const std::optional<LinkedRange> range = ShownRange();
    if (!range)
        return true;
    if (group->isSharing) {
        // SetView was called by the loop below, or by a handler, which can set another range.
        if (!range->IsSameAs(group->shared))
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
    if (const auto range = other.ShownRange())
        m_State->ShowRange(*range, false);
    return TRUE;
}
