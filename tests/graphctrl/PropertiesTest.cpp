// Defaults, and what each setter changes.

#include "tests/graphctrl/GraphTest.h"

#include <climits>
#include <cstddef>
#include <cstring>

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
    SETTER(SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(9)), "GraphStyle=9"),
    SETTER(SetTitleStyle(CGraphCtrl::TitleStyleCaption), "TitleStyle=1"),
    SETTER(SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(5)), "TitleStyle=5"),
    SETTER(ShowBorder(TRUE), "ShowBorder=1"),
    SETTER(ShowMenuRemoveDataBeforeSelectionMark(FALSE), "ShowMenuRemoveDataBeforeSelectionMark=0"),
    SETTER(SetAutoXVisible(FALSE), "AutoXVisible=0"),
    SETTER(SetXVisibleMin(7.5), "XVisibleMin=7.5"),
    SETTER(SetXVisibleMax(-7.5), "XVisibleMax=-7.5"),
    SETTER(SetYVisibleMin(500), "YVisibleMin=500"),
    SETTER(SetYVisibleMax(2), "YVisibleMax=2"),
    SETTER(SetY2VisibleMin(3), "Y2VisibleMin=3"),
    SETTER(SetY2VisibleMax(4), "Y2VisibleMax=4"),
    SETTER(SetTitle("a Title"), "Title='a Title'"),
    SETTER(SetXLabel("a XLabel"), "XLabel='a XLabel'"),
    SETTER(SetYLabel("a YLabel"), "YLabel='a YLabel'"),
    SETTER(SetY2Label("a Y2Label"), "Y2Label='a Y2Label'"),
    SETTER(ShowXLabel(FALSE), "ShowXLabel=0"),
    SETTER(ShowYLabel(FALSE), "ShowYLabel=0"),
    SETTER(ShowY2Label(FALSE), "ShowY2Label=0"),
    SETTER(ShowLegend(FALSE), "ShowLegend=0"),
    SETTER(ShowLegendBoard(FALSE), "ShowLegendBoard=0"),
    SETTER(SetLegendWidth(-5), "LegendWidth=-5"),
    SETTER(SetGrid(TRUE, TRUE), "GridX=1"),
    SETTER(SetGrid(TRUE, FALSE), "GridY=0"),
    SETTER(SetXTickLabelHeight(10), "XTickLabelHeight=10"),
    SETTER(SetXTickLabelUpStringMaxLength(3), "XTickLabelUpStringMaxLength=3"),
    SETTER(SetYTickLabelWidth(11), "YTickLabelWidth=11"),
    SETTER(SetY2TickLabelWidth(12), "Y2TickLabelWidth=12"),
    SETTER(SetYTickLabelScale(-2), "YTickLabelScale=-2"),
    SETTER(SetY2TickLabelScale(5), "Y2TickLabelScale=5"),
    SETTER(SetYUnit("kW", 3, 1), "YTickLabelScale=1 YUnitExponent=3 YUnit='kW'"),
    SETTER(SetY2Unit("mV", -3, 2), "Y2TickLabelScale=2 Y2UnitExponent=-3 Y2Unit='mV'"),
    SETTER(ShowIconMaximize(TRUE, FALSE), "ShowIconMaximize=1"),
    SETTER(ShowIconMaximize(FALSE, TRUE), "ShowIconMaximize=0 IconMaximized=1"),
    SETTER(SetCaptionFont(120, "Arial"), "CaptionFontSize=120 CaptionFontFace='Arial'"),
    SETTER(SetBkColor(kRed), "BkColor=201c8"),
    SETTER(SetTitleColor(kRed), "TitleColor=201c8"),
    SETTER(SetXLabelColor(kRed), "XLabelColor=201c8"),
    SETTER(SetYLabelColor(kRed), "YLabelColor=201c8"),
    SETTER(SetY2LabelColor(kRed), "Y2LabelColor=201c8"),
    SETTER(SetAxisColor(kRed), "AxisColor=201c8"),
    SETTER(SetXTickLabelColor(kRed), "XTickLabelColor=201c8"),
    SETTER(SetYTickLabelColor(kRed), "YTickLabelColor=201c8"),
    SETTER(SetY2TickLabelColor(kRed), "Y2TickLabelColor=201c8"),
    SETTER(SetGridColor(kRed), "GridColor=201c8"),
    SETTER(SetLegendColor(kRed), "LegendColor=201c8"),
    SETTER(SetLegendTextColor(kRed), "LegendTextColor=201c8"),
    SETTER(SetLineCursorColor(kRed), "LineCursorColor=201c8"),
    SETTER(SetBoxCursorColor(kRed), "BoxCursorColor=201c8"),
    SETTER(SetCaptionColor(kRed), "CaptionColor=201c8"),
    SETTER(SetCaptionTextColor(kRed), "CaptionTextColor=201c8"),
    SETTER(SetLineSize(3, 40), "3: FF6600 0 40 '' 1 0"),
    SETTER(SetLineSize(3, 5000), "3: FF6600 0 1000 '' 1 0"),
    SETTER(SetLineSize(3, -1), "3: FF6600 0 0 '' 1 0"),
    SETTER(SetMarkerType(3, CDataset::MarkerCross), "3: FF6600 5 0 '' 1 0"),
    SETTER(SetMarkerType(3, static_cast<CDataset::MarkerType>(77)), "3: FF6600 77 0 '' 1 0"),
    SETTER(SetLegend(12, "last"), "12: A2006C 0 0 'last' 1 0"),
    SETTER(ShowDataset(12, FALSE), "12: A2006C 0 0 'last' 0 0"),
    SETTER(AddData(12, 1.0, nullptr), "12: A2006C 0 0 'last' 0 1"),
    SETTER(ResetLegend(), "12: A2006C 0 0 '' 0 1"),
    SETTER(AddXTickLabel("u", "d"), "XTickLabelUp.GetSize()=1 XTickLabelDown.GetSize()=1"),
    SETTER(ShowLegend(TRUE), "ShowLegend=1"),
    SETTER(SetColor(0, RGB(10, 20, 30)), "0: 0A141E 0 0 '' 1 0"),
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis),
           "GraphStyle=2 ShowLegend=0 YLabelColor=1e140a Y2LabelColor=a97d7d YTickLabelColor=1e140a "
           "Y2TickLabelColor=a97d7d"),
    SETTER(SetColor(1, kRed), "Y2LabelColor=201c8 Y2TickLabelColor=201c8 1: C80102 0 0 '' 1 0"),
    SETTER(SetColor(2, kRed), "2: C80102 0 0 '' 1 0"),
    SETTER(SetColor(0, RGB(7, 7, 7)), "YLabelColor=70707 YTickLabelColor=70707 0: 070707 0 0 '' 1 0"),
    SETTER(ShowLegend(TRUE), ""),
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleLine), "GraphStyle=0"),
    SETTER(SetColor(0, RGB(1, 1, 1)), "0: 010101 0 0 '' 1 0"),
    SETTER(ShowLegend(TRUE), "ShowLegend=1"),
    SETTER(m_SelectionMarkPos = 0, "SelectionMarkPos=0"),
    SETTER(ResetData(13), ""),
    SETTER(ResetData(12), "SelectionMarkPos=-1 12: A2006C 0 0 '' 0 0"),
    SETTER(SetLegend(2, "two"), "2: C80102 0 0 'two' 1 0"),
    SETTER(m_SelectionMarkPos = 0, "SelectionMarkPos=0"),
    SETTER(ResetAll(), "SelectionMarkPos=-1 XTickLabelUp.GetSize()=0 XTickLabelDown.GetSize()=0 Title='Graph "
                       "Title' XLabel='X Label' YLabel='Y Label' 2: C80102 0 0 '' 1 0")};

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
    EXPECT_EQ(graph.m_hWnd, nullptr);
    for (const CRect* rect :
         {&graph.m_rectPlot, &graph.m_rectLegend, &graph.m_rectTitle, &graph.m_rectXAxis, &graph.m_rectYAxis,
          &graph.m_rectY2Axis, &graph.m_rectXTickLabel, &graph.m_rectYTickLabel, &graph.m_rectY2TickLabel,
          &graph.m_rectIconMaximize, &graph.m_rectCaption, &graph.m_rectClient, &graph.m_rectClientInner})
        EXPECT_EQ(Text(*rect), "0,0,0,0");
}

