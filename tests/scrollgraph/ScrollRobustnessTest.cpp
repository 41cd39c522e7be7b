// Odd views, odd times, lost memory, parents that do what they should not, and messages at random.

#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/ForbiddenPages.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MemoryRule.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/Numbers.h"

#include <climits>
#include <cmath>
#include <iterator>
#include <sstream>

namespace {

constexpr UINT kCodes[] = {SB_LINELEFT, SB_LINERIGHT, SB_PAGELEFT, SB_PAGERIGHT, SB_THUMBTRACK, SB_ENDSCROLL};

} // namespace

namespace {

/// A control whose next time stamp and sample ask for new memory, as a host reads it.
struct FedScroll {
    explicit FedScroll(bool feeds = true) {
        EXPECT_TRUE(parent.CreateVisible(400, 300));
        graph.Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 77);
        for (int i = 0; i < 1024 && feeds; ++i) {
            graph.AddXTickLabel(kSomeTime + i);
            graph.AddDataForOffline(0, i, nullptr);
            graph.AddDataForOffline(12, i, nullptr);
        }
        graph.UpdateScrollByRemove();
        graph.SetSelectionMarkPos(5);
        graph.UpdateWindow();
        testkit::Pump();
    }
    ~FedScroll() { parent.DestroyWindow(); }
    std::string State() {
        std::ostringstream out;
        const int stamps = graph.GetCurDataIndex();
        out << stamps << " " << graph.GetTimeInfo(0) << " " << graph.GetTimeInfo(stamps - 1) << " "
            << graph.LowerBound(1e9) << " mark " << graph.m_SelectionMarkPos << " view " << graph.m_dScrollPos
            << " " << graph.m_dScrollMax << " " << graph.m_strSelectionMarkTime.GetString();
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
            out << " " << graph.GetDatasetSize(i);
        for (const CString& text : texts)
            out << "|" << text.GetString();
        return out.str();
    }
    testkit::RecordingParent parent;
    OpenScrollGraph graph;
    CString texts[2];
};
struct EmptyScroll : FedScroll {
    EmptyScroll() : FedScroll(false) {}
};

} // namespace

TEST(ScrollMemoryTest, EveryOperationHappensWholeOrNotAtAll) {
    using S = FedScroll;
    using testkit::OnFailure;
    const int failures = testkit::ExpectMemoryRule<S>({
        {"AddXTickLabel", OnFailure::Reports,
         [](S& s) { return s.graph.AddXTickLabel(kSomeTime + 1024) != 0; }},
        {"AddXTickLabel, back", OnFailure::Reports,
         [](S& s) { return s.graph.AddXTickLabel(kSomeTime - 5) != 0; }},
        {"AddXTickLabel, out of pace", OnFailure::Reports,
         [](S& s) {
             s.graph.RemoveHeadData(1024);
             return s.graph.AddXTickLabel(0) != 0 && s.graph.AddXTickLabel(1) != 0 &&
                    s.graph.AddXTickLabel(100000) != 0;
         },
         true},
        {"AddData", OnFailure::Reports, [](S& s) { return s.graph.AddData(0, 1, nullptr) != 0; }, true},
        {"AddDataForOffline", OnFailure::Reports,
         [](S& s) { return s.graph.AddDataForOffline(0, 1, nullptr) != 0; }},
        {"SetArraySize", OnFailure::Reports,
         [](S& s) {
             s.graph.SetArraySize(9);
             return s.graph.GetCurDataIndex() == 1 && s.graph.GetDatasetSize(7) == 1;
         }},
        {"InitData", OnFailure::Never, [](S& s) { return s.graph.InitData(), true; }},
        {"ResetXTickLabel", OnFailure::Never, [](S& s) { return s.graph.ResetXTickLabel(), true; }},
        {"RemoveHeadData", OnFailure::Never, [](S& s) { return s.graph.RemoveHeadData(1000), true; }},
        {"RemoveHeadData, all", OnFailure::Never, [](S& s) { return s.graph.RemoveHeadData(5000), true; }},
        {"SetHorzRange", OnFailure::Never, [](S& s) { return s.graph.SetHorzRange(3), true; }},
        {"InitScrollInfo", OnFailure::Never, [](S& s) { return s.graph.InitScrollInfo(), true; }},
        {"ProcessMouseWheel", OnFailure::Never, [](S& s) { return s.graph.ProcessMouseWheel(120), true; }},
        {"SetSelectionMarkPos", OnFailure::Never, [](S& s) { return s.graph.SetSelectionMarkPos(7), true; }},
        {"SendScrollInfo", OnFailure::Never, [](S& s) { return s.graph.SendScrollInfo(7), true; }},
        {"GetXData", OnFailure::False, [](S& s) { return s.graph.GetXData(3, s.texts[0], s.texts[1]) != 0; }},
        {"GetFullTime", OnFailure::False, [](S& s) { return s.graph.GetFullTime(3, s.texts[0]) != 0; }},
        {"WM_HSCROLL", OnFailure::Message,
         [](S& s) { return s.graph.SendMessage(WM_HSCROLL, SB_PAGELEFT, 0), true; }},
        {"the mark's time", OnFailure::Message,
         [](S& s) { return s.graph.SendMessage(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK), true; }},
    });
    EXPECT_GT(failures, 10) << "the failures must reach the operations";
    testkit::ExpectMemoryRule<EmptyScroll>({
        {"SetArraySize of an empty graph", OnFailure::Reports,
         [](EmptyScroll& s) {
             s.graph.SetArraySize(9);
             return s.graph.GetCurDataIndex() == 1 && s.graph.GetDatasetSize(7) == 1;
         }},
    });
}

