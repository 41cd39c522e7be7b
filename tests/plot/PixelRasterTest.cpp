// SPDX-License-Identifier: MIT
// PixelRaster, ThinLine and CutStroke against walks over single pixels.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "plot/StrokeCut.h"
#include "plot/ThinLine.h"
#include "tests/support/Numbers.h"

namespace kavlix {
namespace {

constexpr int kSide = 40;
constexpr std::uint32_t kInk = 7;
using Picture = std::vector<std::uint32_t>;

class Random : public testkit::Numbers {
public:
    using Numbers::Numbers;
    int Within(int low, int high) { return low + Below(high - low + 1); }
    Point Near() { return {Within(-5, kSide + 5), Within(-5, kSide + 5)}; }
};

void Set(Picture& picture, const Rect& clip, const Point& pixel) {
    if (clip.Contains(pixel))
        picture[static_cast<std::size_t>(pixel.y * kSide + pixel.x)] = kInk;
}

/// Calls `visit(pixel, k)` for each pixel k of a stroke but the last one. Halfway between two pixels the
/// smaller coordinate counts.
template <class Visit> void Walk(const Point& from, const Point& to, Visit visit) {
    const long long dx = std::llabs(static_cast<long long>(to.x) - from.x);
    const long long dy = std::llabs(static_cast<long long>(to.y) - from.y);
    const int sx = to.x < from.x ? -1 : 1, sy = to.y < from.y ? -1 : 1;
    const bool steep = dy > dx;
    const long long along = std::max(dx, dy), across = std::min(dx, dy);
    const long long half = (steep ? sx : sy) < 0 ? 0 : 1;
    for (long long k = 0; k < along; ++k) {
        const long long moved = (2 * k * across + along - half) / (2 * along);
        visit(Point{static_cast<int>(from.x + sx * (steep ? moved : k)),
                    static_cast<int>(from.y + sy * (steep ? k : moved))},
              static_cast<int>(k));
    }
}

void PaintLine(Random& random, const PixelRaster& raster, Picture& plain, int far) {
    ThinLine line(raster, kInk);
    Point at = random.Near();
    for (int count = random.Within(0, 6); count > 0; --count) {
        const Point before = at;
        at.x += random.Within(-far, far) * random.Within(0, 1);
        at.y += random.Within(-2 * far, 2 * far);
        line.To(before.x, before.y);
        line.To(at.x, at.y);
        Walk(before, at, [&](const Point& pixel, int) { Set(plain, raster.Clip(), pixel); });
    }
    line.End();
}

void PaintDots(Random& random, const PixelRaster& raster, Picture& plain) {
    const DotPattern pattern{{0, 1, 3}, 5};
    const bool isUpright = random.OneIn(2), isColumns = random.OneIn(2);
    const Point from = random.Near();
    const int end = random.Within(-60, 100);
    const Point to = isUpright ? Point{from.x, end} : Point{end, from.y};
    if (isUpright && isColumns)
        raster.DotColumns({-5, from.x, 70}, from.y, end, pattern, kInk);
    else
        raster.Dots(from, to, pattern, kInk);
    Walk(from, to, [&](const Point& pixel, int k) {
        if (k % 5 == 0 || k % 5 == 1 || k % 5 == 3)
            Set(plain, raster.Clip(), pixel);
    });
}

void PaintFill(Random& random, const PixelRaster& raster, Picture& plain) {
    const Point corner = random.Near();
    const Rect area{corner.x, corner.y, corner.x + random.Within(-2, 9), corner.y + random.Within(-2, 50)};
    raster.Fill(area, kInk);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            if (area.Contains({x, y}))
                Set(plain, raster.Clip(), {x, y});
}

void PaintLayer(Random& random, const PixelRaster& raster, Picture& plain) {
    const Point corner = random.Near();
    const Rect area{corner.x, corner.y, corner.x + random.Within(0, 50), corner.y + random.Within(0, 20)};
    const int stride = area.Width() + random.Within(0, 3);
    Picture layer(static_cast<std::size_t>(stride * area.Height()) + 1);
    for (std::uint32_t& pixel : layer)
        pixel = random.OneIn(3) ? kInk : PixelRaster::kSeeThrough;
    raster.Overlay(layer.data(), stride, area);
    for (int y = 0; y < area.Height(); ++y)
        for (int x = 0; x < area.Width(); ++x)
            if (layer[static_cast<std::size_t>(y * stride + x)] == kInk)
                Set(plain, raster.Clip(), {area.left + x, area.top + y});
}

TEST(PixelRasterTest, PaintsThePixelsOfAWalkInsideTheClip) {
    Random random(21);
    const Rect clips[] = {{0, 0, kSide, kSide}, {7, 11, 31, 29}, {20, 0, 21, kSide}, {5, 5, 5, 9}};
    for (int round = 0; round < 40000; ++round) {
        Picture own(kSide * kSide), plain(kSide * kSide);
        // A negative stride: the bottom row comes first in memory.
        const bool isUpwards = round % 2 == 0;
        const PixelRaster raster(isUpwards ? own.data() + (kSide - 1) * kSide : own.data(),
                                 isUpwards ? -kSide : kSide, clips[random.Below(4)]);
        if (round % 10 < 2)
            PaintDots(random, raster, plain);
        else if (round % 10 < 4)
            PaintFill(random, raster, plain);
        else if (round % 10 < 5)
            PaintLayer(random, raster, plain);
        else
            PaintLine(random, raster, plain, round % 7 == 0 ? 3000 : round % 3 == 0 ? 100 : 3);
        for (int y = 0; isUpwards && y < kSide / 2; ++y)
            std::swap_ranges(own.begin() + y * kSide, own.begin() + (y + 1) * kSide,
                             own.end() - (y + 1) * kSide);
        ASSERT_EQ(own, plain) << "round " << round;
    }
}

TEST(StrokeCutTest, NearStrokesPaintWhatTheFarOnePaints) {
    Random random(8);
    const Rect windows[] = {{0, 0, kSide, kSide}, {3, 17, 38, 22}, {20, 2, 21, 39}};
    std::vector<Point> cut;
    std::size_t strokes = 0, pieces = 0;
    for (int round = 0; round < 60000; ++round) {
        // From inside to far away, from far away to inside, and across; some strokes are nearly horizontal.
        const Rect& window = windows[round % 3];
        const int far = 1 << random.Within(3, 27), margin = random.Within(1, 30);
        const Point at = random.Near();
        const Point way{random.Within(-far, far),
                        random.Within(round % 7 == 0 ? -3 : -far, round % 7 == 0 ? 3 : far)};
        const Point from = round % 4 == 0 ? at : Point{at.x - way.x + random.Below(9), at.y - way.y};
        const Point to = round % 4 == 1 ? at : Point{at.x + way.x, at.y + way.y};
        const Rect around{window.left - margin, window.top - margin, window.right + margin,
                          window.bottom + margin};
        Picture whole(kSide * kSide), parts(kSide * kSide);
        PixelRaster(whole.data(), kSide, window).Stroke(from, to, kInk);
        CutStroke(PixelLine(from, to), window, margin, cut);
        for (std::size_t i = 0; i < cut.size(); ++i) {
            ASSERT_TRUE(cut[i] == from || cut[i] == to || around.Contains(cut[i])) << "round " << round;
            if (i > 0)
                PixelRaster(parts.data(), kSide, window).Stroke(cut[i - 1], cut[i], kInk);
        }
        ASSERT_EQ(parts, whole) << "round " << round;
        ASSERT_EQ(cut.empty(), std::count(whole.begin(), whole.end(), kInk) == 0) << "round " << round;
        strokes += !cut.empty();
        pieces += cut.empty() ? 0 : cut.size() - 1;
    }
    EXPECT_LT(pieces, strokes * 3) << "an enlarged picture of single pixels shows squares";
}

} // namespace
} // namespace kavlix
