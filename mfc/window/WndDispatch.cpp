// SPDX-License-Identifier: MIT
// CWnd: from the window procedure to the handler of a message.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "afx/Controls.h"
#include "afx/DC.h"
#include "afx/Menu.h"

#include <new>
#include <windowsx.h>

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    CWnd* const window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
}

namespace {

/// Sets the current message while its handler runs.
class CurrentMessageScope {
public:
    CurrentMessageScope(ThreadState& state, const MSG& message)
        : m_state(state), m_previous(state.currentMessage) {
        state.currentMessage = message;
        ++state.messageDepth;
    }
    ~CurrentMessageScope() {
        --m_state.messageDepth;
        m_state.currentMessage = m_previous;
    }
    CurrentMessageScope(const CurrentMessageScope&) = delete;
    CurrentMessageScope& operator=(const CurrentMessageScope&) = delete;

private:
    ThreadState& m_state;
    const MSG m_previous;
};

bool IsControlColor(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

CPoint PointOf(LPARAM lParam) {
    return CPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
}

HWND WindowOf(WPARAM wParam) {
    return reinterpret_cast<HWND>(wParam);
}

HWND WindowOf(LPARAM lParam) {
    return reinterpret_cast<HWND>(lParam);
}

/// The object of a control's window, cast to the class in the handler's declaration. The cast is not checked:
/// programs compare the pointer with their own control, which may be of any class. A temporary object is a
/// plain CWnd, but the control classes have no data members of their own.
template <class Control> Control* ControlOf(LPARAM lParam) {
    return reinterpret_cast<Control*>(CWnd::FromHandle(WindowOf(lParam)));
}

} // namespace

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = CurrentThreadState();
    MSG message{};
    message.hwnd = hWnd;
    message.message = nMsg;
    message.wParam = wParam;
    message.lParam = lParam;
    const CurrentMessageScope scope(state, message);
    if (nMsg == WM_INITMENUPOPUP)
        state.popupMenu = reinterpret_cast<HMENU>(wParam);
    try {
        return pWnd->WindowProc(nMsg, wParam, lParam);
    } catch (CException* exception) {
        const LRESULT result = AnswerUncaughtException(exception, message);
        exception->Delete();
        return result;
    } catch (const std::bad_alloc&) {
        // Exceptions must not cross the system's stack frames, so a failed allocation is handled
        // like CMemoryException.
        CMemoryException exception(FALSE);
        return AnswerUncaughtException(&exception, message);
    }
}

const MSG* CWnd::GetCurrentMessage() {
    MSG& message = CurrentThreadState().currentMessage;
    message.time = static_cast<DWORD>(::GetMessageTime());
    const DWORD position = ::GetMessagePos();
    message.pt.x = GET_X_LPARAM(position);
    message.pt.y = GET_Y_LPARAM(position);
    return &message;
}

