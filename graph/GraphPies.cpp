// SPDX-License-Identifier: MIT
// Pies, flat and tilted: their arrangement in the plot, their sectors and rims, and the shares in percent.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "graph/GraphPass.h"
#include "graph/GraphStyle.h"
#include "graph/core/Degrees.h"
#include "graph/core/LabelPlacement.h"
#include "graph/core/PieShapes.h"

namespace kavlix {
namespace {

constexpr double kSmallestPie = 48;      // pixels; least width and height of a pie's box, without its name
constexpr double kSmallestLabelled = 28; // pixels; smaller radius: no shares beside the pie
constexpr double kNameGap = 6;           // pixels reserved between a pie and its name
constexpr double kPieMargin = 6;         // pixels; both margins together of a pie without shares beside it
constexpr double kLeader = 10;           // pixels from the pie to the bend of a leader line
constexpr double kLeaderEnd = 6;         // pixels from the bend to the end of a leader line
constexpr double kTextGap = 3;           // pixels from the end of a leader line to the share
constexpr double kThinSector = 3;        // pixels; shorter arc: no white outline, which would hide the sector

constexpr double kTilt = 0.5;      // height of a tilted pie, as a fraction of its width
constexpr double kMostRim = 0.25;  // greatest height of a rim, as a fraction of the height of the pie's box
constexpr double kRimLight = 0.65; // light on the rim, for Shade
// Distances from the centre, as fractions of the radius, where the middle of a share's text is tried inside
// the sector.
constexpr double kInsideReaches[] = {0.66, 0.58, 0.74};

/// The text of a share: with one decimal place, or with none if that place would be 0. "<0.1%" if the share
/// would round to 0.0%.
CString ShareText(double percent) {
    constexpr double kShown = 0.05; // percent; half of 0.1, the last place shown
    CString text;
    if (percent < kShown)
        text = _T("<0.1%");
    else
        text.Format(std::abs(percent - std::round(percent)) < kShown ? _T("%.0f%%") : _T("%.1f%%"), percent);
    return text;
}

/// Black or white, whichever is easier to read on `ground`.
COLORREF InkOn(COLORREF ground) {
    constexpr int kMiddle = 140; // brightness from 0 to 255; darker colours get white text
    const int light = (GetRValue(ground) * 30 + GetGValue(ground) * 59 + GetBValue(ground) * 11) / 100;
    return light < kMiddle ? kPaper : kInk;
}

/// What all pies of a picture have in common. Lengths are in logical units.
struct PieStyle {
    double pixel = 1;
    double tilt = 1;     ///< height of a pie, as a fraction of its width
    double rim = 0;      ///< greatest height of the rim
    LabelSize share;     ///< size of the text "88.8%", about the widest of a share
    bool beside = false; ///< whether shares may stand beside the pies

    /// The height of the rim in a room of this height.
    double Rim(double height) const { return std::min(rim, height * kMostRim); }
    /// The largest radius of a pie, with its rim and the shares beside it, in a room of this size.
    double Radius(double width, double height) const {
        const double aside =
            beside ? share.width + (kLeader + kLeaderEnd + kTextGap) * pixel : kPieMargin * pixel / 2;
        const double above = beside ? share.height / 2 + kLeader * pixel : kPieMargin * pixel / 2;
        return std::min((width - 2 * aside) / 2, (height - 2 * above - Rim(height)) / (2 * tilt));
    }
};

/// One pie in its room, the rectangle that this pie has for its sectors, rim and shares.
class PiePainter {
public:
    PiePainter(const GraphPass& pass, GraphCanvas& canvas, const PlaneRect& room, const PieStyle& style)
        : m_pass(pass), m_canvas(canvas), m_room(room), m_style(style), m_rim(style.Rim(room.Height())) {
        const double radius = style.Radius(room.Width(), room.Height());
        m_pie.centre = {(room.left + room.right) / 2, (room.top + room.bottom - m_rim) / 2};
        m_pie.radiusX = std::max(radius, style.pixel);
        m_pie.radiusY = std::max(radius * style.tilt, style.pixel);
        m_lowest = m_pie.centre.y + m_pie.radiusY + m_rim;
    }

    /// Whether every share finds room inside its sector.
    bool HoldsShares(const std::vector<Sector>& sectors) const {
        return std::all_of(
            sectors.begin(), sectors.end(),
            [&](const Sector& sector) {
                PlanePoint place;
                return FindInside(sector, m_canvas.Measure(ShareText(sector.percent)), place);
            });
    }
    /// The y of the lower edge of what Draw has drawn.
    double Lowest() const { return m_lowest; }

