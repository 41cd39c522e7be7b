#include "tests/graphctrl/GraphTest.h"

#include <cmath>
#include <random>

namespace {

std::vector<double> Values(const CGraphCtrl& graph, int dataset) {
    std::vector<double> values;
    double y = 0;
    for (int i = 0; graph.GetYData(dataset, i, y); ++i)
        values.push_back(y);
    return values;
}

/// The X values as CDataset::GetData tells them.
std::vector<double> Positions(const OpenGraph& graph, int dataset) {
    std::vector<double> positions;
    double x = 0, y = 0;
    for (int i = 0; graph.m_Datasets[dataset].GetData(i, x, y); ++i)
        positions.push_back(x);
    return positions;
}

Strings All(const kavlix::LabelStore& array) {
    Strings texts;
    for (int i = 0; i < static_cast<int>(array.GetSize()); ++i)
        texts.push_back(std::string(array[i]));
    return texts;
}

} // namespace

TEST(GraphDataTest, AppendingTellsXAndMovesTheVisibleRange) {
    OpenGraph graph;
    double x = -1;
    for (int i = 0; i < 10; ++i) {
        ASSERT_TRUE(graph.AddData(0, 5.0 * i, &x));
        EXPECT_EQ(x, i);
        EXPECT_EQ(graph.m_XVisibleMax, i + 0.001);
    }
    EXPECT_TRUE(graph.AddData(4, 1.0, &x));
    EXPECT_EQ(x, 0.0) << "each dataset counts for itself";
    EXPECT_EQ(graph.m_XVisibleMax, 0.001) << "the newest sample of any dataset rules";
    graph.SetAutoXVisible(FALSE);
    graph.SetXVisibleMax(50);
    EXPECT_TRUE(graph.AddData(0, 1.0, nullptr));
    EXPECT_EQ(graph.m_XVisibleMax, 50);
    EXPECT_EQ(graph.GetDatasetSize(0), 11);
    EXPECT_EQ(graph.GetDatasetSize(4), 1);
    EXPECT_EQ(graph.GetDatasetSize(1), 0);
    EXPECT_EQ(graph.m_XVisibleMin, 0.0);
}

TEST(GraphDataTest, IndicesOutsideTheirRangeChangeNothing) {
    OpenGraph graph;
    graph.AddData(0, 1.5, nullptr);
    graph.AddData(12, 2.5, nullptr);
    graph.m_SelectionMarkPos = 0;
    const double max = graph.m_XVisibleMax;
    for (int bad : {-1, 13, INT_MIN, INT_MAX}) {
        double x = 77, y = 88;
        EXPECT_FALSE(graph.AddData(bad, 1.0, &x)) << bad;
        EXPECT_EQ(x, 77);
        EXPECT_EQ(graph.GetDatasetSize(bad), -1) << bad;
        EXPECT_FALSE(graph.GetYData(bad, 0, y)) << bad;
        EXPECT_EQ(y, 88);
        graph.ResetData(bad);
        EXPECT_EQ(graph.m_SelectionMarkPos, 0) << "an ignored reset keeps the mark";
    }
    EXPECT_EQ(graph.m_XVisibleMax, max);
    double x = 77, y = 88;
    for (int bad : {-1, 1, INT_MIN, INT_MAX}) {
        EXPECT_FALSE(graph.GetYData(0, bad, y)) << bad;
        EXPECT_FALSE(graph.m_Datasets[0].GetData(bad, x, y)) << bad;
        EXPECT_FALSE(graph.m_Datasets[0].RemoveYData(bad, 1)) << bad;
    }
    EXPECT_EQ(x, 77);
    EXPECT_EQ(y, 88);
    EXPECT_TRUE(graph.GetYData(12, 0, y));
    EXPECT_EQ(y, 2.5);
    EXPECT_FALSE(graph.GetYData(5, 0, y)) << "an empty dataset has no sample 0";
    EXPECT_EQ(Values(graph, 0), std::vector<double>{1.5});
}

TEST(GraphDataTest, DatasetKeepsEveryDoubleAndRemovesRanges) {
    CDataset data;
    const double odd[] = {0.0, -0.0, 1e300, -1e300, INFINITY, -INFINITY, 5e-324};
    for (double value : odd)
        EXPECT_TRUE(data.AddYData(value));
    EXPECT_TRUE(data.AddData(NAN, nullptr));
    double y = 0;
    for (int i = 0; i < 7; ++i) {
        ASSERT_TRUE(data.GetYData(i, y));
        EXPECT_EQ(y, odd[i]);
        EXPECT_EQ(std::signbit(y), std::signbit(odd[i]));
    }
    ASSERT_TRUE(data.GetYData(7, y));
    EXPECT_TRUE(std::isnan(y));

    EXPECT_TRUE(data.RemoveYData(1, 4));
    ASSERT_EQ(data.GetSize(), 4);
    EXPECT_TRUE(data.GetYData(1, y));
    EXPECT_EQ(y, -INFINITY);
    EXPECT_TRUE(data.RemoveYData(2, INT_MAX)) << "a count beyond the end takes what is there";
    EXPECT_EQ(data.GetSize(), 2);
    data.RemoveYData(0, -1);
    EXPECT_EQ(data.GetSize(), 2) << "a negative count must not reach outside";
}

