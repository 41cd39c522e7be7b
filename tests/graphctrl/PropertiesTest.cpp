#include "tests/graphctrl/GraphTest.h"

#include <functional>

namespace {

constexpr COLORREF kRed = RGB(200, 1, 2);

struct IntDefault {
    const char* name;
    std::function<long long(const OpenGraph&)> get;
    long long expected;
};

#define FIELD(name, expected)                                                                                \
    IntDefault {                                                                                             \
#name, [](const OpenGraph& g) { return static_cast<long long>(g.name); }, expected                   \
    }

const IntDefault kDefaults[] = {
    FIELD(m_GraphStyle, 0),
    FIELD(m_TitleStyle, 0),
    FIELD(m_ShowBorder, 0),
    FIELD(m_AutoXVisible, 1),
    FIELD(m_IconMaximizeTracking, 0),
    FIELD(m_IconMaximizePressed, 0),
    FIELD(m_GridY, 1),
    FIELD(m_GridX, 0),
    FIELD(m_GridColor, 0x00C1DDB9),
    FIELD(m_ShowLegend, 1),
    FIELD(m_ShowLegendBoard, 1),
    FIELD(m_LegendMargin, 100),
    FIELD(m_LegendItemHeight, 300),
    FIELD(m_SelectionMarkPos, -1),
    FIELD(m_LineCursorColor, 0x00646464),
    FIELD(m_BoxCursorColor, 0x00E1E1E1),
    FIELD(m_BkColor, 0x00FFFFFF),
    FIELD(m_TitleColor, 0x008C6060),
    FIELD(m_XLabelColor, 0x00E2A27E),
    FIELD(m_YLabelColor, 0x00E2A27E),
    FIELD(m_Y2LabelColor, 0x00E2A27E),
    FIELD(m_AxisColor, 0x00C1DDB9),
    FIELD(m_XTickLabelColor, 0x004D7F3F),
    FIELD(m_YTickLabelColor, 0x004D7F3F),
    FIELD(m_Y2TickLabelColor, 0x00006496),
    FIELD(m_LegendColor, 0x00F1E8D7),
    FIELD(m_LegendTextColor, 0x0071513F),
    FIELD(m_CaptionColor, 0x00968080),
    FIELD(m_CaptionTextColor, 0x00FFFFFF),
    FIELD(m_XTickLabelHeight, 1500),
    FIELD(m_LegendWidth, 3000),
    FIELD(m_XTickLabelUpStringMaxLength, 10),
    FIELD(m_YTickLabelWidth, 1500),
    FIELD(m_Y2TickLabelWidth, 1500),
    FIELD(m_YTickLabelScale, 0),
    FIELD(m_Y2TickLabelScale, 0),
    FIELD(m_YUnitExponent, 0),
    FIELD(m_Y2UnitExponent, 0),
    FIELD(m_ShowXLabel, 1),
    FIELD(m_ShowYLabel, 1),
    FIELD(m_ShowY2Label, 1),
    FIELD(m_ShowIconMaximize, 0),
    FIELD(m_IconMaximized, 0),
    FIELD(m_CaptionFontSize, 80),
    FIELD(m_ShowMenuRemoveDataBeforeSelectionMark, 1),
    FIELD(m_XVisibleMin, 0),
    FIELD(m_XVisibleMax, 100),
    FIELD(m_YVisibleMin, 0),
    FIELD(m_YVisibleMax, 100),
    FIELD(m_Y2VisibleMin, 0),
    FIELD(m_Y2VisibleMax, 100),
    FIELD(m_ReservedValue, 1),
    FIELD(m_XTickLabelUp.GetSize(), 0),
    FIELD(m_XTickLabelDown.GetSize(), 0),
};
#undef FIELD

/// A setter called with a value that differs from the default, and whether the field took it.
struct Setter {
    const char* name;
    std::function<void(OpenGraph&)> set;
    std::function<bool(const OpenGraph&)> took;
};

#define SETTER(call, condition)                                                                              \
    Setter {                                                                                                 \
#call, [](OpenGraph & g) { g.call; }, [](const OpenGraph& g) { return condition; }                   \
    }

const Setter kSetters[] = {
    SETTER(SetGraphStyle(CGraphCtrl::GraphStyleBar), g.m_GraphStyle == 1 && g.GetGraphStyle() == 1),
    SETTER(SetTitleStyle(CGraphCtrl::TitleStyleCaption), g.m_TitleStyle == 1 && g.GetTitleStyle() == 1),
    SETTER(SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(9)), g.GetGraphStyle() == 9),
    SETTER(SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(5)), g.GetTitleStyle() == 5),
    SETTER(ShowBorder(TRUE), g.m_ShowBorder == 1),
    SETTER(ShowMenuRemoveDataBeforeSelectionMark(FALSE), !g.m_ShowMenuRemoveDataBeforeSelectionMark),
    SETTER(SetAutoXVisible(FALSE), !g.m_AutoXVisible),
    SETTER(SetXVisibleMin(7.5), g.m_XVisibleMin == 7.5),
    SETTER(SetXVisibleMax(-7.5), g.m_XVisibleMax == -7.5),
    SETTER(SetYVisibleMin(500), g.m_YVisibleMin == 500),
    SETTER(SetYVisibleMax(2), g.m_YVisibleMax == 2),
    SETTER(SetY2VisibleMin(3), g.m_Y2VisibleMin == 3),
    SETTER(SetY2VisibleMax(4), g.m_Y2VisibleMax == 4),
    SETTER(SetTitle("t"), g.m_Title == "t"),
    SETTER(SetXLabel("x"), g.m_XLabel == "x"),
    SETTER(SetYLabel("y"), g.m_YLabel == "y"),
    SETTER(SetY2Label("y2"), g.m_Y2Label == "y2"),
    SETTER(ShowXLabel(FALSE), !g.m_ShowXLabel && g.m_ShowYLabel && g.m_ShowY2Label),
    SETTER(ShowYLabel(FALSE), !g.m_ShowYLabel && g.m_ShowXLabel && g.m_ShowY2Label),
    SETTER(ShowY2Label(FALSE), !g.m_ShowY2Label && g.m_ShowXLabel && g.m_ShowYLabel),
    SETTER(ShowLegend(FALSE), !g.m_ShowLegend && !g.GetShowLegend()),
    SETTER(ShowLegendBoard(FALSE), !g.m_ShowLegendBoard && g.m_ShowLegend),
    SETTER(SetLegendWidth(-5), g.m_LegendWidth == -5),
    SETTER(SetGrid(TRUE, FALSE), g.m_GridX == 1 && g.m_GridY == 0),
    SETTER(SetXTickLabelHeight(10), g.m_XTickLabelHeight == 10),
    SETTER(SetXTickLabelUpStringMaxLength(3), g.m_XTickLabelUpStringMaxLength == 3),
    SETTER(SetYTickLabelWidth(11), g.m_YTickLabelWidth == 11 && g.m_Y2TickLabelWidth == 1500),
    SETTER(SetY2TickLabelWidth(12), g.m_Y2TickLabelWidth == 12 && g.m_YTickLabelWidth == 1500),
    SETTER(SetYTickLabelScale(-2), g.m_YTickLabelScale == -2 && g.m_Y2TickLabelScale == 0),
    SETTER(SetY2TickLabelScale(2), g.m_Y2TickLabelScale == 2 && g.m_YTickLabelScale == 0),
    SETTER(SetYUnit("kW", 3, 1), g.m_YUnit == "kW" && g.m_YUnitExponent == 3 && g.m_YTickLabelScale == 1 &&
                                     g.m_Y2Unit == "" && g.m_Y2UnitExponent == 0),
    SETTER(SetY2Unit("mV", -3, 2),
           g.m_Y2Unit == "mV" && g.m_Y2UnitExponent == -3 && g.m_Y2TickLabelScale == 2 && g.m_YUnit == ""),
    SETTER(ShowIconMaximize(TRUE, FALSE), g.m_ShowIconMaximize && !g.m_IconMaximized),
    SETTER(ShowIconMaximize(FALSE, TRUE), !g.m_ShowIconMaximize && g.m_IconMaximized),
    SETTER(SetCaptionFont(120, "Arial"), g.m_CaptionFontSize == 120 && g.m_CaptionFontFace == "Arial"),
    SETTER(SetBkColor(kRed), g.m_BkColor == kRed),
    SETTER(SetTitleColor(kRed), g.m_TitleColor == kRed),
    SETTER(SetXLabelColor(kRed), g.m_XLabelColor == kRed && g.m_YLabelColor != kRed),
    SETTER(SetYLabelColor(kRed), g.m_YLabelColor == kRed && g.m_Y2LabelColor != kRed),
    SETTER(SetY2LabelColor(kRed), g.m_Y2LabelColor == kRed && g.m_YLabelColor != kRed),
    SETTER(SetAxisColor(kRed), g.m_AxisColor == kRed && g.m_GridColor != kRed),
    SETTER(SetXTickLabelColor(kRed), g.m_XTickLabelColor == kRed && g.m_YTickLabelColor != kRed),
    SETTER(SetYTickLabelColor(kRed), g.m_YTickLabelColor == kRed && g.m_XTickLabelColor != kRed),
    SETTER(SetY2TickLabelColor(kRed), g.m_Y2TickLabelColor == kRed && g.m_YTickLabelColor != kRed),
    SETTER(SetGridColor(kRed), g.m_GridColor == kRed && g.m_AxisColor != kRed),
    SETTER(SetLegendColor(kRed), g.m_LegendColor == kRed && g.m_LegendTextColor != kRed),
    SETTER(SetLegendTextColor(kRed), g.m_LegendTextColor == kRed && g.m_LegendColor != kRed),
    SETTER(SetLineCursorColor(kRed), g.m_LineCursorColor == kRed && g.m_BoxCursorColor != kRed),
    SETTER(SetBoxCursorColor(kRed), g.m_BoxCursorColor == kRed && g.m_LineCursorColor != kRed),
    SETTER(SetCaptionColor(kRed), g.m_CaptionColor == kRed && g.m_CaptionTextColor != kRed),
    SETTER(SetCaptionTextColor(kRed), g.m_CaptionTextColor == kRed && g.m_CaptionColor != kRed),
    SETTER(SetColor(5, kRed), g.m_Datasets[5].m_Color == kRed && g.m_Datasets[4].m_Color != kRed),
    SETTER(SetLineSize(3, 40), g.m_Datasets[3].m_LineSize == 40 && g.m_Datasets[2].m_LineSize == 0),
    SETTER(SetMarkerType(3, CDataset::MarkerCross), g.m_Datasets[3].m_MarkerType == 5),
    SETTER(ShowDataset(3, FALSE), !g.m_Datasets[3].m_Visible && g.m_Datasets[2].m_Visible),
    SETTER(SetLegend(12, "l"), g.m_Datasets[12].m_Legend == "l" && g.m_Datasets[11].m_Legend == ""),
    SETTER(AddData(0, 1.0, nullptr), g.GetDatasetSize(0) == 1),
    SETTER(AddXTickLabel("u", "d"), g.m_XTickLabelUp.GetSize() == 1),
};
#undef SETTER

