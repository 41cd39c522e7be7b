// SPDX-License-Identifier: MIT
// Where the texts of a pie stand: each inside its sector or beside the pie. No texts overlap.
#pragma once

#include <vector>

#include "piechart/core/PieGeometry.h"

namespace kavlix {

constexpr int kPieTextPadding = 2; ///< pixels to the left and right of the texts in a box

/// Widths of a piece's texts in pixels; 0 for a text that is not shown.
struct PieText {
    int label = 0;
    int broken = 0; ///< of the wider line of the label broken into two; 0 when it has no blank to break at
    int percent = 0;
    int narrowest = 0; ///< least width of an abbreviation of the label
};

/// A piece whose texts are to be placed.
struct PieLabelRequest {
    PieSector sector;
    PieText text;
};

/// Where a piece's texts stand. All rectangles are empty when there is no room. Unless `broken`, a `label`
/// narrower than the label's text means that the text has to be abbreviated.
struct PieLabel {
    Rect box;                  ///< the texts and kPieTextPadding; not a percentage alone inside the sector
    Rect label;                ///< one line, or two when the label is broken
    Rect percent;              ///< one line, in the box or alone inside the sector
    bool broken = false;       ///< the label takes two lines
    bool outside = false;      ///< the box stands beside the pie
    std::vector<Point> leader; ///< points from the rim to a box beside the pie
};

/// What the places of the texts depend on besides the pieces.
struct PieLabelArea {
    Rect client;
    Rect pie;              ///< the pie's square
    double startAngle = 0; ///< angle of the first piece's beginning, degrees
    int lineHeight = 1;    ///< pixels
};

/// Indices of the `count` widest sectors whose `hasPlace` is true, in list order. Of equally wide sectors the
/// first ones are taken.
std::vector<int> WidestSectors(const std::vector<PieSector>& sectors, int count);

/// The greatest number of pieces that may have a label: twice the number of text lines in the client area's
/// height.
int LabelCapacity(const PieLabelArea& area);

/// Places the texts of `requests`, which must be in list order. Entry i of the result belongs to request i.
std::vector<PieLabel> PlaceLabels(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests);

} // namespace kavlix