TEST(GraphDataTest, TickLabelsAreReadByIndex) {
    OpenGraph graph;
    EXPECT_TRUE(graph.AddXTickLabel("u0", "d0"));
    EXPECT_TRUE(graph.AddXTickLabel("u1", ""));
    EXPECT_TRUE(graph.AddXTickLabel("", "d2"));
    graph.m_XTickLabelUp.Add("u3");
    const struct {
        int index;
        const char *up, *down;
    } cases[] = {{0, "u0", "d0"},   {1, "u1", ""},       {2, "", "d2"},
                 {3, "u3", "same"}, {4, "same", "same"}, {INT_MAX, "same", "same"}};
    for (const auto& each : cases) {
        CString up("same"), down("same");
        EXPECT_TRUE(graph.GetXData(each.index, up, down));
        EXPECT_STREQ(up, each.up) << each.index;
        EXPECT_STREQ(down, each.down) << each.index;
    }
    EXPECT_TRUE(graph.AddXTickLabel("u4", "d3")) << "each list grows at its own end";
    EXPECT_EQ(All(graph.m_XTickLabelUp), (Strings{"u0", "u1", "", "u3", "u4"}));
    EXPECT_EQ(All(graph.m_XTickLabelDown), (Strings{"d0", "", "d2", "d3"}));
    graph.ResetXTickLabel();
    EXPECT_EQ(graph.m_XTickLabelUp.GetSize() + graph.m_XTickLabelDown.GetSize(), 0);
}

TEST(GraphDataTest, ResettingOneDatasetKeepsItsAttributes) {
    OpenGraph graph;
    graph.SetColor(2, RGB(1, 2, 3));
    graph.SetLineSize(2, 60);
    graph.SetMarkerType(2, CDataset::MarkerCircle);
    graph.SetLegend(2, "two");
    graph.ShowDataset(2, FALSE);
    graph.AddData(2, 1, nullptr);
    graph.AddData(3, 1, nullptr);
    graph.m_SelectionMarkPos = 0;
    graph.ResetData(2);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(graph.GetDatasetSize(2), 0);
    EXPECT_EQ(graph.GetDatasetSize(3), 1);
    EXPECT_EQ(graph.m_Datasets[2].m_Color, RGB(1, 2, 3));
    EXPECT_EQ(graph.m_Datasets[2].m_LineSize, 60);
    EXPECT_EQ(graph.m_Datasets[2].m_MarkerType, CDataset::MarkerCircle);
    EXPECT_STREQ(graph.m_Datasets[2].m_Legend, "two");
    EXPECT_FALSE(graph.m_Datasets[2].m_Visible);
    double x = 5;
    EXPECT_TRUE(graph.AddData(2, 9, &x));
    EXPECT_EQ(x, 0.0);
}

class GraphDataWindowTest : public GraphTest {};

TEST_F(GraphDataWindowTest, ResetAllRestoresTextsAndKeepsTheRest) {
    for (int i = 0; i < 13; ++i) {
        graph.AddData(i, i, nullptr);
        graph.SetLegend(i, "legend");
    }
    graph.AddXTickLabel("u", "d");
    graph.SetTitle("t");
    graph.SetXLabel("x");
    graph.SetYLabel("y");
    graph.SetY2Label("mine");
    graph.SetColor(3, RGB(5, 6, 7));
    graph.SetYVisibleMax(42);
    graph.ShowDataset(1, FALSE);
    graph.SetLegendWidth(1234);
    graph.m_SelectionMarkPos = 0;
    const double max = graph.m_XVisibleMax;
    Settle();
    graph.calls.clear();
    graph.ResetAll();
    EXPECT_EQ(graph.calls, Strings{"reset labels"}) << "through the virtual slot";
    for (int i = 0; i < 13; ++i) {
        EXPECT_EQ(graph.GetDatasetSize(i), 0);
        EXPECT_STREQ(graph.m_Datasets[i].m_Legend, "");
    }
    EXPECT_EQ(graph.m_XTickLabelUp.GetSize() + graph.m_XTickLabelDown.GetSize(), 0);
    EXPECT_STREQ(graph.m_Title, "Graph Title");
    EXPECT_STREQ(graph.m_XLabel, "X Label");
    EXPECT_STREQ(graph.m_YLabel, "Y Label");
    EXPECT_STREQ(graph.m_Y2Label, "mine");
    EXPECT_EQ(graph.m_Datasets[3].m_Color, RGB(5, 6, 7));
    EXPECT_EQ(graph.m_YVisibleMax, 42);
    EXPECT_FALSE(graph.m_Datasets[1].m_Visible);
    EXPECT_EQ(graph.m_LegendWidth, 1234);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(graph.m_XVisibleMax, max);
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");

    graph.SetLegend(0, "a");
    graph.SetLegend(12, "b");
    graph.ResetLegend();
    EXPECT_STREQ(graph.m_Datasets[0].m_Legend, "");
    EXPECT_STREQ(graph.m_Datasets[12].m_Legend, "");
}

