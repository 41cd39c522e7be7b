// SPDX-License-Identifier: MIT
// Odd views, odd times, lost memory, and parents that do what they should not.

#include "tests/scrollgraph/ScrollTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MemoryRule.h"
#include "tests/support/MisbehavingParent.h"
#include "tests/support/Utf8.h"

#include <climits>
#include <cmath>
#include <iterator>
#include <sstream>

namespace {

constexpr UINT kCodes[] = {SB_LINELEFT, SB_LINERIGHT, SB_PAGELEFT, SB_PAGERIGHT, SB_THUMBTRACK, SB_ENDSCROLL};

/// A control whose next time stamp and sample ask for new memory, as a host reads it.
struct FedScroll {
    FedScroll() {
        EXPECT_TRUE(parent.CreateVisible(400, 300));
        graph.Create(_T("MFCGraphCtrl"), _T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 77);
        for (int i = 0; i < 1024; ++i) {
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
            << " " << graph.m_dScrollMax << " " << graph.m_strSelectionMarkTime;
        for (int i = 0; i < CGraphCtrl::DatasetCount; ++i)
            out << " " << graph.GetDatasetSize(i);
        for (const CString& text : texts)
            out << "|" << text;
        return out.str();
    }
    testkit::RecordingParent parent;
    OpenScrollGraph graph;
    CString texts[2];
};
} // namespace

TEST(ScrollMemoryTest, EveryOperationHappensWholeOrNotAtAll) {
    using S = FedScroll;
    using testkit::OnFailure;
    const int failures = testkit::ExpectMemoryRule<S>({
        {"AddXTickLabel", OnFailure::Reports,
         [](S& s) { return s.graph.AddXTickLabel(kSomeTime + 1024) != 0; }},
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
    EXPECT_GT(failures, 10);
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
        if (round > 0 && before.windows == 0)
            before = testkit::CountObjects(); // what the platform keeps for itself is made by then
        for (const double range : minutes) {
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
            // The view that the range leads to, and one that a host sets.
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

/// A control in use, whose parent acts in the middle.
struct Scene : testkit::MisbehavingScene<OpenScrollGraph> {
    Scene() {
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
};

using Misdeed = testkit::Misdeed<Scene>;

const std::vector<Misdeed> kMisdeeds = testkit::Misdeeds<Scene>({
    {"destroys the scroll bar", false, [](Scene& s) { s.graph->m_wndScrollBar.DestroyWindow(); }},
    {"removes all samples", false, [](Scene& s) { s.graph->RemoveHeadData(1000); }},
    {"scrolls on", false, [](Scene& s) { s.graph->SendMessage(WM_HSCROLL, SB_PAGELEFT, 0); }},
    {"exports again", false,
     [](Scene& s) { s.graph->SendMessage(WM_COMMAND, ID_GRAPH_SEND_SELECTION_MARK); }},
});

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
        EXPECT_EQ(scene.parent.Entries().size(), told);
    } else {
        ::SendMessage(scene.window, message, wParam, 0);
        scene.graph->Redraw();
        scene.graph->UpdateWindow();
    }
    testkit::Pump();
    EXPECT_EQ(testkit::ForbiddenPages::Touched(), 0);
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
