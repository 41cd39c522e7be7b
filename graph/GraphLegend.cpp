// SPDX-License-Identifier: MIT
// The legend: a box at the right edge with a text and a colour for each group or series.
#include <kavlix/Graph.h>

#include <algorithm>
#include <cstdint>

#include "graph/GraphPass.h"
#include "plot/Numeric.h"

using namespace kavlix;

int CGraph::LegendRows() const {
    return pass->bySeries ? pass->data.SeriesCount() : seriesSize;
}

int CGraph::DrawLegend(CDC*) {
    // Lengths in pixels.
    constexpr int kRowHeight = 18;
    constexpr int kHeadingRoom = 26;
    constexpr int kFirstRow = 25;
    constexpr int kHeadingSize = 16;
    constexpr int kHeadingTop = 3;
    constexpr int kHalfHeading = 3; // characters: half of "Legend"
    constexpr int kMargin = 5;
    constexpr int kSwatchRoom = 25;
    constexpr int kSwatchGap = 10;
    constexpr int kSwatchHeight = 12;
    constexpr double kCharacterWidth = 0.66; // as a fraction of the font's height

    if (pass == nullptr)
        return 0;
    GraphCanvas& canvas = pass->canvas;
    const int size = FontHeight(legendFontSize);
    const std::int64_t pixel = static_cast<std::int64_t>(canvas.Pixel());
    const int rows = LegendRows();
    const std::int64_t height = (std::int64_t{rows} * kRowHeight + kHeadingRoom) * pixel;
    const std::int64_t right = maxWidth - kMargin * pixel;
    const std::int64_t top = maxHeight / 2 - height / 2;
    const std::int64_t characterWidth = TruncateToInt(size * kCharacterWidth);
    const std::int64_t left =
        ToCoordinate(right - (graphLegend.GetMaxLength() * characterWidth + kSwatchRoom) * pixel);
    legendWidth = ToCoordinate(right - left);

    const auto place = [](std::int64_t x, std::int64_t y) {
        return PlanePoint{static_cast<double>(x), static_cast<double>(y)};
    };
    const auto box = [&](std::int64_t l, std::int64_t t, std::int64_t r, std::int64_t b) {
        canvas.Rectangle(
            {static_cast<double>(l), static_cast<double>(t), static_cast<double>(r), static_cast<double>(b)});
    };
    canvas.HostTools();
    box(left, top, right, top + height);
    {
        const GraphFont heading(canvas, kHeadingSize, 0, FW_BOLD);
        const auto average = static_cast<std::int64_t>(canvas.Character().width);
        canvas.Text(place(left + legendWidth / 2 - kHalfHeading * average, top + kHeadingTop * pixel),
                    _T("Legend"));
    }

    const GraphFont font(canvas, size, 0, FW_BOLD);
    const std::int64_t swatch = left + (kSwatchGap + std::int64_t{size} / 2 * legendMaxText) * pixel;
    // Rows above and below the picture are skipped, so that many groups cost no time.
    const std::int64_t rowHeight = kRowHeight * pixel;
    const std::int64_t start = top + kFirstRow * pixel;
    const std::int64_t above = std::max<std::int64_t>(-start - size * pixel, 0);
    const int first = static_cast<int>(std::min<std::int64_t>(above / rowHeight, rows));
    for (int i = first; i < rows; ++i) {
        const std::int64_t y = start + rowHeight * i;
        if (y > canvas.Height())
            break;
        canvas.Text(place(left + kMargin * pixel, y), graphLegend.TextAt(i));
        canvas.SetFill(pass->data.Colour(i));
        box(ToCoordinate(swatch), y, right - kMargin * pixel, y + kSwatchHeight * pixel);
    }
    canvas.HostTools();
    return static_cast<int>(left);
}
