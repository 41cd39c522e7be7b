// The pixels that GDI paints for a stroke of one pixel's width, found by integer arithmetic.
#pragma once

#include <cstdint>

#include "plot/Shapes.h"

namespace kavlix {

/// The pixels that GDI paints for a stroke with a pen one pixel wide. Each step along the stroke's longer
/// side is one pixel. Across it the line moves by one pixel where the next row or column is nearer; halfway
/// between two, the smaller coordinate is taken in every direction of the stroke. The pixel of the end point
/// is not painted.
class PixelLine {
public:
    PixelLine(const Point& from, const Point& to);

    bool IsSteep() const { return m_isSteep; }
    /// Steps from the start to the end point, along the longer side.
    std::int64_t Steps() const { return m_along; }
    /// Pixels between start and end point across the longer side.
    std::int64_t Moves() const { return m_across; }
    /// Whether the steps, or the moves, go towards smaller coordinates.
    bool StepsDown() const { return m_stepsDown; }
    bool MovesDown() const { return m_movesDown; }
    /// Where the line passes exactly halfway between two pixels: 0 if it moves there, 1 if it moves one step
    /// later.
    std::int64_t AtHalf() const { return m_movesDown ? 0 : 1; }

    /// Moves made at `step`.
    std::int64_t MovesAt(std::int64_t step) const {
        return m_along == 0 ? 0 : (2 * step * m_across + m_along - AtHalf()) / (2 * m_along);
    }
    /// The first step at which MovesAt is `moves`, 1 to Moves().
    std::int64_t StepOf(std::int64_t moves) const {
        return ((2 * moves - 1) * m_along + AtHalf() + 2 * m_across - 1) / (2 * m_across);
    }
    /// The pixel `step` steps along and `moves` moves across from the start.
    Point At(std::int64_t step, std::int64_t moves) const {
        const auto along = static_cast<int>(m_stepsDown ? -step : step);
        const auto across = static_cast<int>(m_movesDown ? -moves : moves);
        return m_isSteep ? Point{m_from.x + across, m_from.y + along}
                         : Point{m_from.x + along, m_from.y + across};
    }

    /// Sets `first` and `end` so that the steps from `first` to before `end` have their pixels in `area`.
    /// False when there is no such step; both are undefined then.
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
