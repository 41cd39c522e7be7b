// SPDX-License-Identifier: MIT
// Many messages of all kinds in any order.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace {

class GraphRandomMessagesTest : public GraphTest {
protected:
    int LongestSize() const {
        int longest = 0;
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
            longest = std::max(longest, graph.GetDatasetSize(i));
        return longest;
    }

    double Odd() {
        const double odd[] = {0, 1, -1, 50, 100, 5e-324, 1e9, -1e15, 1e300, -1e308, NAN, INFINITY, -INFINITY};
        return odd[numbers.Below(static_cast<int>(std::size(odd)))];
    }
    double End() { return numbers.OneIn(5) ? Odd() : numbers.Below(4000) / 10.0 - 50; }

    /// One change of what the messages meet.
    void ChangeData() {
        const int dataset = numbers.Below(numbers.OneIn(3) ? 13 : 3);
        switch (numbers.Below(20)) {
        case 0:
            graph.RemoveHeadData(numbers.OneIn(4) ? numbers.Below(1000) - 10 : numbers.Below(9));
            break;
        case 1:
            graph.ResetData(dataset);
            break;
        case 2:
            graph.SetSelectionMarkPos(numbers.Below(graph.GetDatasetSize(0) + 20) - 10);
            break;
        case 3:
            graph.SetXVisibleMin(End());
            graph.SetXVisibleMax(numbers.OneIn(8) ? graph.m_XVisibleMin : End());
            graph.SetYVisibleMin(End());
            graph.SetYVisibleMax(End());
            break;
        case 4:
            graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(numbers.Below(4)));
            graph.SetTitleStyle(static_cast<CGraphCtrl::TitleStyle>(numbers.Below(2)));
            graph.ShowIconMaximize(numbers.OneIn(2), numbers.OneIn(2));
            graph.SetLegend(dataset, numbers.OneIn(2) ? "text" : "");
            break;
        case 5:
            graph.MoveWindow(0, 0, numbers.Below(numbers.OneIn(4) ? 12 : 600), numbers.Below(500));
            graph.UpdateWindow();
            break;
        default:
            for (int i = LongestSize() < 400 ? numbers.Below(20) : 0; i > 0; --i)
                graph.AddData(dataset, numbers.OneIn(8) ? Odd() : numbers.Below(120) - 10, nullptr);
        }
    }

    LPARAM Place() {
        if (numbers.OneIn(6))
            return static_cast<LPARAM>(static_cast<std::int32_t>(numbers.Next()));
        const CRect icon = graph.m_rectIconMaximize;
        if (numbers.OneIn(4))
            return MAKELPARAM(icon.left / 30 + numbers.Below(8) - 2, icon.top / 30 + numbers.Below(8) - 2);
        return MAKELPARAM(numbers.Below(320) - 10, numbers.Below(220) - 10);
    }

    /// Sends one message of the kinds that the control handles; the result is its number.
    UINT SendOne() {
        const WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_RIGHT, VK_ESCAPE, VK_RETURN};
        const WPARAM flags = numbers.Next() & 0xFFFF;
        const LPARAM place = Place();
        const struct {
            int weight;
            UINT message;
            WPARAM wParam;
            LPARAM lParam;
        } kinds[] = {
            {200, WM_MOUSEMOVE, flags, place},
            {200, WM_LBUTTONDOWN, flags, place},
            {200, WM_LBUTTONUP, flags, place},
            {200, WM_LBUTTONDBLCLK, flags, place},
            {200, WM_KEYDOWN, keys[numbers.Below(5)], place},
            {40, WM_COMMAND, ID_GRAPH_CLEAR_SELECTION_MARK, 0},
            {40, WM_CAPTURECHANGED, flags, 0},
            {1, WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK, 0},
            {2, WM_COMMAND, ID_EDIT_COPY, 0},
            {3, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory.m_hDC), PRF_CLIENT},
            {3, WM_PAINT, 0, 0},
        };
        const auto* kind = kinds;
        for (int left = numbers.Below(1089); left >= kind->weight; ++kind)
            left -= kind->weight;
        if (kind->message == WM_PAINT)
            graph.InvalidateRect(CRect(0, 0, numbers.Below(300), numbers.Below(200)), FALSE);
        graph.SendMessage(kind->message, kind->wParam, kind->lParam);
        return kind->message;
    }

    void SendMany(int count) {
        testkit::MessageBoxWatcher boxes(IDYES);
        for (int i = 0; i < count; ++i) {
            if (numbers.OneIn(4))
                ChangeData();
            if (i % 500 == 0) {
                testkit::Pump();
                parent.Forget();
                boxes.SetAnswer(i % 1000 == 0 ? IDYES : IDNO);
            }
            const int before = graph.m_SelectionMarkPos;
            ASSERT_TRUE(before >= -1 && before < LongestSize()) << before;
            const UINT message = SendOne();
            const int mark = graph.m_SelectionMarkPos;
            ASSERT_TRUE(mark >= -1 && mark < LongestSize()) << mark << " after message " << message;
            // Where dataset 0 has no sample near the click, the next dataset decides. Nothing but a click
            // takes the mark there, and from there it only goes back.
            if (mark > before && message != WM_LBUTTONDOWN) {
                ASSERT_LT(mark, graph.GetDatasetSize(0)) << "after message " << message;
            }
            marked += mark >= 0;
            beyond += mark >= graph.GetDatasetSize(0);
        }
        asked += static_cast<int>(boxes.Boxes().size());
        ::ReleaseCapture();
        testkit::Pump();
    }

    testkit::Numbers numbers{20240607};
    CDC memory;     ///< where WM_PRINTCLIENT draws
    int marked = 0; ///< messages after which there was a mark
    int beyond = 0; ///< of those, messages after which dataset 0 did not hold the marked sample
    int asked = 0;  ///< message boxes answered
};

} // namespace

TEST_F(GraphRandomMessagesTest, AHundredThousandLeaveMarkAndObjectsInOrder) {
    ASSERT_TRUE(memory.CreateCompatibleDC(nullptr));
    ASSERT_NO_FATAL_FAILURE(SendMany(20000)); // what the platform keeps for itself is made by then
    const testkit::ObjectCounts before = testkit::CountObjects();
    ASSERT_NO_FATAL_FAILURE(SendMany(100000));
    EXPECT_EQ(testkit::CountObjects(), before);
    // The numbers have led everywhere.
    EXPECT_GT(marked, 30000);
    EXPECT_GT(beyond, 100);
    EXPECT_GT(asked, 20);
}
