// SPDX-License-Identifier: MIT
// Finds the standard handles of a GUI program, and writes to them.

#include "monitor/Console.h"

#include "monitor/TextConversion.h"

namespace kavlix::monitor {
namespace {

/// The handle that the program was started with, or else the parent process's console: a GUI program has no
/// console of its own. Null when there is neither.
HANDLE FindHandle(DWORD which) {
    const HANDLE handle = GetStdHandle(which);
    if (handle && handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN)
        return handle;
    if (!AttachConsole(ATTACH_PARENT_PROCESS) && GetLastError() != ERROR_ACCESS_DENIED)
        return nullptr;
    const HANDLE console = CreateFile(_T("CONOUT$"), GENERIC_READ | GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    return console == INVALID_HANDLE_VALUE ? nullptr : console;
}

bool WriteToConsole(HANDLE console, const std::string& text) {
    const CString shown = ToText(text);
    DWORD written = 0;
    return WriteConsole(console, shown, static_cast<DWORD>(shown.GetLength()), &written, nullptr) != FALSE;
}

bool WriteToFile(HANDLE file, const std::string& text) {
    std::size_t done = 0;
    while (done < text.size()) {
        DWORD written = 0;
        if (!WriteFile(file, text.data() + done, static_cast<DWORD>(text.size() - done), &written, nullptr) ||
            written == 0)
            return false;
        done += written;
    }
    return true;
}

bool Write(DWORD which, const std::string& text) {
    if (text.empty())
        return true;
    const HANDLE handle = FindHandle(which);
    if (!handle)
        return false;
    DWORD mode = 0;
    const bool isConsole = GetConsoleMode(handle, &mode) != FALSE;
    const bool done = isConsole ? WriteToConsole(handle, text) : WriteToFile(handle, text);
    if (handle != GetStdHandle(which))
        CloseHandle(handle);
    return done;
}

} // namespace

bool WriteOutput(const std::string& text) {
    return Write(STD_OUTPUT_HANDLE, text);
}

bool WriteError(const std::string& text) {
    return Write(STD_ERROR_HANDLE, text);
}

} // namespace kavlix::monitor
