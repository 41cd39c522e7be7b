// SPDX-License-Identifier: MIT
// Bars side by side and stacked bars.
#include <algorithm>
#include <cmath>
#include <utility>

#include "graph/GraphPass.h"

namespace kavlix {
namespace {

constexpr double kStackWidth = 0.6; // as a fraction of a slot
constexpr double kOutlined = 4;     // pixels; thinner bars have no outline: it would hide the fill

/// Draws a bar from the value `foot` to the value `tip`. The row or column of pixels at the tip belongs to
/// the bar, the one at the foot does not. So the base line stays visible, and stacked bars do not overlap. A
/// bar shorter than a pixel fills the pixel of the tip, even when the foot lies in the same pixel.
void DrawBar(GraphPass& pass, Span along, double foot, double tip, COLORREF colour) {
    foot = pass.values.Clamp(foot);
    tip = pass.values.Clamp(tip);
    if (foot == tip)
        return;
    GraphCanvas& canvas = pass.canvas;
    const double pixel = canvas.Pixel();
    Span value{pass.values.Position(foot), pass.values.Position(tip)};
    if (value.to > value.from)
        value = {value.from + pixel, value.to + pixel};
    if (std::abs(value.to - value.from) < pixel)
        value.from = value.to + (value.to > value.from ? -pixel : pixel);
    if (along.to < along.from)
        std::swap(along.from, along.to);
    const bool outlined = along.to - along.from >= kOutlined * pixel;
    along.to = outlined ? along.to + pixel : std::max(along.to, along.from + pixel);
    canvas.Box(pass.Between(along, value), colour, outlined ? OutlineOf(colour) : colour);
}

} // namespace

void PaintBars(GraphPass& pass) {
    const double base = pass.values.Base();
    for (int s = 0; s < pass.data.SeriesCount(); ++s) {
        const KeyedValue* before = nullptr;
        for (const KeyedValue& item : pass.data.Series(s).values) {
            const bool repeated = before != nullptr && before->key == item.key;
            before = &item;
            if (repeated)
                continue;
            const bool negative = item.key < 0;
            const int group = negative ? -(item.key + 1) : item.key;
            if (group >= pass.data.groups || (negative && !pass.mirrored))
                continue;
            const SeriesSlots& slots = negative ? pass.mirroredSlots : pass.slots;
            DrawBar(pass, slots.Bar(s, group, pass.data.groups), base, item.value, pass.data.Colour(group));
        }
    }
}

void PaintStackedBars(GraphPass& pass) {
    for (int s = 0; s < pass.data.SeriesCount(); ++s) {
        const auto values = pass.data.Groups(s);
        const auto parts = StackValues(values);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const StackSegment& part = parts[i];
            if (i + 1 < parts.size() && pass.Covers(parts[i + 1], part))
                continue;
            const bool below = part.high <= 0;
            DrawBar(pass, pass.slots.Single(s, kStackWidth),
                    static_cast<double>(below ? part.high : part.low),
                    static_cast<double>(below ? part.low : part.high), pass.data.Colour(part.group));
        }
    }
}

} // namespace kavlix
