// SPDX-License-Identifier: MIT
// Receivers of a line's pixels: the interface, and the receiver that leaves out what changes no pixel.
#pragma once

#include <utility>

#include "plot/SeriesReduction.h"

namespace kavlix {

/// Receives the points of lines, one by one, as pixels.
class PixelPath {
public:
    /// The next point of the line; the first one after Break() begins a new line.
    virtual void Add(const Point& pixel) = 0;
    /// Ends the line.
    virtual void Break() = 0;

protected:
    ~PixelPath() = default;
};

/// Passes on only the points that can change a pixel, see SeriesReduction.
class ReducedPath : public PixelPath {
public:
    /// `view` and `sink` as for SeriesReduction.
    ReducedPath(const Rect& view, SeriesReduction::Sink sink) : m_reduction(view, std::move(sink)) {}

    void Add(const Point& pixel) override { m_reduction.Add(pixel); }
    void Break() override { m_reduction.Break(); }

private:
    SeriesReduction m_reduction;
};

} // namespace kavlix
