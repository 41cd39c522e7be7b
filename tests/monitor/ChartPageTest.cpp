// SPDX-License-Identifier: MIT
// The chart page: series over time, one against another, mark, pointer, view and texts.

#include <afxres.h>

#include <cmath>

#include "monitor/ChartPage.h"
#include "monitor/ChartSeriesDlg.h"
#include "monitor/MonitorGraph.h"
#include "tests/monitor/FrameWithPage.h"

namespace kavlix::test {
namespace {

using monitor::ChartStyle, monitor::CMonitorChart, monitor::CMonitorGraph, recording::ChartChoice,
    recording::ChartX;

class ChartPage : public FrameWithPage {
protected:
    CMonitorChart& Chart() { return ControlOf<CMonitorChart>(IDC_CHART); }
    /// The place of a sample, in client pixels.
    CPoint Place(int dataset, int sample) {
        Chart().UpdateWindow();
        double x = 0;
        double y = 0;
        int left = -1;
        int top = -1;
        if (Chart().GetData(dataset, sample, x, y) && Chart().GetXAxis().GetPosition(x, left))
            Chart().GetYAxis().GetPosition(y, top);
        return {left, top};
    }
    void Mouse(UINT message, CPoint point) { Chart().SendMessage(message, 0, MAKELPARAM(point.x, point.y)); }
    void Click(CPoint point) {
        Mouse(WM_MOUSEMOVE, point);
        Mouse(WM_LBUTTONDOWN, point);
        Mouse(WM_LBUTTONUP, point);
    }
    void Wheel(CPoint point, short delta) {
        Chart().ClientToScreen(&point);
        Chart().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(point.x, point.y));
    }
    void Press(UINT key) { Chart().SendMessage(WM_KEYDOWN, key, 1); }
    std::string Pointer() { return Pane(1); }
    /// The samples of a dataset: `x:y` each, `-` for a gap.
    std::string Samples(int dataset) {
        std::string text;
        double x = 0;
        double y = 0;
        for (int i = 0; Chart().GetData(dataset, i, x, y); ++i) {
            char part[64] = "";
            std::snprintf(part, sizeof part, "%.10g:%g ", x, y);
            text += std::isnan(x) || std::isnan(y) ? "- " : part;
        }
        return text;
    }
    /// Seconds of the X axis in view, from and to.
    std::pair<double, double> View() {
        Chart().UpdateWindow();
        std::pair<double, double> view;
        Chart().GetXAxis().GetRange(view.first, view.second);
        return view;
    }
    /// Opens the dialog "Choose Series" by its command, and chooses there by index.
    void Choose(int x, int y) {
        static int chosenX;
        static int chosenY;
        chosenX = x;
        chosenY = y;
        const auto choose = [](HWND, UINT, UINT_PTR timer, DWORD) {
            const HWND dialog = ::FindWindow(nullptr, _T("Choose Series"));
            if (!dialog)
                return;
            ::KillTimer(nullptr, timer);
            ::SendDlgItemMessage(dialog, IDC_CHART_X, CB_SETCURSEL, static_cast<WPARAM>(chosenX), 0);
            ::SendDlgItemMessage(dialog, IDC_CHART_Y, CB_SETCURSEL, static_cast<WPARAM>(chosenY), 0);
            ::SendMessage(dialog, WM_COMMAND, IDOK, 0);
        };
        ::SetTimer(nullptr, 0, 1, choose);
        Command(ID_CHART_SERIES);
    }
    std::string Walk() {
        return m_folder.Write("walk.csv", "time,a,b,c\n0,1,10,3\n60,2,40,3\n120,,20,3\n180,4,30,3\n");
    }
};

TEST_F(ChartPage, TwoLoggersStandWholeOverTimeEachWithItsOwnSamples) {
    Open("chart", {m_folder.Write("a.csv", "t,a\n9,\n10,1\n11,2\n12,3\n"),
                   m_folder.Write("b.csv", "t,b\n10.300001,5\n11.9,6\n")});
    EXPECT_EQ(Samples(0), "- 1:1 2:2 3:3 ");
    EXPECT_EQ(Samples(1), "1.300001:5 2.9:6 ");
    EXPECT_EQ(Chart().GetXAxis().GetKind(), CChartAxis::Time);
    const auto [from, to] = View();
    EXPECT_TRUE(from <= 1 && to >= 3) << from << " to " << to;
    EXPECT_EQ(Text(), "1970-01-01 00:00:09  to  1970-01-01 00:00:12");
    Mouse(WM_MOUSEMOVE, Place(1, 1));
    EXPECT_EQ(Pointer(), "1970-01-01 00:00:11.900   a: 3 (00:00:12)   b: 6") << "the nearest in time";
}

TEST_F(ChartPage, AClickAndTheArrowKeysTellTheSampleAndHandItOn) {
    Open("chart", {Walk()});
    EXPECT_EQ(Text(), "1970-01-01 00:00:00  to  1970-01-01 00:03:00");
    Mouse(WM_MOUSEMOVE, Place(1, 3));
    EXPECT_EQ(Pointer(), "1970-01-01 00:03:00   a: 4   b: 30   c: 3");
    Click(Place(1, 1));
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   a: 2   b: 40   c: 3");
    Command(ID_PAGE_PIE);
    EXPECT_EQ(Text(), "walk.csv, 1970-01-01 00:01:00 (marked)");
    Command(ID_PAGE_CHART);
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   a: 2   b: 40   c: 3") << "and it is still marked here";
    Press(VK_ESCAPE);
    EXPECT_EQ(Text(), "1970-01-01 00:00:00  to  1970-01-01 00:03:00");
    Press(VK_LEFT);
    EXPECT_EQ(Text(), "1970-01-01 00:03:00   a: 4   b: 30   c: 3") << "the last one in view";

    Command(ID_PAGE_GRAPH);
    ControlOf<CMonitorGraph>(IDC_GRAPH).SetSelectionMarkPos(0);
    Command(ID_PAGE_CHART);
    EXPECT_EQ(Text(), "1970-01-01 00:00:00   a: 1   b: 10   c: 3") << "what was marked in the graph";
}

TEST_F(ChartPage, TheWheelZoomsAndSettingsKeepTheView) {
    Open("chart", {Walk()});
    const auto whole = View();
    Wheel(Place(1, 1), 120);
    const auto zoomed = View();
    EXPECT_LT(zoomed.second - zoomed.first, whole.second - whole.first);
    Command(ID_VIEW_LEGEND);
    Command(ID_CHART_LINES);
    EXPECT_EQ(View(), zoomed);
    Command(ID_VIEW_ZOOM_IN);
    EXPECT_LT(View().second - View().first, zoomed.second - zoomed.first) << "the key that the menu took";
    Command(ID_CHART_BACK);
    EXPECT_EQ(View(), zoomed);
    Command(ID_VIEW_FULL_RANGE);
    EXPECT_EQ(View(), whole);
}

TEST_F(ChartPage, LiveReadingsAreAppendedAndFollowed) {
    Open("chart", {});
    Tick();
    EXPECT_EQ(Chart().GetXAxis().GetRangeMode(), CChartAxis::Follow);
    const recording::Time origin = recording::FloorTo(Chart().Picture().recording->times[0], 1'000'000);
    constexpr std::size_t most = monitor::LiveReadings::kHistory;
    for (std::size_t i = 0; i < most + 3; ++i)
        Tick();
    const recording::Recording& recording = *Chart().Picture().recording;
    ASSERT_EQ(recording.times.size(), most) << "the oldest readings have left";
    ASSERT_EQ(Chart().GetDatasetSize(1), static_cast<int>(most));
    for (std::size_t row = 0; row < most; ++row) {
        double x = 0;
        double y = 0;
        ASSERT_TRUE(Chart().GetData(1, static_cast<int>(row), x, y));
        ASSERT_EQ(x, recording::SecondsFrom(origin, recording.times[row]));
        ASSERT_EQ(y, recording.series[1].values[row]);
    }
}

TEST_F(ChartPage, OneSeriesIsShownAgainstAnother) {
    Open("chart", {Walk()});
    Choose(0, 1);
    EXPECT_EQ(Text(), "3 points: b against a");
    EXPECT_EQ(Samples(0), "1:10 2:40 - 4:30 ");
    Mouse(WM_MOUSEMOVE, Place(0, 3));
    EXPECT_EQ(Pointer(), "1970-01-01 00:03:00   a: 4   b: 30");
    Click(Place(0, 1));
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   a: 2   b: 40");
    Press(VK_RIGHT);
    EXPECT_EQ(Text(), "1970-01-01 00:03:00   a: 4   b: 30") << "over the gap";
    Command(ID_CHART_SWAP);
    EXPECT_EQ(Text(), "1970-01-01 00:03:00   b: 30   a: 4");
    Choose(3, 0);
    EXPECT_EQ(Samples(0), "- 1:2 - - ") << "each against the one before";
    Wheel(Place(0, 1), 120);
    Choose(4, 0);
    EXPECT_EQ(Chart().GetDatasetCount(), 3) << "all over time again";
    EXPECT_EQ(View().second, 180) << "and the whole of them";
}

TEST_F(ChartPage, ManyPointsAreDrawnWithoutLines) {
    std::string many = "time,a,b\n";
    for (int i = 0; i < 600; ++i)
        many += std::to_string(i) + "," + std::to_string(i % 7) + "," + std::to_string(i % 5) + "\n";
    Open("chart", {m_folder.Write("many.csv", many)});
    EXPECT_EQ(Chart().Style(), ChartStyle::Lines);
    Choose(0, 1);
    EXPECT_EQ(Chart().Style(), ChartStyle::Points);
    Command(ID_CHART_BOTH);
    EXPECT_EQ(Chart().Style(), ChartStyle::Both);
}

TEST_F(ChartPage, SeriesAreChosenInTheDialog) {
    struct Person : monitor::CChartSeriesDlg {
        using CChartSeriesDlg::CChartSeriesDlg;
        int x = 0;
        BOOL OnInitDialog() override {
            const BOOL focus = CChartSeriesDlg::OnInitDialog();
            static_cast<CComboBox*>(GetDlgItem(IDC_CHART_X))->SetCurSel(x);
            PostMessage(WM_COMMAND, IDOK);
            return focus;
        }
    };
    Open("chart", {Walk()});
    const std::pair<int, ChartChoice> cases[] = {
        {2, {ChartX::Series, 2, 1}}, {3, {ChartX::Predecessor, 0, 1}}, {4, {ChartX::Time, 0, 1}}};
    for (const auto& [x, choice] : cases) {
        Person person({"a", "b", "c"}, {ChartX::Series, 0, 1}, m_frame);
        person.x = x;
        ASSERT_EQ(person.DoModal(), IDOK);
        EXPECT_EQ(person.Choice(), choice);
    }
}

} // namespace
} // namespace kavlix::test
