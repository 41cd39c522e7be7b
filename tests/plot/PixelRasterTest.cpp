#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <vector>

#include "plot/StrokeCut.h"
#include "plot/ThinLine.h"

namespace kavlix {
namespace {

constexpr int kSide = 40;
constexpr std::uint32_t kInk = 7;
using Picture = std::vector<std::uint32_t>;

/// Every pixel of a stroke one by one: along the longer direction, halves to the smaller coordinate.
void PlainStroke(Picture& picture, const Rect& clip, Point from, Point to) {
    const long long dx = std::llabs(static_cast<long long>(to.x) - from.x);
    const long long dy = std::llabs(static_cast<long long>(to.y) - from.y);
    const int sx = to.x < from.x ? -1 : 1, sy = to.y < from.y ? -1 : 1;
    const bool steep = dy > dx;
    const long long along = std::max(dx, dy), across = std::min(dx, dy);
    const long long half = (steep ? sx : sy) < 0 ? 0 : 1;
    for (long long k = 0; k < along; ++k) {
        const long long moved = (2 * k * across + along - half) / (2 * along);
        const long long x = from.x + sx * (steep ? moved : k), y = from.y + sy * (steep ? k : moved);
        if (x >= clip.left && x < clip.right && y >= clip.top && y < clip.bottom)
            picture[static_cast<std::size_t>(y * kSide + x)] = kInk;
    }
}

TEST(PixelRasterTest, LinesAreThoseOfSinglePixels) {
    std::mt19937 random(21);
    const auto within = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const Rect clips[] = {{0, 0, kSide, kSide}, {7, 11, 31, 29}, {20, 0, 21, kSide}, {5, 5, 5, 9}};
    for (int round = 0; round < 40000; ++round) {
        const Rect& clip = clips[round % 4];
        const int far = round % 7 == 0 ? 3000 : round % 3 == 0 ? 100 : 3;
        std::vector<Point> line(static_cast<std::size_t>(within(0, 6)));
        Point at{within(-5, kSide + 5), within(-5, kSide + 5)};
        for (Point& point : line) {
            at.x += within(-far, far) * within(0, 1);
            at.y += within(-2 * far, 2 * far);
            point = at;
        }
        Picture own(kSide * kSide), plain(kSide * kSide);
        // Rows upwards in memory are told by a stride below 0.
        const bool upwards = round % 2 == 0;
        PixelRaster raster(upwards ? own.data() + (kSide - 1) * kSide : own.data(), upwards ? -kSide : kSide,
                           clip);
        ThinLine strokes(raster, kInk);
        for (const Point& point : line)
            strokes.To(point.x, point.y);
        strokes.End();
        for (std::size_t i = 1; i < line.size(); ++i)
            PlainStroke(plain, clip, line[i - 1], line[i]);
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                ASSERT_EQ(own[static_cast<std::size_t>((upwards ? kSide - 1 - y : y) * kSide + x)],
                          plain[static_cast<std::size_t>(y * kSide + x)])
                    << "round " << round << " at " << x << "," << y;
    }
}

TEST(StrokeCutTest, NearStrokesPaintWhatTheFarOnePaints) {
    std::mt19937 random(8);
    const auto within = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const Rect windows[] = {{0, 0, kSide, kSide}, {3, 17, 38, 22}, {20, 2, 21, 39}};
    std::vector<Point> cut;
    std::size_t strokes = 0, pieces = 0;
    for (int round = 0; round < 60000; ++round) {
        // From inside to far away, and from far to far through a place inside; now and then nearly level.
        const Rect& window = windows[round % 3];
        const int far = 1 << within(3, 27), margin = within(1, 30);
        const Point at{within(-2, kSide + 2), within(-2, kSide + 2)};
        const Point way{within(-far, far), round % 7 == 0 ? within(-3, 3) : within(-far, far)};
        const Point from =
            round % 4 == 0 ? at : Point{at.x - way.x + within(-9, 9), at.y - way.y + within(-9, 9)};
        const Point to = round % 4 == 1 ? at : Point{at.x + way.x, at.y + way.y};
        Picture whole(kSide * kSide), parts(kSide * kSide);
        PixelRaster(whole.data(), kSide, window).Stroke(from, to, kInk);
        CutStroke(PixelLine(from, to), window, margin, cut);
        for (std::size_t i = 0; i < cut.size(); ++i) {
            ASSERT_TRUE(cut[i] == from || cut[i] == to ||
                        (cut[i].x >= window.left - margin && cut[i].x < window.right + margin &&
                         cut[i].y >= window.top - margin && cut[i].y < window.bottom + margin))
                << "round " << round;
            if (i > 0)
                PixelRaster(parts.data(), kSide, window).Stroke(cut[i - 1], cut[i], kInk);
        }
        ASSERT_EQ(parts, whole) << "round " << round;
        ASSERT_EQ(cut.empty(), std::find(whole.begin(), whole.end(), kInk) == whole.end())
            << "round " << round;
        strokes += !cut.empty();
        pieces += cut.empty() ? 0 : cut.size() - 1;
    }
    EXPECT_LT(pieces, strokes * 3) << "enlarged, single pixels would show as squares";
}

TEST(PixelRasterTest, DotsCountFromTheLinesFirstPixelWhereverItLies) {
    const Rect clip{3, 4, 30, 25};
    const DotPattern pattern{{0, 1, 3}, 5};
    const auto isDot = [](int k) { return k % 5 == 0 || k % 5 == 1 || k % 5 == 3; };
    for (int begin : {-23, 0, 7, 39, 70}) {
        for (int end : {-9, 7, 22, 60}) {
            for (bool isUpright : {false, true}) {
                Picture picture(kSide * kSide), plain(kSide * kSide);
                const auto at = [&](int along) { return isUpright ? Point{9, along} : Point{along, 9}; };
                PixelRaster(picture.data(), kSide, clip).Dots(at(begin), at(end), pattern, kInk);
                for (int k = 0; k < std::abs(end - begin); ++k) {
                    const Point p = at(end < begin ? begin - k : begin + k);
                    if (clip.Contains(p) && isDot(k))
                        plain[static_cast<std::size_t>(p.y * kSide + p.x)] = kInk;
                }
                ASSERT_EQ(picture, plain) << begin << " to " << end << (isUpright ? " upright" : "");
                Picture columns(kSide * kSide);
                PixelRaster(columns.data(), kSide, clip).DotColumns({-5, 9, 70}, begin, end, pattern, kInk);
                ASSERT_TRUE(!isUpright || columns == plain) << begin << " to " << end;
            }
        }
    }
}

TEST(PixelRasterTest, FillsStayInsideTheClip) {
    const Rect clip{3, 4, 30, 25};
    for (const Rect& area : {Rect{-9, -9, 99, 99}, Rect{5, 6, 9, 8}, Rect{5, 6, 6, 99}, Rect{5, 6, 5, 9},
                             Rect{9, 9, 5, 20}, Rect{9, 20, 12, 9}, Rect{29, 0, 31, 9}, Rect{2, 0, 4, 50}}) {
        Picture picture(kSide * kSide);
        PixelRaster(picture.data(), kSide, clip).Fill(area, kInk);
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x)
                ASSERT_EQ(picture[static_cast<std::size_t>(y * kSide + x)] == kInk,
                          area.Contains({x, y}) && clip.Contains({x, y}))
                    << x << "," << y;
    }
}

} // namespace
} // namespace kavlix
