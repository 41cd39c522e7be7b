// SPDX-License-Identifier: MIT
// CChartReferences: lines and bands at values: properties and mouse.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartReferencesState.h"
#include "gdi/OutOfMemory.h"

using namespace kavlix;

namespace {

constexpr int kReach = 4; // pixels from a line at which it is hit

bool AreValid(bool isBand, double from, double to) {
    return isBand ? !std::isnan(from) && !std::isnan(to) : std::isfinite(from) && from == to;
}

int AddItem(ChartReferencesState& state, ChartReference item) {
    if (!AreValid(item.isBand, item.from, item.to))
        return -1;
    item.id = state.nextId;
    if (!ReportingExhaustion([&] { state.items.push_back(std::move(item)); }))
        return -1;
    return state.nextId++;
}

/// Sends CDN_REFERENCE. The chart may be destroyed meanwhile.
void TellReference(ChartDrawState& state, const ChartReference& item, bool isLast) {
    NMCHARTDRAW record = {};
    record.hdr.code = CDN_REFERENCE;
    record.nFlags = isLast ? TRUE : FALSE;
    record.nItem = item.id;
    record.dValue = item.from;
    record.dSecond = item.to;
    bool alive = true;
    state.Notify(record, alive);
}

} // namespace

CChartReferences::CChartReferences(CChartDraw& chart)
    : m_State(std::make_unique<ChartReferencesState>(chart)) {
}

CChartReferences::~CChartReferences() = default;

int CChartReferences::AddLine(Axis axis, double dValue, CString text, COLORREF color) {
    ChartReference item;
    item.axis = axis;
    item.from = item.to = dValue;
    item.text = std::move(text);
    item.color = color;
    return AddItem(*m_State, std::move(item));
}

int CChartReferences::AddBand(Axis axis, double dFrom, double dTo, CString text, COLORREF color) {
    ChartReference item;
    item.axis = axis;
    item.isBand = true;
    item.from = dFrom;
    item.to = dTo;
    item.text = std::move(text);
    item.color = color;
    return AddItem(*m_State, std::move(item));
}

BOOL CChartReferences::Remove(int nId) {
    const ChartReference* const item = m_State->Find(nId);
    if (item == nullptr)
        return FALSE;
    m_State->items.erase(m_State->items.begin() + (item - m_State->items.data()));
    return TRUE;
}

void CChartReferences::RemoveAll() {
    m_State->items.clear();
}

int CChartReferences::GetCount() const {
    return static_cast<int>(m_State->items.size());
}

int CChartReferences::GetId(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_State->items[static_cast<std::size_t>(nIndex)].id : -1;
}

BOOL CChartReferences::SetValues(int nId, double dFrom, double dTo) {
    ChartReference* const item = m_State->Find(nId);
    if (item == nullptr || !AreValid(item->isBand, dFrom, dTo))
        return FALSE;
    item->from = dFrom;
    item->to = dTo;
    return TRUE;
}

BOOL CChartReferences::GetValues(int nId, double& dFrom, double& dTo) const {
    const ChartReference* const item = m_State->Find(nId);
    if (item == nullptr)
        return FALSE;
    dFrom = item->from;
    dTo = item->to;
    return TRUE;
}

BOOL CChartReferences::SetText(int nId, CString text) {
    return m_State->With(
        nId, [&](ChartReference& item) { item.text = std::move(text); });
}

BOOL CChartReferences::SetColor(int nId, COLORREF color) {
    return m_State->With(
        nId, [=](ChartReference& item) { item.color = color; });
}

BOOL CChartReferences::SetLineSize(int nId, int nSize) {
    constexpr int kWidest = 20;
    return m_State->With(nId, [=](ChartReference& item) { item.size = std::clamp(nSize, 1, kWidest); });
}

BOOL CChartReferences::SetDashed(int nId, BOOL bDashed) {
    return m_State->With(
        nId, [=](ChartReference& item) { item.isDashed = bDashed != FALSE; });
}

BOOL CChartReferences::SetMovable(int nId, BOOL bMovable) {
    return m_State->With(
        nId, [=](ChartReference& item) { item.isMovable = bMovable != FALSE; });
}

BOOL CChartReferences::Show(int nId, BOOL bShow) {
    return m_State->With(
        nId, [=](ChartReference& item) { item.isShown = bShow != FALSE; });
}

