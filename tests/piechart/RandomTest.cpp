// SPDX-License-Identifier: MIT
// Random pies against a literal painter: the piece that each pixel shows, and the piece that a click selects.
#include "tests/piechart/PieTest.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "plot/Numeric.h"

namespace {

using kavlix::kPi;

/// A pie as the literal painter sees it. The texts inside sectors have the sectors' colours, so that no text
/// hides a pixel there, except the white texts of a selected piece.
struct LiteralPie {
    std::vector<double> shares; ///< of the pieces, each value / total
    CRect square;
    int startAngle = 0;
    COLORREF back = 0, outline = 0, selection = 0;
    int selected = -1;

    CPoint Centre() const {
        return CPoint((square.left + square.right) / 2, (square.top + square.bottom) / 2);
    }
    double Radius() const { return square.Height() / 2.0; }
    bool HasRoom() const { return square.Width() > 0; }
    double Distance(CPoint point) const { return std::hypot(point.x - Centre().x, point.y - Centre().y); }

    /// The direction from the centre to a point, clockwise from twelve o'clock.
    double Angle(CPoint point) const {
        const double angle = std::atan2(point.x - Centre().x, Centre().y - point.y) * 180 / kPi;
        return angle < 0 ? angle + 360 : angle;
    }
    /// The first piece at which the running sum of spans reaches the angle; -1 when no piece does.
    int PieceAt(double angle) const {
        double sum = 0;
        for (std::size_t i = 0; i < shares.size(); ++i) {
            sum += shares[i] * 360;
            if (sum >= angle)
                return static_cast<int>(i);
        }
        return -1;
    }
    /// The piece that is painted at an angle from twelve o'clock.
    int PaintedAt(double angle) const { return PieceAt(std::fmod(angle - startAngle % 360 + 1080, 360)); }
    COLORREF Colour(int piece) const {
        return piece < 0 ? back : piece == selected ? selection : PieceColour(piece);
    }

    /// Whether a pixel may have this colour. Inside a sector only the sector's colour is allowed; on a line
    /// and on the rim, all colours that meet there.
    bool Allows(CPoint pixel, COLORREF colour, bool hasLeaders) const {
        constexpr double kUnsure = 2; // pixels on both sides of a line and of the rim
        const double distance = Distance(pixel);
        if (!HasRoom() || distance > Radius() + kUnsure)
            return colour == back || (hasLeaders && colour == outline);
        const double angle = Angle(pixel), turn = kUnsure / std::max(distance, 0.5) * 180 / kPi;
        const int piece = PaintedAt(angle);
        if (colour == Colour(piece) || (piece >= 0 && piece == selected && colour == RGB(255, 255, 255)))
            return true;
        const bool isOnRim = distance > Radius() - kUnsure;
        const double fromStart = std::fmod(angle - startAngle % 360 + 1080, 360);
        const bool isOnLine = turn > 180 || fromStart < turn || fromStart + turn > 360 ||
                              PaintedAt(angle - turn) != piece || PaintedAt(angle + turn) != piece;
        if (!isOnRim && !isOnLine)
            return false;
        if (colour == outline || (isOnRim && colour == back) || turn > 45)
            return true;
        for (int step = -8; step <= 8; ++step)
            if (colour == Colour(PaintedAt(angle + step * turn / 8)))
                return true;
        return turn > 1; // close to the centre, a thin sector can lie between two of these steps
    }
};

} // namespace

class PieRandomTest : public PieTest {
protected:
    static constexpr int kPieces = 9;

    unsigned Below(unsigned limit) { return random() % limit; }

    /// Gives the control a random size, pieces and colours, and `literal` the same.
    void Draw(bool isOdd) {
        const double odd[] = {0, -20, NAN, INFINITY, -INFINITY, 1e308, 5e-324};
        const CString texts[] = {
            "", "a b", "Label", "\xC3\xA9\xFF&& %s %n", CString(' ', 300), CString('w', 20000)};
        const CSize sizes[] = {{1, 1}, {2, 300}, {300, 2}, {40, 90}, {41, 41}, {43, 480}};
        pie.Reset();
        literal = {};
        CSize size(static_cast<int>(60 + Below(300)), static_cast<int>(60 + Below(250)));
        if (isOdd && Below(3) == 0)
            size = sizes[Below(std::size(sizes))];
        for (unsigned n = 1 + Below(kPieces); n > 0; --n) {
            const double value = isOdd && Below(4) == 0 ? odd[Below(std::size(odd))] : Below(40);
            const double total = isOdd && Below(10) == 0 ? odd[Below(std::size(odd))] : 100;
            const COLORREF colour = PieceColour(static_cast<int>(literal.shares.size()));
            ASSERT_EQ(pie.AddPiece(colour, colour, total, value, texts[Below(isOdd ? 6 : 3)]), 1);
            literal.shares.push_back(value / total);
        }
        literal.startAngle = pie.m_nStartAngle = Below(2) == 0 ? 0 : static_cast<int>(Below(2000)) - 1000;
        literal.back = pie.m_crBack = RGB(200 + Below(56), 240, 250);
        literal.outline = pie.m_crOutline = RGB(0, 0, Below(100));
        literal.selection = pie.m_crSelected = RGB(255, 0, Below(30));
        const int side = std::min(size.cx, size.cy) - 40;
        const CPoint corner((size.cx - side) / 2 - 15, (size.cy - side) / 2);
        literal.square = CRect(corner, CSize(side, side));
        pie.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
        pie.UpdateWindow();
    }

