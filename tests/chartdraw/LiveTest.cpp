// SPDX-License-Identifier: MIT
// Live data: posted by other threads, kept in limits, shared by linked charts, saved as tables.

#include "tests/chartdraw/ChartTest.h"
#include "tests/support/Numbers.h"

#include <psapi.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

namespace {

/// The values of a measuring device, in seconds and degrees.
struct Reading {
    double time;
    double value;
};

/// A device that gives 5000 readings as fast as they are taken.
struct Device {
    bool Wait(Reading& reading) {
        reading = {static_cast<double>(m_count), std::sin(m_count * 0.01)};
        return m_count++ < kReadings;
    }
    static constexpr int kReadings = 5000;

private:
    int m_count = 0;
};

/// The host of docs/hosts.md, "Live data from another thread".
class CMonitorWnd : public testkit::RecordingParent {
public:
    void Start() {
        m_channel = m_chart.AddDataset();
        m_chart.SetHistory(m_channel, 0, 600); // the last ten minutes
        m_reader = std::thread([this] {
            Reading reading;
            while (m_isReading && m_device.Wait(reading)) // blocks until a value comes
                if (!m_chart.PostData(m_channel, reading.time, reading.value))
                    ++m_lost; // the queue is full, or the window is closed
        });
    }
    void Stop() { // before the chart is destroyed
        m_isReading = false;
        if (m_reader.joinable())
            m_reader.join();
    }

    OpenChart m_chart;
    Device m_device;
    std::thread m_reader;
    std::atomic<bool> m_isReading{true};
    std::atomic<int> m_lost{0};
    int m_channel = 0;
};

/// The sums of the CDN_POSTED notifications that a parent has recorded.
struct PostedSums {
    explicit PostedSums(const testkit::RecordingParent& parent) {
        for (const auto& entry : parent.Entries()) {
            if (entry.message != WM_NOTIFY || entry.code != CDN_POSTED)
                continue;
            const auto& record = reinterpret_cast<const NMCHARTDRAW&>(entry.record);
            points += record.nItem;
            refused += record.nIndex;
            ++notifications;
        }
    }
    int points = 0, refused = 0, notifications = 0;
};

class LiveTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        parent.SetRecordSize(testkit::RecordingParent::kRecordBytes);
        testkit::Pump();
    }
    double At(int dataset, int index) {
        double x = 0, y = std::nan("");
        chart.GetData(dataset, index, x, y);
        return y;
    }
};

void SetRange(CChartDraw& chart, double min, double max) {
    EXPECT_TRUE(chart.GetXAxis().SetRange(min, max));
}

std::string RangeText(CChartDraw& chart) {
    double min = 0, max = 0;
    chart.GetXAxis().GetRange(min, max);
    return std::to_string(std::lround(min)) + ".." + std::to_string(std::lround(max));
}

BOOL WINAPI RefusePost(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

BOOL WINAPI RefuseWrite(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED) {
    return FALSE;
}

} // namespace

// ---- Posting ----

TEST(LiveHostTest, ReadingsOfAWorkerArriveInTheChart) {
    CMonitorWnd host;
    ASSERT_TRUE(host.CreateVisible(320, 240));
    host.SetRecordSize(testkit::RecordingParent::kRecordBytes);
    host.m_chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &host, 5);
    host.Start();
    while (PostedSums(host).points < Device::kReadings)
        testkit::Pump();
    host.Stop();
    EXPECT_EQ(host.m_lost, 0);
    EXPECT_EQ(host.m_chart.GetDatasetSize(host.m_channel), 601) << "ten minutes";
    double x = 0, y = 0;
    EXPECT_TRUE(host.m_chart.GetData(host.m_channel, 600, x, y) && x == Device::kReadings - 1);
    host.DestroyWindow();
    EXPECT_FALSE(host.m_chart.PostData(host.m_channel, 0, 0)) << "no window";
}

TEST_F(LiveTest, AWorkerMayPostWhileTheWindowComesAndGoes) {
    chart.AddDataset();
    std::atomic<bool> isOver{false};
    std::atomic<int> posted{0};
    std::thread worker([&] {
        while (!isOver)
            posted += chart.PostData(0, posted, 1);
    });
    for (int i = 0; i < 20; ++i) {
        while (chart.GetDatasetSize(0) < 10)
            testkit::Pump();
        chart.DestroyWindow();
        chart.ResetData(0);
        ASSERT_TRUE(
            chart.Create(WS_CHILD | (i % 2 == 0 ? WS_VISIBLE : 0), CRect(0, 0, 300, 200), &parent, 5));
    }
    isOver = true;
    worker.join();
    EXPECT_LE(chart.GetPostedCount(), posted);
}

