// SPDX-License-Identifier: MIT
// The main window's life, layout and pages. Commands, sources and status bar have files of their own.

#include "monitor/MainFrame.h"

#include <algorithm>
#include <utility>

#include "monitor/Pages.h"
#include "monitor/WindowPicture.h"
#include "monitor/resource.h"

namespace kavlix::monitor {
namespace {

// Size of the client area and the menu bar, in pixels.
constexpr int kDefaultWidth = 1000;
constexpr int kDefaultHeight = 640;

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()

    ON_WM_ERASEBKGND()

    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()

    ON_WM_SETFOCUS()

    ON_WM_TIMER()

    ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
    ON_COMMAND(ID_FILE_LIVE, &CMainFrame::OnFileLive)
    ON_UPDATE_COMMAND_UI(ID_FILE_LIVE, &CMainFrame::OnUpdateFileLive)
    ON_COMMAND(ID_FILE_SAVE_PICTURE, &CMainFrame::OnFileSavePicture)

    ON_COMMAND(ID_VIEW_FILL, &CMainFrame::OnViewFill)
    ON_UPDATE_COMMAND_UI(ID_VIEW_FILL, &CMainFrame::OnUpdateViewFill)
    ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &CMainFrame::OnViewPage)
    ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &CMainFrame::OnUpdateViewPage)
    ON_COMMAND(ID_VIEW_MESSAGES, &CMainFrame::OnViewMessages)
    ON_UPDATE_COMMAND_UI(ID_VIEW_MESSAGES, &CMainFrame::OnUpdateViewMessages)

    ON_COMMAND(ID_SETTINGS, &CMainFrame::OnSettings)
    ON_UPDATE_COMMAND_UI(ID_SETTINGS, &CMainFrame::OnUpdateSettings)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(recording::Options options, int& exitStatus)
    : m_options(std::move(options)), m_exitStatus(exitStatus), m_pages(PageMakers().size()) {
}

bool CMainFrame::CreateMainWindow() {
    if (!LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW))
        return false;
    CSize size(kDefaultWidth, kDefaultHeight);
    if (m_options.size)
        size = CSize(m_options.size->width, m_options.size->height);
    SizePictureArea(*this, size);
    return true;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    // Page and status bar cover the client area: painting below them would flicker.
    cs.style |= WS_CLIPCHILDREN;
    return CFrameWnd::PreCreateWindow(cs);
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CFrameWnd::OnCreate(lpCreateStruct) == failed)
        return failed;
    if (!m_status.CreateBar(*this, IDC_STATUS))
        return failed;
    return ShowPage(DefaultPage()) ? 0 : failed;
}

void CMainFrame::OnDestroy() {
    if (m_menuWhileFilled)
        ::DestroyMenu(m_menuWhileFilled);
    CFrameWnd::OnDestroy();
}

void CMainFrame::OnSize(UINT nType, int cx, int cy) {
    CFrameWnd::OnSize(nType, cx, cy);
    LayOut();
}

void CMainFrame::OnSetFocus(CWnd*) {
    if (m_page)
        m_page->SetFocus();
}

void CMainFrame::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFrameWnd::OnGetMinMaxInfo(lpMMI);
    // A picture may be larger than the screen, so the window may be too.
    constexpr LONG borders = 200; // more than any frame takes, in pixels
    lpMMI->ptMaxTrackSize.x = std::max<LONG>(lpMMI->ptMaxTrackSize.x, recording::kMaxWindowSide + borders);
    lpMMI->ptMaxTrackSize.y = std::max<LONG>(lpMMI->ptMaxTrackSize.y, recording::kMaxWindowSide + borders);
}

BOOL CMainFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        if (m_loader) {
            CancelReading();
            return TRUE;
        }
        // Escape first removes the mark. While the key stays down, its repetitions must not end the
        // filled state.
        const bool held = (HIWORD(pMsg->lParam) & KF_REPEAT) != 0;
        if (m_filled && !held && !m_page->HasMark()) {
            Fill(false);
            return TRUE;
        }
    }
    return CFrameWnd::PreTranslateMessage(pMsg);
}

BOOL CMainFrame::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (m_page && m_page->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

/// Index of the page that shows new content until the person chooses a page.
std::size_t CMainFrame::DefaultPage() const {
    return m_options.page.value_or(m_content.live ? recording::kScrollPage : recording::kGraphPage);
}

/// Makes a page the current one and updates it. Returns false, and changes nothing, when the page's window
/// cannot be created.
bool CMainFrame::ShowPage(std::size_t index) {
    std::unique_ptr<CMonitorPage>& page = m_pages[index];
    if (!page) {
        auto made = PageMakers()[index](*this);
        if (!made->CreatePage(*this, IDC_PAGE_FIRST + static_cast<UINT>(index)))
            return false;
        page = std::move(made);
    }
    CMonitorPage* const before = std::exchange(m_page, page.get());
    if (before == m_page) {
        m_page->Update();
        return true;
    }
    LayOut();
    m_page->Update();
    m_page->ShowFilling(m_filled);
    m_page->ShowWindow(SW_SHOWNA);
    if (before) {
        const bool focused = before->IsChild(GetFocus());
        before->ShowWindow(SW_HIDE);
        before->ShowFilling(false);
        if (focused)
            m_page->SetFocus();
    }
    m_status.ForgetPointerRoom();
    if (!m_page->CanFill())
        Fill(false);
    return true;
}

void CMainFrame::LayOut() {
    if (!m_page || !m_status.GetSafeHwnd())
        return;
    CRect client;
    GetClientRect(&client);
    if (m_filled) {
        m_page->MoveWindow(client);
        return;
    }
    m_status.SendMessage(WM_SIZE);
    ShowStatus();
    CRect status;
    m_status.GetWindowRect(&status);
    m_page->MoveWindow(0, 0, client.Width(), std::max(client.Height() - status.Height(), 0));
}

void CMainFrame::Fill(bool fill) {
    if (fill == m_filled || (fill && !m_page->CanFill()))
        return;
    m_filled = fill;
    m_page->ShowFilling(fill);
    m_status.ShowWindow(fill ? SW_HIDE : SW_SHOWNA);
    // SetMenu changes the size of the client area and so calls LayOut.
    if (fill) {
        m_menuWhileFilled = ::GetMenu(m_hWnd);
        ::SetMenu(m_hWnd, nullptr);
    } else {
        ::SetMenu(m_hWnd, std::exchange(m_menuWhileFilled, nullptr));
    }
    LayOut();
    RefreshStatus();
}

} // namespace kavlix::monitor
