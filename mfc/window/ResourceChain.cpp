// SPDX-License-Identifier: MIT
// Extension DLLs, the chain of modules with resources, and window classes.

#include "mfc/window/ThreadState.h"

#include "afxres.h"

#include <algorithm>
#include <charconv>
#include <mutex>
#include <string>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace {

std::mutex& ChainGuard() {
    static std::mutex guard;
    return guard;
}

/// The linked libraries, the latest first.
std::vector<CDynLinkLibrary*>& Chain() {
    static std::vector<CDynLinkLibrary*> chain;
    return chain;
}

struct RegisteredClass {
    AfxText name;
    HINSTANCE instance;
};

/// Registered window classes of DLLs.
std::vector<RegisteredClass>& DllClasses() {
    static std::vector<RegisteredClass> classes;
    return classes;
}

/// The modules in search order. A module may occur twice.
std::vector<HINSTANCE> ModulesToAsk() {
    std::vector<HINSTANCE> modules{AfxGetResourceHandle(),
                                   AfxStateOfModule(nullptr)->m_hCurrentResourceHandle,
                                   ::GetModuleHandle(nullptr)};
    {
        const std::lock_guard<std::mutex> lock(ChainGuard());
        for (const bool system : {false, true})
            for (const CDynLinkLibrary* const library : Chain())
                if ((library->m_bSystem != FALSE) == system && library->m_hResource != nullptr)
                    modules.push_back(library->m_hResource);
    }
    modules.push_back(AfxStateOfModule(nullptr)->m_hCurrentInstanceHandle);
    modules.push_back(reinterpret_cast<HINSTANCE>(&__ImageBase));
    return modules;
}

/// English texts of the library's prompts.
LPCTSTR OwnText(UINT id) {
    switch (id) {
    case AFX_IDS_IDLEMESSAGE:
        return _T("Ready");
    case ID_INDICATOR_EXT:
        return _T("EXT");
    case ID_INDICATOR_CAPS:
        return _T("CAP");
    case ID_INDICATOR_NUM:
        return _T("NUM");
    case ID_INDICATOR_SCRL:
        return _T("SCRL");
    case ID_INDICATOR_OVR:
        return _T("OVR");
    case ID_INDICATOR_REC:
        return _T("REC");
    case AFX_IDP_NO_ERROR_AVAILABLE:
        return _T("No error message is available.");
    case AFX_IDP_INTERNAL_FAILURE:
        return _T("An internal error occurred.");
    case AFX_IDP_COMMAND_FAILURE:
        return _T("The command failed.");
    case AFX_IDP_FAILED_MEMORY_ALLOC:
        return _T("Out of memory.");
    case AFX_IDP_NOT_SUPPORTED:
        return _T("This operation is not supported.");
    case AFX_IDP_RESOURCE_FAILURE:
        return _T("A required resource is not available.");
    case AFX_IDP_FAILED_TO_LAUNCH_HELP:
        return _T("Help cannot be opened.");
    case AFX_IDP_PARSE_INT:
        return _T("Enter an integer.");
    case AFX_IDP_PARSE_REAL:
        return _T("Enter a number.");
    case AFX_IDP_PARSE_INT_RANGE:
        return _T("Enter an integer between %1 and %2.");
    case AFX_IDP_PARSE_REAL_RANGE:
        return _T("Enter a number between %1 and %2.");
    case AFX_IDP_PARSE_STRING_SIZE:
        return _T("Enter no more than %1 characters.");
    case AFX_IDP_PARSE_RADIO_BUTTON:
        return _T("Select a button.");
    case AFX_IDP_PARSE_BYTE:
        return _T("Enter an integer between 0 and 255.");
    case AFX_IDP_PARSE_UINT:
        return _T("Enter a positive integer.");
    case AFX_IDP_PARSE_DATETIME:
        return _T("Enter a date or a time.");
    case AFX_IDP_PARSE_CURRENCY:
        return _T("Enter an amount of money.");
    default:
        return nullptr;
    }
}

} // namespace

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    const std::lock_guard<std::mutex> lock(ChainGuard());
    Chain().insert(Chain().begin(), this);
}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_bSystem(FALSE) {
    const std::lock_guard<std::mutex> lock(ChainGuard());
    Chain().insert(Chain().begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    const std::lock_guard<std::mutex> lock(ChainGuard());
    Chain().erase(std::remove(Chain().begin(), Chain().end(), this), Chain().end());
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (!state.bInitialized) {
        state.hModule = hModule;
        state.hResource = hModule;
        state.bInitialized = TRUE;
    }
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized)
        return;
    std::vector<CDynLinkLibrary*> leaving;
    std::vector<RegisteredClass> classes;
    {
        const std::lock_guard<std::mutex> lock(ChainGuard());
        for (CDynLinkLibrary* const library : Chain())
            if (bAll || library->m_hModule == state.hModule)
                leaving.push_back(library);
        auto& registered = DllClasses();
        const auto stays = [&](const RegisteredClass& entry) {
            return !bAll && entry.instance != state.hModule;
        };
        const auto first = std::stable_partition(registered.begin(), registered.end(), stays);
        classes.assign(first, registered.end());
        registered.erase(first, registered.end());
    }
    for (CDynLinkLibrary* const library : leaving)
        delete library; // the destructor removes the link from the chain
    for (const RegisteredClass& entry : classes)
        ::UnregisterClass(entry.name.c_str(), entry.instance);
    state.bInitialized = FALSE;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    for (const HINSTANCE module : ModulesToAsk())
        if (::FindResource(module, lpszName, lpszType) != nullptr)
            return module;
    return AfxGetResourceHandle();
}

