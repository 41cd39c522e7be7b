// SPDX-License-Identifier: MIT
// WinMain, the entry point of a program of the class library.

#include <afxwin.h>

/// Runs the program's application object.
int WINAPI WinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPSTR lpCmdLine, int nCmdShow) {
#ifdef _UNICODE
    // The program's name, which may be in quotes, precedes the arguments.
    LPTSTR arguments = ::GetCommandLine();
    for (bool quoted = false; *arguments != 0 && (quoted || *arguments > L' '); ++arguments)
        quoted = quoted != (*arguments == L'"');
    while (*arguments != 0 && *arguments <= L' ')
        ++arguments;
    static_cast<void>(lpCmdLine); // in the code page of the process
#else
    LPTSTR arguments = lpCmdLine;
#endif
    return AfxWinMain(hInstance, hPrevInstance, arguments, nCmdShow);
}
