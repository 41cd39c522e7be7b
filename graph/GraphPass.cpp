#include "graph/GraphPass.h"

#include <algorithm>
#include <climits>
#include <cstdint>

namespace kavlix {

GraphSnapshot::GraphSnapshot(const CObList& seriesList, const CObList* colorList, int seriesSize)
    : groups(seriesSize) {
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

bool GraphPass::Covers(const StackSegment& later, const StackSegment& earlier) const {
    const auto pixel = [this](std::int64_t value) {
        const double position = values.Position(values.Clamp(static_cast<double>(value)));
        return horizontal ? canvas.X(position) : canvas.Y(position);
    };
    const bool isDrawn =
        values.Clamp(static_cast<double>(later.low)) != values.Clamp(static_cast<double>(later.high));
    const int at = pixel(later.low);
    return isDrawn && at == pixel(later.high) && at == pixel(earlier.low) && at == pixel(earlier.high);
}

PlaneRect GraphPass::Between(Span along, Span value) const {
    const PlanePoint a = At(along.from, value.from);
    const PlanePoint b = At(along.to, value.to);
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

int PrintedBottom(int top, int bottom) {
    constexpr std::int64_t kFourInches = 4 * 1440;
    return static_cast<int>(std::max({top - kFourInches, std::int64_t{bottom}, std::int64_t{INT_MIN}}));
}

void DrawMarker(GraphCanvas& canvas, PlanePoint centre, int index, COLORREF colour) {
    constexpr int kShapes = 6;
    constexpr double kRadius = 4;
    constexpr double kArm = 1.5;
    const double r = kRadius * canvas.Pixel();
    const double a = kArm * canvas.Pixel();
    const double x = centre.x;
    const double y = centre.y;
    canvas.SetFill(colour);
    canvas.SetLine(OutlineOf(colour));
    std::vector<PlanePoint> corners;
    switch (index % kShapes) {
    case 0:
        canvas.Circle(centre, r);
        return;
    case 1:
        corners = {{x - r, y - r}, {x + r, y - r}, {x + r, y + r}, {x - r, y + r}};
        break;
    case 2:
        corners = {{x, y - r}, {x + r, y + r}, {x - r, y + r}};
        break;
    case 3:
        corners = {{x, y - r - a}, {x + r + a, y}, {x, y + r + a}, {x - r - a, y}};
        break;
    case 4:
        corners = {{x - r, y - r}, {x + r, y - r}, {x, y + r}};
        break;
    default:
        corners = {{x - a, y - r}, {x + a, y - r}, {x + a, y - a}, {x + r, y - a},
                   {x + r, y + a}, {x + a, y + a}, {x + a, y + r}, {x - a, y + r},
                   {x - a, y + a}, {x - r, y + a}, {x - r, y - a}, {x - a, y - a}};
        break;
    }
    canvas.Polygon(corners);
}

} // namespace kavlix
