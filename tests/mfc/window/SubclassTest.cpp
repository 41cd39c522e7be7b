// SPDX-License-Identifier: MIT
// Subclassed windows: the former procedure, its restoration, and subclassing by others on top.

#include <gtest/gtest.h>

#include <tuple>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateTop;
using Received = std::tuple<UINT, WPARAM, LPARAM>; // a message

namespace {

constexpr UINT plainMessage = WM_USER + 10;

std::vector<Received> g_original; // what the window's own procedure got

LRESULT CALLBACK OriginalProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == plainMessage || message == WM_SIZE || message == WM_NCDESTROY) {
        g_original.push_back({message, wParam, lParam});
        if (message == plainMessage)
            return 11;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}

WNDPROC g_belowOuter = nullptr;

LRESULT CALLBACK OuterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProc(g_belowOuter, window, message, wParam, lParam);
}

class SubclassedWnd : public CWnd {
public:
    Received seen;
    WNDPROC Former() { return *GetSuperWndProcAddr(); }

protected:
    LRESULT OnPlain(WPARAM, LPARAM) {
        const MSG* const current = GetCurrentMessage();
        seen = {current->message, current->wParam, current->lParam};
        return Default() + 100;
    }
    void OnSize(UINT type, int, int) {
        CWnd::OnSize(type + 1, -5, -6); // CWnd ignores these arguments
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SubclassedWnd, CWnd)
    ON_MESSAGE(plainMessage, &SubclassedWnd::OnPlain)
    ON_WM_SIZE()
END_MESSAGE_MAP()

class SubclassTest : public testing::Test {
protected:
    void SetUp() override {
        WNDCLASS windowClass{};
        windowClass.lpfnWndProc = OriginalProc;
        windowClass.hInstance = AfxGetInstanceHandle();
        windowClass.lpszClassName = _T("SubclassTestWindow");
        ASSERT_TRUE(AfxRegisterClass(&windowClass));
        ASSERT_TRUE(parent.m_hWnd != nullptr || CreateTop(parent));
        target = windowkit::CreateForeign(_T("SubclassTestWindow"), &parent, 9);
        ASSERT_NE(target, nullptr);
        g_original.clear();
    }
    WNDPROC Procedure() const { return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(target, GWLP_WNDPROC)); }

    CWnd parent;
    HWND target = nullptr;
};

} // namespace

TEST_F(SubclassTest, HandlersComeFirstAndDefaultGoesToTheFormerProcedureWithTheOriginalParameters) {
    SubclassedWnd window;
    ASSERT_TRUE(window.SubclassDlgItem(9, &parent));
    EXPECT_EQ(window.m_hWnd, target);
    EXPECT_EQ(Procedure(), &AfxWndProc);
    EXPECT_EQ(window.Former(), &OriginalProc);

    EXPECT_EQ(::SendMessage(target, plainMessage, 3, 4), 111);
    const Received plain{plainMessage, 3, 4};
    EXPECT_EQ(window.seen, plain);
    ::SendMessage(target, WM_SIZE, SIZE_RESTORED, MAKELPARAM(70, 80));
    EXPECT_EQ(g_original, (std::vector<Received>{plain, {WM_SIZE, SIZE_RESTORED, MAKELPARAM(70, 80)}}));
}

TEST_F(SubclassTest, UnsubclassingPutsEverythingBack) {
    SubclassedWnd window;
    ASSERT_TRUE(window.SubclassWindow(target));
    EXPECT_EQ(window.UnsubclassWindow(), target);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.Former(), nullptr);
    EXPECT_EQ(Procedure(), &OriginalProc);
    EXPECT_EQ(CWnd::FromHandlePermanent(target), nullptr);
    EXPECT_EQ(::SendMessage(target, plainMessage, 0, 0), 11);
}

TEST_F(SubclassTest, OneWindowHasOneObject) {
    SubclassedWnd first;
    SubclassedWnd second;
    ASSERT_TRUE(first.SubclassWindow(target));
    EXPECT_FALSE(second.SubclassWindow(target));
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(target), &first);
    EXPECT_FALSE(first.SubclassWindow(parent.m_hWnd)) << "nor can an object have two";
    EXPECT_EQ(first.m_hWnd, target);
    EXPECT_FALSE(second.SubclassDlgItem(12345, &parent));
}

TEST_F(SubclassTest, TheFormerProcedureSeesTheWindowGo) {
    SubclassedWnd window;
    ASSERT_TRUE(window.SubclassWindow(target));
    ::DestroyWindow(target);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(g_original, (std::vector<Received>{{WM_NCDESTROY, 0, 0}}));
    EXPECT_EQ(window.Former(), nullptr) << "the object is as new";
}

TEST_F(SubclassTest, ASubclasserOnTopKeepsItsPlaceUntilTheEnd) {
    SubclassedWnd window;
    ASSERT_TRUE(window.SubclassWindow(target));
    g_belowOuter = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(target, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&OuterProc)));
    EXPECT_EQ(g_belowOuter, &AfxWndProc);
    EXPECT_EQ(::SendMessage(target, plainMessage, 0, 0), 111);
    ::DestroyWindow(target);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(g_original.back(), Received(WM_NCDESTROY, 0, 0));
}
