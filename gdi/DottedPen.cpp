// SPDX-License-Identifier: MIT
// Learns the dots of GDI's dotted pen from trial lines, and draws them directly.
#include "gdi/DottedPen.h"

#include <algorithm>
#include <vector>

#include "gdi/Guards.h"
#include "gdi/Scratch.h"
#include "gdi/ShapeConversion.h"

namespace kavlix {
namespace {

constexpr int kSide = 64;
constexpr int kLongestPeriod = 24;

struct TrialLine {
    CPoint from;
    CPoint step;
    int length;
};
// Lines in all four directions. Some begin outside the picture. The first line lies inside it completely:
// LearnDots finds the period from this line.
const TrialLine kTrials[] = {
    {{3, 7}, {1, 0}, 60},    {{60, 10}, {-1, 0}, 57}, {{-7, 13}, {1, 0}, 90},  {{80, 15}, {-1, 0}, 90},
    {{10, 60}, {0, -1}, 57}, {{13, 2}, {0, 1}, 60},   {{19, 90}, {0, -1}, 95}, {{23, -8}, {0, 1}, 95},
};

/// The shortest sequence whose repetition gives `dots`; empty when it is longer than kLongestPeriod pixels.
std::vector<bool> PeriodOf(std::vector<bool> dots) {
    for (int period = 1; period <= kLongestPeriod; ++period) {
        if (std::equal(dots.begin() + period, dots.end(), dots.begin())) {
            dots.resize(static_cast<std::size_t>(period));
            return dots;
        }
    }
    return {};
}

/// One period of GDI's dotted pen, from the first pixel of a line on; true for painted pixels. Empty when GDI
/// cannot draw the trial lines, when the period is longer than kLongestPeriod pixels, or when the trial lines
/// do not all show the same dots.
std::vector<bool> LearnDots() {
    Scratch scratch(kSide);
    CPen pen;
    if (!scratch.IsReady() || !pen.CreatePen(PS_DOT, 0, RGB(1, 2, 3)))
        return {};
    CDC& dc = scratch.Dc();
    dc.SetBkMode(TRANSPARENT);
    SelectGuard selected(dc, pen);
    std::vector<bool> dots;
    for (const TrialLine& line : kTrials) {
        dc.PatBlt(0, 0, kSide, kSide, BLACKNESS);
        dc.MoveTo(line.from);
        dc.LineTo(line.from.x + line.step.x * line.length, line.from.y + line.step.y * line.length);
        ::GdiFlush();
        std::vector<bool> painted;
        for (int k = 0; k < line.length; ++k) {
            const CPoint pixel(line.from.x + line.step.x * k, line.from.y + line.step.y * k);
            const bool isHere = scratch.Has(pixel.x, pixel.y);
            painted.push_back(isHere && scratch.Pixel(pixel.x, pixel.y) != 0);
            if (isHere && !dots.empty() && painted.back() != dots[static_cast<std::size_t>(k) % dots.size()])
                return {};
        }
        if (&line == kTrials)
            dots = PeriodOf(painted);
        if (dots.empty())
            return {};
    }
    return dots;
}

DotPattern ToPattern(const std::vector<bool>& dots) {
    DotPattern pattern;
    pattern.period = static_cast<int>(dots.size());
    for (int k = 0; k < pattern.period; ++k)
        if (dots[static_cast<std::size_t>(k)])
            pattern.dots.push_back(k);
    return pattern;
}

const DotPattern& Dots() {
    static const DotPattern pattern = ToPattern(LearnDots());
    return pattern;
}

} // namespace

DottedPen::DottedPen(CDC& dc, COLORREF colour) : m_dc(dc), m_dots(Dots()), m_colour(DirectColour(colour)) {
    m_pen.CreatePen(PS_DOT, 0, colour);
    if (m_pen.GetSafeHandle() != nullptr && m_dots.period > 0 && m_colour && dc.GetBkMode() == TRANSPARENT)
        m_raster = DirectRaster(dc);
}

bool DottedPen::Draw(const CPoint& from, const CPoint& to) const {
    if (!m_raster)
        return false;
    POINT ends[2] = {from, to};
    m_dc.LPtoDP(ends, 2);
    if (ends[0].x != ends[1].x && ends[0].y != ends[1].y)
        return false;
    ::GdiFlush(); // GDI may have queued earlier calls: they must reach the memory first
    m_raster->Dots(ToPoint(ends[0]), ToPoint(ends[1]), m_dots, *m_colour);
    return true;
}

void DottedPen::DrawColumns(const std::vector<int>& columns, int from, int to) const {
    POINT ends[2] = {{0, from}, {0, to}};
    m_dc.LPtoDP(ends, 2);
    ::GdiFlush();
    m_raster->DotColumns(columns, static_cast<int>(ends[0].y), static_cast<int>(ends[1].y), m_dots,
                         *m_colour);
}

} // namespace kavlix
