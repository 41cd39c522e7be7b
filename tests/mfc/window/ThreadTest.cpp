// SPDX-License-Identifier: MIT
// Message loops: idle work, modal loops, and threads with windows of their own.

#include <afxpriv.h>

#include <gtest/gtest.h>

#include <atomic>

#include "tests/mfc/window/WindowKit.h"

using windowkit::CreateTop, windowkit::Log;

namespace {

constexpr UINT workMessage = WM_APP + 1;
constexpr UINT endMessage = WM_APP + 2;

class LoopApp : public windowkit::ScopedApp {
public:
    std::vector<LONG> idle;
    std::vector<WPARAM> threadMessages;
    std::vector<UINT> postWhenIdle; ///< posted one at a time, each when idle work is done

    BOOL OnIdle(LONG count) override {
        idle.push_back(count);
        const BOOL more = ScopedApp::OnIdle(count);
        if (!more && !postWhenIdle.empty()) {
            PostThreadMessage(postWhenIdle.front(), 23, 0);
            postWhenIdle.erase(postWhenIdle.begin());
        }
        return more;
    }

protected:
    void OnWork(WPARAM wParam, LPARAM) { threadMessages.push_back(wParam); }
    void OnEnd(WPARAM wParam, LPARAM) { AfxPostQuitMessage(static_cast<int>(wParam)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LoopApp, CWinApp)
    ON_THREAD_MESSAGE(workMessage, &LoopApp::OnWork)
    ON_THREAD_MESSAGE(endMessage, &LoopApp::OnEnd)
END_MESSAGE_MAP()

/// Logs idle messages, and can end its modal loop.
class LoopWnd : public CWnd {
public:
    int endsWhenIdleWith = 0; ///< not 0: ends the modal loop at the second idle moment in a row
    Log log;

protected:
    LRESULT OnIdleUpdate(WPARAM, LPARAM) {
        log.push_back("update");
        return 0;
    }
    LRESULT OnKickIdle(WPARAM, LPARAM count) {
        log.push_back(windowkit::Note("kick", count));
        if (count >= 1 && endsWhenIdleWith != 0)
            EndModalLoop(endsWhenIdleWith);
        return count < 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LoopWnd, CWnd)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &LoopWnd::OnIdleUpdate)
    ON_MESSAGE(WM_KICKIDLE, &LoopWnd::OnKickIdle)
END_MESSAGE_MAP()

class ThreadTest : public testing::Test {
protected:
    void SetUp() override { windowkit::TakeQuit(); }
    LoopApp app;
};

} // namespace

TEST_F(ThreadTest, TheLoopRunsUntilQuitAndAnswersItsStatus) {
    LoopWnd main;
    ASSERT_TRUE(CreateTop(main));
    app.m_pMainWnd = &main;
    // Each message is posted in the idle time after the message before.
    app.postWhenIdle = {workMessage, workMessage, endMessage};
    EXPECT_EQ(app.Run(), 23);
    EXPECT_EQ(app.threadMessages, (std::vector<WPARAM>{23, 23}));
    app.m_pMainWnd = nullptr;
}

TEST_F(ThreadTest, IdleTimeComesInCountsAndUpdatesVisibleWindows) {
    LoopWnd main;
    ASSERT_TRUE(CreateTop(main));
    app.m_pMainWnd = &main;
    windowkit::RunIdle();
    EXPECT_EQ(app.idle, (std::vector<LONG>{0, 1}));
    EXPECT_TRUE(main.log.empty()) << "hidden";
    main.ShowWindow(SW_SHOWNA);
    app.OnIdle(0);
    app.OnIdle(1);
    EXPECT_EQ(main.log, Log{"update"});
    app.m_pMainWnd = nullptr;
}

TEST_F(ThreadTest, AModalLoopEndsWithTheResultItIsGiven) {
    LoopWnd modal;
    ASSERT_TRUE(CreateTop(modal));
    modal.endsWhenIdleWith = 77;
    EXPECT_EQ(modal.RunModalLoop(MLF_SHOWONIDLE), 77);
    EXPECT_TRUE(modal.IsWindowVisible());
    EXPECT_FALSE(modal.log.empty());
}

TEST_F(ThreadTest, AModalLoopDoesNotOutliveItsWindowOrTheProgram) {
    LoopWnd modal;
    ASSERT_TRUE(CreateTop(modal));
    modal.PostMessage(WM_CLOSE); // whose default is to destroy the window
    EXPECT_EQ(modal.RunModalLoop(MLF_NOIDLEMSG | MLF_NOKICKIDLE), -1);
    EXPECT_EQ(modal.m_hWnd, nullptr);
    EXPECT_TRUE(modal.log.empty());

    ASSERT_TRUE(CreateTop(modal));
    AfxPostQuitMessage(9);
    EXPECT_EQ(modal.RunModalLoop(), -1);
    EXPECT_TRUE(windowkit::TakeQuit()) << "the loop around must end too";
}

namespace {

/// A thread with a window and a message loop of its own.
class UiThread : public CWinThread {
    DECLARE_DYNCREATE(UiThread)

public:
    static std::atomic<int> s_steps;

    BOOL InitInstance() override {
        s_steps += AfxGetThread() == this ? 1 : 1000;
        return windowkit::CreateTop(m_window);
    }
    int ExitInstance() override {
        s_steps += 10;
        m_window.DestroyWindow();
        return 5;
    }

protected:
    void OnWork(WPARAM wParam, LPARAM) {
        if (wParam == 0)
            AfxThrowUserException();
        s_steps += static_cast<int>(wParam);
    }
    void OnEnd(WPARAM, LPARAM) { AfxPostQuitMessage(0); }
    DECLARE_MESSAGE_MAP()

private:
    CWnd m_window;
};

std::atomic<int> UiThread::s_steps{0};
IMPLEMENT_DYNCREATE(UiThread, CWinThread)

BEGIN_MESSAGE_MAP(UiThread, CWinThread)
    ON_THREAD_MESSAGE(workMessage, &UiThread::OnWork)
    ON_THREAD_MESSAGE(endMessage, &UiThread::OnEnd)
END_MESSAGE_MAP()

} // namespace

TEST_F(ThreadTest, AThreadOfItsOwnRunsFromInitToExit) {
    CWinThread* const thread =
        AfxBeginThread(RUNTIME_CLASS(UiThread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    const DWORD start = ::GetTickCount();
    while (!thread->PostThreadMessage(workMessage, 100, 0) && ::GetTickCount() - start < 10000)
        ::Sleep(1);                               // the thread has no queue yet
    thread->PostThreadMessage(workMessage, 0, 0); // the exception does not end the thread
    thread->PostThreadMessage(endMessage, 0, 0);
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, 10000), WAIT_OBJECT_0);
    DWORD status = 0;
    ::GetExitCodeThread(thread->m_hThread, &status);
    EXPECT_EQ(status, 5u);
    EXPECT_EQ(UiThread::s_steps, 111);
    delete thread;
    EXPECT_EQ(AfxGetThread(), &app);
}
