// SPDX-License-Identifier: MIT
// Fixed measures of the graph controls that the Monitor's own arithmetic depends on.
#pragma once

namespace kavlix::recording {

inline constexpr int kUnitsPerPixel = 30; // logical units in a pixel

inline constexpr int kValueTickDistance = 500; // logical units of the plot's height for each value tick
inline constexpr int kLineLabelDistance = 800; // logical units of the plot's width for a time label of lines
inline constexpr int kBarLabelDistance = 1000; // logical units of the plot's width for a time label of bars

/// The scrolling graph measures its time line in units of a twentieth of a second.
inline constexpr int kTimeUnitsPerSecond = 20;

} // namespace kavlix::recording
