// SPDX-License-Identifier: MIT
// Defaults, and what each setter changes.

#include "tests/graphctrl/GraphTest.h"

#include <climits>

namespace {

constexpr COLORREF kRed = RGB(200, 1, 2);

/// A call, and the properties that differ after it.
struct Setter {
    const char* name;
    void (*call)(OpenGraph&);
    const char* changes;
};
#define SETTER(call, changes)                                                                                \
    {                                                                                                        \
#call, [](OpenGraph & g) { g.call; }, changes                                                        \
    }

// All on one control, one after the other.
const Setter kSetters[] = {
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleBar), "GraphStyle=1"),
    SETTER(SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(5)), "TitleStyle=5"),
    SETTER(ShowBorder(TRUE), "ShowBorder=1"),
    SETTER(ShowMenuRemoveDataBeforeSelectionMark(FALSE), "ShowMenuRemoveDataBeforeSelectionMark=0"),
    SETTER(SetAutoXVisible(FALSE), "AutoXVisible=0"),
    SETTER(ShowLegend(FALSE), "ShowLegend=0"),
    SETTER(SetGrid(TRUE, TRUE), "GridX=1"),
    SETTER(SetYUnit("kW", 3, 1), "YTickLabelScale=1 YUnitExponent=3 YUnit='kW'"),
    SETTER(SetY2Unit("mV", -3, 2), "Y2TickLabelScale=2 Y2UnitExponent=-3 Y2Unit='mV'"),
    SETTER(ShowIconMaximize(TRUE, FALSE), "ShowIconMaximize=1"),
    SETTER(ShowIconMaximize(FALSE, TRUE), "ShowIconMaximize=0 IconMaximized=1"),
    SETTER(SetCaptionFont(120, _T("Arial")), "CaptionFontSize=120 CaptionFontFace='Arial'"),
    SETTER(SetLineSize(3, 5000), "3: FF6600 0 1000 '' 1 0"),
    SETTER(SetLineSize(3, -1), "3: FF6600 0 0 '' 1 0"),
    SETTER(SetMarkerType(3, static_cast<CDataset::MarkerType>(77)), "3: FF6600 77 0 '' 1 0"),
    SETTER(ShowLegend(TRUE), "ShowLegend=1"),
    SETTER(SetColor(0, RGB(10, 20, 30)), "0: 0A141E 0 0 '' 1 0"),
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis),
           "GraphStyle=2 ShowLegend=0 YLabelColor=1e140a Y2LabelColor=a97d7d YTickLabelColor=1e140a "
           "Y2TickLabelColor=a97d7d"),
    SETTER(SetColor(1, kRed), "Y2LabelColor=201c8 Y2TickLabelColor=201c8 1: C80102 0 0 '' 1 0"),
    SETTER(SetColor(0, RGB(7, 7, 7)), "YLabelColor=70707 YTickLabelColor=70707 0: 070707 0 0 '' 1 0"),
    SETTER(ShowLegend(TRUE), ""),
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleLine), "GraphStyle=0"),
    SETTER(SetColor(0, RGB(1, 1, 1)), "0: 010101 0 0 '' 1 0"),
    SETTER(ShowLegend(TRUE), "ShowLegend=1"),
    SETTER(m_SelectionMarkPos = 0, "SelectionMarkPos=0"),
    SETTER(AddData(12, 1.0, nullptr), "12: A2006C 0 0 '' 1 1"),
    SETTER(ResetData(12), "SelectionMarkPos=-1 12: A2006C 0 0 '' 1 0"),
    SETTER(AddXTickLabel("u", "d"), "XTickLabelUp.GetSize()=1 XTickLabelDown.GetSize()=1"),
    SETTER(SetLegend(2, "two"), "2: 99CC00 0 0 'two' 1 0"),
    SETTER(m_SelectionMarkPos = 0, "SelectionMarkPos=0"),
    SETTER(ResetAll(), "SelectionMarkPos=-1 XTickLabelUp.GetSize()=0 XTickLabelDown.GetSize()=0 Title='Graph "
                       "Title' XLabel='X Label' YLabel='Y Label' 2: 99CC00 0 0 '' 1 0")};

/// The properties that differ from `before`, which becomes what they are now.
std::string Changes(const OpenGraph& graph, Strings& before) {
    const Strings after = Properties(graph);
    Strings changes;
    for (std::size_t i = 0; i < after.size(); ++i)
        if (after[i] != before[i])
            changes.push_back(after[i]);
    before = after;
    return Joined(changes);
}

} // namespace

