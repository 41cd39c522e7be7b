// SPDX-License-Identifier: MIT
// Legend, reference lines and cursors of a chart: random pictures, and what the mouse and keys do.
#include "tests/chartdraw/ChartTest.h"
#include "tests/support/Pointer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>

namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

class ChartPartsTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        testkit::ParkPointer();
        parent.SetRecordSize(sizeof(NMCHARTDRAW));
        parent.SetDescription([](const testkit::RecordingParent::Entry& entry) {
            NMCHARTDRAW record;
            std::memcpy(&record, entry.record, sizeof record);
            char text[200];
            std::snprintf(text, sizeof text, " flags %u index %d item %d values %.6g %.6g", record.nFlags,
                          record.nIndex, record.nItem, record.dValue, record.dSecond);
            return std::string(text);
        });
    }
    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    /// Lays the chart out, and forgets what the parent was told.
    void Settle() {
        testkit::Pump();
        chart.CalcDatas();
        parent.Forget();
    }
    void Mouse(UINT message, CPoint at) { chart.SendMessage(message, 0, MAKELPARAM(at.x, at.y)); }
    void Click(CPoint at) {
        Mouse(WM_LBUTTONDOWN, at);
        Mouse(WM_LBUTTONUP, at);
    }
    static COLORREF ColorOf(int dataset) { return RGB(200, 8 * dataset + 1, 77); }
    /// Named datasets with colours of their own, and a few points.
    void AddDatasets(int count, bool randomNames) {
        chart.RemoveAllDatasets();
        for (int i = 0; i < count; ++i) {
            Add({1.0 * i, 2.0 * i - 5, 7});
            chart.SetColor(i, ColorOf(i));
            chart.SetDatasetName(i, CString('n', randomNames ? Below(25) : 5));
            chart.SetLineSize(i, Below(5));
        }
    }
    void PaintOverlay(testkit::DibSurface& surface) {
        chart.replaced = "datasets";
        PaintInto(surface);
    }
    CPoint PositionOf(double x, double y) {
        int left = 0, top = 0;
        EXPECT_TRUE(chart.GetXAxis().GetPosition(x, left) && chart.GetYAxis().GetPosition(y, top));
        return CPoint(left, top);
    }

    std::mt19937 m_random{17};
};

} // namespace

TEST_F(ChartPartsTest, RandomLegendsShowAndHitTheSameRows) {
    const CChartLegend& legend = chart.GetLegend();
    int drawn = 0;
    for (int round = 0; round < 80; ++round) {
        const int width = 100 + Below(500), height = 80 + Below(300), count = Below(20);
        const auto place = static_cast<CChartLegend::Place>(1 + Below(6));
        SCOPED_TRACE(testing::Message() << width << " x " << height << ", place " << place);
        Resize(width, height);
        AddDatasets(count, true);
        std::vector<bool> isHidden(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            isHidden[static_cast<std::size_t>(i)] = Below(4) == 0;
            chart.ShowDataset(i, !isHidden[static_cast<std::size_t>(i)]);
        }
        chart.GetLegend().SetPlace(place);
        testkit::DibSurface surface(width, height);
        PaintOverlay(surface);
        const CRect rect = legend.GetRect(), plot = chart.m_rectPlot;
        if (rect.IsRectEmpty())
            continue;
        ++drawn;
        CRect shared;
        const bool isInside = place <= CChartLegend::BottomRight;
        EXPECT_EQ(shared.UnionRect(rect, isInside ? plot : chart.m_rectChart), TRUE);
        EXPECT_EQ(shared, isInside ? plot : chart.m_rectChart) << "inside the plot, or inside the window";
        EXPECT_TRUE(isInside || !shared.IntersectRect(rect, plot));
        std::vector<CRect> rows(static_cast<std::size_t>(count), CRect(0, 0, 0, 0));
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const int hit = legend.HitTest(CPoint(x, y));
                ASSERT_TRUE(hit >= -1 && hit < count && (hit < 0 || rect.PtInRect(CPoint(x, y))));
                if (hit >= 0)
                    rows[static_cast<std::size_t>(hit)].UnionRect(rows[static_cast<std::size_t>(hit)],
                                                                  CRect(x, y, x + 1, y + 1));
            }
        for (int i = 0; i < count; ++i) {
            const CRect& row = rows[static_cast<std::size_t>(i)];
            ASSERT_EQ(row.IsRectEmpty(), chart.GetDatasetName(i).IsEmpty());
            EXPECT_EQ(surface.Count(ColorOf(i)), surface.Count(ColorOf(i), row))
                << "its colour is in its row";
            EXPECT_EQ(surface.Count(ColorOf(i)) > 0, !row.IsRectEmpty());
        }
    }
    EXPECT_GT(drawn, 30);
}