class ScrollOddViewTest : public ScrollTest {};

TEST_F(ScrollOddViewTest, NothingFaultsAndEverythingEnds) {
    const double minutes[] = {1, 0, -1, NAN, INFINITY, -INFINITY, 1e300, -1e300, 5e-324, 1e-3, 1e5, 5e8};
    const std::initializer_list<long> times[] = {
        {},
        {0},
        {kSomeTime, kSomeTime + 1, kSomeTime + 2},
        {INT32_MIN, -5, 0, 2147483640, INT32_MAX},          // all there is
        {INT32_MAX, INT32_MAX, INT32_MAX},                  // 2038-01-19 03:14:07
        {0, 107374182, 107374183, 214748364, 214748365},    // x wraps round after 3.4 years
        {kSomeTime, kSomeTime - 100000000, kSomeTime + 50}, // back, and forth again
        {-2000000000, -1999999990},
    };
    const double positions[] = {0, -1e300, 1e300, NAN, 1e9};
    testkit::ObjectCounts before;
    int round = 0;
    for (const auto& stamps : times) {
        if (round > 0 && before == testkit::ObjectCounts())
            before = testkit::CountObjects(); // what the platform keeps for itself is made by then
        for (const double range : minutes) {
            SCOPED_TRACE("range " + std::to_string(range) + ", " + std::to_string(stamps.size()) +
                         " stamps, first " + std::to_string(stamps.size() == 0 ? 0 : *stamps.begin()));
            graph.InitData();
            graph.InitScrollInfo();
            for (int i = 0; i < 3; ++i)
                graph.ResetData(i);
            for (const long time : stamps) {
                Stamp({time});
                for (int i = 0; i < 3; ++i)
                    graph.AddData(i, 10.0 * i, nullptr);
            }
            graph.SetHorzRange(range);
            // The view that came of it, and one that somebody set.
            for (const double pos : {graph.m_dScrollPos, positions[round % std::size(positions)]}) {
                ++round;
                graph.m_dScrollPos = pos;
                graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(round % 2 * 2));
                ASSERT_LT(Record()->Records().size(), 2000u);
                for (int x = kPlotLeft; x < kPlotRight; x += 500) {
                    const int hit = graph.GetIndexFromPt(CPoint(x, 2000));
                    ASSERT_TRUE(hit >= -1 && hit < static_cast<int>(stamps.size())) << hit;
                }
                graph.GetPtFromIndex(1);
                graph.UpdateScrollInfo();
                for (const UINT code : kCodes)
                    graph.SendMessage(WM_HSCROLL, MAKEWPARAM(code, 700), 0);
                graph.ProcessMouseWheel(-1);
                graph.SendScrollInfo(graph.m_dScrollPos);
            }
            graph.RemoveHeadData(1);
        }
    }
    EXPECT_EQ(testkit::CountObjects(), before);
}