TEST_F(LiveTest, PostedPointsEnterTogetherAndThoseOfRemovedDatasetsAreCounted) {
    for (int i = 0; i < 3; ++i)
        chart.AddDataset();
    chart.UpdateWindow();
    const double xs[] = {3, 1, 2}, ys[] = {30, 10, 20};
    EXPECT_EQ(chart.PostData(0, xs, ys, 3) + chart.PostData(1, xs, ys, 3) + chart.PostData(2, xs, ys, 2), 8);
    EXPECT_EQ(chart.PostData(0, nullptr, ys, 1) + chart.PostData(0, xs, nullptr, 1) +
                  chart.PostData(0, xs, ys, -1),
              0);
    EXPECT_EQ(chart.GetPostedCount(), 8);
    EXPECT_EQ(chart.GetDatasetSize(0), 0);
    chart.RemoveDataset(1);
    testkit::Pump();
    EXPECT_EQ(chart.GetPostedCount(), 0);
    EXPECT_EQ(chart.GetDatasetSize(0), 3);
    EXPECT_EQ(chart.GetDatasetSize(1), 2) << "the points of the third dataset moved with it";
    EXPECT_EQ(At(0, 0), 10) << "by x";
    const PostedSums sums(parent);
    EXPECT_EQ(sums.points, 8);
    EXPECT_EQ(sums.refused, 3);
    EXPECT_EQ(sums.notifications, 1);
    EXPECT_EQ(std::count(chart.calls.begin(), chart.calls.end(), "datasets"), 2) << "one repaint";
}

TEST_F(LiveTest, AFullQueueAndALostMessageAreTold) {
    chart.AddDataset();
    chart.SetPostCapacity(4);
    const double values[] = {0, 1, 2, 3, 4, 5};
    EXPECT_EQ(chart.PostData(0, values, values, 6), 4);
    EXPECT_FALSE(chart.PostData(0, 1, 1));
    testkit::Pump();
    EXPECT_EQ(chart.GetDatasetSize(0), 4);
    {
        const testkit::ImportHook hook("Kavlix.dll", "PostMessageA", reinterpret_cast<void*>(&RefusePost));
        ASSERT_TRUE(hook.Installed());
        EXPECT_FALSE(chart.PostData(0, 9, 9));
        EXPECT_EQ(chart.GetPostedCount(), 0);
    }
    chart.ShowWindow(SW_HIDE); // no paint comes: the points must arrive all the same
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(chart.PostData(0, 10 + i, 0));
        testkit::Pump();
        EXPECT_EQ(chart.GetDatasetSize(0), 5 + i);
    }
    EXPECT_TRUE(chart.PostData(0, 20, 0));
    chart.DestroyWindow();
    EXPECT_EQ(chart.GetPostedCount(), 0);
    EXPECT_FALSE(chart.PostData(0, 20, 0));
}

// ---- Data members ----

