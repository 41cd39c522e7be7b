#include <kavlix/Graph.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "graph/GraphPass.h"
#include "plot/Numeric.h"

using kavlix::GraphPass;
using kavlix::PlanePoint;

namespace {

constexpr double kLineWidth = 2; // pixels
constexpr double kMarkerRoom = 10;

/// A group's values over the series: (series, value), in order of the series.
using GroupLine = std::vector<kavlix::KeyedValue>;

std::map<int, GroupLine> GroupLines(const kavlix::GraphSnapshot& data) {
    std::map<int, GroupLine> lines;
    for (int s = 0; s < data.SeriesCount(); ++s)
        for (const auto& item :
             kavlix::GroupValues(data.series[static_cast<std::size_t>(s)].values, data.groups))
            lines[item.key].push_back({s, item.value});
    return lines;
}

/// The parts of a polyline that lie inside the plot.
void DrawClipped(GraphPass& pass, const std::vector<PlanePoint>& points, COLORREF colour) {
    pass.canvas.SetLine(colour, kLineWidth);
    std::vector<PlanePoint> run;
    for (std::size_t i = 1; i < points.size(); ++i) {
        PlanePoint from = points[i - 1];
        PlanePoint to = points[i];
        if (!kavlix::ClipStroke(pass.front, from, to))
            continue;
        if (run.empty() || run.back().x != from.x || run.back().y != from.y) {
            pass.canvas.Polyline(run);
            run = {from};
        }
        run.push_back(to);
    }
    pass.canvas.Polyline(run);
}

} // namespace

void CGraph::DrawLineSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    const auto place = [&](const kavlix::KeyedValue& item) {
        return p.At(p.slots.Middle(item.key), p.values.Position(item.value));
    };
    const auto lines = GroupLines(p.data);
    for (const auto& [group, line] : lines) {
        std::vector<PlanePoint> run;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (i > 0 && line[i].key != line[i - 1].key + 1) {
                DrawClipped(p, run, p.data.Colour(group));
                run.clear();
            }
            run.push_back(place(line[i]));
        }
        DrawClipped(p, run, p.data.Colour(group));
    }
    const double distance = std::max(std::abs(p.slots.Width()), 1e-3);
    const int every =
        std::max(1, kavlix::TruncateToInt(std::ceil(kMarkerRoom * p.canvas.Pixel() / distance)));
    for (const auto& [group, line] : lines)
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool alone = (i == 0 || line[i - 1].key != line[i].key - 1) &&
                               (i + 1 == line.size() || line[i + 1].key != line[i].key + 1);
            if ((alone || line[i].key % every == 0) && p.values.Contains(line[i].value))
                kavlix::DrawMarker(p.canvas, place(line[i]), group, p.data.Colour(group));
        }
}

void CGraph::DrawXYLineSeries(CDC* pDC) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    for (int s = 0; s < p.data.SeriesCount(); ++s) {
        std::vector<PlanePoint> points;
        for (const kavlix::KeyedValue& item : p.data.series[static_cast<std::size_t>(s)].values)
            points.push_back(p.At(p.keys.Position(item.key), p.values.Position(item.value)));
        DrawClipped(p, points, p.data.Colour(s));
    }
    DrawScatterSeries(pDC);
}

void CGraph::DrawScatterSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    for (int s = 0; s < p.data.SeriesCount(); ++s)
        for (const kavlix::KeyedValue& item : p.data.series[static_cast<std::size_t>(s)].values)
            if (p.values.Contains(item.value))
                kavlix::DrawMarker(p.canvas, p.At(p.keys.Position(item.key), p.values.Position(item.value)),
                                   s, p.PointColour(s, item.key));
}

void CGraph::Draw3DLineSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    constexpr double kLoneRibbon = 0.2; // half its length, of a slot
    constexpr double kThinnest = 4;     // pixels that a ribbon seen from its edge is wide
    const auto lines = GroupLines(p.data);
    for (auto entry = lines.rbegin(); entry != lines.rend(); ++entry) {
        const int group = entry->first;
        const GroupLine& line = entry->second;
        const COLORREF colour = p.data.Colour(group);
        const auto draw = [&](PlanePoint from, PlanePoint to) {
            if (!kavlix::ClipStroke(p.front, from, to))
                return;
            const double light = kavlix::RibbonLight(from, to);
            const auto behind = [&](PlanePoint q) {
                return PlanePoint{q.x + p.ribbon.x * group, q.y - p.ribbon.y * group};
            };
            p.canvas.SetLine(kavlix::OutlineOf(colour));
            p.canvas.SetFill(kavlix::Shade(colour, light));
            p.canvas.Polygon(
                kavlix::MakeRibbon(behind(from), behind(to), p.ribbon, kThinnest * p.canvas.Pixel()));
        };
        const auto place = [&](const kavlix::KeyedValue& item) {
            return PlanePoint{p.slots.Middle(item.key), p.values.Position(item.value)};
        };
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool joined = i + 1 < line.size() && line[i + 1].key == line[i].key + 1;
            if (joined) {
                draw(place(line[i]), place(line[i + 1]));
            } else if (i == 0 || line[i - 1].key != line[i].key - 1) {
                const PlanePoint lone = place(line[i]);
                const double half = p.slots.Width() * kLoneRibbon;
                draw({lone.x - half, lone.y}, {lone.x + half, lone.y});
            }
        }
    }
}
