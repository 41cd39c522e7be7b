// SPDX-License-Identifier: MIT
// Module states: the program's state, the states of DLLs, and the current state of a thread.

#include "mfc/window/ThreadState.h"

#include "afx/App.h"

#include <map>
#include <memory>
#include <mutex>

namespace {

HINSTANCE ProgramInstance() {
    return ::GetModuleHandle(nullptr);
}

struct ProgramState : AFX_MODULE_STATE {
    ProgramState() {
        // Global objects are constructed before the start-up code runs, and need an instance too.
        m_hCurrentInstanceHandle = ProgramInstance();
        m_hCurrentResourceHandle = ProgramInstance();
    }
};

AFX_MODULE_STATE& StateOfProgram() {
    static ProgramState state;
    return state;
}

} // namespace

AFX_MODULE_STATE* AfxStateOfModule(HINSTANCE hInstance) {
    if (hInstance == nullptr || hInstance == ProgramInstance())
        return &StateOfProgram();
    static std::mutex guard;
    static std::map<HINSTANCE, std::unique_ptr<AFX_MODULE_STATE>> states;
    const std::lock_guard<std::mutex> lock(guard);
    std::unique_ptr<AFX_MODULE_STATE>& state = states[hInstance];
    if (!state) {
        state = std::make_unique<AFX_MODULE_STATE>();
        state->m_hCurrentInstanceHandle = hInstance;
        state->m_hCurrentResourceHandle = hInstance;
        state->m_lpszCurrentAppName = StateOfProgram().m_lpszCurrentAppName;
        state->m_pCurrentWinApp = StateOfProgram().m_pCurrentWinApp;
        state->m_bDLL = TRUE;
    }
    return state.get();
}

AFX_MODULE_STATE* AfxGetModuleState() {
    AFX_MODULE_STATE* const state = CurrentThreadState().moduleState;
    return state != nullptr ? state : &StateOfProgram();
}

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState) {
    ThreadState& thread = CurrentThreadState();
    AFX_MODULE_STATE* const previous = thread.moduleState;
    thread.moduleState = pNewState;
    return previous;
}

HINSTANCE AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

CWinApp* AfxGetApp() {
    // The state of a DLL changes the instance and the resources. The application is always the program's.
    return StateOfProgram().m_pCurrentWinApp;
}

LPCTSTR AfxGetAppName() {
    const CWinApp* const app = AfxGetApp();
    return app != nullptr ? app->m_pszAppName : nullptr;
}

HINSTANCE AfxLoadLibrary(LPCTSTR lpszModuleName) {
    return ::LoadLibrary(lpszModuleName);
}

BOOL AfxFreeLibrary(HINSTANCE hInstLib) {
    return ::FreeLibrary(hInstLib);
}
