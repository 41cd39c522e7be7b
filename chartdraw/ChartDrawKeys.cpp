// SPDX-License-Identifier: MIT
// CChartDraw: the keyboard.
#include <kavlix/ChartDraw.h>

#include <algorithm>

#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"

using namespace kavlix;

namespace {

constexpr double kArrowPan = 0.1; // share of the view
constexpr int kKeyZoom = WHEEL_DELTA;

/// How a key moves the view.
struct KeyMove {
    UINT key;
    bool isControl; ///< the move of the key with Ctrl
    double panX;    ///< shares of the view, to the right and upwards
    double panY;
    AxisSet zoomed; ///< the axes that the key zooms
    int zoom;       ///< the turn of the wheel that zooms as much; positive: zooms in
};

constexpr KeyMove kMoves[] = {
    {VK_LEFT, false, -kArrowPan, 0, 0, 0},
    {VK_RIGHT, false, kArrowPan, 0, 0, 0},
    {VK_DOWN, false, 0, -kArrowPan, 0, 0},
    {VK_UP, false, 0, kArrowPan, 0, 0},
    {VK_PRIOR, false, -1, 0, 0, 0},
    {VK_NEXT, false, 1, 0, 0, 0},
    {VK_LEFT, true, 0, 0, kAxisX, -kKeyZoom},
    {VK_RIGHT, true, 0, 0, kAxisX, kKeyZoom},
    {VK_DOWN, true, 0, 0, kAxesY, -kKeyZoom},
    {VK_UP, true, 0, 0, kAxesY, kKeyZoom},
    {VK_ADD, false, 0, 0, kAllAxes, kKeyZoom},
    {VK_OEM_PLUS, false, 0, 0, kAllAxes, kKeyZoom},
    {VK_SUBTRACT, false, 0, 0, kAllAxes, -kKeyZoom},
    {VK_OEM_MINUS, false, 0, 0, kAllAxes, -kKeyZoom},
};

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

/// Moves the view as a key of kMoves asks and the host allows. False when the key does not move the view.
bool MoveByKey(ChartDrawState& state, UINT key, bool isControl) {
    const KeyMove* const move = std::find_if(std::begin(kMoves), std::end(kMoves), [&](const KeyMove& each) {
        return each.key == key && each.isControl == isControl;
    });
    if (move == std::end(kMoves))
        return false;
    const ChartInputState& input = *state.input;
    const auto towards = [&](int axis, double share) {
        return ShareOfPixels(state, axis, axis == ChartDrawState::kX ? 1 : -1) < 0 ? -share : share;
    };
    const double panX = input.Has(CChartDraw::ViewPanX) ? towards(ChartDrawState::kX, move->panX) : 0;
    const double panY = input.Has(CChartDraw::ViewPanY) ? towards(ChartDrawState::kY, move->panY) : 0;
    const AxisSet zoomed = move->zoomed == kAllAxes ? input.PlainZoomAxes() : input.ZoomAxes() & move->zoomed;
    if (panX == 0 && panY == 0 && zoomed == 0)
        return false;
    MoveView(state, GestureKind::Key, ViewCause::User, [&](ChartView& view) {
        view.Pan(panX, panY);
        view.Zoom(zoomed, 0.5, 0.5, WheelFactor(move->zoom));
    });
    return true;
}

/// Moves a shown cursor by an arrow key, and places the second cursor by the space bar.
bool StepCursor(ChartDrawState& state, UINT key) {
    switch (key) {
    case VK_LEFT:
        return state.StepCursor(-1, 0);
    case VK_RIGHT:
        return state.StepCursor(1, 0);
    case VK_UP:
        return state.StepCursor(0, -1);
    case VK_DOWN:
        return state.StepCursor(0, 1);
    case VK_SPACE:
        return state.PinCursor();
    default:
        return false;
    }
}

} // namespace

void CChartDraw::OnKeyDown(UINT nChar, UINT, UINT) {
    const HWND window = m_hWnd;
    const ChartInputState& input = *m_State->input;
    if (input.pointer.IsPressed()) {
        if (nChar == VK_ESCAPE)
            EndDrag(*m_State, false);
        return;
    }
    const bool isControl = IsDown(VK_CONTROL);
    if (!isControl && StepCursor(*m_State, nChar))
        return;
    if (!IsAlive(window, this))
        return;
    if (!input.Has(ViewKeys))
        Default();
    else if (MoveByKey(*m_State, nChar, isControl))
        return;
    else if (isControl && nChar == 'C' && input.Has(ViewMenu))
        OnEditCopy();
    else if (isControl && nChar == 'P' && input.Has(ViewMenuPrint))
        OnFilePrint();
    else if (!isControl && (nChar == VK_HOME || nChar == VK_END) && input.Has(ViewPanX))
        MoveView(*m_State, GestureKind::Command, ViewCause::User,
                 [&](ChartView& view) { nChar == VK_HOME ? view.GoToFirst() : view.GoToNewest(); });
    else if (!isControl && (nChar == '0' || nChar == VK_NUMPAD0 || nChar == 'F'))
        OnFit();
    else if (!isControl && nChar == VK_BACK)
        OnBack();
    else
        Default();
}

UINT CChartDraw::OnGetDlgCode() {
    UINT code = static_cast<UINT>(Default());
    const ChartInputState& input = *m_State->input;
    if (input.Has(ViewKeys))
        code |= DLGC_WANTARROWS | DLGC_WANTCHARS;
    else if (m_State->cursor.GetMode() != CChartCursor::Off)
        code |= DLGC_WANTARROWS;
    // During a drag, Escape ends the drag. Otherwise the dialog gets the key and closes.
    const MSG* current = GetCurrentMessage();
    if (input.pointer.IsPressed() && current != nullptr && current->message == WM_GETDLGCODE &&
        current->lParam != 0) {
        const MSG* asked = reinterpret_cast<const MSG*>(current->lParam);
        if (asked->message == WM_KEYDOWN && asked->wParam == VK_ESCAPE)
            code |= DLGC_WANTMESSAGE;
    }
    return code;
}
