#include "tests/graphctrl/GraphTest.h"
#include "tests/support/ImportHook.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

const std::string kAxisPen = "solid 0 B9DDC1";
const std::string kGridPen = "dot 0 B9DDC1";
const std::string kTickText = "3F7F4D Arial 350 ";
const std::string kXText = "3F7F4D Arial 300 @900 ";

std::string At(int x, int y) {
    return std::to_string(x) + "," + std::to_string(y);
}

std::string Stroke(int x1, int y1, int x2, int y2, const std::string& pen) {
    return "line " + At(x1, y1) + " " + At(x2, y2) + " pen " + pen;
}

/// The X positions of the ticks that leave the X axis strip's bottom.
std::vector<int> XTicks(const testkit::MetafileRecorder& picture, int strip_bottom = 3900) {
    std::vector<int> ticks;
    for (const testkit::MetafileRecord& record : picture.Records())
        if (record.kind == testkit::kLine && record.points[0].y == strip_bottom &&
            record.points[1].y == strip_bottom - 100)
            ticks.push_back(record.points[0].x);
    return ticks;
}

} // namespace

class GraphAxesTest : public GraphTest {
protected:
    /// The texts that stand left of the Y axis, from the bottom up.
    Strings YLabels() {
        Strings labels;
        const auto picture = Record();
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.kind == testkit::kText && record.points[0].x == 2100)
                labels.push_back(record.text);
        return labels;
    }
};

TEST_F(GraphAxesTest, YAxisTicksGridAndLabels) {
    const auto picture = Record();
    Strings expected{Stroke(2200, 1100, 2200, 3800, kAxisPen)};
    for (int y = 3800; y >= 1100; y -= 675)
        expected.push_back(Stroke(2100, y, 2200, y, kAxisPen));
    expected.push_back(Stroke(2200, 3800, 5600, 3800, kAxisPen)); // the X axis line follows
    EXPECT_EQ(picture->Strokes(kAxisPen), expected);

    Strings grid;
    for (int k = 1; k < 5; ++k)
        grid.push_back(Stroke(kPlotLeft, 3800 - 675 * k, kPlotRight, 3800 - 675 * k, kGridPen));
    EXPECT_EQ(picture->Strokes(kGridPen), grid) << "no grid line at the bottom";

    const char* const values[] = {"0", "25", "50", "75", "100"};
    for (int i = 0; i < 5; ++i) {
        const std::string place = "text " + At(2100, 3650 - 675 * i) + " ";
        EXPECT_EQ(picture->LinesFrom(place),
                  Strings{place + "right|top " + kTickText + "\"" + values[i] + "\""});
    }
}

TEST_F(GraphAxesTest, YUnitDividesAndStandsAboveTheAxis) {
    graph.SetYVisibleMax(100000);
    graph.SetYUnit("kW", 3, 1);
    EXPECT_EQ(YLabels(), (Strings{"0.0", "25.0", "50.0", "75.0", "100.0"}));
    EXPECT_EQ(Record()->LinesFrom("text 2150,"),
              Strings{"text 2150,1100 left|bottom 3F7F4D Arial 450 \"kW\""});
    graph.SetYVisibleMax(100);
    EXPECT_EQ(YLabels(), (Strings{"0.0", "0.0", "0.1", "0.1", "0.1"})) << "0.05 stands below its decimal";
    graph.SetYUnit("", -2, 0);
    EXPECT_EQ(YLabels(), (Strings{"0", "2500", "5000", "7500", "10000"}));
}

