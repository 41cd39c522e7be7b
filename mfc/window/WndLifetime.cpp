// SPDX-License-Identifier: MIT
// CWnd: creation, subclassing, attaching, destruction.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"
#include "mfc/gdi/Handles.h"

#include <cstring>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd() {
    const bool isPlacement =
        this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
    if (m_hWnd != nullptr && !isPlacement) {
        TRACE(_T("CWnd is deleted with its window: OnDestroy and PostNcDestroy of derived classes do not ")
              _T("run.\n"));
        CWnd::DestroyWindow();
        // DestroyWindow() failed: the window belongs to another thread, or no longer exists.
        if (m_hWnd != nullptr)
            Detach();
    }
}

HWND CWnd::GetSafeHwnd() const {
    // The call is allowed on a NULL object. `volatile` keeps the compiler from removing the test.
    const CWnd* volatile self = this;
    return self == nullptr ? nullptr : m_hWnd;
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    CWnd* const window = CurrentThreadState().windows.FromHandle(hWnd);
    // A program may have called Detach() on the temporary object.
    if (window != nullptr && window->m_hWnd == nullptr)
        window->m_hWnd = hWnd;
    return window;
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    return CurrentThreadState().windows.Permanent(hWnd);
}

void CWnd::DeleteTempMap() {
    CurrentThreadState().windows.DeleteTemporaries();
}

BOOL CWnd::Attach(HWND hWndNew) {
    ASSERT(m_hWnd == nullptr);
    if (hWndNew == nullptr)
        return FALSE;
    ASSERT(FromHandlePermanent(hWndNew) == nullptr);
    CurrentThreadState().windows.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND window = m_hWnd;
    if (window != nullptr && FromHandlePermanent(window) == this)
        CurrentThreadState().windows.Remove(window);
    m_hWnd = nullptr;
    return window;
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    const auto leave = [](HWND) {}; // the object does not own the window yet
    if (m_hWnd != nullptr || FromHandlePermanent(hWnd) != nullptr || !AttachNew(*this, hWnd, leave))
        return FALSE;
    try {
        PreSubclassWindow();
    } catch (...) {
        Detach(); // otherwise the destructor would destroy a window that the object does not own
        throw;
    }
    ::SetLastError(0);
    const auto former = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (former == nullptr && ::GetLastError() != 0) { // no such window, or a window of another process
        Detach();
        return FALSE;
    }
    // If the window's procedure is already AfxWndProc, there is no former procedure to restore.
    if (former != AfxWndProc)
        *GetSuperWndProcAddr() = former;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    const HWND item = ::GetDlgItem(SafeWindow(pParent), static_cast<int>(nID));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC* const former = GetSuperWndProcAddr();
    if (m_hWnd != nullptr && *former != nullptr) {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*former));
        *former = nullptr;
    }
    return Detach();
}

// ---- Creation. A hook attaches the window to its object before the window's first message. ----

/// Attaches a window to its object. Returns false, with nothing attached, if memory runs out or
/// PreSubclassWindow() throws: exceptions must not cross the system's stack frames.
static bool Tie(CWnd& object, HWND window) {
    try {
        if (HasMemoryFor([&] {
                object.Attach(window);
                object.PreSubclassWindow();
            }))
            return true;
    } catch (CException* exception) {
        exception->Delete();
    }
    object.Detach();
    return false;
}

/// Runs while this thread creates a window.
LRESULT CALLBACK AfxCbtHook(int nCode, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = CurrentThreadState();
    const HHOOK hook = state.creationHook;
    CWnd* const object = state.windowInCreation;
    if (nCode == HCBT_CREATEWND && object != nullptr) {
        const HWND window = reinterpret_cast<HWND>(wParam);
        // The system may create an input-method window before the requested window.
        TCHAR className[8] = _T("");
        ::GetClassName(window, className, _countof(className));
        if (_tcsicmp(className, _T("ime")) != 0) {
            state.windowInCreation = nullptr;
            if (!Tie(*object, window)) {
                state.windowInCreation = object; // AfxUnhookWindowCreate() then returns FALSE
                return 1;                        // the system cancels the creation
            }
            const auto former = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
            if (former != AfxWndProc)
                *object->GetSuperWndProcAddr() = former;
        }
    }
    return ::CallNextHookEx(hook, nCode, wParam, lParam);
}

