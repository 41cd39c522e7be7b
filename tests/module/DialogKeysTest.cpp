// SPDX-License-Identifier: MIT
// The control among other items of a dialog, used with the keyboard only.
#include "tests/module/GraphDialog.h"
#include "tests/support/RecordingParent.h"

#include <gtest/gtest.h>

namespace {

constexpr DWORD kItemStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

class MarkedGraph : public CGraphCtrl {
public:
    int Mark() const { return m_SelectionMarkPos; }
};

/// A button, the control, another button. Keys go through IsDialogMessage, as in the message loop of a
/// program.
class DialogKeysTest : public testing::Test {
protected:
    void SetUp() override {
        DialogTemplate resource(200, 120);
        resource.AddItem("BUTTON", IDOK, 5, 100, 40, 15, kItemStyle, "OK");
        resource.AddItem("MFCGraphCtrl", kGraphItem, 5, 5, 190, 80, kItemStyle);
        resource.AddItem("BUTTON", IDCANCEL, 50, 100, 40, 15, kItemStyle, "Cancel");
        ASSERT_TRUE(dialog.CreateIndirect(resource.Get(), nullptr));
        for (const double value : {1.0, 2.0, 3.0})
            dialog.graph.AddData(0, value, nullptr);
        testkit::Pump();
    }
    void TearDown() override { dialog.DestroyWindow(); }

    /// Presses and releases a key in the window with the focus.
    void Press(WPARAM key) {
        ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1);
        ::PostMessage(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            if (!dialog.IsDialogMessage(&message)) {
                ::TranslateMessage(&message);
                ::DispatchMessage(&message);
            }
    }
    int Focused() { return ::GetDlgCtrlID(::GetFocus()); }

    GraphDialog<MarkedGraph> dialog;
};

} // namespace

TEST_F(DialogKeysTest, TabReachesTheControlAndLeavesIt) {
    ASSERT_EQ(Focused(), IDOK);
    for (const int item : {kGraphItem, static_cast<int>(IDCANCEL), static_cast<int>(IDOK), kGraphItem}) {
        Press(VK_TAB);
        EXPECT_EQ(Focused(), item);
    }
    dialog.graph.SetSelectionMarkPos(1);
    Press(VK_TAB);
    EXPECT_EQ(Focused(), IDCANCEL) << "a mark does not keep the focus";
}

TEST_F(DialogKeysTest, ArrowsStayAndEscapeClearsTheMarkBeforeItClosesTheDialog) {
    dialog.graph.SetFocus();
    const struct {
        WPARAM key;
        int mark;
        int closed;
    } steps[] = {
        {VK_LEFT, -1, 0}, {VK_RIGHT, 0, 0},   {VK_RIGHT, 1, 0},   {VK_LEFT, 0, 0},
        {VK_DOWN, 0, 0},  {VK_ESCAPE, -1, 0}, {VK_ESCAPE, -1, 1},
    };
    int number = 0;
    for (const auto& step : steps) {
        Press(step.key);
        ++number;
        EXPECT_EQ(dialog.graph.Mark(), step.mark) << "step " << number;
        EXPECT_EQ(dialog.closed, step.closed) << "step " << number;
        EXPECT_EQ(Focused(), kGraphItem) << "step " << number;
    }
}
