// SPDX-License-Identifier: MIT
// The plain painter's frame: background, title, legend, and where plot, axes and series stand.
#pragma once

#include "tests/graph/OraclePaper.h"

#include <cstdint>

namespace oracle {

using Whole = std::int64_t;

/// A value axis or an axis of keys: `first` lies at `from`, `second` at `to`.
struct Scale {
    double first = 0, second = 1, from = 0, to = 0;
    double At(double value) const { return from + (value - first) / (second - first) * (to - from); }
    double Low() const { return std::min(first, second); }
    double High() const { return std::max(first, second); }
    double Inside(double value) const { return std::min(std::max(value, Low()), High()); }
    bool Has(double value) const { return value >= Low() && value <= High(); }
    bool PassesZero() const { return Low() < 0 && High() > 0; }
};

struct Tick {
    Whole value;
    bool labelled;
};

/// Places of the series, from `from` to `to`.
struct Slots {
    double from = 0, to = 0;
    int count = 0;
    double Width() const { return (to - from) / count; }
    double Middle(int i) const { return from + (i + 0.5) * Width(); }
    double BarFrom(int i, int group, int groups) const {
        return from + i * Width() + (group + 0.5) * (Width() / (groups + 1.0));
    }
};

/// The first of 1, 2, 5, 10, 20 ... that brings `distance` to `gap`.
inline Whole Stride(double distance, double gap) {
    for (Whole power = 1;; power *= 10)
        for (const int factor : {1, 2, 5})
            if (static_cast<double>(power * factor) * distance >= gap)
                return power * factor;
}

/// Members are named as the graph's: lengths and positions in pixels.
class Frame : public Paper {
public:
    using Paper::Paper;

    void DrawFrame() {
        Pen(0, 0);
        Brush(kWhite);
        Rectangle(0, 0, f.width, f.height);
        const int length = static_cast<int>(f.title.size()), size = Fit(24, length, f.width - 5);
        Text({f.width / 2 - length / 2 * Average(size).width, 10.0}, f.title, size, FW_BOLD);
        Room();
        if (!f.legend.empty())
            plotWidth = Legend() - left - 10;
        Plan();
    }

    bool HasPlot() const { return frontRight - left >= 1 && bottom - frontTop >= 1; }
    /// xApexPoint, yApexPoint, xAxisWidth, yAxisHeight and legendWidth of the graph.
    std::vector<int> Layout() const {
        return {left + (mirrored ? plotWidth / 2 : 0), bottom - (centred ? plotHeight / 2 : 0), plotWidth,
                plotHeight, legendWidth};
    }

protected:
    void Room() {
        const int width = f.width - 5, height = f.height - 20;
        for (const auto& series : f.series)
            groups = std::max(groups, static_cast<int>(series.points.size()));
        byRow = f.bySeries && Is({3, 4, 21});
        keyed = Is({3, 21});
        vertical = f.vertical || Is({3, 31});
        left = 5, bottom = height - 5, plotWidth = width - 10, plotHeight = height - 50;
        if (Is({2, 32}))
            return;
        const std::string& along = height < width ? f.yCaption : f.xCaption;
        captionFont = Fit(16, static_cast<int>(along.size()), std::min(width, height));
        const int caption = static_cast<int>(f.xCaption.size());
        const Size character = Average(captionFont, FW_BOLD, 90);
        if (f.vertical && f.type != 3) {
            left = f.numberFont / 2 * static_cast<int>(std::to_string(f.max).size()) + 50;
            bottom = height - (f.angle == 0 ? 50 : f.labelFont / 2 * caption + 15);
        } else {
            const bool captioned = !(f.vertical ? f.yCaption : f.xCaption).empty();
            left = caption * static_cast<int>(character.width) + 5;
            left += captioned ? static_cast<int>(character.height) + 10 : 0;
            bottom = height - static_cast<int>(character.height) - 15;
        }
        plotHeight = bottom - 40;
        plotWidth = width - left - 5;
    }

    /// Draws the legend and returns its left edge.
    int Legend() {
        int longest = 0;
        for (const std::string& text : f.legend)
            longest = std::max(longest, static_cast<int>(text.size()));
        const int rows = byRow ? static_cast<int>(f.series.size()) : groups, height = rows * 18 + 26;
        const int right = f.width - 10, top = (f.height - 20) / 2 - height / 2;
        const int start = right - longest * static_cast<int>(f.legendFont * 0.66) - 25;
        legendWidth = right - start;
        Rectangle(start, top, right, top + height);
        Text({start + legendWidth / 2 - 3 * Average(16).width, top + 3.0}, "Legend", 16, FW_BOLD);
        for (int i = 0; i < rows; ++i) {
            const double y = top + 25 + 18.0 * i;
            const std::string text = i < static_cast<int>(f.legend.size()) ? f.legend[i] : "";
            Text({start + 5.0, y}, text, f.legendFont, FW_BOLD);
            Brush(Colour(i));
            Rectangle(start + 10 + f.legendFont / 2 * longest, y, right - 5, y + 12);
        }
        return start;
    }