TEST_F(ChartPartsTest, ALegendRowHidesShowsAndHighlightsItsDataset) {
    AddDatasets(3, false);
    chart.SetDatasetName(0, "");
    chart.SetLineSize(2, 1);
    chart.GetLegend().SetPlace(CChartLegend::TopLeft);
    Settle();
    CPoint row = chart.GetLegend().GetRect().CenterPoint();
    while (chart.GetLegend().HitTest(row) != 2)
        ++row.y;
    testkit::DibSurface before(300, 200), highlighted(300, 200), left(300, 200);
    PaintInto(before);
    Click(row);
    EXPECT_EQ(chart.IsDatasetShown(2), FALSE);
    Click(row);
    EXPECT_EQ(chart.IsDatasetShown(2), TRUE);
    const std::string told = "notify 1282 id 5 flags 0 index 2 item 0 values 0 0";
    EXPECT_EQ(parent.Log(), (Strings{told, told}));
    Mouse(WM_MOUSEMOVE, row);
    PaintInto(highlighted);
    chart.SendMessage(WM_MOUSELEAVE);
    PaintInto(left);
    EXPECT_GT(highlighted.Count(ColorOf(2)), 2 * before.Count(ColorOf(2))) << "a wider line";
    EXPECT_EQ(testkit::Difference(left, before), "");
    chart.GetLegend().SetInteractive(FALSE);
    parent.Forget();
    Mouse(WM_MOUSEMOVE, row);
    Click(row);
    PaintInto(left);
    EXPECT_EQ(testkit::Difference(left, before), "");
    EXPECT_EQ(parent.Log(), Strings{});
}

TEST_F(ChartPartsTest, RandomReferencesAreDrawnWhereTheyAreHit) {
    CChartReferences& references = chart.GetReferences();
    chart.SetGrid(FALSE, FALSE);
    for (int round = 0; round < 60; ++round) {
        const bool isLog = Below(3) == 0, isX = Below(2) == 0, isBand = Below(2) == 0;
        CChartAxis& axis = isX ? chart.GetXAxis() : chart.GetYAxis();
        chart.GetXAxis().SetKind(CChartAxis::Linear);
        chart.GetYAxis().SetKind(CChartAxis::Linear);
        axis.SetKind(isLog ? CChartAxis::Logarithmic : CChartAxis::Linear);
        axis.SetInverted(Below(2));
        ASSERT_TRUE(axis.SetRange(isLog ? 0.1 : -10, 40));
        references.RemoveAll();
        const double from = Below(60) - 15,
                     to = isBand ? (Below(5) == 0 ? HUGE_VAL : Below(60) - 15.5) : from;
        const auto on = isX ? CChartReferences::X : CChartReferences::Y;
        const int size = 1 + Below(6);
        const int id = isBand ? references.AddBand(on, from, to, "", RGB(255, 0, 0))
                              : references.AddLine(on, from, "", RGB(255, 0, 0));
        references.SetLineSize(id, size);
        references.SetMovable(id, TRUE);
        SCOPED_TRACE(testing::Message()
                     << (isX ? "x" : "y") << (isLog ? " log " : " ") << from << " to " << to);
        testkit::DibSurface with(300, 200), without(300, 200);
        PaintOverlay(with);
        references.Show(id, FALSE);
        EXPECT_EQ(references.HitTest(chart.m_rectPlot.CenterPoint()), -1);
        PaintOverlay(without);
        references.Show(id, TRUE);

        const CRect plot = chart.m_rectPlot;
        const int low = isX ? plot.left : plot.top, high = isX ? plot.right : plot.bottom;
        // Values without a position lie beyond the end of the axis.
        const auto position = [&](double value) {
            int at = 0;
            if (std::isfinite(value) && axis.GetPosition(value, at))
                return at;
            int first = 0, last = 0;
            axis.GetPosition(1, first);
            axis.GetPosition(2, last);
            return (value > 0) == (last > first) ? 100000 : -100000;
        };
        const int a = position(from), b = position(to);
        const bool hasPosition = isBand || !isLog || from > 0;
        for (int at = low; at < high; ++at) {
            const CPoint point(isX ? at : plot.left + 20, isX ? plot.top + 20 : at);
            const bool isPainted = with.At(point.x, point.y) != without.At(point.x, point.y);
            const bool isIn = isBand ? at >= std::min(a, b) && at <= std::max(a, b)
                                     : hasPosition && at >= a - size / 2 && at < a - size / 2 + size;
            const bool isAxis = isX ? at == low : at == high - 1; // the axis' line stands before a band
            ASSERT_EQ(isPainted, isIn && !(isBand && isAxis)) << at;
            const bool isNear = hasPosition && (std::abs(at - a) <= 4 + (isBand ? 0 : size / 2) ||
                                                (isBand && std::abs(at - b) <= 4));
            ASSERT_EQ(references.HitTest(point), isIn || isNear ? id : -1) << at;
        }
    }
}

