// SPDX-License-Identifier: MIT
// The plain painter's axes: walls, grid, ticks, numbers, labels and captions.
#pragma once

#include "tests/graph/OracleFrame.h"

namespace oracle {

class Axes : public Frame {
public:
    using Frame::Frame;

    void DrawAxes() {
        Walls();
        if (keyed)
            ScaleAt(keys, keyTicks, !vertical);
        ScaleAt(values, valueTicks, vertical);
        AxisLines();
        for (const Slots* places : {&slots, &mirror})
            if (places->count > 0 && !keyed) {
                SeriesTicks(*places);
                if (vertical)
                    LabelsBelow(*places);
                else
                    LabelsLeft(*places);
            }
        Captions();
    }

    bool cut = false; ///< whether an axis label was cut or left out

private:
    void Walls() {
        if (depthX <= 0)
            return;
        const auto back = [&](double x, double y) { return Place{x + depthX, y - depthY}; };
        const double l = left, t = frontTop, r = frontRight, b = bottom;
        Pen(1, RGB(176, 176, 176));
        Brush(RGB(248, 248, 248));
        Polygon({back(l, t), back(r, t), back(r, b), back(l, b)});
        Brush(RGB(236, 236, 236));
        Polygon({{l, t}, back(l, t), back(l, b), {l, b}});
        Brush(RGB(226, 226, 226));
        Polygon({{l, b}, back(l, b), back(r, b), {r, b}});
    }

    void ScaleAt(const Scale& scale, const std::vector<Tick>& ticks, bool onLeft) {
        const auto at = [&](const Tick& tick) { return scale.At(static_cast<double>(tick.value)); };
        Pen(1, kGrey);
        for (const Tick& tick : ticks)
            if (f.grid && (tick.labelled || distances[onLeft] >= 10)) {
                const Place a = onLeft ? Place{left * 1.0, at(tick)} : Place{at(tick), bottom * 1.0};
                const Place b = onLeft ? Place{frontRight, at(tick)} : Place{at(tick), frontTop};
                const Place behind{a.x + depthX, a.y - depthY};
                if (depthX > 0)
                    Line(a, behind);
                Line(depthX > 0 ? behind : a, {b.x + depthX, b.y - depthY});
            }
        Pen(1, 0);
        for (const Tick& tick : ticks)
            TickLine(at(tick), onLeft);
        for (const Tick& tick : ticks)
            if (tick.labelled)
                Number(std::to_string(tick.value), at(tick), onLeft);
            else
                cut = true;
    }

    void TickLine(double at, bool onLeft) {
        if (onLeft)
            Line({left - 4.0, at}, {left * 1.0, at});
        else
            Line({at, bottom * 1.0}, {at, bottom + 5.0});
    }

    void Number(const std::string& text, double at, bool onLeft) {
        const int font = onLeft && leftFont > 0 ? leftFont : f.numberFont;
        const Size size = Measure(text, font);
        const double right = f.legend.empty() ? f.width - 2 : left + plotWidth + 8;
        if (!onLeft)
            Text({std::max(std::min(at - size.width / 2, right - size.width), 2.0), bottom + 6.0}, text,
                 font);
        else if (leftFont > 0)
            Text({left - 6 - size.width, at - size.height / 2}, text, font);
        else
            Over({std::max(left + 4.0, leftEdge), std::min(at - size.height / 2, bottom - size.height - 1)},
                 text, font);
    }

    void AxisLines() {
        const double first = vertical ? left : frontTop, last = vertical ? frontRight : bottom;
        const double valueLine = mirrored ? (first + last) / 2 : vertical ? left : bottom;
        Pen(1, 0);
        Line(At(valueLine, values.from), At(valueLine, values.to));
        const double base = centred ? values.At(0) : values.from;
        Line(At(first, base), At(last, base));
        if (values.PassesZero() && !centred)
            Line(At(first, values.At(0)), At(last, values.At(0)));
        if (keyed && keys.PassesZero()) {
            Pen(1, kGrey);
            Line(At(keys.At(0), values.from), At(keys.At(0), values.to));
        }
    }

    void SeriesTicks(const Slots& places) {
        Pen(1, 0);
        for (int i = 0; i < places.count && std::abs(places.Width()) >= 8; ++i)
            TickLine(places.Middle(i), !vertical);
    }

    /// The width of the longest text of a height that fits, turned, into a room `across` wide
    /// and `down` high.
    static double Longest(const Turned& turn, double height, double across, double down) {
        const double sin = std::abs(turn.sin), cos = std::abs(turn.cos);
        const double byWidth = cos > 0 ? (across - height * sin) / cos : across >= height ? 1e9 : 0;
        const double byHeight = sin > 0 ? (down - height * cos) / sin : down >= height ? 1e9 : 0;
        return std::max(0.0, std::min(byWidth, byHeight));
    }

    /// Cuts the labels of the series to `room(i)`. Returns the size that holds each of them.
    template <class Room> Size CutLabels(Room room) {
        Size largest{0, Average(f.labelFont, FW_NORMAL).height};
        labels.clear();
        labelsCut = false;
        for (const auto& series : f.series) {
            labels.push_back(Shortened(series.label, room(static_cast<int>(labels.size())), f.labelFont));
            largest.width = std::max(largest.width, Measure(labels.back(), f.labelFont).width);
            labelsCut = labelsCut || labels.back() != series.label;
        }
        return largest;
    }

