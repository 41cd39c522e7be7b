// SPDX-License-Identifier: MIT
// CFrameWnd. What concerns its control bars and messages is in FrameBars.cpp.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afx/FrameWnd.h"
#include "afx/Menu.h"
#include "afxmsg_.h"
#include "afxpriv.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()

    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_SETFOCUS()

    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnSetMessageString)

    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

namespace {

constexpr UINT frameClassStyle = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
constexpr UINT firstSystemCommand = 0xF000;

/// The first module in the resource chain that has the resource; NULL if no module has it.
HINSTANCE ModuleWith(LPCTSTR name, LPCTSTR type) {
    const HINSTANCE module = AfxFindResourceHandle(name, type);
    return ::FindResource(module, name, type) != nullptr ? module : nullptr;
}

/// The menu that opens `popup`, searched in `menu` and its submenus; NULL if there is none.
HMENU FindParentMenu(HMENU menu, HMENU popup) {
    const int count = menu != nullptr ? ::GetMenuItemCount(menu) : 0;
    for (int i = 0; i < count; ++i) {
        const HMENU below = ::GetSubMenu(menu, i);
        if (below == nullptr)
            continue;
        if (below == popup)
            return menu;
        if (const HMENU found = FindParentMenu(below, popup))
            return found;
    }
    return nullptr;
}

/// The position of the item with the command `id` in `menu` itself; -1 if there is none.
int PositionOf(HMENU menu, UINT id) {
    int position = ::GetMenuItemCount(menu) - 1;
    while (position >= 0 && ::GetMenuItemID(menu, position) != id)
        --position;
    return position;
}

} // namespace

CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        WNDCLASS windowClass{};
        windowClass.style = frameClassStyle;
        windowClass.lpfnWndProc = ::DefWindowProc;
        windowClass.hInstance = AfxGetInstanceHandle();
        windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
        windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
        windowClass.hIcon = ::LoadIcon(ModuleWith(MAKEINTRESOURCE(AFX_IDI_STD_FRAME), RT_GROUP_ICON),
                                       MAKEINTRESOURCE(AFX_IDI_STD_FRAME));
        if (windowClass.hIcon == nullptr)
            windowClass.hIcon = ::LoadIcon(nullptr, IDI_APPLICATION);
        windowClass.lpszClassName = TEXT("AfxFrameOrView42");
        if (!AfxRegisterClass(&windowClass))
            return FALSE;
        cs.lpszClass = windowClass.lpszClassName;
    }
    return TRUE;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName != nullptr ? lpszWindowName : TEXT("");
    const bool leaveToSystem = rect.left == CW_USEDEFAULT;
    const int width = leaveToSystem ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = leaveToSystem ? CW_USEDEFAULT : rect.bottom - rect.top;
    const BOOL created = CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                                  width, height, SafeWindow(pParentWnd), menu, pContext);
    // A window destroys its menu. If no window was created, the menu must be destroyed here.
    if (!created && menu != nullptr && ::IsMenu(menu))
        ::DestroyMenu(menu);
    return created;
}

LPCTSTR CFrameWnd::GetIconWndClass(DWORD, UINT nIDResource) {
    const LPCTSTR name = MAKEINTRESOURCE(nIDResource);
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    if (icon == nullptr)
        return nullptr;
    return AfxRegisterWndClass(frameClassStyle, ::LoadCursor(nullptr, IDC_ARROW),
                               reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)), icon);
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    TCHAR text[512] = _T("");
    AfxLoadString(nIDResource, text, _countof(text));
    CString title;
    AfxExtractSubString(title, text, 0);

    const LPCTSTR name = MAKEINTRESOURCE(nIDResource);
    const LPCTSTR menu = ModuleWith(name, RT_MENU) != nullptr ? name : nullptr;
    // The accelerators come first: after a failed Create() this object no longer exists.
    LoadAccelTable(name);
    return Create(GetIconWndClass(dwDefaultStyle, nIDResource), title, dwDefaultStyle, rectDefault,
                  pParentWnd, menu, 0, pContext);
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    if (m_hAccelTable != nullptr)
        return FALSE;
    m_hAccelTable =
        ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