namespace {

struct Scene {
    Scene() {
        EXPECT_TRUE(parent.CreateVisible(400, 300));
        EXPECT_TRUE(other.CreateVisible(400, 300));
        parent.SetRecordSize(sizeof(NMGRAPHCTRL));
        graph = new testkit::Paged<OpenScrollGraph>;
        EXPECT_TRUE(
            graph->Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 77));
        window = graph->m_hWnd;
        for (int i = 0; i < 300; ++i) {
            graph->AddXTickLabel(kSomeTime + i);
            graph->AddDataForOffline(0, i % 100, nullptr);
        }
        graph->UpdateScrollByRemove();
        graph->SetScrollSync(TRUE);
        graph->SetSelectionMarkPos(5);
        graph->UpdateWindow();
        testkit::Pump();
    }
    ~Scene() {
        parent.onNoted = nullptr;
        delete graph;
        if (parent.m_hWnd != nullptr)
            parent.DestroyWindow();
        other.DestroyWindow();
        testkit::Pump();
    }

    testkit::RecordingParent parent;
    testkit::RecordingParent other;
    testkit::Paged<OpenScrollGraph>* graph = nullptr;
    HWND window = nullptr;
};

struct Misdeed {
    const char* name;
    bool destroys; ///< the control has no window after it
    void (*act)(Scene&);
};

const Misdeed kMisdeeds[] = {
    {"destroys the control's window", true, [](Scene& s) { s.graph->DestroyWindow(); }},
    {"deletes the control", true,
     [](Scene& s) {
         delete s.graph;
         s.graph = nullptr;
     }},
    {"replaces the control", true,
     [](Scene& s) {
         delete s.graph;
         s.graph = new testkit::Paged<OpenScrollGraph>;
         s.graph->Create("MFCGraphCtrl", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &s.parent, 77);
     }},
    {"destroys itself", true, [](Scene& s) { s.parent.DestroyWindow(); }},
    {"destroys the scroll bar", false, [](Scene& s) { s.graph->m_wndScrollBar.DestroyWindow(); }},
    {"removes all samples", false, [](Scene& s) { s.graph->RemoveHeadData(1000); }},
    {"scrolls on", false, [](Scene& s) { s.graph->SendMessage(WM_HSCROLL, SB_PAGELEFT, 0); }},
    {"exports again", false,
     [](Scene& s) { s.graph->SendMessage(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK); }},
    {"gives the control away", false, [](Scene& s) { s.graph->SetParent(&s.other); }},
    {"sets the control free", false, [](Scene& s) { s.graph->SetParent(nullptr); }},
};

void Play(const Misdeed& misdeed, UINT message, WPARAM wParam) {
    SCOPED_TRACE(std::string("the parent ") + misdeed.name + " in the handling of " +
                 std::to_string(message));
    const testkit::ForbiddenPages pages;
    Scene scene;
    bool acted = false;
    std::size_t told = 0;
    scene.parent.onNoted = [&](const testkit::RecordingParent::Entry&) {
        if (acted)
            return;
        acted = true;
        misdeed.act(scene);
        told = scene.parent.Entries().size();
    };
    ::SendMessage(scene.window, message, wParam, 0);
    EXPECT_TRUE(acted);
    EXPECT_EQ(::IsWindow(scene.window) == FALSE, misdeed.destroys);
    if (misdeed.destroys) {
        EXPECT_EQ(scene.parent.Entries().size(), told) << "told after its end";
    } else {
        ::SendMessage(scene.window, message, wParam, 0);
        scene.graph->Redraw();
        scene.graph->UpdateWindow();
    }
    testkit::Pump();
    EXPECT_EQ(testkit::ForbiddenPages::Touched(), 0) << "of a deleted control";
}

} // namespace

TEST(ScrollMisbehavingParentTest, NothingBreaksAndNothingIsSentAfterTheEnd) {
    testkit::ObjectCounts before;
    for (int round = 0; round < 2; ++round) { // the first makes what the platform keeps for itself
        if (round == 1)
            before = testkit::CountObjects();
        for (const Misdeed& misdeed : kMisdeeds) {
            Play(misdeed, WM_HSCROLL, SB_PAGELEFT);
            Play(misdeed, WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK);
        }
    }
    EXPECT_EQ(testkit::CountObjects(), before);
}

