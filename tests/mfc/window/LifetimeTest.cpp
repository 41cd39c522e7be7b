// SPDX-License-Identifier: MIT
// How a window and its object begin and end together, in each order and after each failure.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateChild, windowkit::CreateForeign, windowkit::CreateTop, windowkit::Log,
    windowkit::MapCounts, windowkit::Taken;

namespace {

/// Logs every step of its life, and whether object and window are attached at that time.
class LoggedWnd : public CWnd {
public:
    explicit LoggedWnd(Log& log, bool deletesItself = false) : m_log(log), m_deletesItself(deletesItself) {}
    ~LoggedWnd() override { m_log.push_back("deleted"); }

    BOOL ncCreateAnswer = TRUE;
    int createAnswer = 0;
    CWnd* childOnCreate = nullptr;

    void PreSubclassWindow() override { Note("subclass"); }

protected:
    BOOL OnNcCreate(LPCREATESTRUCT lpcs) {
        Note("nccreate");
        return ncCreateAnswer && CWnd::OnNcCreate(lpcs);
    }
    int OnCreate(LPCREATESTRUCT lpcs) {
        Note("create");
        CWnd::OnCreate(lpcs);
        if (childOnCreate != nullptr && !CreateChild(*childOnCreate, *this, 7))
            ADD_FAILURE() << "no child";
        return createAnswer;
    }
    void OnDestroy() {
        Note("destroy");
        CWnd::OnDestroy();
    }
    void OnNcDestroy() {
        Note("ncdestroy");
        CWnd::OnNcDestroy();
    }
    void PostNcDestroy() override {
        m_log.push_back(m_hWnd == nullptr ? "post" : "post with a window");
        if (m_deletesItself)
            delete this;
    }
    LRESULT OnDie(WPARAM, LPARAM) {
        DestroyWindow();
        return 42;
    }
    LRESULT OnDelete(WPARAM, LPARAM) {
        delete this;
        return 43;
    }
    DECLARE_MESSAGE_MAP()

private:
    void Note(const char* step) {
        const bool tied =
            m_hWnd != nullptr && ::IsWindow(m_hWnd) && CWnd::FromHandlePermanent(m_hWnd) == this;
        m_log.push_back(tied ? step : std::string(step) + " untied");
    }

