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

} // namespace

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_SETFOCUS()
ON_WM_GETMINMAXINFO()
ON_WM_ERASEBKGND()
ON_WM_TIMER()
ON_WM_DESTROY()
ON_NOTIFY(GCN_SELCHANGE, IDC_GRAPH, &CMainFrame::OnSelectionChanged)
ON_NOTIFY(GCN_MOUSEMOVE, IDC_GRAPH, &CMainFrame::OnPointerMoved)
ON_NOTIFY(MGN_MOUSELEAVE, IDC_GRAPH, &CMainFrame::OnPointerLeft)
ON_NOTIFY(GCN_DBLCLK_LEGEND, IDC_GRAPH, &CMainFrame::OnLegendDoubleClick)
ON_NOTIFY(GCN_DBLCLK_CAPTION, IDC_GRAPH, &CMainFrame::OnCaptionDoubleClick)
ON_NOTIFY(GCN_MAXIMIZE, IDC_GRAPH, &CMainFrame::OnMaximize)
ON_NOTIFY(GCN_REMOVEDATA, IDC_GRAPH, &CMainFrame::OnDataRemoved)
ON_NOTIFY(MGN_COPIED, IDC_GRAPH, &CMainFrame::OnCopied)
ON_NOTIFY(MGN_NOTCOPIED, IDC_GRAPH, &CMainFrame::OnNotCopied)
ON_COMMAND(ID_FILE_OPEN, &CMainFrame::OnFileOpen)
ON_COMMAND(ID_FILE_LIVE, &CMainFrame::OnFileLive)
ON_UPDATE_COMMAND_UI(ID_FILE_LIVE, &CMainFrame::OnUpdateFileLive)
ON_COMMAND(ID_FILE_SAVE_PICTURE, &CMainFrame::OnFileSavePicture)
ON_COMMAND(ID_EDIT_COPY, &CMainFrame::OnEditCopy)
ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CMainFrame::OnUpdateEditCopy)
ON_COMMAND_RANGE(ID_GRAPH_CLEAR_SELECTION_MARK, ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CMainFrame::OnEditGraph)
ON_UPDATE_COMMAND_UI(ID_GRAPH_CLEAR_SELECTION_MARK, &CMainFrame::OnUpdateClearMark)
ON_UPDATE_COMMAND_UI(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CMainFrame::OnUpdateRemoveData)
ON_COMMAND(ID_VIEW_FILL, &CMainFrame::OnViewFill)
ON_UPDATE_COMMAND_UI(ID_VIEW_FILL, &CMainFrame::OnUpdateViewFill)
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
    if (!m_status.CreateBar(*this, IDC_STATUS))
        return failed;
    return m_graph.CreateChild(*this, IDC_GRAPH) ? 0 : failed;
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
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        if (m_loader) {
            CancelReading();
            return TRUE;
        }
        // Escape first clears the mark. A key that is held for that does not go on to leave the filled
        // window.
        const bool held = (HIWORD(pMsg->lParam) & KF_REPEAT) != 0;
        if (m_filling && !held && m_filling->SelectionMark().index < 0) {
            Fill(nullptr);
            return TRUE;
        }
    }
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void CMainFrame::LayOut() {
    if (!m_graph.GetSafeHwnd() || !m_status.GetSafeHwnd())
        return;
    CRect client;
    GetClientRect(&client);
    if (m_filling) {
        m_filling->MoveWindow(client);
        return;
    }
    m_status.SendMessage(WM_SIZE);
    ShowStatus();
    CRect status;
    m_status.GetWindowRect(&status);
    m_graph.MoveWindow(0, 0, client.Width(), std::max(client.Height() - status.Height(), 0));
}

void CMainFrame::Fill(CMonitorGraph* graph) {
    if (graph == m_filling)
        return;
    if (m_filling)
        m_filling->ShowFilling(false);
    if (graph)
        graph->ShowFilling(true);
    m_filling = graph;
    m_pointer.reset();
    m_status.ShowWindow(graph ? SW_HIDE : SW_SHOWNA);
    // A change of the menu bar changes the inside's size, and with it the layout.
    if (graph && !m_menuWhileFilled) {
        m_menuWhileFilled = ::GetMenu(m_hWnd);
        ::SetMenu(m_hWnd, nullptr);
    } else if (!graph) {
        ::SetMenu(m_hWnd, std::exchange(m_menuWhileFilled, nullptr));
    }
    LayOut();
    m_graph.Redraw();
    RefreshStatus();
}

void CMainFrame::OnUpdateSettings(CCmdUI* pCmdUI) {
    pCmdUI->Enable(!m_loader && !m_graph.Settings().series.empty());
}

} // namespace kavlix::monitor