void CFrameWnd::PostNcDestroy() {
    delete this;
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    const bool isKey = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const HACCEL table = isKey ? GetDefaultAccelerator() : nullptr;
    return table != nullptr && ::TranslateAccelerator(m_hWnd, table, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    CWinApp* const app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext*) {
    return TRUE;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    std::vector<HWND>& frames = CurrentThreadState().frames;
    const auto isStale = [this](HWND frame) {
        return frame == m_hWnd || FromHandlePermanent(frame) == nullptr;
    };
    frames.erase(std::remove_if(frames.begin(), frames.end(), isStale), frames.end());
    frames.push_back(m_hWnd);
    if (!OnCreateClient(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams)))
        return -1;
    RecalcLayout();
    // Posted: a derived class creates its status bar after this call.
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    return 0;
}

void CFrameWnd::OnDestroy() {
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose() {
    DestroyWindow();
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    const HWND pane = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    if (pane != nullptr && ::IsWindowVisible(pane))
        ::SetFocus(pane);
    else
        CWnd::OnSetFocus(pOldWnd);
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* pDC) {
    // A pane covers the client area. Erasing the area first would flicker.
    const HWND pane = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
    if (pane != nullptr && ::IsWindowVisible(pane))
        return TRUE;
    return CWnd::OnEraseBkgnd(pDC);
}

void CFrameWnd::RecalcLayout(BOOL) {
    if (m_hWnd == nullptr || m_bLayingOut)
        return;
    m_bLayingOut = true;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
    m_bLayingOut = false;
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    if (nCmdShow != -1)
        ShowWindow(nCmdShow);
    BringWindowToTop();
}

void CFrameWnd::OnInitMenuPopup(CMenu* pMenu, UINT, BOOL bSysMenu) {
    if (bSysMenu)
        return;
    CCmdUI state;
    state.m_pMenu = pMenu;
    state.m_pParentMenu = CMenu::FromHandle(FindParentMenu(::GetMenu(m_hWnd), pMenu->m_hMenu));
    state.m_nIndexMax = static_cast<UINT>(::GetMenuItemCount(pMenu->m_hMenu));
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        const int index = static_cast<int>(state.m_nIndex);
        state.m_pSubMenu = CMenu::FromHandle(::GetSubMenu(pMenu->m_hMenu, index));
        if (state.m_pSubMenu == nullptr) {
            state.m_nID = ::GetMenuItemID(pMenu->m_hMenu, index);
            if (state.m_nID == 0)
                continue; // separator
            state.DoUpdate(this, m_bAutoMenuEnable && state.m_nID < firstSystemCommand);
        } else {
            // An item that opens a popup is updated by the handler of the popup's first command. The handler
            // may fill the popup, for example with a list of files.
            state.m_nID = ::GetMenuItemID(state.m_pSubMenu->m_hMenu, 0);
            if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1))
                continue;
            state.DoUpdate(this, FALSE);
        }
        // The handler may have added or removed items. After a removal, the loop goes on behind the item itself.
        // If the handler removed the item too, some items may be updated twice, but none is left out.
        const UINT count = static_cast<UINT>(::GetMenuItemCount(pMenu->m_hMenu));
        if (count < state.m_nIndexMax) {
            const int present = PositionOf(pMenu->m_hMenu, state.m_nID);
            const int removed = static_cast<int>(state.m_nIndexMax - count);
            const int next = present >= 0 ? present + 1 : std::max(index + 1 - removed, 0);
            state.m_nIndex = static_cast<UINT>(next - 1); // the loop adds 1
        }
        state.m_nIndexMax = count;
    }
}
