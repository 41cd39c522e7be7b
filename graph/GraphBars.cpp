#include <kavlix/Graph.h>

#include <algorithm>
#include <cmath>

#include "graph/GraphPass.h"

using kavlix::GraphPass;
using kavlix::Span;

namespace {

constexpr double kStackWidth = 0.6; // of a slot
constexpr double kOutlined = 4;     // pixels; thinner bars would be all outline

/// A bar from `foot` to `tip`, in values. The pixel of the tip belongs to the bar, that of the foot does not,
/// so that the line it stands on stays to be seen and stacked bars do not overlap.
void DrawBar(GraphPass& pass, Span along, double foot, double tip, COLORREF colour) {
    foot = pass.values.Clamp(foot);
    tip = pass.values.Clamp(tip);
    if (foot == tip)
        return;
    kavlix::GraphCanvas& canvas = pass.canvas;
    const double pixel = canvas.Pixel();
    Span value{pass.values.Position(foot), pass.values.Position(tip)};
    if (value.to > value.from)
        value = {value.from + pixel, value.to + pixel};
    if (std::abs(value.to - value.from) < pixel / 2)
        value.from = value.to + (value.to > value.from ? -pixel : pixel);
    if (along.to < along.from)
        std::swap(along.from, along.to);
    const bool outlined = along.to - along.from >= kOutlined * pixel;
    along.to = outlined ? along.to + pixel : std::max(along.to, along.from + pixel);
    canvas.Box(pass.Between(along, value), colour, outlined ? kavlix::OutlineOf(colour) : colour);
}

} // namespace

void CGraph::DrawBarSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    const double base = p.values.Base();
    for (int s = 0; s < p.data.SeriesCount(); ++s) {
        const kavlix::KeyedValue* before = nullptr;
        for (const kavlix::KeyedValue& item : p.data.series[static_cast<std::size_t>(s)].values) {
            const bool repeated = before != nullptr && before->key == item.key;
            before = &item;
            if (repeated)
                continue;
            const bool negative = item.key < 0;
            const int group = negative ? -(item.key + 1) : item.key;
            if (group >= p.data.groups || (negative && !p.mirrored))
                continue;
            const kavlix::SeriesSlots& slots = negative ? p.mirroredSlots : p.slots;
            DrawBar(p, slots.Bar(s, group, p.data.groups), base, item.value, p.data.Colour(group));
        }
    }
}

void CGraph::DrawStackedBarSeries(CDC*) {
    if (pass == nullptr)
        return;
    GraphPass& p = *pass;
    for (int s = 0; s < p.data.SeriesCount(); ++s) {
        const auto values =
            kavlix::GroupValues(p.data.series[static_cast<std::size_t>(s)].values, p.data.groups);
        const auto parts = kavlix::StackValues(values);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const kavlix::StackSegment& part = parts[i];
            if (i + 1 < parts.size() && p.Covers(parts[i + 1], part))
                continue;
            const bool below = part.high <= 0;
            DrawBar(p, p.slots.Single(s, kStackWidth), static_cast<double>(below ? part.high : part.low),
                    static_cast<double>(below ? part.low : part.high), p.data.Colour(part.group));
        }
    }
}