TEST(GraphPropertiesTest, DefaultsOfEveryField) {
    const OpenGraph graph;
    EXPECT_EQ(
        Joined(Properties(graph)),
        "GraphStyle=0 TitleStyle=0 ShowBorder=0 AutoXVisible=1 IconMaximizeTracking=0 "
        "IconMaximizePressed=0 GridY=1 GridX=0 GridColor=c1ddb9 ShowLegend=1 ShowLegendBoard=1 "
        "LegendMargin=100 LegendItemHeight=300 SelectionMarkPos=-1 LineCursorColor=646464 "
        "BoxCursorColor=e1e1e1 BkColor=ffffff TitleColor=8c6060 XLabelColor=e2a27e YLabelColor=e2a27e "
        "Y2LabelColor=e2a27e AxisColor=c1ddb9 XTickLabelColor=4d7f3f YTickLabelColor=4d7f3f "
        "Y2TickLabelColor=6496 LegendColor=f1e8d7 LegendTextColor=71513f CaptionColor=968080 "
        "CaptionTextColor=ffffff XTickLabelHeight=1500 LegendWidth=3000 XTickLabelUpStringMaxLength=10 "
        "YTickLabelWidth=1500 Y2TickLabelWidth=1500 YTickLabelScale=0 Y2TickLabelScale=0 YUnitExponent=0 "
        "Y2UnitExponent=0 ShowXLabel=1 ShowYLabel=1 ShowY2Label=1 ShowIconMaximize=0 IconMaximized=0 "
        "CaptionFontSize=80 ShowMenuRemoveDataBeforeSelectionMark=1 XVisibleMin=0 XVisibleMax=100 "
        "YVisibleMin=0 YVisibleMax=100 Y2VisibleMin=0 Y2VisibleMax=100 ReservedValue=1 "
        "XTickLabelUp.GetSize()=0 XTickLabelDown.GetSize()=0 Title='Graph Title' XLabel='X Label' "
        "YLabel='Y Label' Y2Label='Y2 Label' CaptionFontFace='Tahoma' YUnit='' Y2Unit='' 0: F000B1 0 0 '' "
        "1 0 1: 7D7DA9 0 0 '' 1 0 2: 99CC00 0 0 '' 1 0 3: FF6600 0 0 '' 1 0 4: CCCCFF 0 0 '' 1 0 5: "
        "CB3B3B 0 0 '' 1 0 6: 848282 0 0 '' 1 0 7: 0087A2 0 0 '' 1 0 8: 3600A2 0 0 '' 1 0 9: 323232 0 0 "
        "'' 1 0 10: 4185F5 0 0 '' 1 0 11: A2006C 0 0 '' 1 0 12: A2006C 0 0 '' 1 0");
    EXPECT_EQ(CDataset().GetColor(), RGB(204, 58, 183));
}

TEST(GraphPropertiesTest, EachSetterChangesWhatItNames) {
    OpenGraph graph;
    Strings before = Properties(graph);
    int next = 20;
    for (auto set : kColorSetters)
        (graph.*set)(next++);
    for (auto set : {&CGraphCtrl::SetLegendWidth, &CGraphCtrl::SetXTickLabelHeight,
                     &CGraphCtrl::SetXTickLabelUpStringMaxLength, &CGraphCtrl::SetYTickLabelWidth,
                     &CGraphCtrl::SetY2TickLabelWidth, &CGraphCtrl::SetYTickLabelScale,
                     &CGraphCtrl::SetY2TickLabelScale, &CGraphCtrl::ShowXLabel, &CGraphCtrl::ShowYLabel,
                     &CGraphCtrl::ShowY2Label, &CGraphCtrl::ShowLegendBoard})
        (graph.*set)(next++);
    for (auto set : {&CGraphCtrl::SetXVisibleMin, &CGraphCtrl::SetXVisibleMax, &CGraphCtrl::SetYVisibleMin,
                     &CGraphCtrl::SetYVisibleMax, &CGraphCtrl::SetY2VisibleMin, &CGraphCtrl::SetY2VisibleMax})
        (graph.*set)(next++);
    for (auto set :
         {&CGraphCtrl::SetTitle, &CGraphCtrl::SetXLabel, &CGraphCtrl::SetYLabel, &CGraphCtrl::SetY2Label})
        (graph.*set)(std::to_string(next++).c_str());
    EXPECT_EQ(
        Changes(graph, before),
        "GridColor=14 ShowLegendBoard=46 LineCursorColor=22 BoxCursorColor=23 BkColor=15 TitleColor=16 "
        "XLabelColor=17 YLabelColor=18 Y2LabelColor=19 AxisColor=1a XTickLabelColor=1b YTickLabelColor=1c "
        "Y2TickLabelColor=1d LegendColor=1e LegendTextColor=1f CaptionColor=20 CaptionTextColor=21 "
        "XTickLabelHeight=37 LegendWidth=36 XTickLabelUpStringMaxLength=38 YTickLabelWidth=39 "
        "Y2TickLabelWidth=40 YTickLabelScale=41 Y2TickLabelScale=42 ShowXLabel=43 ShowYLabel=44 "
        "ShowY2Label=45 XVisibleMin=47 XVisibleMax=48 YVisibleMin=49 YVisibleMax=50 Y2VisibleMin=51 "
        "Y2VisibleMax=52 Title='53' XLabel='54' YLabel='55' Y2Label='56'");
    for (const Setter& setter : kSetters) {
        setter.call(graph);
        EXPECT_EQ(Changes(graph, before), setter.changes) << setter.name;
    }
    for (const int bad : {-1, 13, INT_MIN, INT_MAX}) {
        EXPECT_FALSE(graph.SetColor(bad, 0) || graph.SetLineSize(bad, 5) || graph.ShowDataset(bad, FALSE) ||
                     graph.SetMarkerType(bad, CDataset::MarkerCross) || graph.SetLegend(bad, "x"));
        EXPECT_EQ(Properties(graph), before) << bad;
    }
    EXPECT_TRUE(graph.SetColor(12, 0) && graph.SetLineSize(12, 5) && graph.ShowDataset(12, TRUE) &&
                graph.SetMarkerType(12, CDataset::MarkerCross) && graph.SetLegend(12, "x"));
    EXPECT_EQ(graph.GetGraphStyle(), CGraphCtrl::GraphStyleLine);
    EXPECT_EQ(graph.GetTitleStyle(), 5);
    EXPECT_TRUE(graph.GetShowLegend());
}

TEST(GraphPropertiesTest, TheConstructorRegistersTheClass) {
    const OpenGraph graph;
    WNDCLASS info = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), _T("MFCGraphCtrl"), &info));
    EXPECT_EQ(info.style, UINT(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS));
    EXPECT_EQ(info.hCursor, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(info.hbrBackground, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
}