TEST_F(ChartPartsTest, ReferencesAreMovedByTheMouse) {
    chart.SetXScale(0, 100);
    chart.SetYScale(0, 100);
    CChartReferences& references = chart.GetReferences();
    const int line = references.AddLine(CChartReferences::Y, 50, "Limit", RGB(255, 0, 0));
    const int band = references.AddBand(CChartReferences::X, 20, 60, "", RGB(0, 255, 0));
    Settle();
    const CPoint start = PositionOf(8, 50);
    Click(start);
    EXPECT_EQ(parent.Log(), Strings{}) << "not movable yet";
    references.SetMovable(line, TRUE);
    references.SetMovable(band, TRUE);
    double from = 0, to = 0;
    const auto drag = [&](CPoint begin, CPoint end, bool cancel) {
        parent.Forget();
        Mouse(WM_LBUTTONDOWN, begin);
        Mouse(WM_MOUSEMOVE, end);
        if (cancel)
            chart.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
        else
            Mouse(WM_LBUTTONUP, end);
        const Strings log = parent.Log();
        EXPECT_GE(log.size(), 2u);
        for (std::size_t i = 0; i < log.size(); ++i)
            EXPECT_NE(log[i].find(i + 1 < log.size() ? "notify 1283 id 5 flags 0" : "flags 1"),
                      std::string::npos)
                << log[i];
    };
    drag(start + CPoint(0, 2), start + CPoint(5, 32), false);
    ASSERT_TRUE(references.GetValues(line, from, to));
    EXPECT_NEAR(from, chart.GetYAxis().GetValue(start.y + 30), 1);
    EXPECT_EQ(from, to);
    references.SetValues(line, 50, 50);
    drag(start, start + CPoint(0, 3000), false);
    references.GetValues(line, from, to);
    EXPECT_NEAR(from, 0, 1e-9) << "not out of the plot";
    references.SetValues(line, 50, 50);
    drag(start, start + CPoint(0, 30), true);
    references.GetValues(line, from, to);
    EXPECT_EQ(from, 50) << "Escape restores the value";

    const CPoint edge = PositionOf(60, 20), middle = PositionOf(40, 20);
    drag(edge, PositionOf(70, 20), false);
    references.GetValues(band, from, to);
    EXPECT_EQ(from, 20);
    EXPECT_NEAR(to, 70, 1);
    drag(middle, PositionOf(50, 20), false);
    references.GetValues(band, from, to);
    EXPECT_NEAR(from, 30, 1);
    EXPECT_NEAR(to - from, 50, 1);

    // The parent may round the values, or destroy the chart meanwhile.
    parent.onNoted = [&](const testkit::RecordingParent::Entry&) { references.SetValues(line, 42, 42); };
    drag(start, start + CPoint(0, 13), false);
    references.GetValues(line, from, to);
    EXPECT_EQ(from, 42);
    const CPoint grip = PositionOf(8, 42);
    parent.onNoted = [&](const testkit::RecordingParent::Entry&) { chart.DestroyWindow(); };
    Mouse(WM_LBUTTONDOWN, grip);
    Mouse(WM_MOUSEMOVE, grip + CPoint(0, 20));
    EXPECT_EQ(chart.m_hWnd, nullptr);
}