TEST_F(LiveTest, RandomChangesAgreeWithAVectorOfPoints) {
    struct Point {
        double x, y;
    };
    testkit::Numbers numbers(2026);
    std::vector<Point> model;
    chart.AddDataset();
    chart.SetDatasetOrigin(0, 1000);
    chart.GetXAxis().SetOrigin(400);
    const double offset = 600; // of the dataset's x on the X axis
    int limit = 0;
    double span = 0;
    const auto trim = [&] {
        while (!model.empty() && ((limit > 0 && static_cast<int>(model.size()) > limit) ||
                                  (span > 0 && model.front().x < model.back().x - span)))
            model.erase(model.begin());
    };
    constexpr int kSorted = 2500; // steps; in the later ones x come in any order
    for (int step = 0; step < 3000; ++step) {
        const double newest = model.empty() ? 0 : model.back().x;
        if (step == kSorted) {
            limit = 0;
            span = 0;
            model.push_back({-1e6, 0});
            EXPECT_TRUE(chart.SetHistory(0, 0, 0) && chart.AddData(0, -1e6, 0));
        }
        const bool isSorted = step < kSorted;
        const double y = numbers.OneIn(9) ? std::nan("") : numbers.Below(1000);
        switch (numbers.Below(10)) {
        case 0: {
            const int count = numbers.Below(8);
            EXPECT_TRUE(chart.RemoveHeadData(0, count));
            model.erase(model.begin(), model.begin() + std::min<std::ptrdiff_t>(
                                                           count, static_cast<std::ptrdiff_t>(model.size())));
            break;
        }
        case 1:
            EXPECT_EQ(chart.ReplaceLastData(0, y), !model.empty());
            if (!model.empty())
                model.back().y = y;
            break;
        case 2:
        case 3: {
            const double x = newest - numbers.Below(30);
            EXPECT_TRUE(chart.InsertData(0, x, y));
            model.insert(
                isSorted ? std::upper_bound(model.begin(), model.end(), x,
                                            [](double value, const Point& point) { return value < point.x; })
                         : model.end(),
                {x, y});
            break;
        }
        case 4:
            if (isSorted && numbers.OneIn(20)) {
                limit = numbers.Below(100);
                span = numbers.Below(3) * 40;
                EXPECT_TRUE(chart.SetHistory(0, limit, span));
            } else if (isSorted && numbers.OneIn(20)) {
                chart.ResetData(0);
                model.clear();
            }
            break;
        default:
            model.push_back({newest + numbers.Below(isSorted ? 4 : 40), y});
            EXPECT_TRUE(chart.AddData(0, model.back().x, y));
        }
        trim();
        ASSERT_EQ(chart.GetDatasetSize(0), static_cast<int>(model.size())) << step;
        const double from = newest - numbers.Below(100), to = from + numbers.Below(80);
        ChartStatistics found = {}, expected = {};
        double sum = 0;
        int nearest = -1;
        for (int i = 0; i < static_cast<int>(model.size()); ++i) {
            const Point& point = model[static_cast<std::size_t>(i)];
            ASSERT_TRUE(At(0, i) == point.y || std::isnan(point.y)) << step;
            if (nearest < 0 ||
                std::abs(point.x - from) < std::abs(model[static_cast<std::size_t>(nearest)].x - from))
                nearest = i;
            if (point.x < from || point.x > to || std::isnan(point.y))
                continue;
            expected.first = expected.count == 0 ? point.y : expected.first;
            expected.last = point.y;
            expected.min = expected.count == 0 ? point.y : std::min(expected.min, point.y);
            expected.max = expected.count == 0 ? point.y : std::max(expected.max, point.y);
            sum += point.y;
            ++expected.count;
        }
        ASSERT_EQ(chart.FindData(0, from + offset), nearest) << step;
        ASSERT_TRUE(chart.GetStatistics(0, from + offset, to + offset, found));
        ASSERT_EQ(found.count, expected.count);
        ASSERT_TRUE(found.count == 0 ||
                    (found.min == expected.min && found.max == expected.max &&
                     found.first == expected.first && found.last == expected.last &&
                     std::abs(found.mean - sum / static_cast<double>(found.count)) < 1e-9))
            << step;
    }
}

TEST_F(LiveTest, AWrongIndexOrValueFailsAndAreasFollowTheirDataset) {
    const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    ChartStatistics statistics = {};
    const auto all = [&](int n) {
        return std::vector<BOOL>{chart.InsertData(n, 0, 0),
                                 chart.AddEvenData(n, 0),
                                 chart.ReplaceLastData(n, 0),
                                 chart.RemoveHeadData(n, 0),
                                 chart.SetHistory(n, 0, 0),
                                 chart.SetGapLimit(n, 0),
                                 chart.SetGapFactor(n, 0),
                                 chart.SetBarWidth(n, 0),
                                 chart.SetBaseline(n, 0),
                                 chart.SetFillTo(n, -1),
                                 chart.SetFillColor(n, 0),
                                 chart.SetDatasetName(n, _T("Name")),
                                 chart.UseSecondYAxis(n, FALSE),
                                 chart.IsDatasetShown(n),
                                 chart.SetDatasetOrigin(n, 0),
                                 chart.FindData(n, 0) >= 0,
                                 chart.SetDrawStyle(n, CChartDraw::StyleStep),
                                 chart.GetStatistics(n, 0, 0, statistics)};
    };
    EXPECT_EQ(all(0), std::vector<BOOL>(18, FALSE));
    for (int i = 0; i < 3; ++i)
        chart.AddDataset();
    EXPECT_EQ(all(0), std::vector<BOOL>(18, TRUE));
    EXPECT_EQ(chart.GetDatasetName(0), _T("Name"));
    EXPECT_EQ(chart.GetDatasetSize(0), 2);
    EXPECT_FALSE(chart.RemoveHeadData(0, -1) || chart.SetHistory(0, -1, 0) || chart.SetHistory(0, 0, nan) ||
                 chart.SetGapLimit(0, -1) || chart.SetGapFactor(0, nan) || chart.SetBarWidth(0, inf) ||
                 chart.SetBarWidth(0, -1) || chart.SetBaseline(0, nan) || chart.SetFillTo(0, 0) ||
                 chart.SetFillTo(0, 3) || chart.SetDatasetOrigin(0, inf) || chart.SetEvenX(0, 0, 1) ||
                 chart.GetStatistics(0, nan, 0, statistics));
    EXPECT_EQ(chart.FindData(0, nan), -1);
    EXPECT_FALSE(chart.SetEvenX(1, 5, 0) || chart.SetEvenX(1, inf, 1));
    EXPECT_TRUE(chart.SetEvenX(1, 5, 0.5) && chart.AddEvenData(1, 1) && chart.AddEvenData(1, 2));
    double x = 0, y = 0;
    EXPECT_TRUE(chart.GetData(1, 1, x, y) && x == 5.5 && y == 2);
    // The area between two lines must not reach for a removed dataset.
    EXPECT_TRUE(chart.SetDrawStyle(0, CChartDraw::StyleFill) && chart.SetFillTo(0, 1));
    chart.RemoveDataset(1);
    testkit::DibSurface surface(300, 200), expected(300, 200);
    PaintInto(surface);
    chart.SetFillTo(0, -1);
    PaintInto(expected);
    EXPECT_EQ(testkit::Difference(surface, expected), "");
}

