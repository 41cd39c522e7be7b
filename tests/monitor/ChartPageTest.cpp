// SPDX-License-Identifier: MIT
// The chart page: choices, mark, pointer and texts.

#include <afxres.h>

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
    std::string Labels() { return Chart().Picture().yLabel + " / " + Chart().Picture().xLabel; }
    CPoint Place(std::size_t point) {
        Chart().UpdateWindow();
        return Chart().PlaceOf(Chart().Picture().points[point]).value_or(CPoint(-1, -1));
    }
    void Mouse(UINT message, CPoint point) { Chart().SendMessage(message, 0, MAKELPARAM(point.x, point.y)); }
    void Press(UINT key) { Chart().SendMessage(WM_KEYDOWN, key, 1); }
    std::string Pointer() { return Pane(1); }
    std::string Walk() {
        return m_folder.Write("walk.csv", "time,a,b,c\n0,1,10,3\n60,2,40,3\n120,,20,3\n180,4,30,3\n");
    }
};

TEST_F(ChartPage, AClickAndTheArrowKeysTellTheSampleAndHandItOn) {
    Open("chart", {Walk()});
    EXPECT_EQ(Labels(), "b / a");
    EXPECT_EQ(Text(), "3 points: b against a");
    Mouse(WM_MOUSEMOVE, Place(3));
    EXPECT_EQ(Pointer(), "1970-01-01 00:03:00   a: 4   b: 30");
    Mouse(WM_MOUSEMOVE, Place(3) + CSize(13, 0));
    EXPECT_EQ(Pointer(), "");
    Mouse(WM_LBUTTONDOWN, Place(1) + CSize(-5, 3));
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   a: 2   b: 40");
    Press(VK_RIGHT);
    EXPECT_EQ(Text(), "1970-01-01 00:03:00   a: 4   b: 30") << "over the gap";
    Press(VK_LEFT);
    Command(ID_PAGE_PIE);
    EXPECT_EQ(Text(), "walk.csv, 1970-01-01 00:01:00 (marked)");
    Command(ID_PAGE_CHART);
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   a: 2   b: 40") << "and it is still marked here";
    Press(VK_ESCAPE);
    EXPECT_EQ(Text(), "3 points: b against a");

    Command(ID_PAGE_GRAPH);
    ControlOf<CMonitorGraph>(IDC_GRAPH).SetSelectionMarkPos(0);
    Command(ID_PAGE_CHART);
    EXPECT_EQ(Text(), "1970-01-01 00:00:00   a: 1   b: 10") << "what was marked in the graph";
    Command(ID_CHART_SWAP);
    EXPECT_EQ(Labels(), "a / b");
    EXPECT_EQ(Text(), "1970-01-01 00:00:00   b: 10   a: 1");
    Chart().UpdateWindow();
    const CPoint first = Place(0);
    const CPoint last = Place(3);
    EXPECT_TRUE(first.x < last.x && first.y > last.y) << "10 to 30 to the right, 1 to 4 upwards";
}

TEST_F(ChartPage, ASingleSeriesIsDrawnAgainstItselfAndManySamplesWithoutLines) {
    Open("chart", {m_folder.Write("one.csv", "time,a\n0,1\n60,2\n120,5\n")});
    EXPECT_EQ(Text(), "2 points: a against a, one sample before");
    EXPECT_EQ(Chart().Picture().style, ChartStyle::Both);
    Command(ID_CHART_POINTS);
    EXPECT_EQ(Chart().Picture().style, ChartStyle::Points);

    std::string many = "time,a,b\n";
    for (int i = 0; i < 600; ++i)
        many += std::to_string(i) + "," + std::to_string(i % 7) + "," + std::to_string(i % 5) + "\n";
    Open("chart", {m_folder.Write("many.csv", many)});
    EXPECT_EQ(Chart().Picture().style, ChartStyle::Points);
    Command(ID_CHART_BOTH);
    EXPECT_EQ(Chart().Picture().style, ChartStyle::Both);
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
