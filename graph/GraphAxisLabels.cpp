// SPDX-License-Identifier: MIT
// The labels of the series, the captions of both axes, and the texts that are drawn over the series.
#include <kavlix/Graph.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "graph/core/Degrees.h"
#include "graph/core/LabelPlacement.h"

using namespace kavlix;

namespace {

constexpr int kRows = 2; // most rows below the plot; labels at 0 or 180 degrees may alternate between rows
// Labels at 0 or 180 degrees that do not fit below the plot are cut if the widest label keeps at least this
// part of its width. Otherwise some labels are left out.
constexpr double kWorthShortening = 0.6;
constexpr int kFewCharacters = 4; // labels stand inside the plot if fewer average characters fit to its left

/// The labels of all series, cut to the width that each may have.
struct FittedLabels {
    std::vector<CString> texts;
    LabelSize largest; ///< the greatest width of the texts, and their height
    bool cut = false;  ///< whether any text was cut
};

/// The labels of the first `count` series. `room(i)` is the width that label `i` may have.
template <class Room> FittedLabels FitLabels(const GraphPass& pass, int count, Room room) {
    FittedLabels labels;
    for (int i = 0; i < count; ++i) {
        const CString& whole = pass.data.Series(i).label;
        CString text = pass.canvas.Shorten(whole, room(i));
        const LabelSize size = pass.canvas.Measure(text);
        labels.largest.width = std::max(labels.largest.width, size.width);
        labels.cut = labels.cut || text != whole;
        labels.texts.push_back(std::move(text));
    }
    labels.largest.height = pass.canvas.Character().height;
    return labels;
}

} // namespace

void CGraph::DrawLabelsBelow(const SeriesSlots& slots) {
    GraphPass& p = *pass;
    GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const int angle = NormalAngle(GetXAxisAlignment());
    const bool level = angle % kHalfTurn == 0;
    const double distance = std::abs(slots.Width());
    const double gap = kLabelGap * pixel;

    std::vector<LabelPlace> places;
    FittedLabels labels;
    LabelSpread spread;
    double rowHeight = 0;
    {
        const GraphFont font(canvas, xTickFontSize); // not turned, for measuring
        rowHeight = canvas.Character().height;
        // A turned label extends from its tick to one side, at most to the Y caption or the picture's right
        // edge.
        const bool toTheLeft = (angle < kHalfTurn) == (std::cos(Radians(angle)) > 0);
        const auto room = [&](int slot) {
            const double x = slots.Middle(slot);
            const double aside = toTheLeft ? x - p.leftEdge : canvas.Width() - x;
            return LongestText(rowHeight, angle, level ? p.plot.Width() : aside + rowHeight / 2,
                               p.bottomRoom);
        };
        labels = FitLabels(p, slots.count, room);
        const int rows =
            level ? std::clamp(static_cast<int>(p.bottomRoom / std::max(rowHeight, 1.0)), 1, kRows) : 1;
        spread = SpreadBelow(labels.largest, angle, distance, gap, rows);
        const double roomInRows = distance * rows - gap;
        if (level && spread.every > 1 && roomInRows >= labels.largest.width * kWorthShortening) {
            labels = FitLabels(p, slots.count, [&](int) { return roomInRows; });
            spread = {1, rows};
        }
        for (int i = 0; i < slots.count; ++i) {
            const double row = static_cast<double>(i % spread.rows) * rowHeight;
            const LabelSize size{canvas.Measure(labels.texts[static_cast<std::size_t>(i)]).width, rowHeight};
            LabelPlace place =
                PlaceBelow(size, angle, slots.Middle(i), p.plot.bottom + kLabelDistance * pixel + row);
            const double rightmost = graphHasLegend ? p.plot.right + gap : canvas.Width() - kEdge * pixel;
            if (level)
                place.origin.x +=
                    std::max(std::min(rightmost - place.box.right, 0.0), p.leftEdge - place.box.left);
            places.push_back(place);
        }
    }
    if (p.bottomRoom < rowHeight / 2)
        return;
    const GraphFont turned(canvas, xTickFontSize, angle);
    for (std::int64_t i = 0; i < slots.count; i += spread.every)
        canvas.Text(places[static_cast<std::size_t>(i)].origin, labels.texts[static_cast<std::size_t>(i)]);
    if (labels.cut || spread.every > 1)
        axisLabelsCut = 1;
}