void AfxHookWindowCreate(CWnd* pWnd) {
    ThreadState& state = CurrentThreadState();
    if (state.creationHook == nullptr) {
        state.creationHook = ::SetWindowsHookEx(WH_CBT, AfxCbtHook, nullptr, ::GetCurrentThreadId());
        if (state.creationHook == nullptr)
            AfxThrowMemoryException();
    }
    ++state.creationHookDepth;
    state.windowInCreation = pWnd;
}

BOOL AfxUnhookWindowCreate() {
    ThreadState& state = CurrentThreadState();
    // The handlers of a window in creation may create another window, so creations can be nested.
    if (state.creationHookDepth > 0 && --state.creationHookDepth == 0) {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    const bool tied = state.windowInCreation == nullptr;
    state.windowInCreation = nullptr;
    return tied;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        ASSERT((cs.style & WS_CHILD) != 0); // a top-level window needs a class name
        WNDCLASS windowClass{};
        windowClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        windowClass.lpfnWndProc = ::DefWindowProc;
        windowClass.hInstance = AfxGetInstanceHandle();
        windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
        windowClass.lpszClassName = TEXT("AfxWnd42");
        if (!AfxRegisterClass(&windowClass))
            return FALSE;
        cs.lpszClass = windowClass.lpszClassName;
    }
    return TRUE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    // CW_USEDEFAULT is a code, not a coordinate, so no extent is calculated from it.
    const bool leaveToSystem = rect.left == CW_USEDEFAULT;
    const int width = leaveToSystem ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = leaveToSystem ? CW_USEDEFAULT : rect.bottom - rect.top;
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, width, height,
                    SafeWindow(pParentWnd), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    ASSERT(m_hWnd == nullptr);
    CREATESTRUCT wanted{};
    wanted.dwExStyle = dwExStyle;
    wanted.lpszClass = lpszClassName;
    wanted.lpszName = lpszWindowName;
    wanted.style = static_cast<LONG>(dwStyle);
    wanted.x = x;
    wanted.y = y;
    wanted.cx = nWidth;
    wanted.cy = nHeight;
    wanted.hwndParent = hWndParent;
    wanted.hMenu = nIDorHMenu;
    wanted.hInstance = AfxGetInstanceHandle();
    wanted.lpCreateParams = lpParam;
    if (!PreCreateWindow(wanted)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND window =
        ::CreateWindowEx(wanted.dwExStyle, wanted.lpszClass, wanted.lpszName,
                         static_cast<DWORD>(wanted.style), wanted.x, wanted.y, wanted.cx, wanted.cy,
                         wanted.hwndParent, wanted.hMenu, wanted.hInstance, wanted.lpCreateParams);
    // If a window was attached and the creation failed, WM_NCDESTROY has cleaned up. The object may
    // be deleted.
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    return window != nullptr;
}

// ---- Destruction ----

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND window = m_hWnd;
    const bool attached = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // OnNcDestroy() removes the map entry, and the object may delete itself there. Only an entry that
    // still exists proves that the object exists. An object that is attached without subclassing gets
    // no WM_NCDESTROY.
    if (destroyed && attached && FromHandlePermanent(window) == this)
        Detach();
    return destroyed;
}

void CWnd::OnDestroy() {
    Default();
}

void CWnd::OnNcDestroy() {
    if (CWinThread* const thread = AfxGetThread()) {
        if (thread->m_pMainWnd == this) {
            AfxPostQuitMessage(0);
            thread->m_pMainWnd = nullptr;
        }
        if (thread->m_pActiveWnd == this)
            thread->m_pActiveWnd = nullptr;
    }
    const HWND window = m_hWnd;
    Default();
    // Later messages go to the former procedure, unless another subclasser has replaced AfxWndProc.
    WNDPROC* const former = GetSuperWndProcAddr();
    if (*former != nullptr &&
        reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC)) == AfxWndProc)
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*former));
    *former = nullptr;
    m_hWndOwner = nullptr;
    Detach();
    PostNcDestroy();
}
