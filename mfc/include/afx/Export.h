// SPDX-License-Identifier: MIT
// Import and export of the library's symbols.
#pragma once

#if __cplusplus < 201703L
#error "Kavlix: compile as C++17 (-std=c++17)."
#endif
// A program and the DLLs that it links have the same character set. The CMake targets define KAVLIX_NARROW or
// KAVLIX_WIDE.
#if defined(UNICODE) != defined(_UNICODE)
#error "Kavlix: define both UNICODE and _UNICODE (text is wchar_t), or neither (text is char)."
#endif
#if defined(KAVLIX_NARROW) && defined(UNICODE)
#error "Kavlix: this UNICODE program links the targets for char. Link those with the suffix U."
#endif
#if defined(KAVLIX_WIDE) && !defined(UNICODE)
#error "Kavlix: this program undefines UNICODE but links the targets with the suffix U. Link those without."
#endif

/// Linkage of the library's classes and functions: exported while the library is built (MFC_BUILD), imported
/// in other programs.
#if defined(MFC_BUILD)
#define MFC_API __declspec(dllexport)
#else
#define MFC_API __declspec(dllimport)
#endif
