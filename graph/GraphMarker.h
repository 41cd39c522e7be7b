// SPDX-License-Identifier: MIT
// The marker at a point of a line or scatter graph.
#pragma once

#include "graph/GraphCanvas.h"

namespace kavlix {

/// Draws a filled marker, nine to twelve pixels wide. `index`, from 0, chooses one of six shapes in rotation,
/// so that lines of the same colour can be told apart.
void DrawMarker(GraphCanvas& canvas, PlanePoint centre, int index, COLORREF colour);

} // namespace kavlix
