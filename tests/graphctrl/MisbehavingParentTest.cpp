// SPDX-License-Identifier: MIT
// A parent that destroys or changes the control while the control waits for it.

#include "tests/support/MisbehavingParent.h"
#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"

#include <algorithm>
#include <functional>

namespace {

/// A control in use, and what the parent does in the middle.
class Scene : public testkit::MisbehavingScene<OpenGraph> {
public:
    Scene() {
        s_current = this;
        m_hook = ::SetWindowsHookEx(WH_CALLWNDPROCRET, &Scene::OnReturned, nullptr, ::GetCurrentThreadId());
        for (int i = 0; i < 20; ++i) {
            graph->AddData(0, i * 5, nullptr);
            graph->AddData(1, 50, nullptr);
        }
        graph->SetLegend(0, "zero");
        graph->SetTitleStyle(CGraphCtrl::TitleStyleCaption);
        graph->ShowIconMaximize(TRUE, FALSE);
        graph->SetSelectionMarkPos(5);
        graph->UpdateWindow();
        testkit::Pump();
        parent.Forget();
    }
    ~Scene() {
        ::UnhookWindowsHookEx(m_hook);
        s_current = nullptr;
    }

    /// The middle of a rectangle of the control's layout, as a mouse message has it.
    static LPARAM Middle(const CRect& logical) {
        const CPoint middle = logical.CenterPoint();
        return MAKELPARAM(middle.x / 30, middle.y / 30);
    }
    void Send(UINT message, WPARAM wParam, LPARAM lParam) { ::SendMessage(window, message, wParam, lParam); }
    void Post(UINT message, WPARAM wParam, LPARAM lParam) { ::PostMessage(window, message, wParam, lParam); }

    int Notifications() const {
        int count = 0;
        for (const auto& entry : parent.Entries())
            count += entry.message == WM_NOTIFY;
        return count;
    }
    /// The action's turn, once.
    void Act() {
        if (!action)
            return;
        const auto now = action;
        action = nullptr;
        acted = true;
        now(*this);
        toldBefore = Notifications();
    }

    std::function<void(Scene&)> action;
    std::function<void(Scene&)> trigger;
    bool inDialog = false; ///< the action's turn is while the message box is open
    bool acted = false;
    int toldBefore = 0; ///< notifications up to the end of the action

private:
    static LRESULT CALLBACK OnReturned(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && s_current != nullptr) {
            constexpr int kDialogClassAtom = 32770;
            if (message.message == WM_INITDIALOG &&
                ::GetClassLongPtr(message.hwnd, GCW_ATOM) == kDialogClassAtom) {
                if (s_current->inDialog)
                    s_current->Act();
                ::EndDialog(message.hwnd, IDYES);
            } else if (message.message == WM_ENTERIDLE && message.wParam == MSGF_MENU) {
                s_current->Act();
                ::EndMenu();
                // That finds no menu window to end when the owner was destroyed.
                ::PostThreadMessage(::GetCurrentThreadId(), WM_KEYDOWN, VK_ESCAPE, 1);
            }
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static Scene* s_current;
    HHOOK m_hook;
};

Scene* Scene::s_current = nullptr;

const struct Occasion {
    const char* name;
    UINT code;     ///< in the handling of this notification; 0 while menu or message box is open
    bool tracking; ///< with the button down on the icon
    std::function<void(Scene&)> trigger;
} kOccasions[] = {
    {"click", GCN_SELCHANGE, false,
     [](Scene& s) { s.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 80)); }},
    {"key", GCN_SELCHANGE, false, [](Scene& s) { s.Send(WM_KEYDOWN, VK_RIGHT, 1); }},
    {"clear by menu", GCN_SELCHANGE, false,
     [](Scene& s) { s.Send(WM_COMMAND, ID_GRAPH_CLEAR_SELECTION_MARK, 0); }},
    {"remove by menu", GCN_REMOVEDATA, false,
     [](Scene& s) { s.Send(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK, 0); }},
    {"move", GCN_MOUSEMOVE, false, [](Scene& s) { s.Send(WM_MOUSEMOVE, 0, MAKELPARAM(100, 80)); }},
    {"move with the icon pressed", GCN_MOUSEMOVE, true,
     [](Scene& s) { s.Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, 80)); }},
    {"icon", GCN_MAXIMIZE, true,
     [](Scene& s) { s.Send(WM_LBUTTONUP, 0, Scene::Middle(s.graph->m_rectIconMaximize)); }},
    {"double-click", GCN_DBLCLK, false,
     [](Scene& s) { s.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(100, 80)); }},
    {"open message box", 0, false,
     [](Scene& s) {
         s.inDialog = true;
         s.Send(WM_COMMAND, ID_GRAPH_REMOVE_DATA_BEFORE_MARK, 0);
     }},
    {"open menu", 0, false, [](Scene& s) { s.Send(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(100, 80)); }},
    {"menu opened by key", 0, false,
     [](Scene& s) { s.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(s.window), -1); }},
};