TEST_F(ChartPartsTest, TheCursorFollowsThePointerAndKeys) {
    const double xs[] = {0, 10, 20, 30, 30, 40};
    const double low[] = {10, 20, kGap, 30, 40, 20}, high[] = {90, 80, 70, 60, 95, 80};
    const int first = chart.AddDataset(), second = chart.AddDataset();
    chart.SetData(first, xs, low, 6);
    chart.SetData(second, xs, high, 6);
    chart.SetXScale(0, 40);
    chart.SetYScale(0, 100);
    chart.SetViewFlags(CChartDraw::ViewKeys);
    CChartCursor& cursor = chart.GetCursor();
    Settle();
    double x = -1;
    Mouse(WM_MOUSEMOVE, PositionOf(9, 25));
    EXPECT_FALSE(cursor.GetPosition(0, x) || cursor.SetPosition(0, 5)) << "off";
    const auto at = [&](int cursorNumber = 0) {
        x = -1;
        cursor.GetPosition(cursorNumber, x);
        return std::make_pair(cursor.GetDataset(cursorNumber), x);
    };
    cursor.SetMode(CChartCursor::Nearest);
    Mouse(WM_MOUSEMOVE, PositionOf(9, 25));
    EXPECT_EQ(at(), std::make_pair(first, 10.0));
    Mouse(WM_MOUSEMOVE, PositionOf(20, 20));
    EXPECT_EQ(at().first, first) << "a gap is no sample";
    EXPECT_EQ(x, 10);
    Mouse(WM_MOUSEMOVE, PositionOf(30, 93));
    EXPECT_EQ(at(), std::make_pair(second, 30.0));
    EXPECT_EQ(cursor.GetSample(0, second), 4) << "not the other sample with this x";
    EXPECT_EQ(cursor.GetSample(0, first), 3);
    EXPECT_EQ(parent.Log(), (Strings{"notify 1281 id 5 flags 0 index 0 item 0 values 10 0",
                                     "notify 1281 id 5 flags 0 index 1 item 0 values 30 0"}));
    chart.SendMessage(WM_KEYDOWN, VK_LEFT, 1);
    EXPECT_EQ(cursor.GetSample(0, second), 3);
    Mouse(WM_MOUSEMOVE, PositionOf(30, 93));
    EXPECT_EQ(cursor.GetSample(0, second), 3) << "a pointer that rests does not take the cursor back";
    chart.SendMessage(WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(at(), std::make_pair(first, 30.0));
    chart.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(at(1), at()) << "the space bar places the second cursor";
    chart.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(at(1).first, -1) << "and takes it away";
    EXPECT_EQ(cursor.MoveBySamples(0, -1), TRUE);
    EXPECT_EQ(at(), std::make_pair(first, 10.0)) << "across the gap";
    EXPECT_EQ(cursor.MoveBySamples(0, -5), TRUE);
    EXPECT_EQ(cursor.MoveBySamples(0, -1), FALSE);
    EXPECT_EQ(at(), std::make_pair(first, 0.0));

    // The cursor stays at its sample as others come and go.
    cursor.SetMode(CChartCursor::All);
    ASSERT_TRUE(cursor.SetPosition(1, 19));
    EXPECT_EQ(at(1), std::make_pair(second, 20.0));
    chart.InsertData(second, 3, 1);
    EXPECT_EQ(at(1), std::make_pair(second, 20.0));
    EXPECT_EQ(cursor.GetSample(1, second), 3);
    chart.RemoveHeadData(second, 3);
    EXPECT_EQ(cursor.GetSample(1, second), 0);
    chart.RemoveHeadData(second, 1);
    EXPECT_EQ(at(1), std::make_pair(second, 30.0)) << "the nearest one when it is removed";
    chart.ShowDataset(second, FALSE);
    EXPECT_EQ(at(1).first, first);
    parent.Forget();
    Mouse(WM_MOUSEMOVE, CPoint(1, 1));
    EXPECT_EQ(at().first, -1);
    ASSERT_EQ(parent.Log().size(), 1u);
    EXPECT_NE(parent.Log()[0].find("index -1 item 0 values nan"), std::string::npos) << parent.Log()[0];
}

TEST_F(ChartPartsTest, FiguresBetweenTheCursorsAreThoseOfAWalk) {
    chart.GetCursor().SetMode(CChartCursor::All);
    for (int round = 0; round < 40; ++round) {
        chart.RemoveAllDatasets();
        const int dataset = chart.AddDataset();
        chart.SetDatasetOrigin(dataset, round % 2 * 1.7e9);
        chart.GetXAxis().SetOrigin(round % 2 * 1.7e9 - round);
        double x = 0;
        std::vector<double> xs, ys;
        for (int i = 0; i < 500; ++i) {
            x += round % 4 == 3 ? Below(5) - 2 : Below(3) / 3.0;
            xs.push_back(x);
            ys.push_back(Below(10) == 0 ? kGap : Below(1000) - 500);
        }
        chart.SetData(dataset, xs.data(), ys.data(), 500);
        double ends[2] = {};
        int samples[2] = {};
        for (int i = 0; i < 2; ++i) {
            ASSERT_TRUE(chart.GetCursor().SetPosition(i, Below(200) + round));
            samples[i] = chart.GetCursor().GetSample(i, dataset);
            double y = 0;
            chart.GetData(dataset, samples[i], ends[i], y);
        }
        std::sort(ends, ends + 2);
        std::int64_t count = 0;
        double sum = 0, low = HUGE_VAL, high = -HUGE_VAL;
        for (std::size_t i = 0; i < xs.size(); ++i)
            if (xs[i] >= ends[0] && xs[i] <= ends[1] && ys[i] == ys[i]) {
                ++count;
                sum += ys[i];
                low = std::min(low, ys[i]);
                high = std::max(high, ys[i]);
            }
        ChartStatistics figures = {};
        ASSERT_TRUE(chart.GetCursor().GetStatistics(dataset, figures));
        EXPECT_EQ(figures.count, count) << "round " << round;
        EXPECT_EQ(figures.min, low);
        EXPECT_EQ(figures.max, high);
        EXPECT_NEAR(figures.mean, sum / static_cast<double>(count), 1e-9);
    }
}

TEST_F(ChartPartsTest, ReadoutsStayInThePlotAndShowTheSample) {
    CChartCursor& cursor = chart.GetCursor();
    cursor.SetColors(RGB(9, 9, 9), RGB(0, 0, 1), RGB(240, 240, 1), RGB(1, 240, 240));
    int readouts = 0;
    for (int round = 0; round < 60; ++round) {
        const int width = 120 + Below(500), height = 100 + Below(300);
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        Resize(width, height);
        cursor.SetMode(CChartCursor::Off);
        AddDatasets(1 + Below(30), true);
        testkit::DibSurface without(width, height), with(width, height);
        PaintOverlay(without);
        cursor.SetMode(Below(2) == 0 ? CChartCursor::Nearest : CChartCursor::All);
        cursor.SetPosition(0, Below(3));
        if (Below(3) == 0)
            cursor.SetPosition(1, Below(3));
        PaintOverlay(with);
        const CRect plot = chart.m_rectPlot;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                ASSERT_TRUE(plot.PtInRect(CPoint(x, y)) || with.At(x, y) == without.At(x, y))
                    << x << ' ' << y;
        const CRect box = with.Bounds(RGB(1, 240, 240));
        if (box.IsRectEmpty())
            continue;
        ++readouts;
        double x = 0, y = 0;
        const int dataset = cursor.GetDataset(0);
        chart.GetData(dataset, cursor.GetSample(0, dataset), x, y);
        const CPoint at = PositionOf(x, y);
        const bool canAvoid = at.x - plot.left >= box.Width() || plot.right - 1 - at.x >= box.Width() ||
                              at.y - plot.top >= box.Height() || plot.bottom - 1 - at.y >= box.Height();
        EXPECT_EQ(box.PtInRect(at) != FALSE, !canAvoid);
        testkit::MetafileRecorder recorder;
        Record(recorder, [&](CDC& dc) { chart.DrawXScale(dc); });
        EXPECT_EQ(recorder.ObjectFaults(), "");
        EXPECT_FALSE(recorder.FinalState().clipped);
    }
    EXPECT_GT(readouts, 30);
}
