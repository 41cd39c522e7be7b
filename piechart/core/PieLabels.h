#pragma once

#include <vector>

#include "piechart/core/PieGeometry.h"

/// Where the texts of a pie stand: each inside its sector or beside the pie, inside the client area, none on
/// another.
namespace kavlix {

constexpr int kPieTextPadding = 2; ///< of a box, pixels left and right of its texts

/// Widths of a piece's texts in pixels, 0 for none.
struct PieText {
    int label = 0;
    int broken = 0; ///< of the label broken into two lines; 0 when it cannot be
    int percent = 0;
    int narrowest = 0; ///< an abbreviation of the label narrower than that says nothing
};

/// A piece whose texts are to be placed.
struct PieLabelRequest {
    PieSector sector;
    PieText text;
};

/// Where a piece's texts stand; all empty when there is no room. A rectangle narrower than its text holds an
/// abbreviation of it.
struct PieLabel {
    Rect box;                  ///< the label with all that stands with it and some padding
    Rect label;                ///< one line, or two when it is broken
    Rect percent;              ///< one line, in the box or alone inside the sector
    bool broken = false;       ///< the label takes two lines
    bool outside = false;      ///< the box stands beside the pie
    std::vector<Point> leader; ///< from the rim to a box beside the pie
};

struct PieLabelArea {
    Rect client;
    Rect pie;
    double startAngle = 0;
    int lineHeight = 1; ///< pixels
};

/// The sectors that have a place, at most `count` of them: the widest, the first of equally wide ones; in
/// list order.
std::vector<int> WidestSectors(const std::vector<PieSector>& sectors, int count);

/// How many pieces could have a label in an area at all.
int LabelCapacity(const PieLabelArea& area);

/// Places the texts of `requests`, which are in list order. The result has one entry for each.
std::vector<PieLabel> PlaceLabels(const PieLabelArea& area, const std::vector<PieLabelRequest>& requests);

} // namespace kavlix