LOGFONT FontOf(const CFont& font) {
    LOGFONT description = {};
    ::GetObject(static_cast<HFONT>(font.m_hObject), sizeof description, &description);
    return description;
}

} // namespace

TEST(GraphPropertiesTest, DefaultsOfEveryField) {
    OpenGraph graph;
    for (const IntDefault& field : kDefaults)
        EXPECT_EQ(field.get(graph), field.expected) << field.name;
    EXPECT_STREQ(graph.m_Title, "Graph Title");
    EXPECT_STREQ(graph.m_XLabel, "X Label");
    EXPECT_STREQ(graph.m_YLabel, "Y Label");
    EXPECT_STREQ(graph.m_Y2Label, "Y2 Label");
    EXPECT_STREQ(graph.m_CaptionFontFace, "Tahoma");
    EXPECT_STREQ(graph.m_YUnit, "");
    EXPECT_STREQ(graph.m_Y2Unit, "");
    EXPECT_EQ(graph.m_hWnd, nullptr);
    for (const CRect* rect :
         {&graph.m_rectPlot, &graph.m_rectLegend, &graph.m_rectTitle, &graph.m_rectXAxis, &graph.m_rectYAxis,
          &graph.m_rectY2Axis, &graph.m_rectXTickLabel, &graph.m_rectYTickLabel, &graph.m_rectY2TickLabel,
          &graph.m_rectIconMaximize, &graph.m_rectCaption, &graph.m_rectClient, &graph.m_rectClientInner})
        EXPECT_EQ(Text(*rect), "0,0,0,0");
}

