#include "monitor/MainFrame.h"

#include "monitor/WindowPicture.h"
#include "monitor/resource.h"

#include <kavlix/Kavlix.h>

#include <algorithm>
#include <utility>

namespace kavlix::monitor {

namespace {

constexpr int kDefaultWidth = 1000; // of the window's inside, in pixels
constexpr int kDefaultHeight = 640;
constexpr int kStatusTextMargin = 24; // pixels round the text of a status bar pane
constexpr int kStatusTextShare = 2;   // the summary takes at most one part in so many of the status bar

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_TIMER()
ON_NOTIFY(GCN_SELCHANGE, IDC_GRAPH, &CMainFrame::OnSelectionChanged)
ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
ON_COMMAND(ID_FILE_LIVE, &CMainFrame::OnFileLive)
ON_UPDATE_COMMAND_UI(ID_FILE_LIVE, &CMainFrame::OnUpdateFileLive)
ON_COMMAND(ID_FILE_SAVE_PICTURE, &CMainFrame::OnFileSavePicture)
ON_COMMAND_RANGE(ID_VIEW_LINE, ID_VIEW_TWO_AXES, &CMainFrame::OnViewStyle)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LINE, ID_VIEW_TWO_AXES, &CMainFrame::OnUpdateViewStyle)
ON_COMMAND(ID_VIEW_LEGEND, &CMainFrame::OnViewLegend)
ON_UPDATE_COMMAND_UI(ID_VIEW_LEGEND, &CMainFrame::OnUpdateViewLegend)
ON_COMMAND_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CMainFrame::OnViewGrid)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_GRID_X, ID_VIEW_GRID_Y, &CMainFrame::OnUpdateViewGrid)
ON_COMMAND_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_FULL_RANGE, &CMainFrame::OnViewRange)
ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_ZOOM_IN, ID_VIEW_FULL_RANGE, &CMainFrame::OnUpdateViewRange)
ON_COMMAND(ID_VIEW_MESSAGES, &CMainFrame::OnViewMessages)
ON_UPDATE_COMMAND_UI(ID_VIEW_MESSAGES, &CMainFrame::OnUpdateViewMessages)
ON_COMMAND(ID_SETTINGS, &CMainFrame::OnSettings)
ON_UPDATE_COMMAND_UI(ID_SETTINGS, &CMainFrame::OnUpdateSettings)
END_MESSAGE_MAP()

CMainFrame::CMainFrame(recording::Options options, int& exitStatus)
    : m_options(std::move(options)), m_exitStatus(exitStatus) {
}

bool CMainFrame::CreateMainWindow() {
    if (!LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW))
        return false;
    SetWindowText("Kavlix Monitor");
    CSize size(kDefaultWidth, kDefaultHeight);
    if (m_options.size)
        size = CSize(m_options.size->width, m_options.size->height);
    SizePictureArea(*this, size);
    return true;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    // Graph and status bar cover the window: painting under them would only flicker.
    cs.style |= WS_CLIPCHILDREN;
    return CFrameWnd::PreCreateWindow(cs);
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    constexpr int failed = -1;
    if (CFrameWnd::OnCreate(lpCreateStruct) == failed)
        return failed;
    if (!m_status.Create(WS_CHILD | WS_VISIBLE | CCS_BOTTOM | SBARS_SIZEGRIP, CRect(0, 0, 0, 0), this,
                         IDC_STATUS))
        return failed;
    return m_graph.CreateChild(*this, IDC_GRAPH) ? 0 : failed;
}

void CMainFrame::OnSize(UINT nType, int cx, int cy) {
    CFrameWnd::OnSize(nType, cx, cy);
    LayOut();
}

void CMainFrame::OnSetFocus(CWnd*) {
    m_graph.SetFocus();
}

void CMainFrame::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CFrameWnd::OnGetMinMaxInfo(lpMMI);
    // A picture may be larger than the screen.
    constexpr LONG borders = 200;
    lpMMI->ptMaxTrackSize.x = std::max<LONG>(lpMMI->ptMaxTrackSize.x, recording::kMaxWindowSide + borders);
    lpMMI->ptMaxTrackSize.y = std::max<LONG>(lpMMI->ptMaxTrackSize.y, recording::kMaxWindowSide + borders);
}

BOOL CMainFrame::OnEraseBkgnd(CDC*) {
    return TRUE;
}

BOOL CMainFrame::PreTranslateMessage(MSG* pMsg) {
    if (m_loader && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        CancelReading();
        return TRUE;
    }
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void CMainFrame::LayOut() {
    if (!m_graph.GetSafeHwnd() || !m_status.GetSafeHwnd())
        return;
    m_status.SendMessage(WM_SIZE);
    SetStatus(m_statusText, m_statusSummary);
    CRect client;
    GetClientRect(&client);
    CRect status;
    m_status.GetWindowRect(&status);
    m_graph.MoveWindow(0, 0, client.Width(), std::max(client.Height() - status.Height(), 0));
}

void CMainFrame::SetStatus(const std::string& text, const std::string& summary) {
    m_statusText = text;
    m_statusSummary = summary;
    CRect client;
    m_status.GetClientRect(&client);
    CClientDC dc(&m_status);
    CFont* const old = dc.SelectObject(m_status.GetFont());
    const int wanted = static_cast<int>(dc.GetTextExtent(summary.c_str()).cx) + kStatusTextMargin;
    if (old)
        dc.SelectObject(old);
    const int room = std::max(client.Width(), 1) / kStatusTextShare;
    int edges[2] = {client.Width() - std::min(summary.empty() ? 0 : wanted, room), -1};
    m_status.SetParts(2, edges);
    m_status.SetText(text.c_str(), 0, 0);
    m_status.SetText(summary.c_str(), 1, 0);
    m_status.UpdateWindow();
}

void CMainFrame::OnSelectionChanged(NMHDR*, LRESULT* pResult) {
    ShowSelection();
    *pResult = 0;
}

void CMainFrame::OnUpdateSettings(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_loader && !m_graph.Settings().series.empty());
}

} // namespace kavlix::monitor
