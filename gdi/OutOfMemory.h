// Where memory that has run out stops being an exception: in operations that promise their host a result.
#pragma once

#include <afxwin.h>

#include <new>
#include <stdexcept>

namespace kavlix {

/// Runs `action`; false when memory or GDI's objects run out in it. The class library throws
/// CMemoryException* and CResourceException* then, the C++ library exceptions of its own: none of these
/// leaves.
template <class Action> bool WithinResources(Action action) {
    try {
        action();
        return true;
    } catch (CMemoryException* exception) {
        exception->Delete();
    } catch (CResourceException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    return false;
}

/// Runs `action`, whose result it returns; false when memory or GDI's objects run out in it.
template <class Action> bool UnlessRefused(Action action) {
    bool result = false;
    return WithinResources([&] { result = action(); }) && result;
}

/// Runs `append`. When memory runs out in it, the class library's own message box says so, and the result is
/// FALSE; no such exception leaves.
template <class Append> BOOL ReportingExhaustion(Append append) {
    if (WithinResources(append))
        return TRUE;
    try {
        AfxThrowMemoryException();
    } catch (CMemoryException* exception) {
        exception->ReportError(MB_OK);
        exception->Delete();
    }
    return FALSE;
}

} // namespace kavlix