    Log& m_log;
    bool m_deletesItself;
};

constexpr UINT dieMessage = WM_USER + 1;
constexpr UINT deleteMessage = WM_USER + 3;

BEGIN_MESSAGE_MAP(LoggedWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_MESSAGE(dieMessage, &LoggedWnd::OnDie)
    ON_MESSAGE(deleteMessage, &LoggedWnd::OnDelete)
END_MESSAGE_MAP()

const Log wholeLife = {"subclass", "nccreate", "create", "destroy", "ncdestroy", "post"};

class LifetimeTest : public testing::Test {
protected:
    LifetimeTest() : m_before(MapCounts::Now()) {}
    void TearDown() override { EXPECT_EQ(MapCounts::Now().permanent, m_before.permanent); }

    Log log;

private:
    MapCounts m_before;
};

} // namespace

TEST_F(LifetimeTest, EveryStepReachesTheObjectWithItsWindowTied) {
    LoggedWnd window(log);
    ASSERT_TRUE(CreateTop(window));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(Taken(log), wholeLife);
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_FALSE(::IsWindow(handle));
    ASSERT_TRUE(CreateTop(window)) << "an object can have one window after another";
    window.DestroyWindow();
    EXPECT_EQ(log, wholeLife);
}

TEST_F(LifetimeTest, TheParentTakesItsChildrenAlong) {
    Log parentLog;
    LoggedWnd parent(parentLog);
    LoggedWnd child(log);
    parent.childOnCreate = &child; // a window made while another one is being made
    ASSERT_TRUE(CreateTop(parent));
    ASSERT_NE(child.m_hWnd, nullptr);
    EXPECT_EQ(child.GetParent(), &parent);
    parent.DestroyWindow();
    EXPECT_EQ(log, wholeLife);
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST_F(LifetimeTest, AHandlerMayDestroyItsOwnWindow) {
    LoggedWnd window(log);
    ASSERT_TRUE(CreateTop(window));
    EXPECT_EQ(window.SendMessage(dieMessage), 42);
    EXPECT_EQ(log, wholeLife);
}

TEST_F(LifetimeTest, AnObjectOnTheHeapMayGoWithItsWindow) {
    Log whole = wholeLife;
    whole.push_back("deleted");
    void (*const ways[])(HWND) = {
        [](HWND window) { ::DestroyWindow(window); },
        [](HWND window) { EXPECT_EQ(::SendMessage(window, dieMessage, 0, 0), 42); },
        [](HWND window) { ::SendMessage(window, WM_CLOSE, 0, 0); }, // through the default window procedure
    };
    for (const auto& way : ways) {
        auto* const window = new LoggedWnd(log, true);
        ASSERT_TRUE(CreateTop(*window));
        way(window->m_hWnd);
        EXPECT_EQ(Taken(log), whole) << "way " << &way - ways;
    }
}

TEST_F(LifetimeTest, TheDestructorDestroysTheWindowWithoutTheDerivedHandlers) {
    const Log created = {"subclass", "nccreate", "create", "deleted"};
    HWND handle = nullptr;
    {
        LoggedWnd window(log);
        ASSERT_TRUE(CreateTop(window));
        handle = window.m_hWnd;
    }
    EXPECT_EQ(Taken(log), created);
    EXPECT_FALSE(::IsWindow(handle));

    auto* const window = new LoggedWnd(log);
    ASSERT_TRUE(CreateTop(*window));
    handle = window->m_hWnd;
    EXPECT_EQ(::SendMessage(handle, deleteMessage, 0, 0), 43) << "deleted inside its own handler";
    EXPECT_EQ(log, created);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST_F(LifetimeTest, AFailedCreationCleansUpOnceAndLeavesNothing) {
    const auto failsWith = [&](auto prepare, LPCTSTR className) {
        log.clear();
        LoggedWnd window(log);
        prepare(window);
        EXPECT_FALSE(
            window.CreateEx(0, className, _T(""), WS_OVERLAPPEDWINDOW, 0, 0, 10, 10, nullptr, nullptr));
        EXPECT_EQ(window.m_hWnd, nullptr);
        // Systems differ in whether such a window gets a WM_DESTROY before the last message.
        log.erase(std::remove(log.begin(), log.end(), "destroy"), log.end());
        return log;
    };
    const CString plain = AfxRegisterWndClass(0);
    EXPECT_EQ(failsWith([](LoggedWnd&) {}, _T("no such class at all")), Log{"post"});
    EXPECT_EQ(failsWith([](LoggedWnd& window) { window.createAnswer = -1; }, plain),
              (Log{"subclass", "nccreate", "create", "ncdestroy", "post"}));
    EXPECT_EQ(failsWith([](LoggedWnd& window) { window.ncCreateAnswer = FALSE; }, plain),
              (Log{"subclass", "nccreate", "ncdestroy", "post"}));
}

TEST_F(LifetimeTest, AttachedWindowsBelongToTheObjectUntilDetached) {
    const HWND given = CreateForeign(_T("STATIC"));
    {
        CWnd window;
        ASSERT_TRUE(window.Attach(given));
        EXPECT_EQ(CWnd::FromHandle(given), &window);
        EXPECT_EQ(window.Detach(), given);
        EXPECT_EQ(window.m_hWnd, nullptr);
    }
    EXPECT_TRUE(::IsWindow(given));
    ::DestroyWindow(given);
}

TEST_F(LifetimeTest, AFrameDeletesItselfAlsoWhenItsCreationFails) {
    class Frame : public CFrameWnd {
    public:
        Frame(Log& log, bool fails) : m_log(log), m_fails(fails) {}
        ~Frame() override { m_log.push_back("deleted"); }
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return !m_fails; }

    private:
        Log& m_log;
        bool m_fails;
    };
    auto* const frame = new Frame(log, false);
    ASSERT_TRUE(frame->Create(nullptr, _T("frame")));
    EXPECT_TRUE(log.empty());
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(Taken(log), Log{"deleted"});
    EXPECT_FALSE((new Frame(log, true))->Create(nullptr, _T("frame")));
    EXPECT_EQ(log, Log{"deleted"});
}
