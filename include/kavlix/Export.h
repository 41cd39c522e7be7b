// SPDX-License-Identifier: MIT
// KAVLIX_API: the linkage of every exported declaration, and the checks that a host's settings and headers fit the DLL.
#pragma once

#include <kavlix/Version.h>

// The rule for exported classes. A host compiles the size and the layout of a class into itself, so a new data
// member or a new virtual function breaks every program that exists. New state of a window class therefore stands
// behind the private pointer m_State of the class, whose type a source defines. A data class gets new members with a
// new major version only, and so do virtual functions. A public constant is an enumerator: a static data member would
// have to be exported, and whether the compiler emits a constexpr one depends on its optimizations.

// ---- Settings ----

#if defined(_MSVC_LANG) ? _MSVC_LANG < 201703L : __cplusplus < 201703L
#error "Kavlix: compile as C++17 (/std:c++17, -std=c++17)."
#endif
#if defined(UNICODE) != defined(_UNICODE)
#error "Kavlix: define both UNICODE and _UNICODE (text is wchar_t), or neither (text is char)."
#endif
// The CMake targets define KAVLIX_NARROW (Kavlix::Kavlix) or KAVLIX_WIDE (Kavlix::KavlixU).
#if defined(KAVLIX_NARROW) && defined(UNICODE)
#error "Kavlix: this program is a UNICODE program but links Kavlix::Kavlix. Link Kavlix::KavlixU."
#endif
#if defined(KAVLIX_WIDE) && !defined(UNICODE)
#error "Kavlix: this program undefines UNICODE but links Kavlix::KavlixU. Link Kavlix::Kavlix."
#endif
// Versions of the MFC interface above 4.2 have a static build. Kavlix is an extension DLL and shares the DLL of the
// class library with its host.
#if defined(_MFC_VER) && _MFC_VER >= 0x0600 && !defined(_AFXDLL)
#error                                                                                                       \
    "Kavlix: use MFC in a shared DLL (_AFXDLL; in CMake CMAKE_MFC_FLAG 2). The static MFC cannot be used with it."
#endif

// ---- Linkage ----

// Building the DLL (KAVLIX_BUILD) exports the declarations; a host imports them.
#if defined(KAVLIX_BUILD)
#define KAVLIX_API __declspec(dllexport)
#else
#define KAVLIX_API __declspec(dllimport)
#endif

// ---- Headers ----

/// Compares what a host was compiled with to the DLL that it has loaded: the size of an exported class in the host,
/// and the KAVLIX_VERSION of the host's headers. The DLL accepts headers of its own major version whose minor version
/// is not newer. When they do not fit, or a size differs, a message box says so, and the process ends with the exit
/// code 1306 (ERROR_REVISION_MISMATCH), without running the program's clean-up code. The result is always true.
///
/// The function keeps its name and its parameters in all versions.
extern "C" KAVLIX_API bool __cdecl KavlixCheckHost(const char* pszClass, unsigned int nSize,
                                                   unsigned int nVersion);

// KAVLIX_CHECK_HOST(class) stands after an exported class: the host calls KavlixCheckHost before its main function,
// and before its own global objects that follow the header. A host that loads the DLL later than that (/DELAYLOAD),
// and a host that is a DLL itself and must not end the process, define KAVLIX_NO_HOST_CHECK.
#if defined(KAVLIX_BUILD) || defined(KAVLIX_NO_HOST_CHECK)
#define KAVLIX_CHECK_HOST(class_name)
#else
#define KAVLIX_CHECK_HOST(class_name)                                                                        \
    namespace kavlix {                                                                                       \
    namespace host_check {                                                                                   \
    inline const bool class_name##Fits =                                                                     \
        ::KavlixCheckHost(#class_name, static_cast<unsigned int>(sizeof(::class_name)), KAVLIX_VERSION);     \
    }                                                                                                        \
    }
#endif
