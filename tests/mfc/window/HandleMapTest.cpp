// SPDX-License-Identifier: MIT
// Temporary window objects: when they are shared, replaced and deleted.

#include <gtest/gtest.h>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateTop, windowkit::MapCounts;

namespace {

constexpr UINT loopMessage = WM_USER + 2;

/// Its handler calls FromHandle() for a window without an object.
class AskingWnd : public CWnd {
public:
    HWND foreign = nullptr;
    CWnd* answer = nullptr;
    bool survivedLoop = false;

protected:
    LRESULT OnLoop(WPARAM, LPARAM) {
        answer = CWnd::FromHandle(foreign);
        const std::size_t held = MapCounts::Now().temporary;
        windowkit::RunIdle(); // the handler still runs
        survivedLoop = held != 0 && MapCounts::Now().temporary == held && answer->m_hWnd == foreign;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AskingWnd, CWnd)
    ON_MESSAGE(loopMessage, &AskingWnd::OnLoop)
END_MESSAGE_MAP()

class HandleMapTest : public testing::Test {
protected:
    void SetUp() override {
        CWnd::DeleteTempMap();
        ASSERT_TRUE(CreateTop(window));
        window.foreign = windowkit::CreateForeign(_T("BUTTON"), &window, 5);
    }
    AskingWnd window;
};

} // namespace

TEST_F(HandleMapTest, TemporaryObjectsAreSharedAndEndWhenIdle) {
    EXPECT_EQ(CWnd::FromHandlePermanent(window.foreign), nullptr);
    EXPECT_EQ(MapCounts::Now().temporary, 0u);

    CWnd* const temporary = window.GetDlgItem(5);
    EXPECT_EQ(temporary->m_hWnd, window.foreign);
    EXPECT_EQ(CWnd::FromHandle(window.foreign), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.foreign), nullptr);
    EXPECT_EQ(MapCounts::Now().temporary, 1u);

    windowkit::RunIdle();
    EXPECT_EQ(MapCounts::Now().temporary, 0u);
    EXPECT_TRUE(::IsWindow(window.foreign)) << "the window outlives its temporary object";
}

TEST_F(HandleMapTest, AnObjectAttachedLaterTakesTheTemporarysPlace) {
    CWnd* const temporary = CWnd::FromHandle(window.foreign);
    CWnd object;
    object.Attach(window.foreign);
    EXPECT_EQ(CWnd::FromHandle(window.foreign), &object);
    EXPECT_EQ(temporary->m_hWnd, window.foreign) << "who holds the temporary one can go on";
    object.Detach();
}

TEST_F(HandleMapTest, TemporaryObjectsOutliveTheLoopsOfTheHandlerThatHoldsThem) {
    window.SendMessage(loopMessage);
    EXPECT_TRUE(window.survivedLoop);
    AfxGetThread()->OnIdle(0);
    EXPECT_EQ(MapCounts::Now().temporary, 0u);
}
