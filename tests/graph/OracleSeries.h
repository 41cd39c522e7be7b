// SPDX-License-Identifier: MIT
// The plain painter's series: bars, lines, points and boxes. Pies and ribbons have tests of their own.
#pragma once

#include "tests/graph/OracleAxes.h"

namespace oracle {

class Series : public Axes {
public:
    using Axes::Axes;

    /// False for a type whose series are not painted here. A code that is no type has no series.
    bool DrawShapes() {
        static const std::map<int, void (Series::*)()> kPainters = {
            {0, &Series::Bars},  {1, &Series::Lines},    {3, &Series::Points}, {4, &Series::Boxes},
            {20, &Series::Bars}, {21, &Series::XYLines}, {30, &Series::Bars},  {320, &Series::Bars}};
        const auto painter = kPainters.find(f.type);
        if (painter != kPainters.end())
            (this->*painter->second)();
        const bool isType =
            std::find(std::begin(kAllTypes), std::end(kAllTypes), f.type) != std::end(kAllTypes);
        return painter != kPainters.end() || !isType;
    }

private:
    /// The points of a series, ascending by key; points with the same key in order of arrival.
    std::vector<std::pair<int, int>> Sorted(int s) const {
        auto points = f.series[s].points;
        std::stable_sort(points.begin(), points.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        return points;
    }
    /// The first value of each drawn group of a series.
    std::map<int, int> Groups(int s) const {
        std::map<int, int> found;
        for (const auto& [key, value] : f.series[s].points)
            if (key < groups && -1 - key < groups)
                found.emplace(key, value);
        if (!mirrored)
            found.erase(found.begin(), found.lower_bound(0));
        return found;
    }
    int Count() const { return static_cast<int>(f.series.size()); }

    /// A bar, or a part of a stack: where it stands on the series' axis, and its ends in values.
    struct Part {
        double from, to, foot, tip;
        COLORREF colour;
    };

    /// The bars of a series in the order of their keys, or the parts of its stack from the lowest up.
    std::vector<Part> Parts(int s) const {
        std::vector<Part> parts;
        double below = 0, above = 0;
        for (const auto& [key, value] : Groups(s)) {
            const int group = key < 0 ? -1 - key : key;
            const Slots& places = key < 0 ? mirror : slots;
            if (!Is({20, 320})) {
                const double from = places.BarFrom(s, group, groups);
                parts.push_back({from, from + places.Width() / (groups + 1.0), values.Inside(0), value * 1.0,
                                 Colour(group)});
                continue;
            }
            const double half = slots.Width() * (f.type == 20 ? 0.6 : 0.55) / 2;
            double& end = value < 0 ? below : above;
            if (value != 0)
                parts.insert(
                    value < 0 ? parts.begin() : parts.end(),
                    {slots.Middle(s) - half, slots.Middle(s) + half, end, end + value, Colour(group)});
            end += value;
        }
        return parts;
    }

    /// Whether `next` hides `part` of the same stack, because both lie in one row of pixels.
    bool Hides(const Part& next, const Part& part) const {
        const auto row = [&](double value) { return Rounded({values.At(values.Inside(value)), 0}).x; };
        return values.Inside(next.foot) != values.Inside(next.tip) && row(next.tip) == row(next.foot) &&
               row(part.foot) == row(next.foot) && row(part.tip) == row(next.foot);
    }

    void Bars() {
        for (int n = 0; n < Count(); ++n) {
            const bool solid = Is({30, 320}), backwards = solid && !vertical;
            std::vector<Part> parts = Parts(backwards ? Count() - 1 - n : n);
            if (f.type == 320 ? (values.At(1) < values.At(0)) != vertical : backwards)
                std::reverse(parts.begin(), parts.end());
            for (std::size_t i = 0; i < parts.size(); ++i) {
                Part part = parts[i];
                if (Is({20, 320}) && i + 1 < parts.size() && Hides(parts[i + 1], part))
                    continue;
                part.foot = values.Inside(part.foot), part.tip = values.Inside(part.tip);
                if (part.foot != part.tip && solid)
                    Solid(part);
                else if (part.foot != part.tip)
                    Flat(part);
            }
        }
    }

    void Flat(const Part& part) {
        double foot = values.At(part.foot), tip = values.At(part.tip);
        const double shift = tip > foot ? 1 : 0, from = std::min(part.from, part.to),
                     to = std::max(part.from, part.to);
        foot += shift, tip += shift; // the pixel of the tip belongs to the bar
        if (std::abs(tip - foot) < 1)
            foot = tip + (tip > foot ? -1 : 1);
        const bool outlined = to - from >= 4;
        Pen(1, outlined ? Outline(part.colour) : part.colour);
        Brush(part.colour);
        const Place first = At(from, std::min(foot, tip));
        const Place last = At(outlined ? to + 1 : std::max(to, from + 1), std::max(foot, tip));
        Rectangle(first.x, first.y, last.x, last.y);
    }

    void Solid(const Part& part) {
        const Place a = At(part.from, values.At(part.foot)), c = At(part.to, values.At(part.tip));
        const double l = std::min(a.x, c.x), r = std::max(a.x, c.x), t = std::min(a.y, c.y),
                     b = std::max(a.y, c.y);
        const double width = std::abs(part.to - part.from);
        const double factor = std::min(1.0, width * 2.5 / std::max({depthX, depthY, 1e-9}));
        const double x = depthX * factor, y = depthY * factor;
        const bool thin = width < 3; // upright rectangles instead of slanted faces
        const double right = thin ? std::max(r, l + 1) : r, low = thin ? std::max(b, t + 1) : b;
        const auto face = [&](double light, const std::vector<Place>& corners, Place first, Place last) {
            Pen(1, thin ? Lit(part.colour, light) : Outline(part.colour));
            Brush(Lit(part.colour, light));
            if (thin)
                Rectangle(first.x, first.y, last.x, last.y);
            else
                Polygon(corners);
        };
        face(1.25, {{l, t}, {l + x, t - y}, {r + x, t - y}, {r, t}}, {l, t - y}, {right + x, t});
        face(0.7, {{r, t}, {r + x, t - y}, {r + x, b - y}, {r, b}}, {right, t}, {right + x, low});
        face(1, {{l, t}, {r, t}, {r, b}, {l, b}}, {l, t}, {right, low});
    }

    /// A polyline, cut at the ends of the value axis.
    void Cut(const std::vector<Place>& points, COLORREF colour) {
        Pen(2, colour);
        const double low = std::min(values.from, values.to), high = std::max(values.from, values.to);
        for (std::size_t i = 1; i < points.size(); ++i) {
            const Place a = points[i - 1], b = points[i];
            const double from = vertical ? a.y : a.x, to = vertical ? b.y : b.x;
            // The fractions of the stroke at which it enters and leaves the axis. A stroke across the axis is
            // inside or not.
            double enter = from == to && (from < low || from > high) ? 2 : 0, leave = 1;
            if (from != to) {
                enter = std::max(0.0, ((to > from ? low : high) - from) / (to - from));
                leave = std::min(1.0, ((to > from ? high : low) - from) / (to - from));
            }
            if (enter > leave)
                continue;
            const auto part = [&](double t) { return Place{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}; };
            Line(enter > 0 ? part(enter) : a, leave < 1 ? part(leave) : b);
        }
    }

    void Marker(Place c, int shape, COLORREF colour) {
        static const std::vector<Place> kCorners[] = {{},
                                                      {{-4, -4}, {4, -4}, {4, 4}, {-4, 4}},
                                                      {{0, -4}, {4, 4}, {-4, 4}},
                                                      {{0, -5.5}, {5.5, 0}, {0, 5.5}, {-5.5, 0}},
                                                      {{-4, -4}, {4, -4}, {0, 4}},
                                                      {{-1.5, -4},
                                                       {1.5, -4},
                                                       {1.5, -1.5},
                                                       {4, -1.5},
                                                       {4, 1.5},
                                                       {1.5, 1.5},
                                                       {1.5, 4},
                                                       {-1.5, 4},
                                                       {-1.5, 1.5},
                                                       {-4, 1.5},
                                                       {-4, -1.5},
                                                       {-1.5, -1.5}}};
        Brush(colour);
        Pen(1, Outline(colour));
        std::vector<Place> corners = kCorners[shape % 6];
        for (Place& corner : corners)
            corner = {c.x + corner.x, c.y + corner.y};
        if (corners.empty())
            Circle(c, 4);
        else
            Polygon(corners);
    }

    void Lines() {
        const auto place = [&](int s, int value) { return At(slots.Middle(s), values.At(value)); };
        std::vector<std::map<int, int>> all;
        for (int s = 0; s < Count(); ++s)
            all.push_back(Groups(s));
        const auto has = [&](int s, int g) { return s >= 0 && s < Count() && all[s].count(g) != 0; };
        for (int g = 0; g < groups; ++g)
            for (int s = 1; s < Count(); ++s)
                if (has(s - 1, g) && has(s, g))
                    Cut({place(s - 1, all[s - 1][g]), place(s, all[s][g])}, Colour(g));
        const int every = std::max(1, static_cast<int>(std::ceil(10 / std::abs(slots.Width()))));
        for (int g = 0; g < groups; ++g)
            for (int s = 0; s < Count(); ++s)
                if (has(s, g) && values.Has(all[s][g]))
                    if (s % every == 0 || (!has(s - 1, g) && !has(s + 1, g)))
                        Marker(place(s, all[s][g]), g, Colour(g));
    }

    void XYLines() {
        for (int s = 0; s < Count(); ++s) {
            std::vector<Place> places;
            for (const auto& [key, value] : Sorted(s))
                places.push_back(At(keys.At(key), values.At(value)));
            Cut(places, Colour(s));
        }
        Points();
    }

    void Points() {
        for (int s = 0; s < Count(); ++s)
            for (const auto& [key, value] : Sorted(s))
                if (values.Has(value))
                    Marker(At(keys.At(key), values.At(value)), s, Colour(byRow ? s : key));
    }

    void Boxes() {
        for (int s = 0; s < Count(); ++s) {
            std::vector<double> order;
            for (const auto& point : f.series[s].points)
                order.push_back(point.second);
            if (order.empty())
                continue;
            std::sort(order.begin(), order.end());
            const auto quantile = [&](double p) {
                const double rank = p * static_cast<double>(order.size() - 1), below = std::floor(rank);
                const double next = order[static_cast<std::size_t>(std::ceil(rank))];
                const double value = order[static_cast<std::size_t>(below)];
                return value + (rank - below) * (next - value);
            };
            const double low = quantile(0.25), median = quantile(0.5), high = quantile(0.75);
            const double reach = 1.5 * (high - low);
            double least = median, most = median;
            for (const double value : order)
                if (value >= low - reach && value <= high + reach)
                    least = std::min(least, value), most = std::max(most, value);
            const COLORREF colour = byRow ? Colour(s) : kGrey;
            const double middle = slots.Middle(s), slot = slots.Width();
            const auto at = [&](double value) { return values.At(values.Inside(value)); };
            const auto across = [&](double value, double half) {
                if (values.Has(value))
                    Line(At(middle - half, at(value)), At(middle + half, at(value)));
            };
            const auto shows = [&](double a, double b) { return b >= values.Low() && a <= values.High(); };
            Pen(1, Outline(colour));
            for (const auto& [quartile, end] : {std::pair(low, least), {high, most}})
                if (quartile != end && shows(std::min(quartile, end), std::max(quartile, end))) {
                    Line(At(middle, at(quartile)), At(middle, at(end)));
                    across(end, slot * 0.25 / 2);
                }
            if (shows(low, high)) {
                Brush(Lit(colour, 1.55));
                const Place a = At(middle - slot * 0.5 / 2, at(low)),
                            b = At(middle + slot * 0.5 / 2, at(high));
                Rectangle(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1,
                          std::max(a.y, b.y) + 1);
            }
            Pen(2, Outline(colour));
            across(median, slot * 0.5 / 2);
            for (const auto& [key, value] : Sorted(s))
                if ((value < least || value > most) && values.Has(value)) {
                    const COLORREF own = Colour(byRow ? s : key);
                    Pen(1, Outline(own));
                    Brush(own);
                    Circle(At(middle, at(value)), 3);
                }
        }
    }
};

} // namespace oracle
