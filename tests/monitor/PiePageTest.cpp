// SPDX-License-Identifier: MIT
// The pie page: its sample, its selection and its copy.

#include <afxres.h>

#include "monitor/GraphPage.h"
#include "monitor/MonitorPie.h"
#include "tests/monitor/FrameWithPage.h"
#include "tests/support/MessageBoxWatcher.h"

namespace kavlix::test {
namespace {

using monitor::CMonitorGraph, monitor::CMonitorPie;

struct InsidePie : CMonitorPie {
    static const CObArray& Pieces(const CMonitorPie& pie) { return pie.*(&InsidePie::m_arrPieces); }
};

class PiePage : public FrameWithPage {
protected:
    void OpenSales() {
        Open("graph", {m_folder.Write("sales.csv", "time,a,b,c,d\n"
                                                   "2024-05-01 10:00:00,10,20,30,40\n"
                                                   "2024-05-01 10:01:00,25,25,50,0\n"
                                                   "2024-05-01 10:02:00,3,-2,,1\n")});
        Command(ID_PAGE_PIE);
    }
    CMonitorPie& Pie() { return ControlOf<CMonitorPie>(IDC_PIE); }
    /// Clicks into the pie at an angle in degrees.
    void Click(double angle) {
        Pie().UpdateWindow();
        CPoint point;
        Pie().CountPoint(angle, point, 1);
        Pie().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    }
    void Press(UINT key) { Pie().SendMessage(WM_KEYDOWN, key, 1); }
    std::vector<std::string> Labels() {
        std::vector<std::string> labels;
        for (int i = 0; i < InsidePie::Pieces(Pie()).GetSize(); ++i)
            labels.push_back(
                testkit::Utf8(static_cast<CPieChartPiece*>(InsidePie::Pieces(Pie())[i])->m_strLabel));
        return labels;
    }
    void MarkInGraph(int sample) {
        Command(ID_PAGE_GRAPH);
        ControlOf<CMonitorGraph>(IDC_GRAPH).SetSelectionMarkPos(sample);
    }
};

using Strings = std::vector<std::string>;

TEST_F(PiePage, ShowsTheMarkedSampleElseTheLastAndSaysWhatIsLeftOut) {
    OpenSales();
    EXPECT_EQ(Labels(), (Strings{"a", "d"}));
    EXPECT_EQ(Text(), "sales.csv, 2024-05-01 10:02:00 (last sample)   "
                      "Left out: b (negative), c (no value)");
    MarkInGraph(1);
    Command(ID_PAGE_PIE);
    EXPECT_EQ(Labels(), (Strings{"a", "b", "c", "d"}));
    EXPECT_EQ(Text(), "sales.csv, 2024-05-01 10:01:00 (marked)");

    MarkInGraph(2);
    testkit::MessageBoxWatcher person(IDYES);
    Command(ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
    MarkInGraph(0);
    Command(ID_PAGE_PIE);
    EXPECT_EQ(Text().substr(0, 42), "sales.csv, 2024-05-01 10:02:00 (marked)   ")
        << "the mark counts from the samples that are left";
}

TEST_F(PiePage, ClickAndKeysNameThePiece) {
    OpenSales();
    MarkInGraph(0);
    Command(ID_PAGE_PIE);
    Click(162);
    EXPECT_EQ(Text(), "c: 30   30.0 % of 100");
    Click(300);
    EXPECT_EQ(Text(), "d: 40   40.0 % of 100");
    Press(VK_RIGHT);
    EXPECT_EQ(Text(), "a: 10   10.0 % of 100");
    Press(VK_ESCAPE);
    EXPECT_EQ(Text(), "sales.csv, 2024-05-01 10:00:00 (marked)");
    Press(VK_LEFT);
    EXPECT_EQ(Text(), "d: 40   40.0 % of 100") << "from the end without a selection";
    Command(ID_GRAPH_CLEAR_SELECTION_MARK);
    EXPECT_FALSE(m_frame->Page().HasMark());
}

TEST_F(PiePage, LiveMemoryIsAWholeUnderItsHeadingAndKeepsTheSelection) {
    Open("pie", {});
    CRect pie;
    Pie().GetWindowRect(&pie);
    m_frame->Page().ScreenToClient(&pie);
    EXPECT_GT(pie.top, 0) << "the heading stands above";
    Press(VK_RIGHT);
    EXPECT_EQ(Text().substr(0, 16), "Kavlix Monitor: ");
    for (int i = 0; i < 3; ++i) {
        Tick();
        double whole = 0;
        for (int k = 0; k < InsidePie::Pieces(Pie()).GetSize(); ++k)
            whole += static_cast<CPieChartPiece*>(InsidePie::Pieces(Pie())[k])->m_dValue;
        EXPECT_NEAR(whole, 1, 1e-9);
        EXPECT_EQ(Text().substr(0, 16), "Kavlix Monitor: ");
    }
}

TEST_F(PiePage, CopyReachesTheClipboard) {
    OpenSales();
    ClearClipboard();
    Command(ID_EDIT_COPY);
    EXPECT_EQ(Text().substr(0, 6), "Copied");
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_ENHMETAFILE));
}

} // namespace
} // namespace kavlix::test
