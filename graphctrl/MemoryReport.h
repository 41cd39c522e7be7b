#pragma once

#include <afxwin.h>

#include <new>

namespace kavlix {

/// Runs `append`. When memory runs out in it, the class library's own message box says so, and the result is
/// FALSE; no such exception leaves.
template <class Append> BOOL ReportingExhaustion(Append append) {
    try {
        try {
            append();
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    } catch (CMemoryException* exception) {
        exception->ReportError(MB_OK);
        exception->Delete();
        return FALSE;
    }
    return TRUE;
}

} // namespace kavlix