TEST_F(GraphAxesTest, YLabelsAccumulateAndTakeDecimals) {
    graph.SetYVisibleMin(-1);
    graph.SetYVisibleMax(1);
    graph.SetYTickLabelScale(2);
    EXPECT_EQ(YLabels(), (Strings{"-1.00", "-0.50", "0.00", "0.50", "1.00"}));
    graph.SetYTickLabelScale(-4);
    EXPECT_EQ(YLabels().front(), "-1");
    // Repeated addition of a tenth leaves its mark in the 17th place: the third value is not 0.3 but above
    // it.
    graph.SetYTickLabelScale(17);
    graph.SetYVisibleMin(0.1);
    graph.SetYVisibleMax(0.5);
    const double step = (0.5 - 0.1) / 4;
    double value = 0.1;
    Strings expected;
    for (int i = 0; i < 5; ++i, value += step) {
        char text[64];
        std::snprintf(text, sizeof text, "%.17f", value);
        expected.push_back(text);
    }
    EXPECT_EQ(YLabels(), expected);
    graph.SetYVisibleMin(10);
    graph.SetYVisibleMax(-10);
    graph.SetYTickLabelScale(0);
    EXPECT_EQ(YLabels(), (Strings{"10", "5", "0", "-5", "-10"}));
}

TEST_F(GraphAxesTest, TooFewTicksDrawTheAxisLineAlone) {
    graph.SetYUnit("unit", 0, 0);
    graph.SetXTickLabelHeight(3250); // a plot 950 high has one Y tick
    Add(0, {1, 2, 3});
    const auto picture = Record();
    ASSERT_EQ(graph.m_rectPlot.Height(), 950);
    const Strings axis = picture->Strokes(kAxisPen);
    ASSERT_FALSE(axis.empty());
    EXPECT_EQ(axis[0], Stroke(2200, 1100, 2200, 2050, kAxisPen));
    EXPECT_EQ(axis[1], Stroke(2200, 2050, 5600, 2050, kAxisPen)) << "the X axis comes next: no Y tick";
    EXPECT_EQ(picture->LinesFrom("text 2150,"), Strings()) << "no unit";
    EXPECT_EQ(picture->Strokes(kGridPen), Strings());

    graph.SetXTickLabelHeight(1500);
    graph.SetLegendWidth(4800); // a plot 1570 wide has one X tick
    EXPECT_EQ(XTicks(*Record()), std::vector<int>());
}

TEST_F(GraphAxesTest, TwoAxesWearTheirSeriesColours) {
    graph.SetGraphStyle(CGraphCtrl::GraphStyleTwoAxis);
    graph.SetY2VisibleMin(-1);
    graph.SetY2VisibleMax(1);
    graph.SetY2Unit("bar", 0, 1);
    graph.SetYUnit("K", 0, 0);
    const auto picture = Record();
    const std::string pen0 = std::string("solid 0 ") + kColour0;
    const std::string pen1 = std::string("solid 0 ") + kColour1;
    Strings y{Stroke(2200, 1100, 2200, 3800, pen0)};
    Strings y2{Stroke(6800, 1100, 6800, 3800, pen1)};
    for (int at = 3800; at >= 1100; at -= 675) {
        y.push_back(Stroke(2100, at, 2200, at, pen0));
        y2.push_back(Stroke(6800, at, 6900, at, pen1));
    }
    EXPECT_EQ(picture->Strokes(pen0), y);
    EXPECT_EQ(picture->Strokes(pen1), y2);
    EXPECT_EQ(picture->Strokes(kGridPen).size(), 4u) << "the grid belongs to Y alone";
    EXPECT_EQ(picture->LinesFrom("text 2150,"),
              Strings{std::string("text 2150,1100 left|bottom ") + kColour0 + " Arial 450 \"K\""});
    EXPECT_EQ(picture->LinesFrom("text 6950,"),
              Strings{std::string("text 6950,1100 right|bottom ") + kColour1 + " Arial 450 \"bar\""});
    const char* const values[] = {"-1.0", "-0.5", "0.0", "0.5", "1.0"};
    for (int i = 0; i < 5; ++i) {
        const std::string place = "text " + At(7000, 3650 - 675 * i) + " ";
        EXPECT_EQ(picture->LinesFrom(place),
                  Strings{place + "left|top " + kColour1 + " Arial 350 \"" + values[i] + "\""});
    }
    EXPECT_EQ(picture->LinesFrom("text 8800,"), Strings{std::string("text 8800,2450 center|top ") + kColour1 +
                                                        " Arial 350 @-900 \"Y2 Label\""});
    EXPECT_EQ(picture->Strokes(kAxisPen), Strings{Stroke(2200, 3800, 6800, 3800, kAxisPen)})
        << "the X axis keeps the axis colour";
}