TEST(GraphPropertiesTest, DefaultsOfTheDatasets) {
    const COLORREF colours[] = {RGB(240, 0, 177),   RGB(125, 125, 169), RGB(153, 204, 0),   RGB(255, 102, 0),
                                RGB(204, 204, 255), RGB(203, 59, 59),   RGB(132, 130, 130), RGB(0, 135, 162),
                                RGB(54, 0, 162),    RGB(50, 50, 50),    RGB(65, 133, 245),  RGB(162, 0, 108),
                                RGB(162, 0, 108)};
    OpenGraph graph;
    ASSERT_EQ(std::size(graph.m_Datasets), 13u);
    for (int i = 0; i < 13; ++i) {
        const CDataset& dataset = graph.m_Datasets[i];
        EXPECT_EQ(dataset.GetColor(), colours[i]) << i;
        EXPECT_EQ(dataset.GetMarkerType(), CDataset::MarkerNone);
        EXPECT_EQ(dataset.GetLineSize(), 0);
        EXPECT_EQ(dataset.GetSize(), 0);
        EXPECT_STREQ(dataset.m_Legend, "");
        EXPECT_TRUE(dataset.m_Visible);
    }
    EXPECT_EQ(CDataset().GetColor(), RGB(204, 58, 183));
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
        const LOGFONT font = FontOf(each.font);
        EXPECT_STREQ(font.lfFaceName, "Arial");
        EXPECT_EQ(font.lfHeight, each.height);
        EXPECT_EQ(font.lfEscapement, each.escapement);
        EXPECT_EQ(font.lfWidth, 0);
        EXPECT_EQ(font.lfOrientation, 0);
        EXPECT_EQ(font.lfWeight, 400);
        EXPECT_EQ(font.lfItalic, 0);
        EXPECT_EQ(font.lfUnderline, 0);
        EXPECT_EQ(font.lfStrikeOut, 0);
        EXPECT_EQ(font.lfCharSet, ANSI_CHARSET);
        EXPECT_EQ(font.lfOutPrecision, OUT_TT_PRECIS);
        EXPECT_EQ(font.lfClipPrecision, CLIP_LH_ANGLES);
        EXPECT_EQ(font.lfQuality, PROOF_QUALITY);
        EXPECT_EQ(font.lfPitchAndFamily, DEFAULT_PITCH | FF_DONTCARE);
    }
}

