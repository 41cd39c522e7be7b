// SPDX-License-Identifier: MIT
// Groups successive samples by the pixel column that they are drawn in.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "plot/IndexRange.h"
#include "plot/PixelEdges.h"

namespace kavlix {

/// The samples from `first` to `last`, which are drawn in one pixel column.
struct PixelColumn {
    int first;
    int last;
    int position; ///< position of sample `first`, logical units
    int pixel;    ///< number of the column; PixelEdges::Before or Behind for a sample beyond the edges
};

/// Groups the samples of `range` by the pixel columns of `edges`. `at(i)` is the position of sample i in
/// logical units. The positions are in ascending or in descending order. Of the samples outside `edges` only
/// two are kept, each as a column of its own: the last one that comes before the pixels of `edges`, and the
/// first one that comes after them. Reads a few positions per column.
template <class Position>
std::vector<PixelColumn> GroupByColumn(IndexRange range, const PixelEdges& edges, Position at) {
    std::vector<PixelColumn> columns;
    if (range.IsEmpty() || edges.IsEmpty())
        return columns;
    columns.reserve(static_cast<std::size_t>(std::min(edges.Count(), range.last - range.first)) + 2);
    const bool isAscending = at(range.first) <= at(range.last);
    // Binary search for the first sample that is not before the edges.
    std::int64_t begin = range.first;
    std::int64_t end = std::int64_t{range.last} + 1;
    while (begin < end) {
        const std::int64_t middle = begin + (end - begin) / 2;
        const int position = at(static_cast<int>(middle));
        if (isAscending ? position < edges.Begin() : position >= edges.End())
            begin = middle + 1;
        else
            end = middle;
    }
    if (begin > range.first) {
        const int outside = static_cast<int>(begin) - 1;
        const int position = at(outside);
        columns.push_back({outside, outside, position, edges.PixelOrSide(position)});
    }

    std::int64_t guess = 1;
    std::int64_t next = begin;
    while (next <= range.last) {
        const int first = static_cast<int>(next);
        const int position = at(first);
        if (!edges.Holds(position)) {
            columns.push_back({first, first, position, edges.PixelOrSide(position)});
            break;
        }
        const int pixel = edges.Find(position);
        const int low = edges.Edge(pixel);
        const int high = edges.Edge(pixel + 1);
        const auto isInside = [&](std::int64_t index) {
            const int place = at(static_cast<int>(index));
            return place >= low && place < high;
        };
        // Find the column's last sample. The first guess is that the column has as many samples as the
        // previous column. Steps of growing size enclose the end of the column, then a binary search finds
        // it.
        std::int64_t inside = next;
        std::int64_t outside = std::int64_t{range.last} + 1;
        std::int64_t probe = next + guess - 1;
        std::int64_t step = 1;
        bool isUp = true;
        if (probe < outside && !isInside(probe)) {
            isUp = false;
            outside = probe;
        }
        while (isUp && probe < outside) {
            if (!isInside(probe)) {
                outside = probe;
                break;
            }
            inside = probe;
            probe += step;
            step *= 2;
        }
        while (!isUp && outside - step > inside) {
            if (isInside(outside - step)) {
                inside = outside - step;
                break;
            }
            outside -= step;
            step *= 2;
        }
        while (outside - inside > 1) {
            const std::int64_t middle = inside + (outside - inside) / 2;
            (isInside(middle) ? inside : outside) = middle;
        }
        columns.push_back({first, static_cast<int>(inside), position, edges.Before() + 1 + pixel});
        guess = inside - next + 1;
        next = inside + 1;
    }
    return columns;
}

/// Groups samples as GroupByColumn does, also when their positions change between ascending and descending
/// order. `runEnd(rest)` is the last sample of `rest` up to which the positions keep one order; empty when
/// that is unknown, and then the result is empty too. At each change of order, the last sample before the
/// change and the first one after it are kept even outside `edges`, because the stroke between them may cross
/// the visible columns.
template <class RunEnd, class Position> std::vector<PixelColumn>
GroupRunsByColumn(IndexRange range, const PixelEdges& edges, RunEnd runEnd, Position at) {
    std::vector<PixelColumn> columns;
    if (edges.IsEmpty())
        return columns;
    const auto keep = [&](int index) {
        const int position = at(index);
        columns.push_back({index, index, position, edges.PixelOrSide(position)});
    };
    for (std::int64_t next = range.first; next <= range.last;) {
        const IndexRange rest{static_cast<int>(next), range.last};
        const std::optional<int> end = runEnd(rest);
        if (!end)
            return {};
        const std::vector<PixelColumn> run = GroupByColumn({rest.first, *end}, edges, at);
        auto begin = run.begin();
        if (rest.first > range.first) {
            if (begin->first > rest.first)
                keep(rest.first);
            else if (edges.HasPixel(begin->pixel) && columns.back().pixel == begin->pixel)
                columns.back().last = begin++->last;
        }
        columns.insert(columns.end(), begin, run.end());
        if (*end < range.last && columns.back().last < *end)
            keep(*end);
        next = std::int64_t{*end} + 1;
    }
    return columns;
}

} // namespace kavlix