TEST_F(GraphAxesTest, OwnColoursReachTheAxes) {
    graph.SetAxisColor(RGB(1, 0, 0));
    graph.SetGridColor(RGB(2, 0, 0));
    graph.SetYTickLabelColor(RGB(3, 0, 0));
    graph.SetXTickLabelColor(RGB(4, 0, 0));
    graph.AddXTickLabel("label", "");
    Add(0, {1, 2});
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes("solid 0 010000").size(), 6u + 1u + 2u);
    EXPECT_EQ(picture->Strokes("dot 0 020000").size(), 4u);
    EXPECT_NE(picture->LinesFrom("text 2100,3650 ")[0].find(" 030000 "), std::string::npos);
    EXPECT_NE(picture->LinesFrom("text 2330,")[0].find(" 040000 "), std::string::npos);
}

TEST_F(GraphAxesTest, GridSwitches) {
    Add(0, {1, 2});
    graph.SetGrid(FALSE, FALSE);
    EXPECT_EQ(Record()->Strokes(kGridPen), Strings());
    graph.SetGrid(TRUE, FALSE);
    const auto picture = Record();
    EXPECT_EQ(picture->Strokes(kGridPen),
              (Strings{Stroke(2230, 3800, 2230, 1100, kGridPen), Stroke(5596, 3800, 5596, 1100, kGridPen)}));
    EXPECT_EQ(XTicks(*picture), (std::vector<int>{2230, 5596}));
    graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
    EXPECT_EQ(Record()->Strokes(kGridPen), Strings()) << "bars never have X grid lines";
}

TEST_F(GraphAxesTest, XLabelsInOneAndTwoLines) {
    FixX(0, 2);
    Add(0, {1, 2, 3});
    graph.AddXTickLabel("12:00", "Monday");
    graph.AddXTickLabel("abcdefghijklmn", "");
    graph.AddXTickLabel("abcdefghij", "");
    // Positions 2230, 3915, 5600; labels at every 1133 units at least.
    const auto picture = Record();
    EXPECT_EQ(XTicks(*picture), (std::vector<int>{2230, 3915, 5600}));
    Strings labels;
    for (const testkit::MetafileRecord& record : picture->Records())
        if (record.kind == testkit::kText && record.state.font == "Arial 300 @900" && !record.text.empty())
            labels.push_back(record.Line());
    EXPECT_EQ(labels, (Strings{"text 2300,4000 right|bottom " + kXText + "\"12:00\"",
                               "text 2230,4000 right|top " + kXText + "\"Monday\"",
                               "text 3985,4000 right|bottom " + kXText + "\"abcdefghij\"",
                               "text 3915,4000 right|top " + kXText + "\"klmn\"",
                               "text 5700,4000 right|baseline " + kXText + "\"abcdefghij\""}));
    graph.m_XTickLabelUp.SetAt(1, "abcdefghi  jklmn");
    graph.SetXTickLabelUpStringMaxLength(10);
    Strings texts = Record()->Texts();
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "abcdefghi"), 1) << "trimmed on the right";
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "jklmn"), 1) << "trimmed on the left";
    for (const int odd : {0, -1, INT_MIN, INT_MAX}) {
        graph.SetXTickLabelUpStringMaxLength(odd);
        EXPECT_EQ(Record()->ObjectFaults(kControlFonts), "") << odd;
    }
}

namespace {

void* g_multiByteToWideChar = nullptr;

/// A process whose code page is UTF-8.
int WINAPI FromUtf8(UINT, DWORD flags, const char* text, int length, WCHAR* wide, int room) {
    return reinterpret_cast<decltype(&::MultiByteToWideChar)>(g_multiByteToWideChar)(CP_UTF8, flags, text,
                                                                                     length, wide, room);
}

/// A text in UTF-8 as the metafile shows it in the tests' code page.
std::string Shown(const std::wstring& wide) {
    char text[100] = "";
    ::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, text, sizeof text, nullptr, nullptr);
    return text;
}

} // namespace

