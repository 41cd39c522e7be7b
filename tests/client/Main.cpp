// SPDX-License-Identifier: MIT
// Starts the class library and the tests of a client program.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW)) {
        std::fputs("AfxWinInit failed: no test was run\n", stderr);
        return 3;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
