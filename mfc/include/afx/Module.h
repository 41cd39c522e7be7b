// Modules: program and DLLs, the chain of modules with resources, window classes, message boxes.
#pragma once

#include "afx/CmdTarget.h"
#include <afx.h>

class CWinApp;
class CDynLinkLibrary;

/// Data about an extension DLL. The DLL defines one such object, initially zero, for its whole lifetime.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;                ///< module with the DLL's resources; initially equal to hModule
    CRuntimeClass* pFirstSharedClass; ///< unused: classes register themselves
    void* pFirstSharedFactory;        ///< unused
};

/// An extension DLL calls the function when it is attached to the process. FALSE makes the load fail.
MFC_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// An extension DLL calls the function when it is detached. The function deletes the DLL's CDynLinkLibrary
/// objects and unregisters the window classes that AfxRegisterClass() registered for the DLL. `bAll` extends
/// both to all extension DLLs.
MFC_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// A link in the chain of modules with resources. An extension DLL makes the link with `new` when it is
/// attached; AfxTermExtensionModule() deletes the link.
class MFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    /// The chain searches links with `bSystem` TRUE after all others.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// State that a program shares with its libraries.
struct AFX_MODULE_STATE {
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr;
    LPCTSTR m_lpszCurrentAppName = nullptr; ///< CWinApp::m_pszAppName
    CWinApp* m_pCurrentWinApp = nullptr;
    BYTE m_bDLL = FALSE; ///< whether this is the state of a DLL
};

/// The current state of the calling thread: the program's state, unless AFX_MANAGE_STATE set another one.
MFC_API AFX_MODULE_STATE* AfxGetModuleState();
/// The state of the module `hInstance`. For the program, the program's state; for a DLL, a state with the
/// DLL's instance and resources.
MFC_API AFX_MODULE_STATE* AfxStateOfModule(HINSTANCE hInstance);
/// Sets the current state of the calling thread; NULL stands for the program's state. Returns the
/// former argument.
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
/// The first line of a function that a regular DLL exports. The DLL's resources come first until the
/// function returns.
#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE _ctlState(p);

/// The instance of the program, also for calls inside extension DLLs.
MFC_API HINSTANCE AfxGetInstanceHandle();
/// The module whose resources are searched first: the program, unless AfxSetResourceHandle() set
/// another module.
MFC_API HINSTANCE AfxGetResourceHandle();
MFC_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The first module with a resource. The order is: resource module, program, extension DLLs (the last link
/// first, system links last), this library. If no module has the resource, returns the resource module.
/// Never NULL.
MFC_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// The first module with the string; NULL if none has it. AfxFindResourceHandle() cannot find single strings,
/// because a string resource is a block of 16 strings.
MFC_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
/// Copies a string resource, cut to `nMaxBuf` bytes with the terminating zero, and returns its length without
/// the zero. If the string does not exist, the text is empty and the result 0. The library has English texts
/// for its own prompts (afxres.h).
MFC_API int AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);

/// Load and free an extension DLL at run time.
MFC_API HINSTANCE AfxLoadLibrary(LPCTSTR lpszModuleName);
MFC_API BOOL AfxFreeLibrary(HINSTANCE hInstLib);

/// Registers a window class. Returns TRUE also if the class is already registered. AfxTermExtensionModule()
/// unregisters the classes of a DLL.
MFC_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
/// Registers a window class with these properties at the first call, and returns its name in a buffer
/// that is valid until the thread's next call. Without a brush, the window's background is not erased.
/// Throws CResourceException*.
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