void CGraph::DrawLabelsLeft(const SeriesSlots& slots) {
    GraphPass& p = *pass;
    GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const double distance = std::abs(slots.Width());
    int angle = NormalAngle(GetXAxisAlignment());
    const GraphFont level(canvas, xTickFontSize);
    const LabelSize character = canvas.Character();
    // Labels without room to the left of the plot stand inside the plot: in the free strip before the
    // slot's first bar if the slot is high enough, otherwise in the middle of the slot.
    const bool inside = p.leftRoom < character.width * kFewCharacters;
    if (inside)
        angle = 0;
    const double firstInside = std::max(p.plot.left + kLabelDistance * pixel, p.leftEdge);
    const double across = inside ? p.plot.Width() / 2 : p.leftRoom;
    const FittedLabels labels = FitLabels(
        p, slots.count, [&](int) { return LongestText(character.height, angle, across, p.plot.Height()); });
    const LabelSpread spread = SpreadLeft(labels.largest, angle, distance, pixel);
    const GraphFont turned(canvas, xTickFontSize, angle);
    // When some turned labels are left out, the others keep at least half a stride from the plot's ends, so
    // that they do not reach beyond the plot. If no slot is so far from both ends, a middle slot has a label.
    const std::int64_t first = angle != 0 ? std::min<std::int64_t>(spread.every, slots.count - 1) / 2 : 0;
    for (std::int64_t i = first; i + first < slots.count; i += spread.every) {
        const int slot = static_cast<int>(i);
        const CString& text = labels.texts[static_cast<std::size_t>(i)];
        if (!inside) {
            const LabelSize size{canvas.Measure(text).width, character.height};
            canvas.Text(
                PlaceLeft(size, angle, p.plot.left - kLabelDistance * pixel, slots.Middle(slot)).origin,
                text);
            continue;
        }
        const Span bar = slots.Bar(slot, 0, std::max(p.data.groups, 1));
        const bool fits = std::abs(bar.to - bar.from) / 2 >= character.height;
        const bool upwards = bar.to < bar.from; // then the slot's free strip lies below the first bar
        const double y = !fits     ? slots.Middle(slot) - character.height / 2
                         : upwards ? bar.from
                                   : bar.from - character.height;
        p.overlayLabels.push_back({{firstInside, y}, text, xTickFontSize});
    }
    if (labels.cut || spread.every > 1)
        axisLabelsCut = 1;
}

void CGraph::DrawCaptions() {
    GraphPass& p = *pass;
    GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const auto start = [&](double from, double to, double length, double end) {
        return std::max(std::min((from + to - length) / 2, end - kEdge * pixel - length), kEdge * pixel);
    };
    if (!axisXLabel.IsEmpty()) {
        const GraphFont font(canvas, p.captionFont, 0, FW_BOLD);
        const CString text = canvas.Shorten(axisXLabel, canvas.Width() - 2 * kEdge * pixel);
        const double x = start(p.plot.left, p.plot.right, canvas.Measure(text).width, canvas.Width());
        canvas.Text({x, canvas.Height() - (p.captionFont + kCaptionBottom) * pixel}, text);
    }
    if (!axisYLabel.IsEmpty()) {
        // A caption without room to the left of the plot stands inside the plot and is drawn over the series.
        const bool inside = p.plot.left < p.leftEdge;
        CString text;
        double y = 0;
        {
            const GraphFont font(canvas, p.captionFont, 0, FW_BOLD);
            text = canvas.Shorten(axisYLabel, inside ? p.plot.Height() : canvas.Height() - 2 * kEdge * pixel);
            const double length = canvas.Measure(text).width;
            y = start(p.plot.top, p.plot.bottom, length, canvas.Height()) + length;
        }
        const PlanePoint place{kCaptionLeft * pixel, y};
        if (inside) {
            p.overlayLabels.push_back({place, text, p.captionFont, kUpwards, FW_BOLD});
        } else {
            const GraphFont font(canvas, p.captionFont, kUpwards, FW_BOLD);
            canvas.Text(place, text);
        }
    }
}

void CGraph::DrawOverlayLabels() {
    GraphCanvas& canvas = pass->canvas;
    for (const OverlayLabel& label : pass->overlayLabels) {
        // The canvas draws texts with a transparent background, so a white box is drawn first.
        {
            const GraphFont level(canvas, label.fontSize, 0, label.weight);
            canvas.Box(BoxOf(canvas.Measure(label.text), label.angle, label.place), kPaper, kPaper);
        }
        const GraphFont font(canvas, label.fontSize, label.angle, label.weight);
        canvas.Text(label.place, label.text);
    }
}