LRESULT CWnd::Default() {
    const MSG& message = CurrentThreadState().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (m_hWnd == nullptr)
        return 0;
    const WNDPROC former = *GetSuperWndProcAddr();
    return former != nullptr ? ::CallWindowProc(former, m_hWnd, message, wParam, lParam)
                             : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT ignored = 0;
    LRESULT& result = pResult != nullptr ? *pResult : ignored;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, &result);

    UINT mapped = message;
    if (IsControlColor(message))
        mapped = WM_CTLCOLOR;
    else if (message > WM_REFLECT_BASE && IsControlColor(message - WM_REFLECT_BASE))
        mapped = WM_REFLECT_BASE + WM_CTLCOLOR;

    const AFX_MSGMAP_ENTRY* entry = nullptr;
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr && entry == nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr)
        entry = AfxFindMessageEntry(map->lpEntries, mapped, 0, 0);
    if (entry == nullptr)
        return FALSE;

    // The handler may delete this object, so no code after the call uses it.
    const AfxHandler& call = entry->pfn;
    const UINT word = static_cast<UINT>(wParam);
    const UINT wLow = LOWORD(wParam);
    const UINT wHigh = HIWORD(wParam);
    const UINT lLow = LOWORD(lParam);
    const UINT lHigh = HIWORD(lParam);
    switch (entry->nSig) {
    case AfxSig::Message:
        result = (this->*call.message)(wParam, lParam);
        return TRUE;
    case AfxSig::v:
        (this->*call.v)();
        break;
    case AfxSig::b:
        result = (this->*call.b)();
        return TRUE;
    case AfxSig::u:
        result = static_cast<LRESULT>((this->*call.u)());
        return TRUE;
    case AfxSig::icon:
        result = reinterpret_cast<LRESULT>((this->*call.icon)());
        return TRUE;
    case AfxSig::v_b:
        (this->*call.v_b)(wParam != 0);
        break;
    case AfxSig::b_b:
        result = (this->*call.b_b)(wParam != 0);
        return TRUE;
    case AfxSig::v_bu:
        (this->*call.v_bu)(wParam != 0, static_cast<UINT>(lParam));
        break;
    case AfxSig::v_bTask:
        (this->*call.v_bTask)(wParam != 0, static_cast<DWORD>(lParam));
        break;
    case AfxSig::v_bTaskHandle:
        (this->*call.v_bTaskHandle)(wParam != 0, reinterpret_cast<HTASK>(lParam));
        break;
    case AfxSig::v_u:
    case AfxSig::v_timerUint:
        (this->*call.v_u)(word);
        break;
    case AfxSig::v_timer:
#ifdef _WIN64
        (this->*call.v_timer)(wParam);
#else
        (this->*call.v_u)(wParam);
#endif
        break;
    case AfxSig::v_uLoHi:
        (this->*call.v_uii)(word, static_cast<int>(lLow), static_cast<int>(lHigh));
        break;
    case AfxSig::v_xy:
        (this->*call.v_ii)(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        break;
    case AfxSig::v_uwb:
        (this->*call.v_uwb)(wLow, FromHandle(WindowOf(lParam)), wHigh != 0);
        break;
    case AfxSig::v_w:
        (this->*call.v_w)(FromHandle(WindowOf(wParam)));
        break;
    case AfxSig::v_wL:
        (this->*call.v_w)(FromHandle(WindowOf(lParam)));
        break;
    case AfxSig::v_up:
        (this->*call.v_up)(word, PointOf(lParam));
        break;
    case AfxSig::b_wheel:
        // FALSE too means "handled" here. A handler that leaves the message to the parent returns the result
        // of the base, whose Default() has already sent the message on.
        result = (this->*call.b_wheel)(wLow, static_cast<short>(wHigh), PointOf(lParam));
        return TRUE;
    case AfxSig::v_wheel:
        (this->*call.v_wheel)(wLow, static_cast<short>(wHigh), PointOf(lParam));
        break;
    case AfxSig::v_key:
    case AfxSig::v_hotKey:
        (this->*call.v_uuu)(word, lLow, lHigh);
        break;
    case AfxSig::b_setCursor:
    case AfxSig::i_mouseActivate:
        result = (this->*call.b_wuu)(FromHandle(WindowOf(wParam)), lLow, lHigh);
        return TRUE;
    case AfxSig::brush_dwu:
        result = reinterpret_cast<LRESULT>(
            (this->*call.brush_dwu)(CDC::FromHandle(reinterpret_cast<HDC>(wParam)),
                                    FromHandle(WindowOf(lParam)), message - WM_CTLCOLORMSGBOX));
        return result != 0;
    case AfxSig::brush_du:
        result = reinterpret_cast<LRESULT>((this->*call.brush_du)(
            CDC::FromHandle(reinterpret_cast<HDC>(wParam)), message - WM_REFLECT_BASE - WM_CTLCOLORMSGBOX));
        return result != 0;
    case AfxSig::b_d:
        result = (this->*call.b_d)(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return TRUE;
    case AfxSig::v_d:
        (this->*call.v_d)(CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        break;
    case AfxSig::i_create:
        result = (this->*call.i_create)(reinterpret_cast<LPCREATESTRUCT>(lParam));
        return TRUE;
    case AfxSig::v_scroll:
        (this->*call.v_scroll)(wLow, wHigh, ControlOf<CScrollBar>(lParam));
        break;
    case AfxSig::v_scrollWnd:
        (this->*call.v_scrollWnd)(wLow, wHigh, FromHandle(WindowOf(lParam)));
        break;
    case AfxSig::v_scrollReflect:
        (this->*call.v_uu)(wLow, wHigh);
        break;
    case AfxSig::v_ul:
        (this->*call.v_ul)(word, lParam);
        break;
    case AfxSig::u_ul:
        result = static_cast<LRESULT>((this->*call.u_ul)(word, lParam));
        return TRUE;
    case AfxSig::v_wp:
        (this->*call.v_wp)(FromHandle(WindowOf(wParam)), PointOf(lParam));
        break;
    case AfxSig::u_p:
        result = static_cast<int>((this->*call.u_p)(PointOf(lParam))); // HTERROR and other codes are negative
        return TRUE;
    case AfxSig::l_p:
        result = (this->*call.l_p)(PointOf(lParam));
        return TRUE;
    case AfxSig::v_ncCalcSize:
        (this->*call.v_ncCalcSize)(wParam != 0, reinterpret_cast<NCCALCSIZE_PARAMS*>(lParam));
        break;
    case AfxSig::v_minMax:
        (this->*call.v_minMax)(reinterpret_cast<MINMAXINFO*>(lParam));
        break;
    case AfxSig::v_windowPos:
        (this->*call.v_windowPos)(reinterpret_cast<WINDOWPOS*>(lParam));
        break;
    case AfxSig::v_drawItem:
        (this->*call.v_drawItem)(static_cast<int>(word), reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::v_measureItem:
        (this->*call.v_measureItem)(static_cast<int>(word), reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::v_deleteItem:
        (this->*call.v_deleteItem)(static_cast<int>(word), reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::i_compareItem:
        result = (this->*call.i_compareItem)(static_cast<int>(word),
                                             reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case AfxSig::v_drawReflect:
        (this->*call.v_drawReflect)(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::v_measureReflect:
        (this->*call.v_measureReflect)(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::v_deleteReflect:
        (this->*call.v_deleteReflect)(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::i_compareReflect:
        result = (this->*call.i_compareReflect)(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case AfxSig::i_listKey:
        result = (this->*call.i_listKey)(wLow, ControlOf<CListBox>(lParam), wHigh);
        return TRUE;
    case AfxSig::i_listKeyReflect:
        result = (this->*call.i_uu)(wLow, wHigh);
        return TRUE;
    case AfxSig::v_menu:
        (this->*call.v_menu)(CMenu::FromHandle(reinterpret_cast<HMENU>(wParam)));
        break;
    case AfxSig::v_menuPopup:
        (this->*call.v_menuPopup)(CMenu::FromHandle(reinterpret_cast<HMENU>(wParam)), lLow, lHigh != 0);
        break;
    case AfxSig::v_menuSelect:
        (this->*call.v_menuSelect)(wLow, wHigh, reinterpret_cast<HMENU>(lParam));
        break;
    case AfxSig::l_menuChar:
        result = (this->*call.l_menuChar)(wLow, wHigh, CMenu::FromHandle(reinterpret_cast<HMENU>(lParam)));
        return TRUE;
    case AfxSig::v_style:
        (this->*call.v_style)(static_cast<int>(wParam), reinterpret_cast<LPSTYLESTRUCT>(lParam));
        break;
    case AfxSig::v_drop:
        (this->*call.v_drop)(reinterpret_cast<HDROP>(wParam));
        break;
    case AfxSig::v_uw:
        (this->*call.v_uw)(word, FromHandle(WindowOf(lParam)));
        break;
    case AfxSig::v_setting:
        (this->*call.v_setting)(word, reinterpret_cast<LPCTSTR>(lParam));
        break;
    case AfxSig::v_text:
        (this->*call.v_text)(reinterpret_cast<LPCTSTR>(lParam));
        break;
    case AfxSig::v_rect:
        (this->*call.v_rect)(word, reinterpret_cast<LPRECT>(lParam));
        result = TRUE;
        return TRUE;
    case AfxSig::b_help:
        result = (this->*call.b_help)(reinterpret_cast<HELPINFO*>(lParam));
        return TRUE;
    case AfxSig::b_copyData:
        result =
            (this->*call.b_copyData)(FromHandle(WindowOf(wParam)), reinterpret_cast<COPYDATASTRUCT*>(lParam));
        return TRUE;
    case AfxSig::b_device:
        result = (this->*call.b_device)(word, static_cast<DWORD_PTR>(lParam));
        return TRUE;
    case AfxSig::v_windows:
        (this->*call.v_windows)(WindowOf(wParam), WindowOf(lParam));
        break;
    default:
        return FALSE; // a row for commands, which window messages do not use
    }
    result = 0;
    return TRUE;
}
