// SPDX-License-Identifier: MIT
// ChartCursorState: the samples that cursors are at, and the figures between them.
#include "chartdraw/ChartCursorState.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/core/NearestSample.h"
#include "chartdraw/core/StatisticsBetween.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

CursorReading ReadingOf(const ChartDrawState& state, int dataset, int sample) {
    if (sample < 0)
        return {};
    const ChartPoint point = state.Dataset(dataset).points[sample];
    return {dataset, sample, point, state.ToAxis(state.Dataset(dataset), point.x)};
}

/// The place of a sample in a list of visible datasets; -1 for a dataset that is hidden or removed.
int IndexOf(const ChartDrawState& state, const ChartDrawState::ChartDataset* dataset) {
    for (int i = 0; i < state.DatasetCount(); ++i)
        if (&state.Dataset(i) == dataset)
            return state.Dataset(i).visible ? i : -1;
    return -1;
}

/// The sample of a series at `point`; if there is none, the nearest one in x.
int FindSample(const ChartSeries& points, const ChartPoint& point) {
    const int nearest = FindNearestInX(points, point.x).index;
    if (nearest < 0 || points[nearest].x != point.x || points[nearest].y == point.y)
        return nearest;
    // Several samples have this x: look for the one with this y.
    const auto along = [&](double x) { return x < point.x ? -kInfinity : x > point.x ? kInfinity : 0; };
    const auto across = [&](double y) { return y - point.y; };
    const NearestSample same = FindNearestSample(points, point.x, along, across, false);
    return same.distance == 0 ? same.index : nearest;
}

/// The nearest of the samples that `find` finds in each visible dataset; of equally near ones that of `preferred`,
/// otherwise the first.
template <class Find> CursorReading
NearestOfVisible(const ChartDrawState& state, const ChartDrawState::ChartDataset* preferred, Find find) {
    NearestSample best;
    int bestDataset = -1;
    for (int i = 0; i < state.DatasetCount(); ++i) {
        const ChartDrawState::ChartDataset& dataset = state.Dataset(i);
        if (!dataset.visible)
            continue;
        const NearestSample found = find(dataset);
        if (found.distance < best.distance || (found.distance == best.distance && &dataset == preferred)) {
            best = found;
            bestDataset = i;
        }
    }
    return ReadingOf(state, bestDataset, best.index);
}

} // namespace

CursorReading ChartCursorState::Read(const ChartDrawState& state, int cursor) const {
    if (!IsShown(cursor))
        return {};
    const Place& place = places[cursor];
    const int dataset = IndexOf(state, place.dataset);
    const int sample = dataset < 0 ? -1 : FindSample(state.Dataset(dataset).points, place.point);
    return sample >= 0 ? ReadingOf(state, dataset, sample) : Nearest(state, place.x, nullptr);
}

CursorReading ChartCursorState::ReadAt(const ChartDrawState& state, const CursorReading& own, int dataset) {
    if (!own.IsValid() || own.dataset == dataset)
        return own;
    const double x = state.ToDataset(state.Dataset(dataset), own.x);
    return ReadingOf(state, dataset, FindNearestInX(state.Dataset(dataset).points, x).index);
}

bool ChartCursorState::IsBeyondGap(const ChartDrawState& state, const CursorReading& own,
                                   const CursorReading& reading) {
    return std::abs(reading.x - own.x) > state.Dataset(reading.dataset).points.GapLimit();
}

CursorReading ChartCursorState::Nearest(const ChartDrawState& state, double x,
                                        const ChartDrawState::ChartDataset* preferred) {
    return NearestOfVisible(
        state, preferred,
        [&](const ChartDrawState::ChartDataset& dataset) {
            return FindNearestInX(dataset.points, state.ToDataset(dataset, x));
        });
}

CursorReading ChartCursorState::Nearest(const ChartDrawState& state, CPoint point) const {
    return NearestOfVisible(
        state, nullptr,
        [&](const ChartDrawState::ChartDataset& dataset) {
            const AxisMap xMap = state.XMap(dataset);
            const AxisMap yMap = state.YMap(dataset);
            const auto along = [&](double x) { return xMap.ExactPosition(x) - point.x; };
            const auto across = [&](double y) { return yMap.ExactPosition(y) - point.y; };
            const auto anywhere = [](double) { return 0.0; };
            const double x = xMap.Value(point.x);
            return mode == CChartCursor::All
                       ? FindNearestSample(dataset.points, x, along, anywhere, false)
                       : FindNearestSample(dataset.points, x, along, across, yMap.IsLogarithmic());
        });
}

bool ChartCursorState::Set(const ChartDrawState& state, int cursor, const CursorReading& reading) {
    const Place before = places[cursor];
    Place& place = places[cursor];
    place.isShown = reading.IsValid();
    if (!place.isShown)
        return before.isShown;
    place.dataset = &state.Dataset(reading.dataset);
    place.point = reading.point;
    place.x = reading.x;
    return !before.isShown || before.dataset != place.dataset || before.point.x != place.point.x ||
           before.point.y != place.point.y;
}

ChartStatistics ChartCursorState::Statistics(const ChartDrawState& state, const CursorReading& first,
                                             const CursorReading& second, int dataset) {
    const ChartDrawState::ChartDataset& record = state.Dataset(dataset);
    const auto bound = [&](const CursorReading& own) { // x of an own sample needs no conversion, which rounds
        return own.dataset == dataset ? own.point.x : state.ToDataset(record, own.x);
    };
    const double a = bound(first);
    const double b = bound(second);
    const SpanStatistics found = StatisticsBetween(record.points, std::min(a, b), std::max(a, b));
    return {found.count, found.min, found.max, found.mean, found.first, found.last};
}

} // namespace kavlix