    void Plan() {
        int lowestKey = 0, lowestValue = 0;
        for (const auto& series : f.series)
            if (!series.points.empty()) {
                lowestKey = std::min(lowestKey, series.points[0].first);
                lowestValue = std::min(lowestValue, series.points[0].second);
            }
        const int automatic = lowestKey < 0 ? (lowestValue < 0 ? 4 : 2) : lowestValue < 0 ? 3 : 1;
        const int shown = f.type != 0 ? 1 : f.quadrants != 0 ? f.quadrants : automatic;
        mirrored = shown == 2 || shown == 4;
        centred = shown >= 3;
        const double width = plotWidth, height = plotHeight;
        if (Is({30, 31, 320}) && f.depth > 0 && width > 0) {
            const double x = std::min(f.depth, 1.0) * width, y = x * 0.6;
            const double most = std::min(std::max(height, 0.0) * 0.5 / y, 0.5 * width / x);
            depthX = x * std::min(1.0, most), depthY = y * std::min(1.0, most);
        }
        frontTop = bottom - height + depthY;
        frontRight = left + width - depthX;
        leftEdge = f.yCaption.empty() ? 2 : 5 + captionFont + 2;
        leftRoom = left - 6 - leftEdge;
        bottomRoom = f.height - bottom - 6 - (f.xCaption.empty() ? 2 : 7 + captionFont + 2);
        if (!HasPlot() || Is({2, 32}))
            return;
        Whole low = f.min, high = f.max;
        if (centred) {
            high = std::max<Whole>({std::abs(low), std::abs(high), 1});
            low = -high;
        }
        std::tie(values, valueTicks) = Axis(low, high, f.step, vertical, centred);
        if (keyed)
            PlanKeys();
        else
            PlanSlots();
    }

    /// An axis from `low` to `high`, on the left or along the bottom, with its ticks.
    std::pair<Scale, std::vector<Tick>> Axis(Whole low, Whole high, Whole step, bool onLeft, bool fromZero) {
        Scale scale{static_cast<double>(low), static_cast<double>(high), 0, 0};
        scale.second += low == high ? 1 : 0;
        scale.from = onLeft ? bottom : left;
        scale.to = onLeft ? frontTop : frontRight;
        const std::string texts[] = {std::to_string(low), std::to_string(high)};
        const auto widest = [&](int size) {
            return std::max(Measure(texts[0], size).width, Measure(texts[1], size).width);
        };
        double gap = widest(f.numberFont) * 1.5 + 6;
        if (onLeft) {
            leftFont = f.numberFont;
            while (leftFont > 0 && widest(leftFont) > leftRoom)
                leftFont = leftFont > 10 ? leftFont - 1 : 0;
            gap = Average(leftFont > 0 ? leftFont : f.numberFont, FW_NORMAL).height * 1.25;
        }
        step = std::abs(step);
        const Whole first = std::min(low, high), last = std::max(low, high);
        const Whole anchor = fromZero || (first < 0 && last > 0 && low % step == 0) ? 0 : low;
        const double distance = static_cast<double>(step) / std::max(static_cast<double>(last - first), 1.0) *
                                std::abs(scale.to - scale.from);
        const Whole every = Stride(distance, 4);
        const Whole labelEvery = every * Stride(distance * static_cast<double>(every), std::max(gap, 4.0));
        std::vector<Tick> ticks;
        for (Whole i = -(last - first) / step - 1; i <= (last - first) / step + 1; ++i)
            if (const Whole value = anchor + i * step; i % every == 0 && value >= first && value <= last)
                ticks.push_back({value, i % labelEvery == 0});
        distances[onLeft] = distance * static_cast<double>(every);
        return {scale, ticks};
    }

    void PlanKeys() {
        int low = INT_MAX, high = INT_MIN;
        for (const auto& series : f.series)
            for (const auto& point : series.points)
                low = std::min(low, point.first), high = std::max(high, point.first);
        const double extent = vertical ? frontRight - left : bottom - frontTop;
        if (low > high)
            low = 0, high = 1;
        else if (low == high)
            --low, ++high;
        const double step =
            static_cast<double>(Stride(1, (high - low) / std::clamp(std::floor(extent / 60), 2.0, 10.0)));
        const auto round = [&](double steps) { return static_cast<Whole>(steps * step); };
        std::tie(keys, keyTicks) =
            Axis(round(std::floor(low / step)), round(std::ceil(high / step)), round(1), !vertical, false);
    }

    void PlanSlots() {
        const int count = static_cast<int>(f.series.size());
        const double first = vertical ? left : frontTop, last = vertical ? frontRight : bottom;
        slots = {first, last, count};
        if (!mirrored)
            return;
        int highest = 0;
        for (const auto& series : f.series)
            for (const auto& point : series.points)
                if (const int group = point.first < 0 ? -1 - point.first : point.first; group < groups)
                    highest = std::max(highest, group);
        groups = std::min(groups, highest + 1);
        slots = {(first + last) / 2, vertical ? last : first, count};
        mirror = {(first + last) / 2, vertical ? first : last, count};
    }

    COLORREF Colour(int i) const {
        return i >= 0 && i < static_cast<int>(f.colours.size()) ? f.colours[i] : RGB(0, 0, 0);
    }
    Place At(double along, double value) const {
        return vertical ? Place{along, value} : Place{value, along};
    }

    int left = 0, bottom = 0, plotWidth = 0, plotHeight = 0, captionFont = 16, groups = 0, legendWidth = 0;
    double depthX = 0, depthY = 0, frontTop = 0, frontRight = 0;
    bool vertical = true, keyed = false, mirrored = false, centred = false, byRow = false;
    double leftEdge = 0, leftRoom = 0, bottomRoom = 0;
    int leftFont = 0;
    Scale values, keys;
    std::vector<Tick> valueTicks, keyTicks;
    double distances[2] = {}; ///< between two ticks, below and on the left
    Slots slots, mirror;
};

} // namespace oracle
