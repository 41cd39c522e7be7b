#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>
#include <vector>

#include "piechart/core/PieGeometry.h"

namespace kavlix {
namespace {

struct Share {
    double value, total;
};

std::vector<PieSector> Walk(const std::vector<Share>& shares) {
    PieRunningSum walk;
    std::vector<PieSector> sectors;
    for (const Share& share : shares)
        sectors.push_back(walk.Add(share.value, share.total));
    return sectors;
}

/// The first piece whose sum reaches the angle, by a plain sum.
int Search(const std::vector<Share>& shares, double angle) {
    double sum = 0;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        sum += shares[i].value / shares[i].total * 360.0;
        if (sum >= angle)
            return static_cast<int>(i);
    }
    return -1;
}

TEST(PieGeometryTest, SquareIsCentredAndShiftedToTheLeft) {
    const struct {
        Rect client, pie;
    } cases[] = {
        {{0, 0, 300, 200}, {55, 20, 215, 180}},   {{0, 0, 200, 300}, {5, 70, 165, 230}},
        {{10, 20, 310, 220}, {65, 40, 225, 200}}, {{0, 0, 301, 201}, {55, 20, 216, 181}},
        {{0, 0, 40, 90}, {5, 45, 5, 45}},         {{0, 0, 1, 1}, {5, 20, -34, -19}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(PieSquare(each.client), each.pie) << each.client.right << " " << each.client.bottom;
}

TEST(PieGeometryTest, AnglesRunClockwiseFromTwelve) {
    const Rect pie{55, 20, 215, 180};
    const struct {
        Point point;
        double angle;
    } cases[] = {
        {{135, 100}, -1},  {{135, 99}, 0},    {{135, 20}, 0},   {{145, 90}, 45},   {{136, 100}, 90},
        {{235, 200}, 135}, {{135, 101}, 180}, {{35, 200}, 225}, {{134, 100}, 270}, {{125, 90}, 315},
    };
    for (const auto& each : cases)
        EXPECT_NEAR(AngleOfPoint(pie, each.point), each.angle, 1e-7) << each.point.x << "," << each.point.y;
    EXPECT_EQ(AngleOfPoint(pie, {136, 100}), 90.0);
    EXPECT_EQ(AngleOfPoint(pie, {135, 101}), 180.0);
    EXPECT_EQ(AngleOfPoint(pie, {135, 99}), 0.0);
    EXPECT_NEAR(AngleOfPoint(pie, {INT_MAX, INT_MIN}), 45, 1e-4);
    // An odd square has its centre between two pixels; angles are seen from the one to the left and above.
    EXPECT_EQ(AngleOfPoint({0, 0, 3, 3}, {1, 1}), -1.0);
    EXPECT_EQ(PieCentre({-3, -3, 0, 0}), (Point{-1, -1})) << "toward zero";
}

TEST(PieGeometryTest, PointsOnRimAndLabelCircleAreTruncated) {
    const Rect pie{55, 20, 216, 181}; // centre 135.5, 100.5; radius 80.5
    const struct {
        double angle;
        bool inner;
        Point point;
    } cases[] = {
        {0, false, {135, 20}},   {90, false, {216, 100}}, {180, false, {135, 181}}, {270, false, {55, 100}},
        {0, true, {135, 52}},    {90, true, {183, 100}},  {45, false, {192, 43}},   {45, true, {169, 66}},
        {225, true, {101, 134}}, {-90, false, {55, 100}},
    };
    for (const auto& each : cases) {
        const Point found = PointOnPie(pie, each.angle, each.inner);
        EXPECT_EQ(found.x, each.point.x) << each.angle << each.inner;
        EXPECT_NEAR(found.y, each.point.y, each.angle == 90 || std::fabs(each.angle) == 270 ? 1 : 0)
            << each.angle << each.inner;
    }
    EXPECT_EQ(PointOnPie({-30, -30, -10, -10}, 45, false), (Point{-12, -27})) << "toward zero";
    EXPECT_EQ(PointOnPie(pie, NAN, false), (Point{0, 0}));
}

TEST(PieGeometryTest, LineInASectorKeepsItsDistance) {
    const Rect pie{55, 20, 215, 180};
    for (const double span : {20.0, 60.0, 179.0, 181.0, 300.0, 355.0, 360.0}) {
        const std::vector<Point> line = LineInSector(pie, 70, 70 + span, 4);
        ASSERT_GE(line.size(), 4u) << span;
        EXPECT_EQ(line.front(), line.back());
        for (const Point& point : line) {
            const double from = PieRadians(std::fmod(AngleOfPoint(pie, point) - 70 + 720, 360));
            const double away = std::min(from, PieRadians(span) - from);
            const double distance = std::hypot(point.x - 135, point.y - 100);
            EXPECT_LT(distance, 77);
            EXPECT_TRUE(span == 360 || away > 1.57 || distance * std::sin(away) > 2.5) << span;
        }
    }
    EXPECT_TRUE(LineInSector(pie, 10, 12, 4).empty()) << "no room";
}

TEST(PieGeometryTest, SectorsOfOddPieces) {
    const struct {
        const char* name;
        std::vector<Share> shares;
        std::vector<std::pair<double, double>> sectors;
        std::vector<bool> hasPlace;
    } cases[] = {
        {"more than the whole",
         {{75, 100}, {50, 100}, {5, 100}},
         {{0, 270}, {270, 360}, {360, 360}},
         {true, true, false}},
        {"nothing, first, between and last",
         {{0, 4}, {2, 4}, {0, 4}, {2, 4}, {0, 4}},
         {{0, 0}, {0, 180}, {180, 180}, {180, 360}, {360, 360}},
         {true, true, true, true, true}},
        {"negative first", {{-1, 4}, {0, 4}, {2, 4}}, {{0, 0}, {0, 0}, {0, 90}}, {false, false, true}},
        {"0 of 0", {{1, 4}, {0, 0}, {1, 4}}, {{0, 90}, {90, 90}, {90, 90}}, {true, false, false}},
        {"infinite total", {{1, INFINITY}, {1, 4}}, {{0, 0}, {0, 90}}, {true, true}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const std::vector<PieSector> sectors = Walk(each.shares);
        for (std::size_t i = 0; i < sectors.size(); ++i) {
            EXPECT_EQ(sectors[i].begin, each.sectors[i].first) << i;
            EXPECT_EQ(sectors[i].end, each.sectors[i].second) << i;
            EXPECT_EQ(sectors[i].hasPlace, each.hasPlace[i]) << i;
        }
    }
}

TEST(PieGeometryTest, SectorsAreWhatTheSearchFinds) {
    const double odd[] = {0, -1, 1e308, -1e308, 5e-324, NAN, INFINITY, -INFINITY};
    std::mt19937 random(5);
    for (int run = 0; run < 2000; ++run) {
        std::vector<Share> shares;
        for (unsigned n = random() % 8; n > 0; --n)
            shares.push_back({random() % 6 == 0 ? odd[random() % std::size(odd)] : random() % 50 - 5.0,
                              random() % 20 == 0 ? odd[random() % std::size(odd)] : 100.0});
        const std::vector<PieSector> sectors = Walk(shares);
        for (int i = 1; i < 360; ++i) {
            const double angle = i + 0.123;
            int covered = -1;
            for (std::size_t k = 0; k < sectors.size(); ++k)
                if (angle > sectors[k].begin && angle <= sectors[k].end)
                    covered = static_cast<int>(k);
            ASSERT_EQ(covered, Search(shares, angle)) << "run " << run << " angle " << angle;
        }
    }
}

} // namespace
} // namespace kavlix
