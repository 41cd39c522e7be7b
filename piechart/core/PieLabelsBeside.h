// SPDX-License-Identifier: MIT
// Placement of the texts that do not fit into their sectors: two columns beside the pie, with leader lines.
#pragma once

#include "piechart/core/PieLabels.h"

namespace kavlix {

/// The texts of one piece that stand beside the pie.
struct PieBlock {
    // Input.
    std::size_t index = 0; ///< of the piece's entry in the `labels` of PlaceBeside
    double angle = 0;      ///< of the sector's middle, 0 to 360 degrees from twelve o'clock
    double span = 0;       ///< of the sector in degrees; blocks of the smallest spans are left out first
    PieText text;          ///< widths of the texts, pixels; 0 for a text that stands inside the sector
    // Found by PlaceBeside.
    int lines = 0;  ///< number of text lines
    int wanted = 0; ///< y of the top edge that puts the block beside its sector, pixels
    int top = 0;    ///< y of the top edge, pixels
    std::vector<Point> leader;
};

/// Places `blocks` on the right or left side of the pie. Writes the places to the entries of `labels`. Leaves
/// out blocks without room, and further blocks until each leader differs clearly from its neighbours. The
/// entries of the blocks that are left out stay unchanged.
void PlaceBeside(const PieLabelArea& area, const std::vector<PieBlock>& blocks, bool right,
                 std::vector<PieLabel>& labels);

} // namespace kavlix