HINSTANCE AfxFindStringResourceHandle(UINT nID) {
    TCHAR probe[2] = _T("");
    for (const HINSTANCE module : ModulesToAsk())
        if (::LoadString(module, nID, probe, _countof(probe)) > 0)
            return module;
    return nullptr;
}

int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0)
        return 0;
    lpszBuf[0] = '\0';
    if (const HINSTANCE module = AfxFindStringResourceHandle(nID))
        return ::LoadString(module, nID, lpszBuf, static_cast<int>(nMaxBuf));
    if (const LPCTSTR own = OwnText(nID)) {
        ::lstrcpyn(lpszBuf, own, static_cast<int>(nMaxBuf));
        return ::lstrlen(lpszBuf);
    }
    return 0;
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS present{};
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &present))
        return TRUE;
    if (!::RegisterClass(lpWndClass))
        return FALSE;
    if (lpWndClass->hInstance != ::GetModuleHandle(nullptr) && !IS_INTRESOURCE(lpWndClass->lpszClassName)) {
        const std::lock_guard<std::mutex> lock(ChainGuard());
        DllClasses().push_back({lpWndClass->lpszClassName, lpWndClass->hInstance});
    }
    return TRUE;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    const auto hex = [](UINT_PTR value) {
        char digits[2 * sizeof(value)];
        return CString(
            digits, static_cast<int>(std::to_chars(digits, digits + sizeof(digits), value, 16).ptr - digits));
    };
    const auto hexHandle = [&](const void* handle) { return hex(reinterpret_cast<UINT_PTR>(handle)); };
    const HINSTANCE instance = AfxGetInstanceHandle();
    CString name = _T("Afx:") + hexHandle(instance) + _T(":") + hex(nClassStyle);
    if (hCursor != nullptr || hbrBackground != nullptr || hIcon != nullptr)
        name +=
            _T(":") + hexHandle(hCursor) + _T(":") + hexHandle(hbrBackground) + _T(":") + hexHandle(hIcon);

    WNDCLASS windowClass{};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.hIcon = hIcon;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass))
        AfxThrowResourceException();
    ThreadState& thread = CurrentThreadState();
    ::lstrcpyn(thread.className, name, _countof(thread.className));
    return thread.className;
}
