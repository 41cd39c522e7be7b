// SPDX-License-Identifier: MIT
// The pictures of a chart: order, random data against a plain walk, markers.
#include "tests/chartdraw/ChartTest.h"
#include "tests/support/SeenUnderWine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "plot/LinearMap.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// The literal painter: draws one stroke from each point of a dataset to the next, and a dot where all points
/// of a line are on one pixel.
void WalkPlainly(OpenChart& chart, const testkit::DibSurface& surface, int dataset, int width) {
    double xMin, xMax, yMin, yMax, step;
    chart.GetXScale(xMin, xMax, step);
    chart.GetYScale(yMin, yMax, step);
    const CRect& plot = chart.m_rectPlot;
    const kavlix::LinearMap xMap(xMin, xMax, plot.left, plot.Width() - 1);
    const kavlix::LinearMap yMap(yMin, yMax, plot.bottom - 1, 1 - plot.Height());
    const HDC dc = surface.Dc();
    const int state = ::SaveDC(dc);
    const HPEN pen = ::CreatePen(PS_SOLID, width, kRed), edge = ::CreatePen(PS_SOLID, 0, kRed);
    const HBRUSH brush = ::CreateSolidBrush(kRed);
    ::SelectObject(dc, pen);
    ::SelectObject(dc, brush);
    ::IntersectClipRect(dc, plot.left, plot.top, plot.right, plot.bottom);
    bool started = false, isLone = false;
    CPoint first;
    for (int i = 0; i <= chart.GetDatasetSize(dataset); ++i) {
        double x = kNaN, y = kNaN; // a gap after the last point ends the line
        chart.GetData(dataset, i, x, y);
        const auto px = xMap.Position(x), py = yMap.Position(y);
        if (px && py && started) {
            ::LineTo(dc, *px, *py);
            isLone = isLone && first == CPoint(*px, *py);
        } else if (px && py) {
            first = CPoint(*px, *py);
            ::MoveToEx(dc, first.x, first.y, nullptr);
            isLone = plot.PtInRect(first);
        } else if (isLone) {
            const int size = std::max(width, 3);
            const CPoint corner = first - CPoint(size / 2, size / 2);
            ::SelectObject(dc, edge);
            (size < 5 ? ::Rectangle : ::Ellipse)(dc, corner.x, corner.y, corner.x + size, corner.y + size);
            ::SelectObject(dc, pen);
            isLone = false;
        }
        started = px && py;
    }
    ::RestoreDC(dc, state);
    for (const HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(edge), HGDIOBJ(brush)})
        ::DeleteObject(object);
}

class ChartPaintTest : public ChartTest {
protected:
    /// Compares the chart's picture with one in which the literal painter draws the line of dataset 0.
    std::string AgainstPlainWalk(int width) {
        testkit::DibSurface reduced(300, 200), plain(300, 200);
        chart.replaced = "axes"; // the literal painter draws the line last, so nothing may cover it
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
    EXPECT_EQ(chart.calls, kSequence);
    chart.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(surface.Dc()), PRF_CLIENT);
    testkit::DibSurface shown(300, 200);
    shown.Grab(chart.m_hWnd);
    EXPECT_EQ(testkit::Difference(surface, shown), "");

    testkit::DibSurface moved(350, 250);
    ::SetViewportOrgEx(moved.Dc(), 40, 30, nullptr);
    chart.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(moved.Dc()), PRF_CLIENT);
    ::SetViewportOrgEx(moved.Dc(), 0, 0, nullptr);
    testkit::DibSurface back(300, 200);
    ::BitBlt(back.Dc(), 0, 0, 300, 200, moved.Dc(), 40, 30, SRCCOPY);
    EXPECT_EQ(testkit::Difference(surface, back), "") << "wherever the caller has put the origin";
}

TEST_F(ChartPaintTest, RandomViewsEqualThePlainWalk) {
    HideTexts();
    chart.AddDataset();
    chart.SetColor(0, kRed);
    std::mt19937 random(17);
    const auto unit = [&] { return random() / 4294967296.0; };
    for (int round = 0; round < 120; ++round) {
        const int count = 2 + static_cast<int>(unit() * unit() * 4000);
        const bool backwards = round % 3 == 0, isRandom = round % 7 == 3;
        const double gaps = round % 4 == 1 ? 0.4 : 0.01;
        const double noise = std::pow(10, unit() * 4 - 3);
        std::vector<double> xs, ys;
        double x = 0, y = 0;
        for (int i = 0; i < count; ++i) {
            x += backwards ? (unit() - 0.5) * 0.1 : unit() * 10 / count;
            y += (unit() - 0.5) * noise;
            xs.push_back(isRandom ? unit() * 10 : x);
            ys.push_back(unit() < gaps ? kNaN : y);
            if (round % 5 == 2) { // several points on the same pixel
                xs.resize(xs.size() + random() % 9, xs.back());
                ys.resize(xs.size(), ys.back());
            }
        }
        chart.replaced.clear();
        chart.SetData(0, xs.data(), ys.data(), static_cast<int>(xs.size()));
        chart.SetAutoXScale();
        chart.SetAutoYScale();
        if (round % 2 == 0) { // a part of the data, magnified up to a thousand times
            const auto at = static_cast<std::size_t>(unit() * static_cast<double>(xs.size()));
            const double xRange = std::pow(10, unit() * 3 - 2), yRange = noise * std::pow(10, unit() * 3 - 2);
            chart.SetXScale(xs[at] - xRange * unit(), xs[at] + xRange);
            if (!std::isnan(ys[at]))
                chart.SetYScale(ys[at] - yRange * unit(), ys[at] + yRange);
        }
        const int width = round % 5 == 4 ? 7 : round % 5;
        chart.SetLineSize(0, width);
        // On Windows GDI may choose other pixels for a stroke.
        ONLY_SEEN_UNDER_WINE(ASSERT_EQ(AgainstPlainWalk(width), "")
                             << "round " << round << ", " << count << " points, width " << width);
    }
}