TEST(GraphPropertiesTest, EachSetterChangesWhatItNames) {
    OpenGraph graph;
    Strings before = Properties(graph);
    for (const Setter& setter : kSetters) {
        setter.call(graph);
        const Strings after = Properties(graph);
        Strings changes;
        for (std::size_t i = 0; i < after.size(); ++i)
            if (after[i] != before[i])
                changes.push_back(after[i]);
        EXPECT_EQ(Joined(changes), setter.changes) << setter.name;
        before = after;
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

TEST(GraphPropertiesTest, FontsAreMadeAsDescribed) {
    OpenGraph graph;
    const struct {
        const CFont& font;
        LONG height, escapement;
    } fonts[] = {{graph.m_YTickLabelFont, 350, 0},
                 {graph.m_XTickLabelFont, 300, 900},
                 {graph.m_UnitFont, 450, 0},
                 {graph.m_LegendFont, 350, 0}};
    for (const auto& each : fonts) {
        LOGFONT font = {};
        ::GetObject(static_cast<HFONT>(each.font.m_hObject), sizeof font, &font);
        const LOGFONT expected = {each.height,
                                  0,
                                  each.escapement,
                                  0,
                                  400,
                                  0,
                                  0,
                                  0,
                                  ANSI_CHARSET,
                                  OUT_TT_PRECIS,
                                  CLIP_LH_ANGLES,
                                  PROOF_QUALITY,
                                  DEFAULT_PITCH | FF_DONTCARE,
                                  ""};
        EXPECT_EQ(std::memcmp(&font, &expected, offsetof(LOGFONT, lfFaceName)), 0);
        EXPECT_STREQ(font.lfFaceName, "Arial");
    }
}

TEST(GraphPropertiesTest, ClassIsRegisteredOnceByTheConstructor) {
    OpenGraph graph;
    WNDCLASS info = {}, again = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "MFCGraphCtrl", &info));
    EXPECT_EQ(info.style, UINT(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS));
    EXPECT_EQ(info.cbClsExtra + info.cbWndExtra, 0);
    EXPECT_EQ(info.hIcon, nullptr);
    EXPECT_EQ(info.hCursor, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(info.hbrBackground, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    EXPECT_EQ(info.lpszMenuName, nullptr);
    EXPECT_TRUE(OpenGraph::RegisterWindowClass());
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "MFCGraphCtrl", &again));
    EXPECT_EQ(again.lpfnWndProc, info.lpfnWndProc);
}
