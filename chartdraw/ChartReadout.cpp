// SPDX-License-Identifier: MIT
// The texts of a readout.
#include "chartdraw/ChartReadout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ValueText.h"
#include "gdi/StringIds.h"

namespace kavlix {
namespace {

int YAxisOf(const ChartDrawState::ChartDataset& dataset) {
    return dataset.usesY2 ? ChartDrawState::kY2 : ChartDrawState::kY;
}

CString YText(ChartDrawState& state, int dataset, double value) {
    return std::isnan(value) ? CString(_T("-")) : ValueText(state, YAxisOf(state.Dataset(dataset)), value);
}

CString Loaded(UINT id) {
    CString text;
    if (!text.LoadString(id))
        text.Empty();
    return text;
}

void AddPoint(const ChartDrawState& state, const CursorReading& reading, std::vector<Point>& points) {
    const ChartDrawState::ChartDataset& dataset = state.Dataset(reading.dataset);
    const auto x = state.XMap(dataset).Position(reading.point.x);
    const auto y = state.YMap(dataset).Position(reading.point.y);
    if (x && y)
        points.push_back({*x, *y});
}

/// The datasets of a readout: that of the cursor, or in the mode All each visible one with a sample.
std::vector<int> DatasetsOf(const ChartDrawState& state, const ChartCursorState& cursors, int cursor) {
    if (cursors.mode != CChartCursor::All)
        return {cursors.Read(state, cursor).dataset};
    std::vector<int> datasets;
    for (int i = 0; i < state.DatasetCount(); ++i)
        if (state.Dataset(i).visible && cursors.Read(state, cursor, i).IsValid())
            datasets.push_back(i);
    return datasets;
}

/// The values at one cursor.
ChartReadout ReadOne(ChartDrawState& state, const ChartCursorState& cursors, int cursor) {
    ChartReadout readout;
    const CursorReading own = cursors.Read(state, cursor);
    const CString x = ValueText(state, ChartDrawState::kX, own.x);
    readout.titles.push_back(x);
    AddPoint(state, own, readout.points);
    for (const int i : DatasetsOf(state, cursors, cursor)) {
        const CursorReading reading = cursors.Read(state, cursor, i);
        AddPoint(state, reading, readout.points);
        const ChartDrawState::ChartDataset& dataset = state.Dataset(i);
        // The x of a sample is told only where it differs from that of the cursor.
        const CString ownX = ValueText(state, ChartDrawState::kX, reading.x);
        readout.rows.push_back(
            {dataset.color, {dataset.name, YText(state, i, reading.point.y), ownX == x ? CString() : ownX}});
    }
    const auto hasOwnX = [](const ChartReadout::Row& row) { return !row.cells.back().IsEmpty(); };
    if (std::none_of(readout.rows.begin(), readout.rows.end(), hasOwnX))
        for (ChartReadout::Row& row : readout.rows)
            row.cells.pop_back();
    return readout;
}

/// The texts of the figures of a dataset between both cursors.
std::vector<CString> FigureTexts(ChartDrawState& state, const ChartCursorState& cursors, int dataset) {
    const ChartStatistics figures = cursors.Statistics(state, dataset);
    const double difference =
        cursors.Read(state, 1, dataset).point.y - cursors.Read(state, 0, dataset).point.y;
    CString count;
    count.Format(_T("%I64d"), figures.count);
    const auto text = [&](double value) { return YText(state, dataset, value); };
    return {text(difference), text(figures.min), text(figures.max), text(figures.mean), count};
}

/// The figures between both cursors: of one dataset below one another, of several ones in a table.
ChartReadout ReadSpan(ChartDrawState& state, const ChartCursorState& cursors) {
    ChartReadout readout;
    const CursorReading ends[] = {cursors.Read(state, 0), cursors.Read(state, 1)};
    for (const CursorReading& end : ends) {
        readout.titles.push_back(ValueText(state, ChartDrawState::kX, end.x));
        AddPoint(state, end, readout.points);
    }
    const double distance = ends[1].x - ends[0].x;
    readout.titles.back() +=
        (distance < 0 ? _T("  (") : _T("  (+")) + DistanceText(state, ChartDrawState::kX, distance) + _T(")");
    const std::vector<CString> labels = {Loaded(IDS_CHART_DIFFERENCE), Loaded(IDS_CHART_MINIMUM),
                                         Loaded(IDS_CHART_MAXIMUM), Loaded(IDS_CHART_MEAN),
                                         Loaded(IDS_CHART_COUNT)};
    if (cursors.mode != CChartCursor::All) {
        const int dataset = ends[0].dataset;
        for (int i = 0; i < ChartCursorState::kCursors; ++i)
            readout.titles[static_cast<std::size_t>(i)] +=
                _T(":  ") + YText(state, dataset, cursors.Read(state, i, dataset).point.y);
        if (!state.Dataset(dataset).name.IsEmpty())
            readout.titles.insert(readout.titles.begin(), state.Dataset(dataset).name);
        const std::vector<CString> texts = FigureTexts(state, cursors, dataset);
        for (std::size_t i = 0; i < labels.size(); ++i)
            readout.rows.push_back({CLR_NONE, {labels[i], texts[i]}});
        return readout;
    }
    const auto addRow = [&](COLORREF color, const CString& name, std::vector<CString> cells) {
        cells.insert(cells.begin(), name);
        readout.rows.push_back({color, std::move(cells)});
    };
    readout.hasHeader = true;
    addRow(CLR_NONE, CString(), labels);
    for (const int i : DatasetsOf(state, cursors, 0))
        addRow(state.Dataset(i).color, state.Dataset(i).name, FigureTexts(state, cursors, i));
    return readout;
}

} // namespace

ChartReadout ReadCursors(ChartDrawState& state, const ChartCursorState& cursors) {
    const bool isShown[] = {cursors.Read(state, 0).IsValid(), cursors.Read(state, 1).IsValid()};
    if (isShown[0] && isShown[1])
        return ReadSpan(state, cursors);
    return isShown[0] || isShown[1] ? ReadOne(state, cursors, isShown[0] ? 0 : 1) : ChartReadout();
}

} // namespace kavlix
