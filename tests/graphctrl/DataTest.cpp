// SPDX-License-Identifier: MIT
// Samples, tick labels and the selection mark under random calls, against vectors.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

/// The values bit for bit, which tells -0 from 0.
std::string Bits(const std::vector<double>& values) {
    return std::string(reinterpret_cast<const char*>(values.data()), values.size() * sizeof(double));
}

template <class Array> Strings All(const Array& array) {
    Strings texts;
    for (int i = 0; i < static_cast<int>(array.GetSize()); ++i)
        texts.push_back(std::string(array[i]));
    return texts;
}

template <class Values> void RemoveHead(Values& values, int count) {
    values.erase(values.begin(), values.begin() + std::clamp<int>(count, 0, values.size()));
}

class GraphDataTest : public GraphTest {
protected:
    double Value() {
        const double odd[] = {-0.0, 1e300, -1e300, INFINITY, -INFINITY, 5e-324, NAN};
        return numbers.OneIn(9) ? odd[numbers.Below(7)] : numbers.Below(1000) / 8.0;
    }
    /// Mostly one within a range of `count`.
    int Index(int count) {
        const int odd[] = {-1, count, INT_MIN, INT_MAX};
        return numbers.OneIn(8) || count == 0 ? odd[numbers.Below(4)] : numbers.Below(count);
    }
    int Size(int dataset) const { return static_cast<int>(model[dataset].size()); }

    void Append() {
        const int dataset = Index(CGraphCtrl::DatasetCount);
        const double value = Value();
        double x = -7;
        const bool isDataset = CGraphCtrl::DatasetCount > dataset && dataset >= 0;
        ASSERT_EQ(graph.AddData(dataset, value, &x), isDataset);
        ASSERT_EQ(x, isDataset ? Size(dataset) : -7);
        ASSERT_EQ(graph.GetDatasetSize(dataset), isDataset ? Size(dataset) + 1 : -1);
        if (isDataset)
            model[dataset].push_back(value);
        if (isDataset && isAuto)
            xMax = x + 0.001;
    }
    void Label() {
        const std::string text = std::to_string(numbers.Next());
        graph.AddXTickLabel(text.c_str(), "down");
        up.push_back(text);
        down.push_back("down");
        if (numbers.OneIn(9)) { // as a derived class may do: each list grows at its own end
            graph.m_XTickLabelUp.Add("more");
            up.push_back("more");
        }
    }
    void RemoveHeads() {
        const int odd[] = {0, -5, INT_MAX, 40};
        const int count = numbers.OneIn(9) ? odd[numbers.Below(4)] : numbers.Below(12);
        graph.RemoveHeadData(count);
        for (auto& values : model)
            RemoveHead(values, count);
        RemoveHead(up, count);
        RemoveHead(down, count);
        mark = -1;
        if (isAuto)
            xMax = Size(0) - 1 + 0.001; // dataset 0 rules even when it is empty
        ASSERT_NE(Text(UpdateRect()), "0,0,0,0");
        Settle();
    }
    void RemoveWithin() {
        const int dataset = numbers.Below(CGraphCtrl::DatasetCount), first = Index(Size(dataset));
        const int count = numbers.OneIn(6) ? INT_MAX : numbers.Below(6) - 1;
        const bool isSample = first >= 0 && first < Size(dataset);
        ASSERT_EQ(graph.m_Datasets[dataset].RemoveYData(first, count), isSample);
        auto& values = model[dataset];
        if (isSample)
            values.erase(values.begin() + first,
                         values.begin() + first + std::clamp(count, 0, Size(dataset) - first));
        graph.m_SelectionMarkPos = mark = -1;
    }
    void Mark() {
        const int wanted = Index(Size(0));
        const bool isTaken = wanted >= -1 && wanted < Size(0);
        Settle();
        graph.SetSelectionMarkPos(wanted);
        ASSERT_EQ(Text(UpdateRect()) != "0,0,0,0", isTaken) << wanted;
        Settle();
        if (isTaken)
            mark = wanted;
    }
    void Reset() {
        const int dataset = Index(CGraphCtrl::DatasetCount);
        graph.ResetData(dataset);
        if (dataset >= 0 && dataset < CGraphCtrl::DatasetCount) {
            model[dataset].clear();
            mark = -1;
        }
        if (numbers.OneIn(4)) {
            graph.calls.clear();
            graph.ResetAll();
            ASSERT_EQ(graph.calls, Strings{"reset labels"}) << "through the virtual slot";
            up.clear();
            down.clear();
            for (auto& values : model)
                values.clear();
            mark = -1;
        }
        isAuto = !numbers.OneIn(3);
        graph.SetAutoXVisible(isAuto);
    }
    void Act() {
        const int action = numbers.Below(100);
        if (action < 70)
            Append();
        else if (action < 84)
            Label();
        else if (action < 89)
            RemoveHeads();
        else if (action < 93)
            RemoveWithin();
        else if (action < 99)
            Mark();
        else
            Reset();
    }

    void Compare() {
        for (int d = 0; d < CGraphCtrl::DatasetCount; ++d) {
            std::vector<double> values;
            double x = 0, y = 0;
            for (int i = 0; graph.m_Datasets[d].GetData(i, x, y); ++i) {
                ASSERT_EQ(x, i);
                values.push_back(y);
            }
            ASSERT_EQ(Bits(values), Bits(model[d])) << "dataset " << d;
        }
        ASSERT_EQ(All(graph.m_XTickLabelUp), up);
        ASSERT_EQ(All(graph.m_XTickLabelDown), down);
        ASSERT_EQ(graph.m_XVisibleMax, xMax);
        ASSERT_EQ(graph.m_SelectionMarkPos, mark);
        ASSERT_EQ(Text(UpdateRect()), "0,0,0,0");

        const int dataset = Index(CGraphCtrl::DatasetCount);
        const bool isDataset = dataset >= 0 && dataset < CGraphCtrl::DatasetCount;
        const int index = Index(isDataset ? Size(dataset) : 3);
        double y = 88, same = 88;
        const bool isSample = isDataset && index >= 0 && index < Size(dataset);
        ASSERT_EQ(graph.GetYData(dataset, index, y), isSample);
        ASSERT_EQ(Bits({y}), Bits({isSample ? model[dataset][index] : same}));
        const std::size_t label = numbers.Below(40);
        CString upper("same"), lower("same");
        ASSERT_TRUE(graph.GetXData(static_cast<int>(label), upper, lower));
        ASSERT_EQ(std::string(upper), label < up.size() ? up[label] : "same");
        ASSERT_EQ(std::string(lower), label < down.size() ? down[label] : "same");
    }

    testkit::Numbers numbers{20240611};
    std::vector<double> model[CGraphCtrl::DatasetCount];
    Strings up, down;
    double xMax = 100;
    int mark = -1;
    bool isAuto = true;
};

} // namespace

TEST_F(GraphDataTest, RandomCallsAgainstVectors) {
    for (int step = 0; step < 4000; ++step) {
        SCOPED_TRACE(step);
        ASSERT_NO_FATAL_FAILURE(Act());
        ASSERT_NO_FATAL_FAILURE(Compare());
    }
    testkit::Pump();
    EXPECT_EQ(parent.Log(), Strings()) << "the host is not told of its own calls";
}
