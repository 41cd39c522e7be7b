#include "tests/chartdraw/ChartTest.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

#include "chartdraw/ChartLine.h"
#include "graphctrl/LinearMap.h"

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr COLORREF kRed = RGB(255, 0, 0);

/// Draws a dataset on top of a picture the plain way: one stroke from each point to the next.
void WalkPlainly(OpenChart& chart, const testkit::DibSurface& surface, int dataset, int width) {
    double xMin, xMax, yMin, yMax, step;
    chart.GetXScale(xMin, xMax, step);
    chart.GetYScale(yMin, yMax, step);
    const CRect& plot = chart.m_rectPlot;
    const kavlix::LinearMap xMap(xMin, xMax, plot.left, plot.Width() - 1);
    const kavlix::LinearMap yMap(yMin, yMax, plot.bottom - 1, 1 - plot.Height());
    const HDC dc = surface.Dc();
    const int state = ::SaveDC(dc);
    const HPEN pen = ::CreatePen(PS_SOLID, width, kRed);
    ::SelectObject(dc, pen);
    ::IntersectClipRect(dc, plot.left, plot.top, plot.right, plot.bottom);
    bool started = false;
    for (int i = 0; i < chart.GetDatasetSize(dataset); ++i) {
        double x = 0, y = 0;
        chart.GetData(dataset, i, x, y);
        const auto px = xMap.Position(x), py = yMap.Position(y);
        if (px && py && started)
            ::LineTo(dc, *px, *py);
        else if (px && py)
            ::MoveToEx(dc, *px, *py, nullptr);
        started = px && py;
    }
    ::RestoreDC(dc, state);
    ::DeleteObject(pen);
}

class ChartPaintTest : public ChartTest {
protected:
    /// The chart's picture against the plain walk over dataset 0.
    std::string AgainstPlainWalk(int width) {
        testkit::DibSurface reduced(300, 200), plain(300, 200);
        chart.replaced = "axes"; // in the plain picture the line comes last: nothing may lie on it
        chart.ShowLine(0, TRUE);
        PaintInto(reduced);
        chart.ShowLine(0, FALSE);
        PaintInto(plain);
        WalkPlainly(chart, plain, 0, width);
        return testkit::Difference(reduced, plain, chart.m_rectPlot);
    }
};

} // namespace

TEST_F(ChartPaintTest, EveryPictureIsDrawnInOneSequence) {
    chart.SetTitle("T");
    Add({1, 5, 3});
    testkit::DibSurface surface(300, 200);
    chart.calls.clear();
    chart.Redraw();
    chart.UpdateWindow();
    EXPECT_EQ(chart.calls, kSequence) << "the window";
    chart.calls.clear();
    chart.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.Dc()), PRF_CLIENT);
    EXPECT_EQ(chart.calls, kSequence) << "WM_PRINTCLIENT";
    testkit::DibSurface shown(300, 200);
    shown.Grab(chart.m_hWnd);
    EXPECT_EQ(testkit::Difference(surface, shown), "");
    EXPECT_EQ(testkit::BoxText(chart.m_rectChart), "0,0,300,200");

    testkit::DibSurface moved(350, 250);
    ::SetViewportOrgEx(moved.Dc(), 40, 30, nullptr);
    chart.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(moved.Dc()), PRF_CLIENT);
    ::SetViewportOrgEx(moved.Dc(), 0, 0, nullptr);
    testkit::DibSurface back(300, 200);
    ::BitBlt(back.Dc(), 0, 0, 300, 200, moved.Dc(), 40, 30, SRCCOPY);
    EXPECT_EQ(testkit::Difference(surface, back), "") << "wherever the caller has put the origin";
}