// ---- Linked charts ----

TEST_F(LiveTest, LinkedChartsShowTheSameTimesAndSurviveOneAnother) {
    auto second = std::make_unique<CChartDraw>(), third = std::make_unique<CChartDraw>();
    second->Create(WS_CHILD | WS_VISIBLE, CRect(0, 200, 300, 260), &parent, 6);
    third->Create(WS_CHILD | WS_VISIBLE, CRect(0, 260, 300, 320), &parent, 7);
    second->GetXAxis().SetOrigin(100);
    SetRange(chart, 10, 20);
    EXPECT_FALSE(chart.LinkView(&chart));
    EXPECT_TRUE(second->LinkView(&chart) && third->LinkView(second.get()));
    EXPECT_EQ(RangeText(*second) + " " + RangeText(*third), "-90..-80 10..20");
    testkit::Pump();
    parent.Forget();
    SetRange(*third, 500, 600);
    EXPECT_EQ(RangeText(*second) + " " + RangeText(chart), "400..500 500..600");
    EXPECT_TRUE(second->GetUpdateRect(nullptr) && chart.GetUpdateRect(nullptr));
    EXPECT_EQ(parent.Log(), (Strings{"notify 1280 id 5", "notify 1280 id 6"}))
        << "the host knows of its own call";

    // A handler that answers by another range, and one that never agrees.
    const auto answer = [&](double min, bool again) {
        parent.onNoted = [&, min, again](const testkit::RecordingParent::Entry& entry) {
            if (entry.code == CDN_VIEW && entry.idFrom == 5)
                SetRange(chart, again ? chart.GetXAxis().GetValue(0) + 7 : min, 1e6);
        };
    };
    answer(-3, false);
    SetRange(*second, 0, 1);
    EXPECT_EQ(RangeText(*second) + " " + RangeText(*third) + " " + RangeText(chart),
              "-103..999900 -3..1000000 -3..1000000");
    parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
        double min = 0, max = 0;
        chart.GetXAxis().GetRange(min, max);
        if (entry.code == CDN_VIEW)
            SetRange(entry.idFrom == 5 ? chart : *second, min + 1, max + 2);
    };
    SetRange(*third, 0, 1); // ends

    // Handlers destroy the chart that is told, one that is told later, and the one that began.
    parent.onNoted = nullptr;
    SetRange(chart, 0, 1);
    parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
        if (entry.code == CDN_VIEW && entry.idFrom == 5) {
            second.reset();
            chart.DestroyWindow();
        }
    };
    SetRange(*third, 5, 6);
    EXPECT_EQ(RangeText(*third), "5..6");
    parent.onNoted = nullptr;
    SetRange(chart, 3, 4); // has left with its window
    EXPECT_EQ(RangeText(*third), "5..6");
    EXPECT_TRUE(chart.LinkView(third.get()));
    EXPECT_EQ(RangeText(chart), "5..6");
    EXPECT_TRUE(chart.LinkView(nullptr));
    SetRange(chart, 8, 9);
    EXPECT_EQ(RangeText(*third), "5..6");
    CChartDraw fourth;
    EXPECT_TRUE(fourth.LinkView(third.get()));
    parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
        if (entry.code == CDN_VIEW)
            third.reset(); // while its own handler runs
    };
    SetRange(fourth, 1, 2);
    EXPECT_EQ(third, nullptr);
}

