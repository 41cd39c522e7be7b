// SPDX-License-Identifier: MIT
// CGraphCtrl: the message map, construction and the window class.
#include <kavlix/GraphCtrl.h>

#include "gdi/Offscreen.h"

namespace {

constexpr TCHAR kWindowClass[] = _T("MFCGraphCtrl");

// The last two datasets have the same colour, which hosts rely on.
constexpr COLORREF kDatasetColors[CGraphCtrl::DatasetCount] = {
    RGB(240, 0, 177),  RGB(125, 125, 169), RGB(153, 204, 0), RGB(255, 102, 0), RGB(204, 204, 255),
    RGB(203, 59, 59),  RGB(132, 130, 130), RGB(0, 135, 162), RGB(54, 0, 162),  RGB(50, 50, 50),
    RGB(65, 133, 245), RGB(162, 0, 108),   RGB(162, 0, 108)};

} // namespace

struct kavlix::GraphCtrlState {};

BEGIN_MESSAGE_MAP(CGraphCtrl, CWnd)
    ON_WM_NCCREATE()
    ON_MESSAGE(WM_STYLECHANGING, &CGraphCtrl::OnStyleChanging)

    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CGraphCtrl::OnPrintClient)

    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_CAPTURECHANGED()

    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_CONTEXTMENU()

    ON_COMMAND(ID_EDIT_COPY, &CGraphCtrl::OnEditCopy)
    ON_COMMAND(ID_GRAPH_CLEAR_SELECTION_MARK, &CGraphCtrl::OnHideSelectionMark)
    ON_COMMAND(ID_GRAPH_REMOVE_DATA_BEFORE_MARK, &CGraphCtrl::OnRemoveDataBeforeSelectionMark)
END_MESSAGE_MAP()

CGraphCtrl::CGraphCtrl() {
    RegisterWindowClass();
    for (int i = 0; i < DatasetCount; ++i)
        m_Datasets[i].m_Color = kDatasetColors[i];
    MakeFonts();
}

CGraphCtrl::~CGraphCtrl() = default;

BOOL CGraphCtrl::RegisterWindowClass() {
    // The window class belongs to the host's instance: an extension module shares its host's module state.
    const HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASS windowClass = {};
    if (::GetClassInfo(instance, kWindowClass, &windowClass))
        return TRUE;

    windowClass = {};
    windowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = kWindowClass;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    return TRUE;
}