TEST_F(GraphDataWindowTest, RemovingFromTheHead) {
    Add(0, {10, 20, 30, 40});
    for (const char* label : {"a", "b", "c"})
        graph.AddXTickLabel(label, "");
    graph.m_XTickLabelDown.RemoveAt(0, 2);
    graph.m_SelectionMarkPos = 1;
    Settle();
    parent.Forget();
    graph.RemoveHeadData(2);
    EXPECT_EQ(All(graph.m_XTickLabelUp), Strings{"c"});
    EXPECT_EQ(graph.m_XTickLabelDown.GetSize(), 0);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1);
    EXPECT_EQ(graph.m_XVisibleMax, 1.001);
    EXPECT_NE(Text(UpdateRect()), "0,0,0,0");
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings()) << "the host is not told of its own call";

    graph.m_SelectionMarkPos = 0;
    graph.SetXVisibleMax(9);
    Settle();
    graph.RemoveHeadData(0);
    EXPECT_EQ(graph.GetDatasetSize(0), 2);
    EXPECT_EQ(graph.m_SelectionMarkPos, -1) << "removing nothing still clears the mark";
    EXPECT_EQ(graph.m_XVisibleMax, 1.001) << "and puts the visible maximum back";
    EXPECT_NE(Text(UpdateRect()), "0,0,0,0") << "and repaints";

    graph.RemoveHeadData(-5);
    EXPECT_EQ(graph.GetDatasetSize(0), 2);
    graph.RemoveHeadData(INT_MAX);
    EXPECT_EQ(graph.GetDatasetSize(0), 0);
    EXPECT_EQ(graph.m_XVisibleMax, -0.999) << "dataset 0 rules even when it is empty";
    EXPECT_EQ(graph.m_XTickLabelUp.GetSize(), 0);

    graph.SetAutoXVisible(FALSE);
    graph.SetXVisibleMax(33);
    graph.RemoveHeadData(1);
    EXPECT_EQ(graph.m_XVisibleMax, 33);
}

TEST(GraphDataTest, RandomCallsAgainstAModel) {
    OpenGraph graph;
    std::vector<std::vector<double>> model(13);
    Strings up, down;
    std::mt19937 random(20240611);
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int step = 0; step < 4000; ++step) {
        const int dataset = below(13);
        const int action = below(100);
        if (action < 80) {
            double x = -1;
            ASSERT_TRUE(graph.AddData(dataset, step, &x));
            ASSERT_EQ(x, static_cast<double>(model[dataset].size()));
            model[dataset].push_back(step);
        } else if (action < 93) {
            graph.AddXTickLabel(std::to_string(step).c_str(), "d");
            up.push_back(std::to_string(step));
            down.push_back("d");
        } else if (action < 98) {
            const int count = below(12);
            graph.RemoveHeadData(count);
            for (auto& values : model)
                values.erase(values.begin(), values.begin() + std::min<int>(count, values.size()));
            up.erase(up.begin(), up.begin() + std::min<int>(count, up.size()));
            down.erase(down.begin(), down.begin() + std::min<int>(count, down.size()));
            ASSERT_EQ(graph.m_XVisibleMax, static_cast<double>(model[0].size()) - 1 + 0.001);
        } else if (action == 98) {
            graph.ResetData(dataset);
            model[dataset].clear();
        } else if (below(8) == 0) {
            graph.ResetXTickLabel();
            up.clear();
            down.clear();
        }
        if (step % 50 == 0 || action >= 93) {
            for (int i = 0; i < 13; ++i) {
                ASSERT_EQ(graph.GetDatasetSize(i), static_cast<int>(model[i].size())) << "step " << step;
                ASSERT_EQ(Values(graph, i), model[i]) << "step " << step << " dataset " << i;
                const std::vector<double> positions = Positions(graph, i);
                for (std::size_t k = 0; k < positions.size(); ++k)
                    ASSERT_EQ(positions[k], static_cast<double>(k));
            }
            ASSERT_EQ(All(graph.m_XTickLabelUp), up);
            ASSERT_EQ(All(graph.m_XTickLabelDown), down);
        }
    }
}