    void Draw(const std::vector<Sector>& sectors) {
        // The rims are drawn first, so that the sectors' outlines cover the upper edges of the rims. Thin
        // sectors are drawn last, so that the outlines of wide neighbours do not cover them.
        for (const bool thin : {false, true})
            for (const Sector& sector : sectors)
                if (m_rim > 0 && IsThin(sector) == thin)
                    for (const RimArc& arc : VisibleRim(sector.start, sector.sweep)) {
                        Fill(Shade(Colour(sector), kRimLight), thin);
                        m_canvas.Polygon(RimCorners(m_pie, arc, m_rim));
                    }
        for (const bool thin : {false, true})
            for (const Sector& sector : sectors)
                if (IsThin(sector) == thin) {
                    Fill(Colour(sector), thin);
                    m_canvas.Polygon(SectorCorners(m_pie, sector.start, sector.sweep));
                }
        if (sectors.empty()) {
            m_canvas.SetLine(kGrey);
            m_canvas.NoFill();
            m_canvas.Polygon(SectorCorners(m_pie, 0, kFullTurn));
        }
        DrawShares(sectors);
    }

private:
    COLORREF Colour(const Sector& sector) const { return m_pass.data.Colour(sector.group); }
    bool IsThin(const Sector& sector) const { return m_pie.ArcLength(sector) < kThinSector * m_style.pixel; }
    void Fill(COLORREF colour, bool thin) {
        m_canvas.SetFill(colour);
        m_canvas.SetLine(thin ? colour : kPaper);
    }

    /// Finds a `place` for the upper left corner of a share's text, so that the text lies inside its sector.
    /// False when the text is too large.
    bool FindInside(const Sector& sector, const LabelSize& size, PlanePoint& place) const {
        for (const double reach : kInsideReaches) {
            const PlanePoint middle =
                sector.sweep < kFullTurn ? m_pie.At(sector.Middle(), reach) : m_pie.centre;
            place = {middle.x - size.width / 2, middle.y - size.height / 2};
            const double gap = m_style.pixel;
            if (m_pie.Holds(sector,
                            {place.x - gap, place.y, place.x + size.width + gap, place.y + size.height}))
                return true;
        }
        return false;
    }

    void DrawShares(const std::vector<Sector>& sectors) {
        std::vector<const Sector*> outside[2]; // right and left of the pie
        for (const Sector& sector : sectors) {
            CString text;
            PlanePoint place;
            // Measuring text is slow, and no text fits into a sector with an arc below half a line's height.
            bool inside = m_pie.ArcLength(sector) >= m_style.share.height / 2;
            if (inside) {
                text = ShareText(sector.percent);
                inside = FindInside(sector, m_canvas.Measure(text), place);
            }
            if (inside) {
                m_canvas.Dc().SetTextColor(InkOn(Colour(sector)));
                m_canvas.Text(place, text);
            } else if (m_style.beside) {
                outside[sector.Middle() > kHalfTurn].push_back(&sector);
            }
        }
        m_canvas.Dc().SetTextColor(m_canvas.HostInk());
        std::reverse(outside[1].begin(), outside[1].end()); // both sides from the top down
        DrawOutside(outside[0], 1);
        DrawOutside(outside[1], -1);
    }

    /// A strict order: of two sectors with the same share the later one counts as larger.
    static bool IsLarger(const Sector* a, const Sector* b) {
        return a->percent != b->percent ? a->percent > b->percent : a->start > b->start;
    }

    /// The point `reach` logical units outside the middle of a sector's arc. On the front half of the pie
    /// `reach` counts from the lower edge of the rim.
    PlanePoint RimPoint(const Sector& sector, double reach) const {
        PlanePoint point = m_pie.At(sector.Middle(), 1);
        if (sector.Middle() > kQuarterTurn && sector.Middle() < kHalfTurn + kQuarterTurn)
            point.y += m_rim;
        const PlanePoint direction = m_pie.At(sector.Middle(), 2);
        const double x = direction.x - m_pie.centre.x;
        const double y = direction.y - m_pie.centre.y;
        const double length = std::max(std::hypot(x, y), 1e-6);
        return {point.x + x / length * reach, point.y + y / length * reach};
    }

    /// Draws the shares on one side of the pie, from the top down, each with a leader line to its sector.
    /// `side` is 1 for the right side, -1 for the left. If not all have room, the smallest ones are left out.
    void DrawOutside(std::vector<const Sector*> sectors, double side) {
        const double pixel = m_canvas.Pixel();
        const double most = std::max(std::floor(m_room.Height() / m_style.share.height), 0.0);
        if (static_cast<double>(sectors.size()) > most) {
            std::vector<const Sector*> bySize = sectors;
            const auto kept = bySize.begin() + static_cast<std::ptrdiff_t>(most);
            std::nth_element(bySize.begin(), kept, bySize.end(), IsLarger);
            const Sector* const largestLeftOut = *kept;
            sectors.erase(
                std::remove_if(sectors.begin(), sectors.end(),
                               [&](const Sector* sector) { return !IsLarger(sector, largestLeftOut); }),
                sectors.end());
        }
        std::vector<double> middles;
        for (const Sector* sector : sectors)
            middles.push_back(RimPoint(*sector, kLeader * pixel).y);
        SpreadMiddles(middles, m_style.share.height, m_room.top, m_room.bottom);
        m_canvas.SetLine(kGrey);
        for (std::size_t i = 0; i < sectors.size(); ++i) {
            const CString text = ShareText(sectors[i]->percent);
            const double bend = side * (RimPoint(*sectors[i], kLeader * pixel).x - m_pie.centre.x);
            const double x = m_pie.centre.x + side * std::max(bend, Beside(middles[i]));
            const double end = x + side * kLeaderEnd * pixel;
            m_canvas.Polyline({RimPoint(*sectors[i], 0), {x, middles[i]}, {end, middles[i]}});
            const double width = m_canvas.Measure(text).width;
            m_canvas.Text({side > 0 ? end + kTextGap * pixel : end - kTextGap * pixel - width,
                           middles[i] - m_style.share.height / 2},
                          text);
            m_lowest = std::max(m_lowest, middles[i] + m_style.share.height / 2);
        }
    }

