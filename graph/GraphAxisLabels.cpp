#include <kavlix/Graph.h>

#include <algorithm>
#include <cmath>

#include "graph/GraphPass.h"
#include "plot/Numeric.h"

using kavlix::GraphFont;
using kavlix::LabelPlace;
using kavlix::LabelSize;
using kavlix::PlanePoint;

namespace {

constexpr double kLabelGap = 6; // all lengths in pixels
constexpr double kLabelDistance = 6;
constexpr double kEdge = 2;
constexpr double kCaptionLeft = 5;
constexpr double kCaptionBottom = 7;
constexpr int kRows = 2;
constexpr double kWorthShortening = 0.6; // a label that keeps so much of its width is shortened, not left out
constexpr int kFewCharacters = 4;
constexpr int kUpwards = 90;

/// The labels of all slots as they are drawn at most, and the size that holds each.
struct FittedLabels {
    std::vector<CString> texts;
    LabelSize largest;
    bool cut = false;
};

/// Labels cut to `room(slot)`.
template <class Room> FittedLabels FitLabels(const kavlix::GraphPass& pass, int count, Room room) {
    FittedLabels labels;
    for (int i = 0; i < count; ++i) {
        const CString& whole = pass.data.series[static_cast<std::size_t>(i)].label;
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
    const bool level = angle % 180 == 0;
    const double distance = std::abs(slots.Width());
    const double gap = kLabelGap * pixel;

    std::vector<LabelPlace> places;
    FittedLabels labels;
    kavlix::LabelSpread spread;
    double rowHeight = 0;
    {
        const GraphFont font(canvas, xTickFontSize); // measured level
        rowHeight = canvas.Character().height;
        // A turned label lies left or right of its tick, up to the picture's edge.
        const bool toTheLeft = (angle < 180) == (std::cos(angle * kavlix::kPi / 180) > 0);
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

void CGraph::DrawLabelsLeft(const kavlix::SeriesSlots& slots) {
    kavlix::GraphPass& p = *pass;
    kavlix::GraphCanvas& canvas = p.canvas;
    const double pixel = canvas.Pixel();
    const double distance = std::abs(slots.Width());
    int angle = kavlix::NormalAngle(GetXAxisAlignment());
    const GraphFont level(canvas, xTickFontSize);
    const LabelSize character = canvas.Character();
    // Without room beside the plot the labels stand in it, above the bars where these leave room.
    const bool inside = p.leftRoom < character.width * kFewCharacters;
    if (inside)
        angle = 0;
    const double firstInside = std::max(p.plot.left + kLabelDistance * pixel, p.leftEdge);
    const double across = inside ? p.plot.Width() / 2 : p.leftRoom;
    const FittedLabels labels = FitLabels(p, slots.count, [&](int) {
        return kavlix::LongestText(character.height, angle, across, p.plot.Height());
    });
    const kavlix::LabelSpread spread = kavlix::SpreadLeft(labels.largest, angle, distance, pixel);
    const GraphFont turned(canvas, xTickFontSize, angle);
    // Where turned labels are thinned, the first and the last one drawn stay beside the plot whole.
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
        const kavlix::Span bar = slots.Bar(slot, 0, std::max(p.data.groups, 1));
        const bool above = std::abs(bar.to - bar.from) / 2 >= character.height;
        const double y = above ? bar.from - character.height : slots.Middle(slot) - character.height / 2;
        p.lateLabels.push_back({{firstInside, y}, text, xTickFontSize});
    }
    if (labels.cut || spread.every > 1)
        axisLabelsCut = 1;
}

void CGraph::DrawCaptions() {
    kavlix::GraphPass& p = *pass;
    kavlix::GraphCanvas& canvas = p.canvas;
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
        // No room left of the plot: the caption stands inside the plot and is drawn after the series, over
        // them.
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
            p.lateLabels.push_back({place, text, p.captionFont, kUpwards, FW_BOLD});
        } else {
            const GraphFont font(canvas, p.captionFont, kUpwards, FW_BOLD);
            canvas.Text(place, text);
        }
    }
}

void CGraph::DrawLateLabels() {
    kavlix::GraphCanvas& canvas = pass->canvas;
    for (const kavlix::LateLabel& label : pass->lateLabels) {
        // GDI puts no ground behind a turned text.
        constexpr COLORREF kPaper = RGB(255, 255, 255);
        {
            const GraphFont level(canvas, label.fontSize, 0, label.weight);
            canvas.Box(kavlix::BoxOf(canvas.Measure(label.text), label.angle, label.place), kPaper, kPaper);
        }
        const GraphFont font(canvas, label.fontSize, label.angle, label.weight);
        canvas.Text(label.place, label.text);
    }
}