TEST(GraphPropertiesTest, ClassIsRegisteredOnceByTheConstructor) {
    OpenGraph graph;
    WNDCLASS info = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "MFCGraphCtrl", &info));
    EXPECT_EQ(info.style, UINT(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS));
    EXPECT_EQ(info.cbClsExtra, 0);
    EXPECT_EQ(info.cbWndExtra, 0);
    EXPECT_EQ(info.hIcon, nullptr);
    EXPECT_EQ(info.hCursor, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(info.hbrBackground, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    EXPECT_EQ(info.lpszMenuName, nullptr);
    EXPECT_TRUE(OpenGraph::RegisterWindowClass());
    EXPECT_TRUE(OpenGraph::RegisterWindowClass());
    WNDCLASS again = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "MFCGraphCtrl", &again));
    EXPECT_EQ(again.lpfnWndProc, info.lpfnWndProc);
}

TEST(GraphPropertiesTest, TwoAxisStyleCouplesColoursAndLegend) {
    OpenGraph graph;
    graph.SetColor(0, RGB(10, 20, 30));
    EXPECT_EQ(graph.m_YLabelColor, 0x00E2A27Eu) << "in the line style a dataset's colour is its own";
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    EXPECT_FALSE(graph.GetShowLegend());
    EXPECT_EQ(graph.m_YLabelColor, RGB(10, 20, 30));
    EXPECT_EQ(graph.m_YTickLabelColor, RGB(10, 20, 30));
    EXPECT_EQ(graph.m_Y2LabelColor, RGB(125, 125, 169));
    EXPECT_EQ(graph.m_Y2TickLabelColor, RGB(125, 125, 169));

    graph.SetColor(1, kRed);
    EXPECT_EQ(graph.m_Y2LabelColor, kRed);
    EXPECT_EQ(graph.m_Y2TickLabelColor, kRed);
    EXPECT_EQ(graph.m_YLabelColor, RGB(10, 20, 30));
    graph.SetColor(2, RGB(9, 9, 9));
    EXPECT_EQ(graph.m_YLabelColor, RGB(10, 20, 30));
    EXPECT_EQ(graph.m_Y2LabelColor, kRed);
    graph.SetColor(0, RGB(7, 7, 7));
    EXPECT_EQ(graph.m_YLabelColor, RGB(7, 7, 7));
    EXPECT_EQ(graph.m_YTickLabelColor, RGB(7, 7, 7));

    graph.ShowLegend(TRUE);
    EXPECT_FALSE(graph.GetShowLegend());
    graph.SetGraphStyle(CGraphCtrl::GraphStyleLine);
    EXPECT_FALSE(graph.GetShowLegend());
    EXPECT_EQ(graph.m_YLabelColor, RGB(7, 7, 7)) << "going back restores nothing";
    graph.SetColor(0, RGB(1, 1, 1));
    EXPECT_EQ(graph.m_YLabelColor, RGB(7, 7, 7));
    graph.ShowLegend(TRUE);
    EXPECT_TRUE(graph.GetShowLegend());
}

