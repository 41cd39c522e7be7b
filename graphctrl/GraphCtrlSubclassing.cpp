// The control in a window of another class: a dialog item of any kind becomes the control alone.
#include <kavlix/GraphCtrl.h>

namespace {

/// Whether the window's class has itself repainted as a whole when its size changes.
bool RepaintsOnSize(HWND window) {
    constexpr ULONG_PTR kBoth = CS_HREDRAW | CS_VREDRAW;
    return (::GetClassLongPtr(window, GCL_STYLE) & kBoth) == kBoth;
}

} // namespace

void CGraphCtrl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    // The parts of a combo box would lie over the picture and take the mouse. Other children are the host's.
    COMBOBOXINFO combo = {};
    combo.cbSize = sizeof combo;
    if (::GetWindow(m_hWnd, GW_CHILD) == nullptr || !::GetComboBoxInfo(m_hWnd, &combo))
        return;
    for (HWND part : {combo.hwndItem, combo.hwndList})
        if (part != m_hWnd && ::IsChild(m_hWnd, part))
            ::ShowWindow(part, SW_HIDE);
}

LRESULT CGraphCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = m_hWnd;
    switch (message) {
    case WM_NCDESTROY:
        EndPress(); // the object may get another window
        [[fallthrough]];
    case WM_NCCREATE:
    case WM_CREATE:
    case WM_DESTROY:
        // The class's own procedure keeps memory and windows from here to there.
        return CWnd::DefWindowProc(message, wParam, lParam);
    case WM_ERASEBKGND:
        // A paint leaves the last row and column of pixels to the class's background.
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
