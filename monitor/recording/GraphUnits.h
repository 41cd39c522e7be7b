// Fixed measures of the graph controls that the Monitor's own arithmetic depends on.
#pragma once

namespace kavlix::recording {

inline constexpr int kUnitsPerPixel = 30; // logical units in a pixel

// Logical units.
inline constexpr int kValueTickDistance = 500; // height of the plot for each tick of a value axis
inline constexpr int kLineLabelDistance = 800; // width of the plot for each time label under lines
inline constexpr int kBarLabelDistance = 1000; // width of the plot for each time label under bars

/// The scrolling graph measures its time line in units of a twentieth of a second.
inline constexpr int kTimeUnitsPerSecond = 20;

} // namespace kavlix::recording
