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

using kavlix::GraphFont;
using kavlix::LabelPlace;
using kavlix::LabelSize;
using kavlix::PlanePoint;

namespace {

constexpr int kRows = 2;                 // level labels may alternate between two rows
constexpr double kWorthShortening = 0.6; // labels that keep this part of their width are cut, not left out
constexpr int kFewCharacters = 4;        // with room for fewer left of the plot, labels stand inside

/// The labels of all series, cut to the room that each has.
struct FittedLabels {
    std::vector<CString> texts;
    LabelSize largest; ///< holds each of the texts
    bool cut = false;  ///< whether any text was cut
};

/// The labels of the first `count` series. `room(i)` is the width that label `i` may have.
template <class Room> FittedLabels FitLabels(const kavlix::GraphPass& pass, int count, Room room) {
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

void CGraph::DrawLabelsBelow(const kavlix::SeriesSlots& slots) {
    kavlix::GraphPass& p = *pass;
    kavlix::GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const int angle = kavlix::NormalAngle(GetXAxisAlignment());
    const bool level = angle % kavlix::kHalfTurn == 0;
    const double distance = std::abs(slots.Width());
    const double gap = kavlix::kLabelGap * pixel;

    std::vector<LabelPlace> places;
    FittedLabels labels;
    kavlix::LabelSpread spread;
    double rowHeight = 0;
    {
        const GraphFont font(canvas, xTickFontSize); // level: texts are measured before they are turned
        rowHeight = canvas.Character().height;
        // A turned label extends from its tick to one side, at most to the picture's edge.
        const bool toTheLeft = (angle < kavlix::kHalfTurn) == (std::cos(kavlix::Radians(angle)) > 0);
        const auto room = [&](int slot) {
            const double x = slots.Middle(slot);
            const double aside = toTheLeft ? x - p.leftEdge : canvas.Width() - x;
            return kavlix::LongestText(rowHeight, angle, level ? p.plot.Width() : aside + rowHeight / 2,
                                       p.bottomRoom);
        };
        labels = FitLabels(p, slots.count, room);
        const int rows =
            level ? std::clamp(static_cast<int>(p.bottomRoom / std::max(rowHeight, 1.0)), 1, kRows) : 1;
        spread = kavlix::SpreadBelow(labels.largest, angle, distance, gap, rows);
        const double roomInRows = distance * rows - gap;
        if (level && spread.every > 1 && roomInRows >= labels.largest.width * kWorthShortening) {
            labels = FitLabels(p, slots.count, [&](int) { return roomInRows; });
            spread = {1, rows};
        }
        for (int i = 0; i < slots.count; ++i) {
            const double row = static_cast<double>(i % spread.rows) * rowHeight;
            const LabelSize size{canvas.Measure(labels.texts[static_cast<std::size_t>(i)]).width, rowHeight};
            LabelPlace place = PlaceBelow(size, angle, slots.Middle(i),
                                          p.plot.bottom + kavlix::kLabelDistance * pixel + row);
            const double rightmost =
                graphHasLegend ? p.plot.right + gap : canvas.Width() - kavlix::kEdge * pixel;
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

void CGraph::DrawLabelsLeft(const kavlix::SeriesSlots& slots) {
    kavlix::GraphPass& p = *pass;
    kavlix::GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const double distance = std::abs(slots.Width());
    int angle = kavlix::NormalAngle(GetXAxisAlignment());
    const GraphFont level(canvas, xTickFontSize);
    const LabelSize character = canvas.Character();
    // Without room left of the plot the labels stand inside, above the bars if the slot is high enough.
    const bool inside = p.leftRoom < character.width * kFewCharacters;
    if (inside)
        angle = 0;
    const double firstInside = std::max(p.plot.left + kavlix::kLabelDistance * pixel, p.leftEdge);
    const double across = inside ? p.plot.Width() / 2 : p.leftRoom;
    const FittedLabels labels = FitLabels(p, slots.count, [&](int) {
        return kavlix::LongestText(character.height, angle, across, p.plot.Height());
    });
    const kavlix::LabelSpread spread = kavlix::SpreadLeft(labels.largest, angle, distance, pixel);
    const GraphFont turned(canvas, xTickFontSize, angle);
    // Thinned turned labels begin half a stride from both ends, so that none reaches beyond the plot.
    const std::int64_t first = angle != 0 ? std::min<std::int64_t>(spread.every, slots.count - 1) / 2 : 0;
    for (std::int64_t i = first; i + first < slots.count; i += spread.every) {
        const int slot = static_cast<int>(i);
        const CString& text = labels.texts[static_cast<std::size_t>(i)];
        if (!inside) {
            const LabelSize size{canvas.Measure(text).width, character.height};
            canvas.Text(
                PlaceLeft(size, angle, p.plot.left - kavlix::kLabelDistance * pixel, slots.Middle(slot))
                    .origin,
                text);
            continue;
        }
        const kavlix::Span bar = slots.Bar(slot, 0, std::max(p.data.groups, 1));
        const bool above = std::abs(bar.to - bar.from) / 2 >= character.height;
        const double y = above ? bar.from - character.height : slots.Middle(slot) - character.height / 2;
        p.overlayLabels.push_back({{firstInside, y}, text, xTickFontSize});
    }
    if (labels.cut || spread.every > 1)
        axisLabelsCut = 1;
}

void CGraph::DrawCaptions() {
    kavlix::GraphPass& p = *pass;
    kavlix::GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const auto start = [&](double from, double to, double length, double end) {
        return std::max(std::min((from + to - length) / 2, end - kavlix::kEdge * pixel - length),
                        kavlix::kEdge * pixel);
    };
    if (!axisXLabel.IsEmpty()) {
        const GraphFont font(canvas, p.captionFont, 0, FW_BOLD);
        const CString text = canvas.Shorten(axisXLabel, canvas.Width() - 2 * kavlix::kEdge * pixel);
        const double x = start(p.plot.left, p.plot.right, canvas.Measure(text).width, canvas.Width());
        canvas.Text({x, canvas.Height() - (p.captionFont + kavlix::kCaptionBottom) * pixel}, text);
    }
    if (!axisYLabel.IsEmpty()) {
        // Without room left of the plot the caption stands inside and is drawn over the series.
        const bool inside = p.plot.left < p.leftEdge;
        CString text;
        double y = 0;
        {
            const GraphFont font(canvas, p.captionFont, 0, FW_BOLD);
            text = canvas.Shorten(axisYLabel,
                                  inside ? p.plot.Height() : canvas.Height() - 2 * kavlix::kEdge * pixel);
            const double length = canvas.Measure(text).width;
            y = start(p.plot.top, p.plot.bottom, length, canvas.Height()) + length;
        }
        const PlanePoint place{kavlix::kCaptionLeft * pixel, y};
        if (inside) {
            p.overlayLabels.push_back({place, text, p.captionFont, kavlix::kUpwards, FW_BOLD});
        } else {
            const GraphFont font(canvas, p.captionFont, kavlix::kUpwards, FW_BOLD);
            canvas.Text(place, text);
        }
    }
}

void CGraph::DrawOverlayLabels() {
    kavlix::GraphCanvas& canvas = pass->canvas;
    for (const kavlix::OverlayLabel& label : pass->overlayLabels) {
        // GDI fills no ground behind a turned text, so the ground is a box of its own.
        {
            const GraphFont level(canvas, label.fontSize, 0, label.weight);
            canvas.Box(kavlix::BoxOf(canvas.Measure(label.text), label.angle, label.place), kavlix::kPaper,
                       kavlix::kPaper);
        }
        const GraphFont font(canvas, label.fontSize, label.angle, label.weight);
        canvas.Text(label.place, label.text);
    }
}