using Misdeed = testkit::Misdeed<Scene>;

const std::vector<Misdeed> kMisdeeds = testkit::Misdeeds<Scene>({
    {"resets all", false,
     [](Scene& s) {
         s.graph->ResetAll();
         s.graph->ResetData(0);
     }},
    {"pumps messages", false,
     [](Scene& s) {
         s.Post(WM_KEYDOWN, VK_LEFT, 1);
         s.Post(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(120, 80));
         s.Post(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
         s.Post(WM_COMMAND, ID_GRAPH_CLEAR_SELECTION_MARK, 0);
         testkit::Pump();
     }},
    {"moves the mark", false,
     [](Scene& s) {
         s.graph->SetSelectionMarkPos(-1);
         s.graph->SetSelectionMarkPos(19);
     }},
    {"removes samples", false, [](Scene& s) { s.graph->RemoveHeadData(19); }},
    {"changes the icon", false,
     [](Scene& s) {
         s.graph->ShowIconMaximize(FALSE, FALSE);
         s.graph->Redraw();
         s.graph->UpdateWindow();
         s.graph->ShowIconMaximize(TRUE, TRUE);
     }},
    {"changes size and style", false,
     [](Scene& s) {
         s.graph->MoveWindow(0, 0, 3, 2);
         s.graph->SetTitleStyle(CGraphCtrl::TitleStyleText);
         s.graph->SetGraphStyle(CGraphCtrl::GraphStyleBar);
         s.graph->UpdateWindow();
     }},
    {"causes the same again", false, [](Scene& s) { s.trigger(s); }},
});

void Play(const Occasion& occasion, const Misdeed& misdeed) {
    SCOPED_TRACE(std::string(occasion.name) + ": the parent " + misdeed.name);
    Scene scene;
    if (occasion.tracking)
        scene.Send(WM_LBUTTONDOWN, MK_LBUTTON, Scene::Middle(scene.graph->m_rectIconMaximize));
    EXPECT_EQ(::GetCapture() == scene.window, occasion.tracking);
    scene.action = misdeed.act;
    scene.trigger = occasion.trigger;
    scene.parent.onNoted = [&](const testkit::RecordingParent::Entry& entry) {
        if (entry.message == WM_NOTIFY && entry.code == occasion.code)
            scene.Act();
    };
    scene.trigger(scene);
    EXPECT_TRUE(scene.acted);
    EXPECT_EQ(::IsWindow(scene.window) == FALSE, misdeed.destroys);
    if (misdeed.destroys) {
        EXPECT_EQ(scene.Notifications(), scene.toldBefore);
    } else {
        // What is left of the control still works.
        const int mark = scene.graph->m_SelectionMarkPos;
        EXPECT_TRUE(mark >= -1 && mark < std::max(scene.graph->GetDatasetSize(0), 0)) << mark;
        scene.Send(WM_LBUTTONUP, 0, MAKELPARAM(100, 80));
        scene.Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 80));
        scene.graph->Redraw();
        scene.graph->UpdateWindow();
        EXPECT_FALSE(scene.graph->m_IconMaximizeTracking || scene.graph->m_IconMaximizePressed);
    }
    EXPECT_EQ(::GetCapture(), nullptr);
    testkit::Pump();
    EXPECT_EQ(testkit::ForbiddenPages::Touched(), 0);
}

} // namespace

TEST(GraphMisbehavingParentTest, TheGuardSeesATouch) {
    const testkit::ForbiddenPages pages;
    auto* const graph = new testkit::Paged<OpenGraph>;
    auto* const mark = &graph->m_SelectionMarkPos;
    delete graph;
    *static_cast<volatile int*>(mark) = 1;
    EXPECT_EQ(testkit::ForbiddenPages::Touched(), 1);
}

TEST(GraphMisbehavingParentTest, NothingBreaksAndNothingIsSentAfterTheEnd) {
    testkit::ObjectCounts before;
    for (int round = 0; round < 2; ++round) { // the first makes what the platform keeps for itself
        if (round == 1)
            before = testkit::CountObjects();
        for (const Occasion& occasion : kOccasions) {
            for (const Misdeed& misdeed : kMisdeeds) {
                const bool warms = &misdeed == &kMisdeeds[0] || &occasion == kOccasions || occasion.code == 0;
                if (round == 0 && !warms)
                    continue;
                const testkit::ForbiddenPages pages;
                Play(occasion, misdeed);
            }
        }
    }
    EXPECT_EQ(testkit::CountObjects(), before);
}
