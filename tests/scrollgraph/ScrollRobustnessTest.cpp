// Odd views, odd times, lost memory, parents that do what they should not, and messages at random.

#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/ForbiddenPages.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/Numbers.h"

#include <climits>
#include <cmath>
#include <iterator>
#include <new>

namespace {

int g_allocationsLeft = -1; // until one fails; negative for none
int g_allocationsRefused = 0;

void* FailingNew(std::size_t size) {
    if (g_allocationsLeft == 0) {
        ++g_allocationsRefused;
        throw std::bad_alloc();
    }
    return ::operator new(size);
}

constexpr UINT kCodes[] = {SB_LINELEFT, SB_LINERIGHT, SB_PAGELEFT, SB_PAGERIGHT, SB_THUMBTRACK, SB_ENDSCROLL};

} // namespace

TEST(ScrollRobustnessTest, ARefusedTimeStampIsToldAndNotStored) {
    OpenScrollGraph graph;
    testkit::MessageBoxWatcher watcher;
    const testkit::ImportHook hook("Kavlix.dll", sizeof(void*) == 8 ? "_Znwy" : "_Znwj",
                                   reinterpret_cast<void*>(&FailingNew));
    ASSERT_TRUE(hook.Installed());
    int refused = 0;
    g_allocationsRefused = 0;
    for (int i = 0; i < 5000 && refused < 3; ++i) {
        const int before = graph.GetCurDataIndex();
        g_allocationsLeft = 0;
        const int added = graph.AddXTickLabel(kSomeTime + i);
        g_allocationsLeft = -1;
        ASSERT_EQ(graph.GetCurDataIndex(), before + added);
        refused += added == 0;
        ASSERT_EQ(refused, g_allocationsRefused);
        if (added == 0) {
            ASSERT_EQ(graph.AddXTickLabel(kSomeTime + i), 1) << "memory is back";
        }
        ASSERT_EQ(graph.GetTimeInfo(before), kSomeTime + i);
    }
    EXPECT_EQ(refused, 3);
    EXPECT_EQ(watcher.Boxes().size(), 3u);

    // A refused sample has moved the view all the same.
    for (int i = 0; i < 300 && watcher.Boxes().size() < 5;) {
        g_allocationsLeft = 0;
        const int added = graph.AddData(0, i, nullptr);
        g_allocationsLeft = -1;
        ASSERT_EQ(graph.m_dScrollPos, i < 55 ? 0 : i * 20 - 1080);
        ASSERT_EQ(graph.GetDatasetSize(0), i + added);
        if (added == 0) {
            ASSERT_EQ(graph.AddDataForOffline(0, i, nullptr), 1);
        }
        ++i;
    }
    EXPECT_EQ(watcher.Boxes().size(), 5u);
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