class ScrollRandomTest : public ScrollTest {
protected:
    double Odd() {
        const double odd[] = {0, 1, -1, 50, 1e-9, 1e9, -1e15, 1e300, NAN, INFINITY};
        return odd[numbers.Below(static_cast<int>(std::size(odd)))];
    }
    void Change() {
        const int kind = numbers.Below(100);
        if (kind < 55) {
            for (int i = numbers.Below(8); i > 0 && graph.GetCurDataIndex() < 2000; --i) {
                m_time += numbers.OneIn(20) ? numbers.Below(4000) - 1000 : numbers.Below(3);
                if (!numbers.OneIn(10))
                    graph.AddXTickLabel(m_time);
                for (int dataset = numbers.Below(3); dataset >= 0; --dataset)
                    graph.AddData(dataset, numbers.OneIn(9) ? Odd() : numbers.Below(100), nullptr);
            }
        } else if (kind < 65) {
            graph.RemoveHeadData(numbers.OneIn(6) ? numbers.Below(5000) - 10 : numbers.Below(50));
        } else if (kind < 72) {
            graph.SetHorzRange(numbers.OneIn(3) ? Odd() : numbers.Below(100) / 10.0);
        } else if (kind < 80) {
            graph.SetSelectionMarkPos(numbers.Below(graph.GetDatasetSize(0) + 20) - 10);
        } else if (kind < 84) {
            graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(numbers.Below(4)));
            graph.SetTindroMode(numbers.OneIn(2));
            graph.SetScrollSync(numbers.Below(2));
        } else if (kind < 86) {
            graph.SetArraySize(numbers.Below(10) - 1);
        } else if (kind < 88) {
            graph.ResetAll();
        } else if (kind < 92) {
            graph.UpdateScrollByRemove();
            graph.SetScrollLastPos();
        } else if (kind < 94) {
            graph.m_dScrollPos = Odd();
        } else if (kind < 97) {
            Resize(numbers.Below(numbers.OneIn(4) ? 12 : 600), numbers.Below(500));
        } else {
            graph.Redraw();
            graph.UpdateWindow();
        }
    }
    void SendOne() {
        const LPARAM place = MAKELPARAM(numbers.Below(320) - 10, numbers.Below(220) - 10);
        CMenu menu;
        switch (numbers.Below(12)) {
        case 0:
        case 1:
        case 2:
        case 3:
            graph.SendMessage(WM_HSCROLL, MAKEWPARAM(numbers.Below(10), numbers.Below(1300)), 0);
            break;
        case 4:
            graph.ProcessMouseWheel(static_cast<short>(numbers.Next()));
            break;
        case 5:
            graph.SendMessage(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK);
            ++exported;
            break;
        case 6:
            graph.SendMessage(WM_KEYDOWN, numbers.OneIn(2) ? VK_LEFT : VK_RIGHT, 1);
            break;
        case 7:
            graph.InvalidateRect(nullptr, FALSE);
            graph.SendMessage(WM_PAINT);
            break;
        case 8:
            menu.CreatePopupMenu();
            graph.InsertGraphMenu(menu);
            break;
        case 9:
            if (numbers.OneIn(20))
                graph.SendMessage(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK);
            break;
        default:
            graph.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
        }
    }
    int Longest() {
        int longest = 0;
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
            longest = std::max(longest, graph.GetDatasetSize(i));
        return longest;
    }
    void SendMany(int count) {
        testkit::MessageBoxWatcher boxes(IDYES);
        for (int i = 0; i < count; ++i) {
            if (numbers.OneIn(5))
                Change();
            if (i % 200 == 0) {
                testkit::Pump();
                parent.Forget();
                graph.calls.clear();
            }
            SendOne();
            const int mark = graph.m_SelectionMarkPos;
            ASSERT_GE(mark, -1) << i;
            marked += mark >= 0;
            ASSERT_TRUE(mark < 3000) << mark;
            followed += graph.m_bFollowed;
        }
        ::ReleaseCapture();
        testkit::Pump();
    }

    testkit::Numbers numbers{20261121};
    int marked = 0, followed = 0, exported = 0;

private:
    long m_time = kSomeTime;
};

TEST_F(ScrollRandomTest, TwentyThousandMessagesLeaveObjectsInOrder) {
    ASSERT_NO_FATAL_FAILURE(SendMany(3000)); // what the platform keeps for itself is made by then
    const testkit::ObjectCounts before = testkit::CountObjects();
    ASSERT_NO_FATAL_FAILURE(SendMany(20000));
    EXPECT_EQ(testkit::CountObjects(), before);
    EXPECT_GT(marked, 3000);
    EXPECT_GT(followed, 100);
    EXPECT_GT(exported, 1000);
}
