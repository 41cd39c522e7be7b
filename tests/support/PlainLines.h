// SPDX-License-Identifier: MIT
// Draws the line of a dataset sample by sample, with markers and the selection mark. The pictures of the graph
// controls are compared with it.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

namespace testkit {

/// Converts values to positions: `min` lies at `edge`, `max` at `edge` + `extent`.
struct PlainScale {
    double min, max;
    int edge, extent;
    /// The position in logical units; none for an empty range and for what is no number.
    std::optional<int> Place(double value) const;
};

/// A sample's position in logical units.
struct PlainSample {
    std::optional<int> x, y;
    bool isMarked = false; ///< the selection mark stands here
};

/// Draws with the selected pen. Samples without a position are gaps. `marker` is a CDataset::MarkerType.
/// The selection mark stands in `plot` and has a line of the colour `markColour`.
void DrawPlainLine(HDC dc, const std::vector<PlainSample>& samples, int marker, const RECT& plot,
                   COLORREF markColour);

} // namespace testkit
