#include "tests/graphctrl/GraphTest.h"

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
