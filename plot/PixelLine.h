// The pixels of a thin stroke, one by one or by arithmetic.
#pragma once

#include <cstdint>

#include "plot/Shapes.h"

namespace kavlix {

/// Which pixels GDI paints for a stroke with a pen one pixel wide. Along the longer direction there is one
/// pixel for each step; across it, the line moves on where it is nearer to the next pixel. Halfway it goes to
/// the smaller coordinate, whichever way the stroke runs. The pixel of the last step is left out.
class PixelLine {
public:
    PixelLine(const Point& from, const Point& to);

    bool IsSteep() const { return m_isSteep; }
    /// Steps from the first pixel to the last.
    std::int64_t Steps() const { return m_along; }
    /// Pixels by which the line moves across on its way.
    std::int64_t Moves() const { return m_across; }
    /// Whether steps and moves run towards smaller coordinates.
    bool StepsDown() const { return m_stepsDown; }
    bool MovesDown() const { return m_movesDown; }
    /// 0 where the line moves on already halfway between two pixels, 1 where it moves after that.
    std::int64_t AtHalf() const { return m_movesDown ? 0 : 1; }

    /// How far the line has moved across at a step.
    std::int64_t MovesAt(std::int64_t step) const {
        return m_along == 0 ? 0 : (2 * step * m_across + m_along - AtHalf()) / (2 * m_along);
    }
    /// The first step at which the line has moved `moves` pixels across, 1 to Moves().
    std::int64_t StepOf(std::int64_t moves) const {
        return ((2 * moves - 1) * m_along + AtHalf() + 2 * m_across - 1) / (2 * m_across);
    }
    Point At(std::int64_t step, std::int64_t moves) const {
        const auto along = static_cast<int>(m_stepsDown ? -step : step);
        const auto across = static_cast<int>(m_movesDown ? -moves : moves);
        return m_isSteep ? Point{m_from.x + across, m_from.y + along}
                         : Point{m_from.x + along, m_from.y + across};
    }

    /// The steps `first` to before `end` whose pixels lie in `area`. False when there is none.
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
