// SPDX-License-Identifier: MIT
// Turns exceptions for lack of memory or GDI objects into results that an operation can return to its host.
#pragma once

#include <afxwin.h>

#include <new>
#include <stdexcept>

namespace kavlix {

/// Runs `action`. False when memory or GDI objects run out meanwhile: this function catches CMemoryException
/// and CResourceException of the class library, and std::bad_alloc and std::length_error.
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

/// Runs `action` and returns its result. False when memory or GDI objects run out meanwhile.
template <class Action> bool UnlessRefused(Action action) {
    bool result = false;
    return WithinResources([&] { result = action(); }) && result;
}

/// Runs `append`. When memory or GDI objects run out meanwhile, shows the class library's message box for
/// lack of memory and returns FALSE.
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
