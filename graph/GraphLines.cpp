// SPDX-License-Identifier: MIT
// Lines, XY lines, scattered points and the ribbons of 3D lines.
#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "graph/GraphMarker.h"
#include "graph/GraphPass.h"
#include "plot/Numeric.h"

namespace kavlix {
namespace {

constexpr double kLineWidth = 2; // pixels
// Least distance between two markers of a line along the axis, pixels. A value without neighbours has a
// marker in any case.
constexpr double kMarkerRoom = 10;

/// The values of one group in order of the series. Each `key` is the index of a series.
using GroupLine = std::vector<KeyedValue>;

/// The lines of all groups, by group.
std::map<int, GroupLine> GroupLines(const GraphSnapshot& data) {
    std::map<int, GroupLine> lines;
    for (int s = 0; s < data.SeriesCount(); ++s)
        for (const KeyedValue& item : data.Groups(s))
            lines[item.key].push_back({s, item.value});
    return lines;
}

/// Draws the parts of a polyline that lie inside the plot.
void DrawClipped(GraphPass& pass, const std::vector<PlanePoint>& points, COLORREF colour) {
    pass.canvas.SetLine(colour, kLineWidth);
    std::vector<PlanePoint> run;
    for (std::size_t i = 1; i < points.size(); ++i) {
        PlanePoint from = points[i - 1];
        PlanePoint to = points[i];
        if (!ClipStroke(pass.front, from, to))
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

void PaintLines(GraphPass& pass) {
    const auto place = [&](const KeyedValue& item) {
        return pass.At(pass.slots.Middle(item.key), pass.values.Position(item.value));
    };
    const auto lines = GroupLines(pass.data);
    for (const auto& [group, line] : lines) {
        std::vector<PlanePoint> run;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (i > 0 && line[i].key != line[i - 1].key + 1) {
                DrawClipped(pass, run, pass.data.Colour(group));
                run.clear();
            }
            run.push_back(place(line[i]));
        }
        DrawClipped(pass, run, pass.data.Colour(group));
    }
    const double distance = std::max(std::abs(pass.slots.Width()), 1e-3);
    const int every = std::max(1, TruncateToInt(std::ceil(kMarkerRoom * pass.canvas.Pixel() / distance)));
    for (const auto& [group, line] : lines)
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool alone = (i == 0 || line[i - 1].key != line[i].key - 1) &&
                               (i + 1 == line.size() || line[i + 1].key != line[i].key + 1);
            if ((alone || line[i].key % every == 0) && pass.values.Contains(line[i].value))
                DrawMarker(pass.canvas, place(line[i]), group, pass.data.Colour(group));
        }
}

void PaintXYLines(GraphPass& pass) {
    for (int s = 0; s < pass.data.SeriesCount(); ++s) {
        std::vector<PlanePoint> points;
        for (const KeyedValue& item : pass.data.Series(s).values)
            points.push_back(pass.At(pass.keys.Position(item.key), pass.values.Position(item.value)));
        DrawClipped(pass, points, pass.data.Colour(s));
    }
    PaintPoints(pass);
}

void PaintPoints(GraphPass& pass) {
    for (int s = 0; s < pass.data.SeriesCount(); ++s)
        for (const KeyedValue& item : pass.data.Series(s).values)
            if (pass.values.Contains(item.value))
                DrawMarker(pass.canvas,
                           pass.At(pass.keys.Position(item.key), pass.values.Position(item.value)), s,
                           pass.PointColour(s, item.key));
}

void PaintRibbons(GraphPass& pass) {
    constexpr double kLoneRibbon = 0.2; // half the length of a lone value's ribbon, as a fraction of a slot
    constexpr double kThinnest = 4;     // least width of a ribbon, pixels
    const auto lines = GroupLines(pass.data);
    for (auto entry = lines.rbegin(); entry != lines.rend(); ++entry) {
        const int group = entry->first; // the last group is the farthest, so it is drawn first
        const GroupLine& line = entry->second;
        const COLORREF colour = pass.data.Colour(group);
        const auto draw = [&](PlanePoint from, PlanePoint to) {
            if (!ClipStroke(pass.front, from, to))
                return;
            const double light = RibbonLight(from, to);
            const auto behind = [&](PlanePoint q) {
                return PlanePoint{q.x + pass.depthPerGroup.x * group, q.y - pass.depthPerGroup.y * group};
            };
            pass.canvas.SetLine(OutlineOf(colour));
            pass.canvas.SetFill(Shade(colour, light));
            pass.canvas.Polygon(
                MakeRibbon(behind(from), behind(to), pass.depthPerGroup, kThinnest * pass.canvas.Pixel()));
        };
        const auto place = [&](const KeyedValue& item) {
            return PlanePoint{pass.slots.Middle(item.key), pass.values.Position(item.value)};
        };
        for (std::size_t i = 0; i < line.size(); ++i) {
            const bool joined = i + 1 < line.size() && line[i + 1].key == line[i].key + 1;
            if (joined) {
                draw(place(line[i]), place(line[i + 1]));
            } else if (i == 0 || line[i - 1].key != line[i].key - 1) {
                const PlanePoint lone = place(line[i]);
                const double half = pass.slots.Width() * kLoneRibbon;
                draw({lone.x - half, lone.y}, {lone.x + half, lone.y});
            }
        }
    }
}

} // namespace kavlix
