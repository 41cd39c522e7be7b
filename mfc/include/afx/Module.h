// SPDX-License-Identifier: MIT
// Modules: program and DLLs, the chain of modules with resources, window classes, message boxes.
#pragma once

#include "afx/CmdTarget.h"
#include <afx.h>

class CWinApp;
class CDynLinkLibrary;

/// Data about an extension DLL. The DLL defines one static object of this type, initially zero.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                ///< module with the DLL's resources; initially equal to hModule
    CRuntimeClass* pFirstSharedClass; ///< unused: classes register themselves
    void* pFirstSharedFactory;        ///< unused
};

/// An extension DLL calls the function in DllMain() when the DLL is attached to the process. If the result is
/// FALSE, DllMain() returns FALSE too, and the DLL is not loaded.
MFC_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// An extension DLL calls the function when the DLL is detached. The function deletes the DLL's
/// CDynLinkLibrary objects and unregisters the window classes that AfxRegisterClass() registered for the DLL.
/// `bAll` TRUE does both for all extension DLLs.
MFC_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// A link in the resource chain (see AfxFindResourceHandle()). An extension DLL makes the link with `new`
/// when the DLL is attached; AfxTermExtensionModule() deletes the link.
class MFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    /// Links with `bSystem` TRUE are searched after all other links.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// State of a module: of the program, or of a DLL that uses AFX_MANAGE_STATE.
struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr; ///< CWinApp::m_pszAppName
    CWinApp* m_pCurrentWinApp = nullptr;
    BYTE m_bDLL = FALSE; ///< whether this is the state of a DLL
};

/// The current state of the calling thread: the program's state, unless AFX_MANAGE_STATE set another state.
MFC_API AFX_MODULE_STATE* AfxGetModuleState();
/// The state of the module `hInstance`. For the program, the program's state; for a DLL, a state with the
/// DLL's instance and resources.
MFC_API AFX_MODULE_STATE* AfxStateOfModule(HINSTANCE hInstance);
/// Sets the current state of the calling thread; NULL stands for the program's state. Returns the argument of
/// the thread's previous call, NULL before the first call.
MFC_API AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState);

extern "C" IMAGE_DOS_HEADER __ImageBase;
/// The state of the module that contains the call.
inline AFX_MODULE_STATE* AfxGetStaticModuleState() {
    return AfxStateOfModule(reinterpret_cast<HINSTANCE>(&__ImageBase));
}

/// Sets the current state until the end of the scope.
class AFX_MAINTAIN_STATE {
public:
    explicit AFX_MAINTAIN_STATE(AFX_MODULE_STATE* pModuleState)
        : m_pPrevious(AfxSetModuleState(pModuleState)) {}
    ~AFX_MAINTAIN_STATE() { AfxSetModuleState(m_pPrevious); }
    AFX_MAINTAIN_STATE(const AFX_MAINTAIN_STATE&) = delete;
    AFX_MAINTAIN_STATE& operator=(const AFX_MAINTAIN_STATE&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevious;
};
/// The first line of a function that a regular DLL exports. The DLL's resources are searched first until the
/// function returns.
#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE _ctlState(p);

/// The instance of the current state: the program, unless AFX_MANAGE_STATE set the state of a DLL. Calls from
/// extension DLLs get the program too.
MFC_API HINSTANCE AfxGetInstanceHandle();
/// The module whose resources are searched first: the program, unless AfxSetResourceHandle() or
/// AFX_MANAGE_STATE set another module.
MFC_API HINSTANCE AfxGetResourceHandle();
MFC_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The first module in the resource chain that has the resource. The resource chain is: the module of
/// AfxGetResourceHandle(), the module that the program set with AfxSetResourceHandle(), the program, the
/// extension DLLs (the latest link first, but links with m_bSystem last), this library. If no module has the
/// resource, returns AfxGetResourceHandle().
MFC_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// The first module in the resource chain that has the string; NULL if no module has it.
/// AfxFindResourceHandle() cannot find single strings, because a string resource is a block of 16 strings.
MFC_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
/// Copies a string resource, cut to `nMaxBuf` bytes including the terminating zero, and returns the length
/// without the zero. For some IDs of afxres.h, mainly its prompts, the library has an English text that
/// is used if no module has the string. Without any text, the copy is empty and the result 0.
MFC_API int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);

/// Load and free an extension DLL at run time.
MFC_API HINSTANCE AfxLoadLibrary(LPCTSTR lpszModuleName);
MFC_API BOOL AfxFreeLibrary(HINSTANCE hInstLib);

/// Registers a window class. Returns TRUE also if the class is already registered. AfxTermExtensionModule()
/// unregisters the classes of a DLL.
MFC_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
/// Returns the name of a window class with these properties, and registers the class if necessary. The name
/// is valid until the thread's next call. Without a brush, the window's background is not erased. Throws
/// CResourceException* if the class cannot be registered.
MFC_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                    HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

/// Shows a message box through CWinApp::DoMessageBox(). Returns the ID of the button, 0 on failure.
MFC_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// Shows a string resource. `nIDHelp` -1 stands for `nIDPrompt`.
MFC_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/// Replace %1 and %2 of a string resource with texts.
MFC_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
MFC_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
/// Replace %1 to %9 of the format with `nString` texts. Placeholders without a text are removed.
MFC_API void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString);
MFC_API void AfxFormatStrings(CString& rString, UINT nIDS, LPCTSTR const* rglpsz, int nString);