    /// The horizontal distance from the pie's centre at which a leader line's bend at `y`, and the share
    /// beside it, do not touch the pie or its rim. 0 if the share lies wholly above the pie or below the rim.
    double Beside(double y) const {
        const double lowest = m_pie.centre.y + m_rim;
        const double half = m_style.share.height / 2;
        const double away = std::max({0.0, y - half - lowest, m_pie.centre.y - y - half}) / m_pie.radiusY;
        return away < 1 ? m_pie.radiusX * std::sqrt(1 - away * away) + kLeader * m_canvas.Pixel() : 0;
    }

    const GraphPass& m_pass;
    GraphCanvas& m_canvas;
    PlaneRect m_room;
    const PieStyle& m_style;
    double m_rim;
    PieOutline m_pie;
    double m_lowest;
};

/// Draws a pie for each series. `tilt` is the height of a pie as a fraction of its width, `rim` the greatest
/// height of the rims.
void DrawPies(GraphPass& pass, double tilt, double rim) {
    GraphCanvas& canvas = pass.canvas;
    const int count = pass.data.SeriesCount();
    if (count == 0)
        return;
    const double pixel = canvas.Pixel();
    const PlaneRect& plot = pass.plot;
    const GraphFont font(canvas, pass.labelFont);
    const double nameHeight = count > 1 ? canvas.Character().height + kNameGap * pixel : 0;
    const auto sectorsOf = [&](int s) { return MakeSectors(pass.data.Groups(s)); };
    PieStyle style{pixel, tilt, rim, canvas.Measure(_T("88.8%")), false};
    PieGrid grid;
    const auto arrange = [&](bool beside) {
        style.beside = beside;
        grid = ArrangePies(count, plot.Width(), plot.Height(), kSmallestPie * pixel + nameHeight,
                           [&](double w, double h) { return style.Radius(w, h - nameHeight); });
    };
    const auto roomOf = [&](int s) {
        const double width = plot.Width() / grid.columns;
        const double height = plot.Height() / grid.rows;
        const int row = s / grid.columns;
        const int inRow = std::min(grid.columns, count - row * grid.columns);
        const double left = (plot.left + plot.right - inRow * width) / 2 + s % grid.columns * width;
        const double top = plot.top + row * height;
        return PlaneRect{left, top, left + width, top + height - nameHeight};
    };
    // Shares stand beside the pies only when some do not fit inside and the pies stay large enough.
    arrange(false);
    bool inside = true;
    for (int s = 0; s < std::min(count, grid.columns * grid.rows) && inside; ++s)
        inside = PiePainter(pass, canvas, roomOf(s), style).HoldsShares(sectorsOf(s));
    if (!inside) {
        arrange(true);
        if (style.Radius(roomOf(0).Width(), roomOf(0).Height()) < kSmallestLabelled * pixel)
            arrange(false);
    }

    const int shown = std::min(count, grid.columns * grid.rows);
    // When pies are left out, the last room shows their number instead of a pie. With a single room the
    // number follows the name of its pie.
    const int pies = shown < count ? std::max(shown - 1, 1) : shown;
    CString more;
    if (pies < count)
        more.Format(_T("+ %d more"), count - pies);
    for (int s = 0; s < shown; ++s) {
        const PlaneRect room = roomOf(s);
        double bottom = room.bottom;
        CString text;
        const double nameRoom = room.Width() - kPieMargin * pixel;
        if (s < pies) {
            PiePainter painter(pass, canvas, room, style);
            painter.Draw(sectorsOf(s));
            bottom = std::min(bottom, painter.Lowest() + kNameGap * pixel);
            const CString beside = s + 1 == shown && pies < count ? _T("  ") + more : CString();
            const CString& name = pass.data.Series(s).label;
            text = canvas.Shorten(name, nameRoom - canvas.Measure(beside).width) + beside;
        } else {
            text = more;
        }
        if (count > 1)
            canvas.Text({room.left + (room.Width() - canvas.Measure(text).width) / 2, bottom + pixel}, text);
    }
}

} // namespace

void PaintPies(GraphPass& pass) {
    DrawPies(pass, 1, 0);
}

void PaintSolidPies(GraphPass& pass) {
    const double rim = pass.depthRatio > 0 ? std::min(pass.depthRatio, 1.0) * pass.plot.Width() : 0;
    DrawPies(pass, kTilt, rim);
}

} // namespace kavlix