TEST(GraphPropertiesTest, DatasetSettersCheckTheIndexAndClampTheLineSize) {
    OpenGraph graph;
    const auto marker = static_cast<CDataset::MarkerType>(77);
    for (int bad : {-1, 13, INT_MIN, INT_MAX}) {
        EXPECT_FALSE(graph.SetColor(bad, kRed)) << bad;
        EXPECT_FALSE(graph.SetLineSize(bad, 5)) << bad;
        EXPECT_FALSE(graph.SetMarkerType(bad, marker)) << bad;
        EXPECT_FALSE(graph.ShowDataset(bad, FALSE)) << bad;
        EXPECT_FALSE(graph.SetLegend(bad, "x")) << bad;
    }
    for (int i : {0, 12}) {
        EXPECT_TRUE(graph.SetColor(i, kRed));
        EXPECT_TRUE(graph.SetMarkerType(i, marker));
        EXPECT_EQ(graph.m_Datasets[i].GetMarkerType(), marker) << "stored unchecked";
        EXPECT_TRUE(graph.ShowDataset(i, FALSE));
        EXPECT_TRUE(graph.SetLegend(i, "x"));
    }
    for (int i = 1; i < 12; ++i) {
        EXPECT_NE(graph.m_Datasets[i].GetColor(), kRed);
        EXPECT_TRUE(graph.m_Datasets[i].m_Visible);
        EXPECT_STREQ(graph.m_Datasets[i].m_Legend, "");
    }
    const int sizes[][2] = {{5000, 1000}, {1001, 1000}, {1000, 1000},    {999, 999},  {1, 1},
                            {0, 0},       {-3, 0},      {INT_MAX, 1000}, {INT_MIN, 0}};
    for (const auto& size : sizes) {
        EXPECT_TRUE(graph.SetLineSize(4, size[0]));
        EXPECT_EQ(graph.m_Datasets[4].GetLineSize(), size[1]) << size[0];
    }
}

class GraphSettersTest : public GraphTest {};

TEST_F(GraphSettersTest, EachStoresItsValueAndRepaintsNothing) {
    for (const Setter& setter : kSetters) {
        OpenGraph fresh;
        EXPECT_FALSE(setter.took(fresh)) << setter.name << " would show no effect";
        setter.set(fresh);
        EXPECT_TRUE(setter.took(fresh)) << setter.name;

        setter.set(graph);
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << setter.name;
    }
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings()) << "no property tells the parent";
}
