// SPDX-License-Identifier: MIT
// The series and colours of a graph, copied from its lists for one drawing.
#pragma once

#include <afxwin.h>

#include <vector>

#include "graph/core/KeyedValue.h"

namespace kavlix {

/// A series as the painters read it.
struct SeriesPoints {
    CString label;
    std::vector<KeyedValue> values; ///< ascending by key; equal keys in the order of the series' list
};

struct GraphSnapshot {
    std::vector<SeriesPoints> series;
    std::vector<COLORREF> colours;
    int groups = 0; ///< groups 0 to `groups` - 1 are drawn; XY line, scatter, box-whisker: all keys

    /// `seriesList` holds CGraphSeries, `colorList` (nullptr for none) CGraphValue.
    GraphSnapshot(const CObList& seriesList, const CObList* colorList, int groupCount);
    int SeriesCount() const { return static_cast<int>(series.size()); }
    /// The series at `index`, from 0 to SeriesCount() - 1.
    const SeriesPoints& Series(int index) const { return series[static_cast<std::size_t>(index)]; }
    /// The values of the drawn groups in a series, ascending by group. At most one value for each group.
    std::vector<KeyedValue> Groups(int index) const { return GroupValues(Series(index).values, groups); }
    /// The colour at position `index` of the colour list; black where the list has no entry.
    COLORREF Colour(int index) const {
        return index >= 0 && index < static_cast<int>(colours.size()) ? colours[index] : RGB(0, 0, 0);
    }
};

} // namespace kavlix
