// SPDX-License-Identifier: MIT
// CGraphCtrl in a window of another class, for example a dialog item, or with a mirrored parent: keeps the behaviour of
// that class and the mirroring out.
#include <kavlix/GraphCtrl.h>

#include "gdi/Mirroring.h"

using namespace kavlix;

namespace {

/// Whether the class style of `window` makes Windows invalidate the whole window when its size changes.
bool RepaintsOnSize(HWND window) {
    constexpr ULONG_PTR kBoth = CS_HREDRAW | CS_VREDRAW;
    return (::GetClassLongPtr(window, GCL_STYLE) & kBoth) == kBoth;
}

} // namespace

void CGraphCtrl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    StopMirroring(*this);
    // Hide the child windows of a combo box, which would cover the picture and receive the mouse. Other child
    // windows belong to the host.
    COMBOBOXINFO combo = {};
    combo.cbSize = sizeof combo;
    if (::GetWindow(m_hWnd, GW_CHILD) == nullptr || !::GetComboBoxInfo(m_hWnd, &combo))
        return;
    for (HWND part : {combo.hwndItem, combo.hwndList})
        if (part != m_hWnd && ::IsChild(m_hWnd, part))
            ::ShowWindow(part, SW_HIDE);
}

BOOL CGraphCtrl::OnNcCreate(LPCREATESTRUCT) {
    StopMirroring(*this);
    return static_cast<BOOL>(Default());
}

LRESULT CGraphCtrl::OnStyleChanging(WPARAM wParam, LPARAM lParam) {
    RefuseMirroring(wParam, lParam);
    return Default();
}

LRESULT CGraphCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = m_hWnd;
    switch (message) {
    case WM_NCDESTROY:
        EndPress(); // this object may be attached to another window later
        [[fallthrough]];
    case WM_NCCREATE:
    case WM_CREATE:
    case WM_DESTROY:
        // The class's own procedure allocates memory and windows at creation and frees them at destruction.
        return CWnd::DefWindowProc(message, wParam, lParam);
    case WM_ERASEBKGND:
        // A paint leaves out the last row and column of pixels, which show the class's background. A class
        // without a background brush would leave them undefined.
        if (::GetClassLongPtr(window, GCLP_HBRBACKGROUND) == 0) {
            CRect client;
            ::GetClientRect(window, &client);
            ::FillRect(reinterpret_cast<HDC>(wParam), &client, ::GetSysColorBrush(COLOR_BTNFACE));
            return TRUE;
        }
        break;
    case WM_WINDOWPOSCHANGED:
        if ((reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_NOSIZE) == 0 && !RepaintsOnSize(window))
            ::InvalidateRect(window, nullptr, TRUE);
        break;
    default:
        break;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}
