// Turns exceptions for lack of memory into results, for operations that return one to their host.
#pragma once

#include <afxwin.h>

#include <new>
#include <stdexcept>

namespace kavlix {

/// Runs `action`. False when memory or GDI objects run out in it: the class library throws CMemoryException*
/// and CResourceException* then, and the C++ library its own exceptions. This function catches all of them.
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

/// Runs `action` and returns its result. False when memory or GDI objects run out in it.
template <class Action> bool UnlessRefused(Action action) {
    bool result = false;
    return WithinResources([&] { result = action(); }) && result;
}

/// Runs `append`. When memory runs out in it, shows the class library's message box about that and returns
/// FALSE.
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
