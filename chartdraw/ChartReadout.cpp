// SPDX-License-Identifier: MIT
// The texts of a readout.
#include "chartdraw/ChartReadout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/LoadedText.h"
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

void AddPoint(const ChartDrawState& state, const CursorReading& reading, std::vector<Point>& points) {
    const ChartDrawState::ChartDataset& dataset = state.Dataset(reading.dataset);
    const auto x = state.XMap(dataset).Position(reading.point.x);
    const auto y = state.YMap(dataset).Position(reading.point.y);
    if (x && y)
        points.push_back({*x, *y});
}

/// The samples of a readout: that of the cursor, or in the mode All that of each visible dataset.
std::vector<CursorReading> ReadDatasets(const ChartDrawState& state, const ChartCursorState& cursors,
                                        const CursorReading& own) {
    if (cursors.mode != CChartCursor::All)
        return {own};
    std::vector<CursorReading> readings;
    for (int i = 0; i < state.DatasetCount(); ++i)
        if (state.Dataset(i).visible)
            readings.push_back(ChartCursorState::ReadAt(state, own, i));
    // In a hole of its data a dataset has no value to read.
    const auto isEmpty = [&](const CursorReading& reading) {
        return !reading.IsValid() || ChartCursorState::IsBeyondGap(state, own, reading);
    };
    readings.erase(std::remove_if(readings.begin(), readings.end(), isEmpty), readings.end());
    return readings;
}

/// The values at one cursor.
ChartReadout ReadOne(ChartDrawState& state, const ChartCursorState& cursors, const CursorReading& own) {
    ChartReadout readout;
    const CString x = ValueText(state, ChartDrawState::kX, own.x);
    readout.titles.push_back(x);
    AddPoint(state, own, readout.points);
    bool hasOwnX = false;
    for (const CursorReading& reading : ReadDatasets(state, cursors, own)) {
        AddPoint(state, reading, readout.points);
        const ChartDrawState::ChartDataset& dataset = state.Dataset(reading.dataset);
        // The x of a sample is shown only where it differs from that of the cursor.
        const CString ownX = reading.x == own.x ? CString() : ValueText(state, ChartDrawState::kX, reading.x);
        const bool isOther = !ownX.IsEmpty() && ownX != x;
        hasOwnX = hasOwnX || isOther;
        readout.rows.push_back(
            {dataset.color,
             {dataset.name, YText(state, reading.dataset, reading.point.y), isOther ? ownX : CString()}});
    }
    if (!hasOwnX)
        for (ChartReadout::Row& row : readout.rows)
            row.cells.pop_back();
    return readout;
}

/// The texts of the figures of a dataset between both cursors.
std::vector<CString> FigureTexts(ChartDrawState& state, const CursorReading (&ends)[2], int dataset) {
    const ChartStatistics figures = ChartCursorState::Statistics(state, ends[0], ends[1], dataset);
    const double difference = ChartCursorState::ReadAt(state, ends[1], dataset).point.y -
                              ChartCursorState::ReadAt(state, ends[0], dataset).point.y;
    CString count;
    count.Format(_T("%I64d"), figures.count);
    const auto text = [&](double value) { return YText(state, dataset, value); };
    return {text(difference), text(figures.min), text(figures.max), text(figures.mean), count};
}

/// The figures between both cursors: of one dataset below one another, of several ones in a table.
ChartReadout ReadSpan(ChartDrawState& state, const ChartCursorState& cursors,
                      const CursorReading (&ends)[2]) {
    ChartReadout readout;
    for (const CursorReading& end : ends) {
        readout.titles.push_back(ValueText(state, ChartDrawState::kX, end.x));
        AddPoint(state, end, readout.points);
    }
    const double distance = ends[1].x - ends[0].x;
    readout.titles.back() +=
        (distance < 0 ? _T("  (") : _T("  (+")) + DistanceText(state, ChartDrawState::kX, distance) + _T(")");
    const std::vector<CString> labels = {LoadedText(IDS_CHART_DIFFERENCE), LoadedText(IDS_CHART_MINIMUM),
                                         LoadedText(IDS_CHART_MAXIMUM), LoadedText(IDS_CHART_MEAN),
                                         LoadedText(IDS_CHART_COUNT)};
    if (cursors.mode != CChartCursor::All) {
        const int dataset = ends[0].dataset;
        for (int i = 0; i < ChartCursorState::kCursors; ++i)
            readout.titles[static_cast<std::size_t>(i)] +=
                _T(":  ") + YText(state, dataset, ChartCursorState::ReadAt(state, ends[i], dataset).point.y);
        if (!state.Dataset(dataset).name.IsEmpty())
            readout.titles.insert(readout.titles.begin(), state.Dataset(dataset).name);
        const std::vector<CString> texts = FigureTexts(state, ends, dataset);
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
    for (const CursorReading& reading : ReadDatasets(state, cursors, ends[0])) {
        const ChartDrawState::ChartDataset& dataset = state.Dataset(reading.dataset);
        addRow(dataset.color, dataset.name, FigureTexts(state, ends, reading.dataset));
    }
    return readout;
}

} // namespace

ChartReadout ReadCursors(ChartDrawState& state, const ChartCursorState& cursors) {
    // From the second cursor, which stays where it is, to the first one, which follows the pointer.
    const CursorReading ends[] = {cursors.Read(state, 1), cursors.Read(state, 0)};
    const bool isSame = ends[0].dataset == ends[1].dataset && ends[0].sample == ends[1].sample;
    if (ends[0].IsValid() && ends[1].IsValid() && !isSame)
        return ReadSpan(state, cursors, ends);
    for (const CursorReading& end : ends)
        if (end.IsValid())
            return ReadOne(state, cursors, end);
    return {};
}

} // namespace kavlix
