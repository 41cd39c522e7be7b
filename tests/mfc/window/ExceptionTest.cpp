// SPDX-License-Identifier: MIT
// Exceptions that leave message handlers.

#include <gtest/gtest.h>

#include <new>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateTop;

namespace {

constexpr UINT throwMessage = WM_USER + 1;
constexpr UINT throwCommand = 100;

int g_livingExceptions = 0;

class CountedException : public CException {
public:
    CountedException() { ++g_livingExceptions; }
    ~CountedException() override { --g_livingExceptions; }
    BOOL GetErrorMessage(LPTSTR text, UINT length, PUINT = nullptr) override {
        ::lstrcpyn(text, _T("counted"), static_cast<int>(length));
        return TRUE;
    }
};

/// A window whose handlers throw.
class ThrowingWnd : public CWnd {
public:
    UINT throwOn = 0;
    int paints = 0;
    bool outOfMemory = false;

protected:
    void Throw(UINT message) {
        if (throwOn != message)
            return;
        if (outOfMemory)
            throw std::bad_alloc();
        throw new CountedException;
    }
    int OnCreate(LPCREATESTRUCT lpcs) {
        Throw(WM_CREATE);
        return CWnd::OnCreate(lpcs);
    }
    void OnPaint() {
        ++paints;
        Throw(WM_PAINT);
        CPaintDC dc(this);
    }
    LRESULT OnThrow(WPARAM, LPARAM) {
        Throw(throwMessage);
        return 9;
    }
    void OnThrowCommand() { AfxThrowUserException(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ThrowingWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(throwMessage, &ThrowingWnd::OnThrow)
    ON_COMMAND(throwCommand, &ThrowingWnd::OnThrowCommand)
END_MESSAGE_MAP()

class WindowExceptionTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(g_livingExceptions, 0); }

    windowkit::ScopedApp app;
    ThrowingWnd window;
};

} // namespace

TEST_F(WindowExceptionTest, AWindowWhoseCreationThrowsIsNotCreated) {
    window.throwOn = WM_CREATE;
    EXPECT_FALSE(CreateTop(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_TRUE(app.boxes.empty());
    window.throwOn = 0;
    EXPECT_TRUE(CreateTop(window));
}

TEST_F(WindowExceptionTest, AFailedPaintIsNotAskedForAgain) {
    ASSERT_TRUE(CreateTop(window));
    window.ShowWindow(SW_SHOWNA);
    window.UpdateWindow();
    window.throwOn = WM_PAINT;
    window.paints = 0;
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(window.paints, 1);
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    window.UpdateWindow();
    EXPECT_EQ(window.paints, 1);
    EXPECT_TRUE(app.boxes.empty());
}

TEST_F(WindowExceptionTest, OtherMessagesAnswerZeroAndTellTheUser) {
    ASSERT_TRUE(CreateTop(window));
    window.throwOn = throwMessage;
    EXPECT_EQ(window.SendMessage(throwMessage), 0);
    EXPECT_EQ(app.boxes, std::vector<std::string>{"counted"});
    window.SendMessage(WM_COMMAND, throwCommand);
    EXPECT_EQ(app.boxes.size(), 1u) << "a user exception has been told already";
    window.outOfMemory = true; // bad_alloc is caught too
    EXPECT_EQ(window.SendMessage(throwMessage), 0);
    EXPECT_EQ(app.boxes.size(), 2u);
}
