// SPDX-License-Identifier: MIT
// Marker places: what a block of points can add.
#include "chartdraw/core/MarkerPlaces.h"

#include <algorithm>

#include "plot/Numeric.h"

namespace kavlix {
namespace {

class Places {
public:
    Places(const AxisMap& xMap, const AxisMap& yMap, PixelSet& places)
        : m_xMap(xMap), m_yMap(yMap), m_places(places) {}

    /// True only if no point of a block can add a pixel to the set: the block lies outside the area, or it lies
    /// in one pixel column and all pixels of its bounding box are in the set already. False does not mean that
    /// the block adds a pixel.
    bool AddNothing(double firstX, double lastX, double low, double high, int count) const {
        const auto left = m_xMap.Position(firstX);
        const auto right = m_xMap.Position(lastX);
        const auto a = m_yMap.Position(low);
        const auto b = m_yMap.Position(high);
        if (!left || !right || !a || !b)
            return false;
        const auto [begin, end] = std::minmax(*left, *right);
        const auto [top, bottom] = std::minmax(*a, *b);
        const Rect& area = m_places.Area();
        if (end < area.left || begin >= area.right || bottom < area.top || top >= area.bottom)
            return true;
        if (begin != end || top < area.top || bottom >= area.bottom || bottom - top >= count)
            return false;
        for (int y = top; y <= bottom; ++y)
            if (!m_places.Has({begin, y}))
                return false;
        return true;
    }
    void Add(double xValue, double yValue) {
        // For NaN the comparisons are false. For all other numbers that pass them, both casts are
        // defined. The set ignores pixels outside its area.
        const Rect& area = m_places.Area();
        const double x = m_xMap.ExactPosition(xValue);
        const double y = m_yMap.ExactPosition(yValue);
        if (x > area.left - 1 && x < area.right && y > area.top - 1 && y < area.bottom)
            m_places.Add({static_cast<int>(x), static_cast<int>(y)});
    }

private:
    const AxisMap& m_xMap;
    const AxisMap& m_yMap;
    PixelSet& m_places;
};

} // namespace

void FindMarkerPlaces(const ChartSeries& series, const AxisMap& xMap, const AxisMap& yMap, PixelSet& set) {
    Places places(xMap, yMap, set);
    if (!series.IsSorted()) {
        const UnsortedPoints& points = series.Unsorted();
        points.Visit(
            0, series.Size(),
            [&](const PointBox& box, int first, int last) {
                return places.AddNothing(box.left, box.right, box.low, box.high, last - first + 1);
            },
            [&](int first, int behind) {
                for (int i = first; i < behind; ++i)
                    places.Add(points[i].x, points[i].y);
            });
        return;
    }
    const SortedPoints& points = series.Sorted();
    const auto addNothing = [&](const SortedChunk& chunk, int k, int count, const Extremes& part,
                                bool hasGap) {
        return !hasGap && places.AddNothing(chunk.X(k), chunk.X(k + count - 1), part.low, part.high, count);
    };
    points.Visit(
        {0, series.Size() - 1},
        [&](const SortedChunk& chunk) {
            const SortedChunk::Summary& whole = chunk.Whole();
            return addNothing(chunk, 0, chunk.Size(), whole.values, whole.numbers < chunk.Size());
        },
        addNothing,
        [&](const SortedChunk& chunk, int from, int to) {
            for (int k = from; k < to; ++k)
                places.Add(chunk.X(k), chunk.Y(k));
        });
}

} // namespace kavlix
