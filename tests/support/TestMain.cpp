// SPDX-License-Identifier: MIT
// The main function of the test programs that use windows.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// The application object that the class library needs. It has no main window and no message loop.
class CTestApp : public CWinApp {
public:
    CTestApp() : CWinApp(_T("Kavlix tests")) {}
};

CTestApp theApp;

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_HIDE)) {
        std::fputs("AfxWinInit failed: the window library is not usable, no test was run\n", stderr);
        return 3;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