// ---- Saved data ----

TEST_F(LiveTest, SavedTablesHoldTheVisibleDatasetsAndReplaceFilesWhole) {
    const TempFolder folder;
    const auto text = [&](const char* name) {
        const auto bytes = FileBytes(folder.Path(name));
        return std::string(bytes.begin(), bytes.end());
    };
    const auto saved = [&](BOOL visibleOnly) {
        EXPECT_TRUE(chart.SaveData(folder.Path("a.csv").c_str(), visibleOnly));
        return text("a.csv");
    };
    EXPECT_EQ(saved(FALSE), "x\r\n");
    Add({1, 2.5, std::nan("")});
    Add({7});
    const int hidden = Add({8});
    chart.ShowDataset(hidden, FALSE);
    chart.SetDatasetName(0, CString(L"T, \u00b0C"));
    chart.SetDatasetOrigin(1, 1);
    EXPECT_EQ(saved(FALSE), "x,\"T, \xC2\xB0"
                            "C\",y2\r\n0,1,\r\n1,2.5,7\r\n2,,\r\n");
    SetRange(chart, 0.5, 1.5);
    chart.GetXAxis().SetKind(CChartAxis::Time);
    SetRange(chart, 0.5, 1.5);
    chart.SetXLabel(_T("t"));
    EXPECT_EQ(saved(TRUE), "t,\"T, \xC2\xB0"
                           "C\",y2\r\n1970-01-01T00:00:01Z,2.5,7\r\n");
    EXPECT_FALSE(chart.SaveData(folder.Path("none\\b.csv").c_str(), FALSE));
    {
        const testkit::ImportHook hook("Kavlix.dll", "WriteFile", reinterpret_cast<void*>(&RefuseWrite));
        ASSERT_TRUE(hook.Installed());
        EXPECT_FALSE(chart.SaveData(folder.Path("a.csv").c_str(), FALSE));
    }
    EXPECT_EQ(text("a.csv").substr(0, 2), "t,") << "unchanged";
    EXPECT_EQ(folder.Names(), Strings{"a.csv"});
}

// ---- Days ----

TEST_F(LiveTest, AWeekOfReadingsHoldsTheMemoryOfItsHistory) {
    constexpr int kDatasets = 2, kDay = 86400;
    const auto memory = [] {
        PROCESS_MEMORY_COUNTERS counters = {};
        counters.cb = sizeof counters;
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
        return static_cast<long>(counters.PagefileUsage / 1024);
    };
    for (int i = 0; i < kDatasets; ++i) {
        chart.AddDataset();
        chart.SetHistory(i, 0, 3600);
    }
    chart.GetXAxis().SetKind(CChartAxis::Time);
    SetRange(chart, 0, 3600);
    chart.GetXAxis().SetRangeMode(CChartAxis::Follow);
    long memoryAfterADay = 0;
    testkit::ObjectCounts objects;
    for (int second = 0; second <= 7 * kDay; ++second) {
        for (int i = 0; i < kDatasets; ++i)
            chart.AddData(i, second, i + second % 60);
        if (second % 7200 == 0) {
            chart.InsertData(0, second - 5, 0);
            chart.Redraw();
            testkit::Pump();
        }
        if (second == kDay) {
            memoryAfterADay = memory();
            objects = testkit::CountObjects();
        }
    }
    EXPECT_EQ(chart.GetDatasetSize(1), 3601);
    const testkit::ObjectCounts atEnd = testkit::CountObjects();
    EXPECT_LE(atEnd.bitmaps, objects.bitmaps + 1) << "the chart keeps one picture of its datasets";
    EXPECT_LE(atEnd.dcs, objects.dcs + 1);
    EXPECT_TRUE(atEnd.pens == objects.pens && atEnd.brushes == objects.brushes &&
                atEnd.fonts == objects.fonts && atEnd.regions == objects.regions &&
                atEnd.windows == objects.windows && atEnd.menus == objects.menus);
    EXPECT_LT(memory(), memoryAfterADay + 512) << "KiB";
    double min = 0, max = 0;
    chart.GetXAxis().GetRange(min, max);
    EXPECT_TRUE(min < 7 * kDay && max >= 7 * kDay && max - min == 3600) << min << " " << max;
}