TEST_F(ChartPaintTest, WideStrokesToFarPlacesEndNearThePlot) {
    chart.SetLineSize(Add({0.5, 5e5, 0.2, -1e9}), 5);
    chart.SetXScale(0, 4);
    chart.SetYScale(0, 1);
    testkit::MetafileRecorder recorder;
    Record(recorder, [&](CDC& dc) { chart.DrawDatasets(dc); });
    int reach = 0; // the farthest coordinate: GDI's time grows with the length of a stroke
    for (const testkit::MetafileRecord& record : recorder.Records())
        for (const POINT& point : record.points)
            reach =
                std::max({reach, std::abs(static_cast<int>(point.x)), std::abs(static_cast<int>(point.y))});
    EXPECT_TRUE(reach > 200 && reach < 20000) << reach;
}

TEST_F(ChartPaintTest, MarkersOfManyPointsAreThoseOfEachPoint) {
    HideTexts();
    chart.replaced = "axes";
    const double odd[] = {kNaN, kInfinity, -kInfinity, 1e308, -1e308};
    std::mt19937 random(29);
    std::vector<double> xs, ys;
    for (int i = 0; i < 4000; ++i) {
        xs.push_back(i / 400 * 400 + (i % 16 == 15 ? 200 : 0)); // two columns, the second of few points
        ys.push_back(i % 97 == 96 ? odd[random() % std::size(odd)] : i < 2000 ? random() % 20 : 20 + i / 400);
    }
    chart.SetXScale(200, 4000);
    chart.SetYScale(-5, 145); // one pixel for each unit
    for (int type = CDataset::MarkerSquare; type <= CDataset::MarkerCross; ++type) {
        const auto add = [&](std::size_t first, int count) {
            const int dataset = chart.AddDataset();
            chart.SetData(dataset, &xs[first], &ys[first], count);
            chart.SetColor(dataset, kRed);
            chart.ShowLine(dataset, FALSE);
            chart.SetMarkerType(dataset, static_cast<CDataset::MarkerType>(type));
        };
        testkit::DibSurface whole(300, 200), parts(300, 200);
        chart.RemoveAllDatasets();
        add(0, 4000);
        PaintInto(whole);
        // The same points in datasets so small that no boxes exist, in a mapping mode in which GDI
        // draws each marker.
        constexpr int kFew = 25;
        chart.RemoveAllDatasets();
        for (std::size_t first = 0; first < 4000; first += kFew)
            add(first, kFew);
        ::SetMapMode(parts.Dc(), MM_ANISOTROPIC);
        PaintInto(parts);
        EXPECT_GT(whole.Count(kRed), 500);
        ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Difference(whole, parts), "") << "marker " << type);
        chart.RemoveAllDatasets();
        add(0, 4000);
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { chart.DrawDatasets(dc); });
        EXPECT_LT(recorder.Lines(testkit::kDrawing).size(), 1000u) << "one for each place";
    }
}

TEST_F(ChartPaintTest, AMarkerStandsRoundItsPoint) {
    HideTexts();
    chart.SetXScale(0, 10);
    chart.SetYScale(0, 10);
    chart.replaced = "axes";
    const int dataset = chart.AddDataset();
    chart.SetColor(dataset, kRed);
    for (const int value : {0, 3, 10}) // also in the corners of the plot
        for (const int type : {int(CDataset::MarkerSquare), 99}) {
            chart.SetMarkerType(dataset, static_cast<CDataset::MarkerType>(type));
            const double values[] = {double(value)};
            chart.SetData(dataset, values, values, 1);
            testkit::DibSurface surface(300, 200);
            PaintInto(surface);
            const CRect& plot = chart.m_rectPlot;
            const int x = plot.left + (plot.Width() - 1) * value / 10;
            const int y = static_cast<int>(plot.bottom - 1 - (plot.Height() - 1) * value / 10.0);
            const CRect square = type == 99 ? CRect(0, 0, 0, 0) : CRect(x - 3, y - 3, x + 4, y + 4);
            EXPECT_EQ(testkit::BoxText(surface.Bounds(kRed)), testkit::BoxText(square)) << value;
        }
}