TEST_F(ChartPaintTest, EachMemberDrawsItsElementAndLeavesNothingBehind) {
    chart.SetTitle("Title");
    chart.SetXLabel("East");
    chart.SetYLabel("North");
    chart.SetXScale(0, 4, 2);
    chart.SetYScale(-1, 1, 1);
    const int dataset = chart.AddDataset();
    chart.SetColor(dataset, kRed);
    chart.AddData(dataset, 1, 0.5);
    chart.AddData(dataset, 3, -0.5);
    chart.CalcDatas();
    const CRect& plot = chart.m_rectPlot;
    const struct {
        const char* name;
        void (OpenChart::*draw)(CDC&);
        Strings texts;
        std::size_t lines;
    } cases[] = {{"bkgnd", &OpenChart::PaintBkGnd, {}, 0},
                 {"title", &OpenChart::DrawTitle, {"Title"}, 0},
                 {"grid", &OpenChart::DrawGrid, {}, 6},
                 {"datasets", &OpenChart::DrawDatasets, {}, 1},
                 {"axes", &OpenChart::DrawAxes, {"East", "North"}, 2},
                 {"yscale", &OpenChart::DrawYScale, {"-1", "0", "1"}, 3},
                 {"xscale", &OpenChart::DrawXScale, {"0", "2", "4"}, 3}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { (chart.*each.draw)(dc); });
        EXPECT_EQ(recorder.Texts(), each.texts);
        EXPECT_EQ(recorder.Lines(testkit::kLine).size(), each.lines);
        if (each.name == std::string("datasets")) {
            const Strings clips = recorder.Lines(testkit::kClip);
            ASSERT_FALSE(clips.empty());
            EXPECT_NE(clips.front().find(testkit::BoxText(plot)), std::string::npos) << clips.front();
        }
        EXPECT_EQ(recorder.ObjectFaults(), "");
        EXPECT_EQ(recorder.FinalState().pen, testkit::MetafileState().pen);
        EXPECT_FALSE(recorder.FinalState().clipped);
        for (const auto& record : recorder.Records()) {
            if (record.kind != testkit::kLine)
                continue;
            const CRect edges(plot.left, plot.top, plot.right + 1, plot.bottom + 1);
            for (const POINT& point : record.points)
                EXPECT_TRUE(each.name != std::string("grid") || edges.PtInRect(point));
        }
    }
}

TEST_F(ChartPaintTest, PointsStandWhereTheScalesPutThem) {
    chart.SetXScale(0, 10);
    chart.SetYScale(0, 10);
    HideTexts();
    chart.replaced = "axes";
    const int dataset = chart.AddDataset();
    chart.SetColor(dataset, kRed);
    chart.ShowLine(dataset, FALSE);
    for (const double x : {1.0, 5.0, 9.0})
        chart.AddData(dataset, x, x);
    for (const auto& [x, y] : {std::pair{-0.1, 5.0},
                               {5.0, 10.1},
                               {kNaN, 5.0},
                               {5.0, kNaN},
                               {kInfinity, 1.0},
                               {1e308, 1e308},
                               {-1e308, 5.0}})
        chart.AddData(dataset, x, y);
    chart.CalcDatas();
    const CRect plot = chart.m_rectPlot;
    const struct {
        CDataset::MarkerType type;
        int dx, dy; ///< a pixel of the marker
        int pixels;
    } cases[] = {{CDataset::MarkerSquare, 3, 3, 24},   {CDataset::MarkerDiamond, 3, 0, 12},
                 {CDataset::MarkerTriangle, 0, -3, 0}, {CDataset::MarkerCircle, 3, 0, 0},
                 {CDataset::MarkerCross, -3, 0, 13},   {static_cast<CDataset::MarkerType>(99), 0, 0, 0}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        chart.SetMarkerType(dataset, each.type);
        testkit::DibSurface surface(300, 200);
        PaintInto(surface);
        const int found = surface.Count(kRed);
        if (each.type == 99) {
            EXPECT_EQ(found, 0);
            continue;
        }
        for (const int x : {1, 5, 9}) {
            const CPoint at(plot.left + (plot.Width() - 1) * x / 10,
                            static_cast<int>(plot.bottom - 1 - (plot.Height() - 1) * x / 10.0));
            EXPECT_EQ(surface.At(at.x + each.dx, at.y + each.dy), kRed) << x;
            EXPECT_EQ(surface.At(at.x - each.dx, at.y + each.dy), kRed) << x << ": as far to the other side";
        }
        EXPECT_TRUE(each.pixels == 0 || found == 3 * each.pixels)
            << found << ": whole markers, and none outside";
    }
}

