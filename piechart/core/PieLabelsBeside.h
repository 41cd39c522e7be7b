// Where texts stand beside a pie: in a column on either side, each with a leader to its sector.
#pragma once

#include "piechart/core/PieLabels.h"

namespace kavlix {

/// A block of texts beside the pie.
struct PieBlock {
    std::size_t index = 0; ///< of the request
    double angle = 0;      ///< of the sector's middle, 0 to 360
    double span = 0;       ///< of the sector; the smallest are left out first
    PieText text;          ///< what of the texts is to stand here
    int lines = 0;
    int wanted = 0; ///< top where it stands beside its sector
    int top = 0;
    std::vector<Point> leader;
};

/// Places `blocks` on one side and enters in `labels` those for which there is room.
void PlaceBeside(const PieLabelArea& area, const std::vector<PieBlock>& blocks, bool right,
                 std::vector<PieLabel>& labels);

} // namespace kavlix