TEST_F(GraphAxesTest, NoTextIsCutWithinACharacter) {
    const testkit::ImportHook hook("Kavlix.dll", "MultiByteToWideChar", reinterpret_cast<void*>(&FromUtf8));
    ASSERT_TRUE(hook.Installed());
    g_multiByteToWideChar = hook.Original();
    Add(0, {1});
    graph.SetXTickLabelUpStringMaxLength(3);
    const struct {
        const char* text;
        std::wstring first, second; ///< the lines; the second is empty where one holds the text
    } labels[] = {
        {"abc", L"abc", L""},
        {"abcd", L"abc", L"d"},
        {"\xC3\xA9\xC3\xA8\xC3\xA0", L"\u00E9\u00E8\u00E0", L""},
        {"\xC3\xA9\xC3\xA8\xC3\xA0\xC3\xB9", L"\u00E9\u00E8\u00E0", L"\u00F9"},
        {"ab\xE6\xB8\xA9\xE5\xBA\xA6", L"ab\u6E29", L"\u5EA6"},
        {"ab\xF0\x9F\x8C\xA1z", L"ab\xD83C\xDF21", L"z"},
        {"abe\xCC\x81z", L"abe\u0301", L"z"}, // a letter and its mark are one character
        {"ab\xC3", L"ab\xFFFD", L""},         // bytes that are no character count one by one
    };
    for (const auto& each : labels) {
        graph.ResetXTickLabel();
        graph.AddXTickLabel(each.text, "");
        const Strings texts = Record()->LinesFrom("text 2" + std::string(each.second.empty() ? "330" : "300"));
        ASSERT_EQ(texts.size(), 1u) << each.text;
        EXPECT_NE(texts[0].find("\"" + Shown(each.first) + "\""), std::string::npos) << texts[0];
        const Strings second = Record()->LinesFrom("text 2230,4000");
        EXPECT_EQ(second.empty(), each.second.empty()) << each.text;
        if (!second.empty()) {
            EXPECT_NE(second[0].find("\"" + Shown(each.second) + "\""), std::string::npos) << second[0];
        }
    }
    // The longest text that is drawn ends before what would be cut.
    const std::string most(8191, 'a');
    for (const char* last : {"\xF0\x9F\x8C\xA1", "e\xCC\x81"}) {
        graph.SetXLabel((most + last).c_str());
        const Strings texts = Record()->Texts();
        EXPECT_EQ(std::count(texts.begin(), texts.end(), most), 1) << last;
    }
}

TEST_F(GraphAxesTest, LabelsThinToEveryKthPoint) {
    FixX(0, 99);
    for (int i = 0; i < 100; ++i) {
        Add(0, {1.0});
        graph.AddXTickLabel(std::to_string(i).c_str(), "");
    }
    // 34.04 units a point, 1133 between two labels: the second stands at point 34, so every 34th from there.
    const auto picture = Record();
    EXPECT_EQ(XTicks(*picture), (std::vector<int>{2230, 3387, 4544}));
    Strings texts = picture->Texts();
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [](const std::string& text) {
                                   return text.size() > 2 || text == "25" || text == "50" || text == "75";
                               }),
                texts.end());
    EXPECT_EQ(texts, (Strings{"0", "0", "34", "68"})) << "the first 0 is the Y axis's";

    // A window into the middle: its first visible point takes the first label wherever it stands.
    FixX(20, 60);
    EXPECT_EQ(XTicks(*Record()), (std::vector<int>{2230, 3409, 4589}));
}

TEST_F(GraphAxesTest, OnlyVisiblePointsOfDatasetZeroGetTicks) {
    FixX(1, 3);
    Add(1, {1, 1, 1, 1, 1});
    EXPECT_EQ(XTicks(*Record()), std::vector<int>()) << "dataset 0 is empty";
    Add(0, {1, 1, 1, 1, 1});
    EXPECT_EQ(XTicks(*Record()), (std::vector<int>{2230, 3915, 5600})) << "the maximum itself is kept";
    graph.ShowDataset(0, FALSE);
    EXPECT_EQ(XTicks(*Record()).size(), 3u) << "hidden, it still rules";
    FixX(3, 1);
    EXPECT_EQ(XTicks(*Record()), std::vector<int>());
    FixX(2, 2);
    EXPECT_LE(XTicks(*Record()).size(), 1u) << "a range of no width";
}

