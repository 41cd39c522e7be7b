// SPDX-License-Identifier: MIT
// What the tests of the graph control share.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/Utf8.h"

#include <sstream>
#include <type_traits>

namespace {

std::string Shown(const CString& text) {
    return "'" + testkit::Utf8(text) + "'";
}
/// Colours as 0x00BBGGRR in hexadecimal digits.
template <class T> std::string Shown(T value) {
    std::ostringstream text;
    if (std::is_same<T, COLORREF>::value)
        text << std::hex;
    text << value;
    return text.str();
}

/// "name=value" of each value; `names` are "g.m_Name, g.m_Other".
template <class... Values> Strings Named(std::string names, const Values&... values) {
    Strings lines;
    std::istringstream rest(names);
    for (const std::string& value : {Shown(values)...}) {
        std::string name;
        rest >> name;
        lines.push_back(name.substr(4, name.find(',') - 4) + "=" + value);
    }
    return lines;
}
#define NAMED(...) Named(#__VA_ARGS__, __VA_ARGS__)

} // namespace

Strings Properties(const OpenGraph& g) {
    Strings lines = NAMED(
        g.m_GraphStyle, g.m_TitleStyle, g.m_ShowBorder, g.m_AutoXVisible, g.m_IconMaximizeTracking,
        g.m_IconMaximizePressed, g.m_GridY, g.m_GridX, g.m_GridColor, g.m_ShowLegend, g.m_ShowLegendBoard,
        g.m_LegendMargin, g.m_LegendItemHeight, g.m_SelectionMarkPos, g.m_LineCursorColor, g.m_BoxCursorColor,
        g.m_BkColor, g.m_TitleColor, g.m_XLabelColor, g.m_YLabelColor, g.m_Y2LabelColor, g.m_AxisColor,
        g.m_XTickLabelColor, g.m_YTickLabelColor, g.m_Y2TickLabelColor, g.m_LegendColor, g.m_LegendTextColor,
        g.m_CaptionColor, g.m_CaptionTextColor, g.m_XTickLabelHeight, g.m_LegendWidth,
        g.m_XTickLabelUpStringMaxLength, g.m_YTickLabelWidth, g.m_Y2TickLabelWidth, g.m_YTickLabelScale,
        g.m_Y2TickLabelScale, g.m_YUnitExponent, g.m_Y2UnitExponent, g.m_ShowXLabel, g.m_ShowYLabel,
        g.m_ShowY2Label, g.m_ShowIconMaximize, g.m_IconMaximized, g.m_CaptionFontSize,
        g.m_ShowMenuRemoveDataBeforeSelectionMark, g.m_XVisibleMin, g.m_XVisibleMax, g.m_YVisibleMin,
        g.m_YVisibleMax, g.m_Y2VisibleMin, g.m_Y2VisibleMax, g.m_ReservedValue, g.m_XTickLabelUp.GetSize(),
        g.m_XTickLabelDown.GetSize(), g.m_Title, g.m_XLabel, g.m_YLabel, g.m_Y2Label, g.m_CaptionFontFace,
        g.m_YUnit, g.m_Y2Unit);
    for (const CDataset& dataset : g.m_Datasets) {
        std::ostringstream line;
        line << &dataset - g.m_Datasets << ": " << testkit::ColourText(dataset.GetColor()) << " "
             << dataset.GetMarkerType() << " " << dataset.GetLineSize() << " " << Shown(dataset.m_Legend)
             << " " << dataset.m_Visible << " " << dataset.GetSize();
        lines.push_back(line.str());
    }
    return lines;
}

std::string Joined(const Strings& parts) {
    std::string all;
    for (const std::string& part : parts)
        all += (all.empty() ? "" : " ") + part;
    return all;
}

void GraphTest::Add(int dataset, std::initializer_list<double> values) {
    for (double value : values)
        ASSERT_TRUE(graph.AddData(dataset, value, nullptr));
}

void GraphTest::FixX(double min, double max) {
    graph.SetAutoXVisible(FALSE);
    graph.SetXVisibleMin(min);
    graph.SetXVisibleMax(max);
}

void GraphTest::HideTexts() {
    const COLORREF white = RGB(255, 255, 255);
    graph.SetTitleColor(white);
    graph.SetXLabelColor(white);
    graph.SetYLabelColor(white);
    graph.SetY2LabelColor(white);
    graph.SetXTickLabelColor(white);
    graph.SetYTickLabelColor(white);
    graph.SetY2TickLabelColor(white);
    graph.SetLegendTextColor(white);
    graph.SetLegendColor(white);
}