int CChartReferences::HitTest(CPoint point) const {
    ReferencePart part;
    const ChartReference* const item = m_State->Hit(*m_State->chart.m_State, point, part);
    return item != nullptr ? item->id : -1;
}

ChartReference* ChartReferencesState::Find(int id) {
    const auto found =
        std::find_if(items.begin(), items.end(), [=](const auto& item) { return item.id == id; });
    return found != items.end() ? &*found : nullptr;
}

const ChartReference* ChartReferencesState::Hit(const ChartDrawState& state, CPoint point,
                                                ReferencePart& part) const {
    const ChartReference* hit = nullptr;
    int nearest = kReach + 1; // distance from the line or edge that is hit
    part = ReferencePart::None;
    if (!state.Plot().PtInRect(point))
        return nullptr;
    for (const ChartReference& item : items) {
        if (!item.isMovable || !item.isShown || !state.HasAxis(item.axis))
            continue;
        const bool isX = item.axis == CChartReferences::X;
        const int at = isX ? point.x : point.y;
        const AxisMap map = state.Map(item.axis);
        const auto tryEdge = [&](double value, int half, ReferencePart edge) {
            const auto position = map.Position(value);
            if (!position || !std::isfinite(value))
                return;
            const int distance = std::max(std::abs(*position - at) - half, 0);
            if (distance > kReach || distance > nearest)
                return;
            nearest = distance; // of equally near ones the last: it is drawn over the others
            hit = &item;
            part = edge;
        };
        if (!item.isBand) {
            tryEdge(item.from, item.size / 2, ReferencePart::Both);
        } else {
            tryEdge(item.from, 0, ReferencePart::From);
            tryEdge(item.to, 0, ReferencePart::To);
        }
    }
    for (auto item = items.rbegin(); hit == nullptr && item != items.rend(); ++item)
        if (item->isBand && item->isMovable && item->isShown && RectOf(state, *item).PtInRect(point)) {
            hit = &*item;
            part = ReferencePart::Both;
        }
    return hit;
}

bool ChartDrawState::PressReference(CPoint point) {
    ChartReferencesState::Move move;
    const ChartReference* const item = references.m_State->Hit(*this, point, move.part);
    if (item == nullptr)
        return false;
    move.id = item->id;
    move.start = point;
    move.from = item->from;
    move.to = item->to;
    references.m_State->move = move;
    return true;
}

void ChartDrawState::MoveReference(CPoint point) {
    ChartReferencesState::Move& move = references.m_State->move;
    ChartReference* const item = references.m_State->Find(move.id);
    if (item == nullptr || Plot().IsRectEmpty())
        return;
    const CRect& plot = Plot();
    const AxisMap map = Map(item->axis);
    const bool isX = item->axis == CChartReferences::X;
    const int low = isX ? plot.left : plot.top;
    const int high = (isX ? plot.right : plot.bottom) - 1;
    const int by = std::clamp(static_cast<int>(isX ? point.x : point.y), low, high) -
                   static_cast<int>(isX ? move.start.x : move.start.y);
    const auto moved = [&](double value, ReferencePart part) {
        if (by == 0 || !std::isfinite(value) || (move.part != part && move.part != ReferencePart::Both))
            return value;
        double position = map.ExactPosition(value) + by;
        if (move.part != ReferencePart::Both || !item->isBand)
            position = std::clamp<double>(position, low, high); // the line stays within reach of the mouse
        const double result = map.Value(position);
        return std::isfinite(result) ? result : value;
    };
    const double from = moved(move.from, ReferencePart::From);
    const double to = item->isBand ? moved(move.to, ReferencePart::To) : from;
    if (from == item->from && to == item->to)
        return;
    item->from = from;
    item->to = to;
    move.hasMoved = true;
    chart.Redraw();
    TellReference(*this, *item, false);
}

void ChartDrawState::ReleaseReference(bool keep) {
    const ChartReferencesState::Move move = std::exchange(references.m_State->move, {});
    ChartReference* const item = references.m_State->Find(move.id);
    if (item == nullptr || !move.hasMoved)
        return;
    if (!keep) {
        item->from = move.from;
        item->to = move.to;
        chart.Redraw();
    }
    TellReference(*this, *item, true);
}