TEST_F(GraphAxesTest, BarAxisStandsInTheMiddleOfEachGroup) {
    graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
    graph.SetLegendWidth(3370); // a plot 3000 units wide
    FixX(0, 10);
    for (int i = 0; i < 10; ++i) {
        Add(0, {1.0 * i});
        Add(1, {2.0 * i});
        graph.AddXTickLabel(("p" + std::to_string(i)).c_str(), "");
    }
    const auto picture = Record();
    ASSERT_EQ(graph.m_rectPlot.Width(), 3000);
    int width = 0, datasets = 0, visible = 0;
    ASSERT_TRUE(graph.CalcBarSize(width, datasets, visible));
    EXPECT_EQ(width, 90);
    EXPECT_EQ(datasets, 2);
    EXPECT_EQ(visible, 10);
    // Three ticks at most: 1515 between labels; groups stand every 270 from 2320 on, so the second is
    // group 6.
    EXPECT_EQ(XTicks(*picture), (std::vector<int>{2320, 2320 + 6 * 270}));
    EXPECT_EQ(picture->LinesFrom("text 2420,"),
              Strings{"text 2420,4000 right|baseline " + kXText + "\"p0\""});
    EXPECT_EQ(picture->LinesFrom("text 4040,"),
              Strings{"text 4040,4000 right|baseline " + kXText + "\"p6\""});
}

TEST_F(GraphAxesTest, BarAxisLabelsTheFirstVisibleSampleFirst) {
    graph.SetGraphStyle(CGraphCtrl::GraphStyleBar);
    FixX(5, 14.5);
    for (int i = 0; i < 30; ++i) {
        Add(2, {1.0});
        graph.AddXTickLabel(("p" + std::to_string(i)).c_str(), "");
    }
    // 10 visible samples reach 9/9.5 of 3370: slots of 319, bars of 159, labels every 1700 units.
    const auto picture = Record();
    EXPECT_EQ(XTicks(*picture), (std::vector<int>{2309, 2309 + 6 * 318}));
    EXPECT_EQ(picture->LinesFrom("text 2409,"),
              Strings{"text 2409,4000 right|baseline " + kXText + "\"p5\""});
    EXPECT_EQ(picture->LinesFrom("text 4317,"),
              Strings{"text 4317,4000 right|baseline " + kXText + "\"p11\""});
}

TEST_F(GraphAxesTest, BarSizeOfOddRanges) {
    Record();
    int width = 5, datasets = 6, visible = 7;
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible));
    Add(3, {1, 2, 3, 4});
    Add(0, {1, 2});
    FixX(10, 20);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible)) << "no visible point";
    FixX(3, 0);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible)) << "an inverted range shows none";
    FixX(NAN, NAN);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible));
    EXPECT_EQ(width, 5);
    EXPECT_EQ(datasets, 6);
    EXPECT_EQ(visible, 7);

    FixX(0, 3);
    ASSERT_TRUE(graph.CalcBarSize(width, datasets, visible));
    // Dataset 0 is the first with a visible point: 2 of them, up to X 1: 1123 units, two slots of 561, three
    // parts.
    EXPECT_EQ(width, 187);
    EXPECT_EQ(datasets, 2);
    EXPECT_EQ(visible, 2);
    FixX(2, 3);
    ASSERT_TRUE(graph.CalcBarSize(width, datasets, visible))
        << "dataset 3 is the first that reaches the range";
    EXPECT_EQ(visible, 2);
    EXPECT_EQ(width, 3370 / 2 / 3);
    FixX(1, 1);
    ASSERT_TRUE(graph.CalcBarSize(width, datasets, visible));
    EXPECT_EQ(width, 0) << "a range of no width has bars of no width";
    EXPECT_EQ(visible, 1);
}