    void LabelsBelow(const Slots& places) {
        const Turned turn({0, 0}, f.angle);
        const bool level = turn.sin == 0;
        const double height = Average(f.labelFont, FW_NORMAL).height, distance = std::abs(places.Width());
        const double right = left + plotWidth;
        // The side to which a text extends from its tick. Upright texts are checked for room on the left.
        const bool toTheLeft = turn.cos == 0 || turn.sin * turn.cos > 0;
        const Size size = CutLabels([&](int i) {
            const double aside = toTheLeft ? places.Middle(i) - leftEdge : f.width - places.Middle(i);
            return Longest(turn, height, level ? plotWidth : aside + height / 2, bottomRoom);
        });
        const int most = level && bottomRoom >= 2 * height ? 2 : 1;
        int rows = 1, every = 1;
        if (level) {
            const double needed = size.width + 6;
            if (distance < needed && most == 2 && 2 * distance >= needed)
                rows = 2;
            else if (distance < needed)
                every = static_cast<int>(std::ceil(needed / distance));
            if (every > 1 && distance * most - 6 >= size.width * 0.6) {
                CutLabels([&](int) { return distance * most - 6; });
                every = 1, rows = most;
            }
        } else {
            const double sin = std::abs(turn.sin), cos = std::abs(turn.cos), passing = (height + 6) / sin;
            const double following = cos == 0 ? passing : (size.width + height * sin + 6) / cos;
            every = std::max(1, static_cast<int>(std::ceil(std::min(passing, following) / distance)));
        }
        if (bottomRoom < height / 2)
            return;
        for (int i = 0; i < places.count; i += every) {
            const double width = Measure(labels[i], f.labelFont).width;
            const Turned label({width, height}, f.angle);
            const double along = level ? width / 2 : turn.sin > 0 ? width : 0;
            Place place{places.Middle(i) - label.At(along, height / 2).x,
                        bottom + 6.0 + i % rows * height - label.top};
            if (level) {
                const double last = f.legend.empty() ? f.width - 2 : right + 6;
                place.x += std::max(std::min(last - (place.x + label.right), 0.0),
                                    leftEdge - (place.x + label.left));
            }
            Text(place, labels[i], f.labelFont, FW_NORMAL, Normal(f.angle));
        }
        cut = cut || labelsCut || every > 1;
    }

    void LabelsLeft(const Slots& places) {
        const Size character = Average(f.labelFont, FW_NORMAL);
        const bool inside = leftRoom < character.width * 4;
        const int angle = inside ? 0 : Normal(f.angle);
        const Turned turn({0, 0}, angle);
        const Size size = CutLabels([&](int) {
            return Longest(turn, character.height, inside ? plotWidth / 2.0 : leftRoom, plotHeight);
        });
        const Turned largest(size, angle);
        const double distance = std::abs(places.Width());
        const int every =
            std::max(1, static_cast<int>(std::ceil((largest.bottom - largest.top + 1) / distance)));
        const int first = angle != 0 ? std::min(every, places.count - 1) / 2 : 0;
        for (int i = first; i + first < places.count; i += every) {
            const double middle = places.Middle(i);
            if (!inside) {
                const Turned label({Measure(labels[i], f.labelFont).width, character.height}, angle);
                Text({left - 6 - label.right, middle - (label.top + label.bottom) / 2}, labels[i],
                     f.labelFont, FW_NORMAL, angle);
                continue;
            }
            const double start = places.BarFrom(i, 0, std::max(groups, 1));
            const bool above = distance / (std::max(groups, 1) + 1) / 2 >= character.height;
            Over({std::max(left + 6.0, leftEdge),
                  !above               ? middle - character.height / 2
                  : places.Width() < 0 ? start // the slots run upwards
                                       : start - character.height},
                 labels[i], f.labelFont);
        }
        cut = cut || labelsCut || every > 1;
    }

    void Captions() {
        const auto start = [](double middle, double length, double end) {
            return std::max(std::min(middle - length / 2, end - 2 - length), 2.0);
        };
        if (!f.xCaption.empty()) {
            const std::string text = Shortened(f.xCaption, f.width - 4, captionFont, FW_BOLD);
            const double width = Measure(text, captionFont, FW_BOLD).width;
            Text({start(left + plotWidth / 2.0, width, f.width), f.height - captionFont - 7.0}, text,
                 captionFont, FW_BOLD);
        }
        if (!f.yCaption.empty()) {
            const bool inside = left < leftEdge;
            const std::string text =
                Shortened(f.yCaption, inside ? plotHeight : f.height - 4, captionFont, FW_BOLD);
            const double width = Measure(text, captionFont, FW_BOLD).width;
            const Place place{5, start(bottom - plotHeight / 2.0, width, f.height) + width};
            if (inside)
                Over(place, text, captionFont, FW_BOLD, 90);
            else
                Text(place, text, captionFont, FW_BOLD, 90);
        }
    }

    std::vector<std::string> labels; ///< of the series, cut to their room
    bool labelsCut = false;
};

} // namespace oracle