TEST_F(ChartPaintTest, LinesBreakAtGapsAndEndAtThePlot) {
    chart.SetXScale(0, 10);
    chart.SetYScale(0, 10);
    HideTexts();
    chart.replaced = "axes";
    const int dataset = chart.AddDataset();
    chart.SetColor(dataset, kRed);
    chart.SetLineSize(dataset, 3);
    for (const auto& [x, y] : {std::pair{-1e200, 5.0}, {4.0, 5.0}, {kNaN, 5.0}, {6.0, 5.0}, {kInfinity, 5.0}})
        chart.AddData(dataset, x, y);
    testkit::DibSurface surface(300, 200);
    PaintInto(surface);
    const CRect plot = chart.m_rectPlot;
    const RECT bounds = surface.Bounds(kRed);
    EXPECT_EQ(bounds.left, plot.left);
    EXPECT_EQ(bounds.right, plot.right);
    EXPECT_EQ(bounds.bottom - bounds.top, 3);
    const int middle = (bounds.top + bounds.bottom) / 2;
    EXPECT_EQ(surface.At(plot.left + plot.Width() * 3 / 10, middle), kRed);
    EXPECT_NE(surface.At(plot.left + plot.Width() / 2, middle), kRed) << "the gap";
    EXPECT_EQ(surface.At(plot.left + plot.Width() * 7 / 10, middle), kRed);
}

TEST_F(ChartPaintTest, RandomViewsEqualThePlainWalk) {
    HideTexts();
    chart.AddDataset();
    chart.SetColor(0, kRed);
    std::mt19937 random(17);
    const auto unit = [&] { return random() / 4294967296.0; };
    for (int round = 0; round < 120; ++round) {
        const int count = 2 + static_cast<int>(unit() * unit() * 4000);
        const bool backwards = round % 3 == 0;
        const double noise = std::pow(10, unit() * 4 - 3);
        std::vector<double> xs, ys;
        double x = 0, y = 0;
        for (int i = 0; i < count; ++i) {
            x += backwards ? (unit() - 0.5) * 0.1 : unit() * 10 / count;
            y += (unit() - 0.5) * noise;
            xs.push_back(x);
            ys.push_back(unit() < 0.01 ? kNaN : y);
        }
        chart.replaced.clear();
        chart.SetData(0, xs.data(), ys.data(), count);
        chart.SetAutoXScale();
        chart.SetAutoYScale();
        if (round % 2 == 0) { // somewhere inside, up to a thousand times larger
            const std::size_t at = static_cast<std::size_t>(unit() * count);
            const double xRange = std::pow(10, unit() * 3 - 2), yRange = noise * std::pow(10, unit() * 3 - 2);
            chart.SetXScale(xs[at] - xRange * unit(), xs[at] + xRange);
            if (!std::isnan(ys[at]))
                chart.SetYScale(ys[at] - yRange * unit(), ys[at] + yRange);
        }
        const int width = round % 5 == 4 ? 7 : round % 5;
        chart.SetLineSize(0, width);
        ASSERT_EQ(AgainstPlainWalk(width), "")
            << "round " << round << ", " << count << " points, width " << width;
    }
}

TEST_F(ChartPaintTest, AMillionPointsCostWhatThePixelsCost) {
    HideTexts();
    std::mt19937 random(3);
    std::vector<double> ys;
    double y = 0;
    for (int i = 0; i < 1000000; ++i)
        ys.push_back(y += static_cast<double>(random() % 2001) - 1000);
    Add(ys);
    chart.SetColor(0, kRed);
    testkit::MetafileRecorder recorder;
    Record(recorder, [&](CDC& dc) { chart.DrawDatasets(dc); });
    EXPECT_LE(recorder.Lines(testkit::kLine).size(), 10u * 300);

    testkit::DibSurface surface(300, 200);
    PaintInto(surface);
    const DWORD start = ::GetTickCount();
    for (int i = 0; i < 10; ++i)
        PaintInto(surface);
    const DWORD reduced = ::GetTickCount();
    WalkPlainly(chart, surface, 0, 1);
    std::printf("a million points: %lu ms reduced, %lu ms walked\n", (reduced - start) / 10,
                ::GetTickCount() - reduced);
    EXPECT_EQ(AgainstPlainWalk(1), "");
}

