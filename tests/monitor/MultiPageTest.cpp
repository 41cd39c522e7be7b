// SPDX-License-Identifier: MIT
// The multi page: the contents of its graph for each type, copy and print.

#include <afxres.h>

#include <functional>

#include "monitor/MultiGraphView.h"
#include "monitor/MultiOptionsPanel.h"
#include "tests/monitor/FrameWithPage.h"
#include "tests/support/MetafileRecorder.h"

namespace kavlix::test {
namespace {

using monitor::CMultiGraphView, monitor::CMultiOptionsPanel, monitor::GraphTypeChoices;

struct InsideGraph : CGraph {
    static int Low(const CGraph& graph) { return graph.*(&InsideGraph::minTick); }
    static int High(const CGraph& graph) { return graph.*(&InsideGraph::maxTick); }
    static int Alignment(const CGraph& graph) { return graph.*(&InsideGraph::graphAlignment); }
    static CString Across(const CGraph& graph) { return graph.*(&InsideGraph::axisXLabel); }
    static const CObList& Series(const CGraph& graph) { return *(graph.*(&InsideGraph::seriesList)); }
};

class MultiPage : public FrameWithPage {
protected:
    /// Four days with a value each hour, none on the third day: up = 10 * day + 4 * hour, down = -up.
    std::string Days() {
        std::string text = "time,up,down\n";
        for (int hour = 0; hour < 4 * 24; ++hour) {
            const int value = hour / 24 * 10 + hour % 24 * 4;
            text += std::to_string(hour * 3600) + "," +
                    (hour / 24 == 2 ? "," : std::to_string(value) + "," + std::to_string(-value)) + "\n";
        }
        return m_folder.Write("days.csv", text);
    }
    CMultiGraphView& View() { return ControlOf<CMultiGraphView>(IDC_MULTI_VIEW); }
    void Choose(int id, UINT message, int item, int code) {
        CWnd* panel = m_frame->Page().GetWindow(GW_CHILD);
        while (panel && !dynamic_cast<CMultiOptionsPanel*>(panel))
            panel = panel->GetNextWindow();
        ASSERT_NE(panel, nullptr);
        panel->SendDlgItemMessage(id, message, static_cast<WPARAM>(item));
        panel->SendMessage(WM_COMMAND, static_cast<WPARAM>(MAKELONG(id, code)),
                           reinterpret_cast<LPARAM>(panel->GetDlgItem(id)->m_hWnd));
    }
    void ChooseType(int item) { Choose(IDC_MULTI_TYPE, LB_SETCURSEL, item, LBN_SELCHANGE); }
    void ChooseData(int item) { Choose(IDC_MULTI_DATA, CB_SETCURSEL, item, CBN_SELCHANGE); }
    /// `label: key=value ...;` for every series.
    std::string Contents() {
        std::string text;
        const CObList& list = InsideGraph::Series(View().Graph());
        for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
            const auto* const series = static_cast<const CGraphSeries*>(list.GetNext(at));
            text += testkit::Utf8(series->GetLabel()) + ":";
            const CObList& values = series->GetDataList();
            for (POSITION value = values.GetHeadPosition(); value != nullptr;) {
                const auto* const one = static_cast<const CGraphValue*>(values.GetNext(value));
                text += " " + std::to_string(one->key) + "=" + std::to_string(one->value);
            }
            text += "; ";
        }
        return text;
    }
};

TEST_F(MultiPage, TypesAreFilledWithTheStatisticsOfEachPeriod) {
    Open("multi", {Days()});
    // Periods of six hours: sixteen of them, four without values.
    ChooseType(1);
    EXPECT_EQ(Contents().substr(0, 50), "01-01 00:00: 0=10 1=-10; 01-01 06:00: 0=34 1=-34; ");
    EXPECT_NE(Contents().find("01-03 06:00:; "), std::string::npos);
    EXPECT_LE(InsideGraph::Low(View().Graph()), -112);
    EXPECT_GE(InsideGraph::High(View().Graph()), 112);
    ChooseData(1);
    EXPECT_EQ(Contents().substr(0, 57), "01-01 00:00: 0=0 1=10 2=20; 01-01 06:00: 0=24 1=34 2=44; ");
    for (const int type : {3, 6}) {
        ChooseType(type);
        EXPECT_EQ(Contents().substr(0, 26), "lowest: 0=0 1=24 2=48 3=72");
        EXPECT_EQ(Contents().find(" 8="), std::string::npos);
    }
    ChooseType(4);
    EXPECT_EQ(Contents().substr(0, 43), "01-01 00:00: 0=0 1=4 2=8 3=12 4=16 5=20; 01");
    ChooseData(0);
    EXPECT_EQ(InsideGraph::Series(View().Graph()).GetCount(), 2);
    ChooseData(1);
    ChooseType(5);
    EXPECT_EQ(InsideGraph::Low(View().Graph()), 0);
    EXPECT_GE(InsideGraph::High(View().Graph()), 102 + 112 + 122) << "what stacks add up to";
}

TEST_F(MultiPage, EveryTypePaintsOnScreenAndPaper) {
    Open("multi", {Days()});
    for (std::size_t type = 0; type < GraphTypeChoices().size(); ++type) {
        SCOPED_TRACE(testkit::Utf8(GraphTypeChoices()[type].name));
        ChooseType(static_cast<int>(type));
        const auto recordsOf = [](const std::function<void(CDC&)>& draw) {
            testkit::MetafileRecorder picture;
            draw(*CDC::FromHandle(picture.Dc()));
            picture.Close();
            return picture.Records().size();
        };
        EXPECT_GT(recordsOf([this](CDC& dc) { View().Draw(dc); }), 40u);
        EXPECT_GT(recordsOf([this](CDC& dc) { View().Print(dc, CSize(12240, 15840)); }), 40u);
    }
    Choose(IDC_MULTI_HORIZONTAL, BM_SETCHECK, BST_CHECKED, BN_CLICKED);
    for (const auto& [type, caption] :
         {std::pair(0, "mean"), std::pair(3, "number of the 6 hours, from 0")}) {
        ChooseType(type);
        EXPECT_EQ(InsideGraph::Alignment(View().Graph()), 0);
        EXPECT_EQ(testkit::Utf8(InsideGraph::Across(View().Graph())), caption)
            << "the values have turned, or have not";
    }
    Command(ID_EDIT_COPY);
    EXPECT_EQ(Text().substr(0, 6), "Copied");
}

} // namespace
} // namespace kavlix::test
