// SPDX-License-Identifier: MIT
// The pixels that GDI paints for a stroke of one pixel's width, found by integer arithmetic.
#pragma once

#include <cstdint>

#include "plot/Shapes.h"

namespace kavlix {

/// The pixels that GDI paints for a stroke with a pen one pixel wide. A step goes one pixel along the longer
/// side of the stroke's bounding box, a move one pixel along the shorter side. Each step leads to a new
/// pixel. The line also moves when the pixel in the next row or column is nearer to the exact line. Halfway
/// between two pixels, the line takes the one with the smaller coordinate, whatever the stroke's direction.
/// The pixel of the end point is not painted.
class PixelLine {
public:
    PixelLine(const Point& from, const Point& to);

    /// Whether the steps go along y.
    bool IsSteep() const { return m_isSteep; }
    /// Number of steps from the start to the end point.
    std::int64_t Steps() const { return m_along; }
    /// Number of moves from the start to the end point.
    std::int64_t Moves() const { return m_across; }
    /// Whether the steps (StepsDown) and the moves (MovesDown) go towards smaller coordinates.
    bool StepsDown() const { return m_stepsDown; }
    bool MovesDown() const { return m_movesDown; }
    /// What the line does where it passes exactly halfway between two pixels: 0 when it moves at this step, 1
    /// when it moves one step later.
    std::int64_t AtHalf() const { return m_movesDown ? 0 : 1; }

    /// Number of moves made up to and including step `step`.
    std::int64_t MovesAt(std::int64_t step) const {
        return m_along == 0 ? 0 : (2 * step * m_across + m_along - AtHalf()) / (2 * m_along);
    }
    /// The first step at which MovesAt is `moves`. `moves` is 1 to Moves().
    std::int64_t StepOf(std::int64_t moves) const {
        return ((2 * moves - 1) * m_along + AtHalf() + 2 * m_across - 1) / (2 * m_across);
    }
    /// The pixel that lies `step` steps and `moves` moves from the start.
    Point At(std::int64_t step, std::int64_t moves) const {
        const auto along = static_cast<int>(m_stepsDown ? -step : step);
        const auto across = static_cast<int>(m_movesDown ? -moves : moves);
        return m_isSteep ? Point{m_from.x + across, m_from.y + along}
                         : Point{m_from.x + along, m_from.y + across};
    }

    /// Sets `first` and `end` so that the steps from `first` to before `end` have their pixels in `area`.
    /// False when no painted pixel lies in `area`; `first` and `end` are undefined then.
    bool FindInside(const Rect& area, std::int64_t& first, std::int64_t& end) const;

private:
    Point m_from;
    bool m_isSteep;
    bool m_stepsDown;
    bool m_movesDown;
    std::int64_t m_along;
    std::int64_t m_across;
};

} // namespace kavlix
