// SPDX-License-Identifier: MIT
// Reading the lists of a graph into a snapshot.
#include "graph/GraphSnapshot.h"

#include <kavlix/GraphSeries.h>

#include <algorithm>

namespace kavlix {

GraphSnapshot::GraphSnapshot(const CObList& seriesList, const CObList* colorList, int groupCount)
    : groups(groupCount) {
    for (POSITION position = seriesList.GetHeadPosition(); position != nullptr;) {
        const auto* const source = static_cast<const CGraphSeries*>(seriesList.GetNext(position));
        SeriesPoints points;
        points.label = source->GetLabel();
        const CObList& records = source->GetDataList();
        for (POSITION at = records.GetHeadPosition(); at != nullptr;) {
            const auto* const record = static_cast<const CGraphValue*>(records.GetNext(at));
            points.values.push_back({record->key, record->value});
        }
        const auto byKey = [](const KeyedValue& a, const KeyedValue& b) { return a.key < b.key; };
        if (!std::is_sorted(points.values.begin(), points.values.end(), byKey))
            std::stable_sort(points.values.begin(), points.values.end(), byKey);
        series.push_back(std::move(points));
    }
    if (colorList == nullptr)
        return;
    for (POSITION position = colorList->GetHeadPosition(); position != nullptr;)
        colours.push_back(
            static_cast<COLORREF>(static_cast<const CGraphValue*>(colorList->GetNext(position))->value));
}

} // namespace kavlix
