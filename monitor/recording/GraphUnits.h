// Fixed measures of the graph controls that the Monitor's own arithmetic depends on.
#pragma once

namespace kavlix::recording {

inline constexpr int kUnitsPerPixel = 30; // the controls' logical units

// Logical units.
inline constexpr int kValueTickDistance = 500; // between ticks of a value axis
inline constexpr int kLineLabelDistance = 800; // at least, between labels of the time axis under lines
inline constexpr int kBarLabelDistance = 1000; // the same under bars

/// The scrolling graph's unit along its time line: a twentieth of a second.
inline constexpr int kTimeUnitsPerSecond = 20;

} // namespace kavlix::recording
