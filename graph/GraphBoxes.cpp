// SPDX-License-Identifier: MIT
// Box-and-whisker drawings.
#include <algorithm>
#include <utility>
#include <vector>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "graph/core/BoxStatistics.h"

namespace kavlix {
namespace {

constexpr double kBoxWidth = 0.5;    // as a fraction of a slot
constexpr double kCapWidth = 0.25;   // length of the stroke at a whisker's end, as a fraction of a slot
constexpr double kMedianWidth = 2;   // pixels
constexpr double kOutlierRadius = 3; // pixels
constexpr double kBoxLight = 1.55;   // for Shade: the box is paler than its median, so that the median shows

class BoxPainter {
public:
    BoxPainter(GraphPass& pass, int slot) : m_pass(pass), m_slot(slot) {}

    void Draw(const BoxStatistics& box, COLORREF colour) const {
        GraphCanvas& canvas = m_pass.canvas;
        canvas.SetLine(OutlineOf(colour));
        Whisker(box.lowerQuartile, box.lowerWhisker);
        Whisker(box.upperQuartile, box.upperWhisker);
        if (Shows(box.lowerQuartile, box.upperQuartile)) {
            PlaneRect area = m_pass.Between(m_pass.slots.Single(m_slot, kBoxWidth),
                                            {Position(box.lowerQuartile), Position(box.upperQuartile)});
            area.right += canvas.Pixel();
            area.bottom += canvas.Pixel();
            canvas.Box(area, Shade(colour, kBoxLight), OutlineOf(colour));
        }
        canvas.SetLine(OutlineOf(colour), kMedianWidth);
        Across(box.median, kBoxWidth);
    }

    void DrawOutlier(int value, COLORREF colour) const {
        if (!m_pass.values.Contains(value))
            return;
        m_pass.canvas.SetLine(OutlineOf(colour));
        m_pass.canvas.SetFill(colour);
        m_pass.canvas.Circle(m_pass.At(m_pass.slots.Middle(m_slot), Position(value)),
                             kOutlierRadius * m_pass.canvas.Pixel());
    }

private:
    double Position(double value) const { return m_pass.values.Position(m_pass.values.Clamp(value)); }
    bool Shows(double low, double high) const {
        return high >= m_pass.values.Low() && low <= m_pass.values.High();
    }
    /// Draws a stroke at `value`, `width` slots long. Draws nothing when the value lies outside the scale.
    void Across(double value, double width) const {
        if (!m_pass.values.Contains(value))
            return;
        const Span along = m_pass.slots.Single(m_slot, width);
        m_pass.canvas.Line(m_pass.At(along.from, Position(value)), m_pass.At(along.to, Position(value)));
    }
    void Whisker(double quartile, double end) const {
        if (quartile == end || !Shows(std::min(quartile, end), std::max(quartile, end)))
            return;
        const double middle = m_pass.slots.Middle(m_slot);
        m_pass.canvas.Line(m_pass.At(middle, Position(quartile)), m_pass.At(middle, Position(end)));
        Across(end, kCapWidth);
    }

    GraphPass& m_pass;
    int m_slot;
};

} // namespace

void PaintBoxes(GraphPass& pass) {
    for (int s = 0; s < pass.data.SeriesCount(); ++s) {
        const std::vector<KeyedValue>& items = pass.data.Series(s).values;
        std::vector<int> values;
        for (const KeyedValue& item : items)
            values.push_back(item.value);
        BoxStatistics box;
        if (!ComputeBoxStatistics(std::move(values), box))
            continue;
        const BoxPainter painter(pass, s);
        painter.Draw(box, pass.bySeries ? pass.data.Colour(s) : kGrey);
        for (const KeyedValue& item : items)
            if (box.IsOutlier(item.value))
                painter.DrawOutlier(item.value, pass.PointColour(s, item.key));
    }
}

} // namespace kavlix