    /// Compares the pixels of the control with the literal pie, and the window on the
    /// screen with a new paint.
    void Compare() {
        const auto picture = Paint();
        testkit::DibSurface shown(picture->Width(), picture->Height());
        shown.Grab(pie.m_hWnd);
        EXPECT_EQ(testkit::Difference(*picture, shown), "") << "what must change has been repainted";
        EXPECT_EQ(pie.m_rcPie, literal.square);
        bool isMessage = true; // without a visible piece "No Data" is shown: pixels are not compared
        for (int angle = 1; angle < 360; ++angle)
            isMessage = isMessage && literal.PieceAt(angle) < 0;
        std::vector<CRect> boxes;
        bool isOutside = false;
        for (int i = 0; i < pie.m_arrPieces.GetSize(); ++i) {
            const CRect box = pie.At(i).m_rcItem;
            CRect common;
            if (box.IsRectEmpty())
                continue;
            isOutside = isOutside || literal.Distance(box.CenterPoint()) > literal.Radius();
            EXPECT_TRUE(literal.HasRoom());
            EXPECT_TRUE(common.IntersectRect(box, Client()) && common == box) << "box " << i;
            for (const CRect& other : boxes)
                EXPECT_FALSE(common.IntersectRect(box, other)) << "box " << i;
            boxes.push_back(box);
        }
        int wrong = 0;
        for (int y = 0; y < picture->Height() && !isMessage; ++y)
            for (int x = 0; x < picture->Width(); ++x) {
                const CPoint pixel(x, y);
                if (literal.Allows(pixel, picture->At(x, y), isOutside))
                    continue;
                const bool isText =
                    literal.Distance(pixel) > literal.Radius() &&
                    std::any_of(boxes.begin(), boxes.end(), [&](CRect box) { return box.PtInRect(pixel); });
                wrong += !isText;
            }
        EXPECT_EQ(wrong, 0);
        CompareLines(*picture);
    }

    /// Two wide sectors must have a line of the outline's colour between them, and one on their rim.
    void CompareLines(const testkit::DibSurface& picture) {
        const auto hasOutline = [&](CPoint at) {
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 1; ++dy)
                    if (picture.At(at.x + dx, at.y + dy) == literal.outline)
                        return true;
            return false;
        };
        if (literal.Radius() < 20)
            return;
        constexpr double kWide = 20; // degrees
        for (double angle = 0; angle < 360; angle += 0.5) {
            const double painted = angle + literal.startAngle % 360;
            const int before = literal.PaintedAt(painted), behind = literal.PaintedAt(painted + 0.5);
            const bool isWide = angle > kWide && angle + kWide < 360 &&
                                literal.PaintedAt(painted - kWide) == before &&
                                literal.PaintedAt(painted + kWide) == behind;
            if (isWide && (before != behind || before >= 0)) {
                // GDI's ellipse leaves out the last column and row, so its line lies a little inside.
                const double part = before != behind ? 0.7 : 1 - 0.7 / literal.Radius();
                EXPECT_TRUE(hasOutline(At(painted + 0.25, part))) << angle;
            }
        }
    }

    /// Clicks at a random place. Selection and notification must be those of the literal pie.
    void ClickSomewhere() {
        const CRect client = Client();
        const CPoint place(static_cast<int>(Below(static_cast<unsigned>(client.right))),
                           static_cast<int>(Below(static_cast<unsigned>(client.bottom))));
        const double distance = literal.Distance(place), angle = literal.Angle(place);
        const int piece = literal.PieceAt(angle);
        const bool isUnsure = std::fabs(distance - literal.Radius()) < 2 ||
                              literal.PieceAt(angle - 1e-6) != piece ||
                              literal.PieceAt(angle + 1e-6) != piece;
        if (literal.HasRoom() && isUnsure)
            return;
        const bool isHit = literal.HasRoom() && distance < literal.Radius() && distance > 0 && angle > 0;
        if (isHit)
            literal.selected = piece;
        parent.Forget();
        Click(place);
        EXPECT_EQ(pie.Selected(), literal.selected) << place.x << "," << place.y;
        EXPECT_EQ(parent.Log(), isHit && piece >= 0
                                    ? Strings{"notify -2 id 77 flags 1 piece " + std::to_string(piece)}
                                    : Strings());
        pie.UpdateWindow();
        EXPECT_TRUE(!isHit || std::fabs(pie.GetAngleFromPoint(place) - angle) < 1e-6);
    }

    std::mt19937 random{7};
    LiteralPie literal;
};

TEST_F(PieRandomTest, PicturesAndClicksAreThoseOfTheLiteralPie) {
    for (int run = 0; run < 60; ++run) {
        SCOPED_TRACE(run);
        Draw(run % 2 == 1);
        Compare();
        for (int click = 0; click < 6; ++click)
            ClickSomewhere();
        Compare();
        pie.SetWindowPos(nullptr, 0, 0, 35, 35, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOMOVE);
        pie.UpdateWindow();
        for (int i = 0; i < pie.m_arrPieces.GetSize(); ++i)
            EXPECT_TRUE(pie.At(i).m_rcItem.IsRectEmpty()) << "no room";
    }
}
