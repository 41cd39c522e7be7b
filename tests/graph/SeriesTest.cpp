// SPDX-License-Identifier: MIT
// The series that the plain painter leaves out: pies and ribbons.
#include "tests/graph/MultiGraphTest.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "plot/Numeric.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

int Pixel(double position) {
    return static_cast<int>(position + 0.5);
}

} // namespace

class GraphSeriesTest : public MultiGraphTest {};

TEST_F(GraphSeriesTest, PiesShareTheCircle) {
    for (const int type : {2, 32}) {
        Make(type);
        Add("a", {{0, 25}, {1, 0}, {2, 50}, {3, 25}});
        const auto surface = Paint();
        const RECT box = surface->Bounds(kColours[0]); // the first quarter
        const int cx = box.left, cy = box.bottom, rx = box.right - box.left, ry = box.bottom - box.top;
        const auto at = [&](double degrees, double reach) {
            const double a = degrees * kavlix::kPi / 180;
            return surface->At(Pixel(cx + rx * reach * std::sin(a)), Pixel(cy - ry * reach * std::cos(a)));
        };
        EXPECT_EQ(at(3, 0.9), kColours[0]);
        EXPECT_EQ(at(94, 0.9), kColours[2]) << "a value of 0 has no sector";
        EXPECT_EQ(at(274, 0.9), kColours[3]);
        EXPECT_EQ(at(10, 1.03), kWhite);
        EXPECT_EQ(at(180, 1.04), type == 32 ? RGB(0, 0, 130) : kWhite) << "the rim in front";
        EXPECT_EQ(surface->Count(RGB(130, 0, 0)), 0) << "no rim behind";
        EXPECT_EQ(Record()->LinesFrom("polygon").size(), type == 32 ? 3u + 1u : 3u)
            << "one rim faces the viewer";
        EXPECT_EQ(rx > ry + 50, type == 32);
        EXPECT_EQ(Record()->Texts(), (Strings{"25%", "50%", "25%"}));
        Make(type);
        Fill({{500, 1, 500}});
        EXPECT_GT(Paint()->Count(kColours[1]), 20) << "a sector of a thousandth";
    }
    Make(2);
    for (int s = 0; s < 300; ++s)
        Add("pie", {{0, 1}});
    EXPECT_EQ(Record()->Texts().back().substr(0, 2), "+ ") << "tells how many pies found no room";
    Make(2);
    Fill({{0, -5}});
    EXPECT_EQ(Record()->LinesFrom("polygon").size(), 1u) << "an empty outline";
}

TEST_F(GraphSeriesTest, EachRowOfPiesStandsInTheMiddle) {
    Make(2);
    Fill({{1}, {1}, {1}, {1}, {1}});
    std::map<LONG, std::vector<LONG>> rows; // the left and right ends of the pies, by their top
    const auto recorder = Record();
    for (const auto& record : recorder->Records()) {
        if (record.kind != testkit::kPolygon)
            continue;
        const auto byX = [](const POINT& a, const POINT& b) { return a.x < b.x; };
        const auto byY = [](const POINT& a, const POINT& b) { return a.y < b.y; };
        const auto [left, right] = std::minmax_element(record.points.begin(), record.points.end(), byX);
        auto& row = rows[std::min_element(record.points.begin(), record.points.end(), byY)->y];
        row.insert(row.end(), {left->x, right->x});
    }
    ASSERT_EQ(rows.size(), 2u);
    const auto &upper = rows.begin()->second, &lower = rows.rbegin()->second;
    EXPECT_EQ(upper.size() + lower.size(), 10u);
    EXPECT_NE(upper.size(), lower.size());
    EXPECT_NEAR(upper.front() + upper.back(), lower.front() + lower.back(), 2);
}

TEST_F(GraphSeriesTest, RibbonsStandBehindEachOther) {
    Make(31).Set3DLineBase(20, 10);
    Fill({{30, 60}, {10, 50}, {20, 70}});
    const auto recorder = Record();
    std::vector<std::vector<POINT>> ribbons;
    Strings pens;
    for (const auto& record : recorder->Records())
        if (record.kind == testkit::kPolygon && record.state.pen != "solid 1 B0B0B0") {
            ribbons.push_back(record.points);
            pens.push_back(record.state.pen);
        }
    EXPECT_EQ(pens, (Strings{"solid 1 006E00", "solid 1 006E00", "solid 1 6E0000", "solid 1 6E0000"}));
    ASSERT_EQ(ribbons.size(), 4u);
    EXPECT_EQ(ribbons[0][3].x - ribbons[0][0].x, 20) << "as deep as told";
    EXPECT_EQ(ribbons[0][0].y - ribbons[0][3].y, 10);
    EXPECT_EQ(ribbons[0][0].x - ribbons[2][0].x, 20) << "the second one begins where the first ends";
    const double extent = graph->yAxisHeight - 2 * 10;
    EXPECT_NEAR(ribbons[2][0].y, graph->yApexPoint - 0.3 * extent, 1);
    EXPECT_NEAR(ribbons[2][1].y, graph->yApexPoint - 0.1 * extent, 1);
}