TEST_F(ChartPaintTest, MarkersOnOnePlaceAreDrawnOnce) {
    Add(std::vector<double>(5000, 3.0));
    chart.SetXScale(0, 1e9);
    chart.SetMarkerType(0, CDataset::MarkerSquare);
    testkit::MetafileRecorder recorder;
    Record(recorder, [&](CDC& dc) { chart.DrawDatasets(dc); });
    EXPECT_EQ(recorder.Lines(testkit::kRectangle).size(), 1u);
}

TEST_F(ChartPaintTest, MarkersOfManyPointsAreThoseOfEachPoint) {
    HideTexts();
    chart.replaced = "axes";
    std::mt19937 random(29);
    std::vector<double> xs, ys;
    for (int i = 0; i < 4000; ++i) {
        xs.push_back(i / 400 * 400); // markers of neighbours keep apart
        ys.push_back(i % 997 == 996 ? kNaN : i < 2000 ? random() % 20 : 20 + i / 400);
    }
    // The same points in datasets so small that each of their points is looked at.
    constexpr int kFew = 25;
    testkit::DibSurface whole(300, 200), parts(300, 200);
    chart.SetXScale(200, 4000);
    chart.SetYScale(-5, 145); // a pixel each
    const auto add = [&](int first, int count) {
        const int dataset = chart.AddDataset();
        chart.SetData(dataset, &xs[static_cast<std::size_t>(first)], &ys[static_cast<std::size_t>(first)],
                      count);
        chart.SetColor(dataset, kRed);
        chart.ShowLine(dataset, FALSE);
        chart.SetMarkerType(dataset, CDataset::MarkerCross);
    };
    add(0, 4000);
    PaintInto(whole);
    chart.RemoveAllDatasets();
    for (int first = 0; first < 4000; first += kFew)
        add(first, kFew);
    PaintInto(parts);
    EXPECT_GT(whole.Count(kRed), 500);
    EXPECT_EQ(testkit::Difference(whole, parts), "");
}

TEST_F(ChartPaintTest, SmallWindowsLeaveOutWhatHasNoRoom) {
    chart.SetTitle("Title");
    chart.SetXLabel("East");
    chart.SetYLabel("North");
    Add({1, 2, 3});
    const struct {
        int width, height;
        bool captions, title, scales;
    } cases[] = {{300, 200, true, true, true}, {170, 130, false, true, true}, {60, 50, false, false, false},
                 {3, 3, false, false, false},  {1, 1, false, false, false},   {0, 0, false, false, false}};
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.width << " x " << each.height);
        Resize(each.width, each.height);
        chart.Redraw();
        chart.UpdateWindow();
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { chart.DrawChart(dc); });
        const Strings texts = recorder.Texts();
        const auto has = [&](const char* text) { return std::count(texts.begin(), texts.end(), text) > 0; };
        EXPECT_EQ(has("East") && has("North"), each.captions);
        EXPECT_EQ(has("Title"), each.title);
        EXPECT_EQ(texts.size() > 3, each.scales);
        EXPECT_EQ(recorder.ObjectFaults(), "");
    }
}

TEST_F(ChartPaintTest, RepaintingLeaksNothing) {
    if (!testkit::CanCountGdiObjects())
        GTEST_SKIP() << "the process's GDI table cannot be read here";
    Add({1, 2, 3});
    chart.SetMarkerType(0, CDataset::MarkerCircle);
    const auto paint = [&] {
        chart.Redraw();
        chart.UpdateWindow();
    };
    paint();
    const testkit::ObjectCounts before = testkit::CountObjects();
    for (int i = 0; i < 50; ++i)
        paint();
    EXPECT_EQ(testkit::CountObjects(), before);
}
