// SPDX-License-Identifier: MIT
// Import and export of the library's symbols.
#pragma once

/// Linkage of the library's classes and functions: exported while the library is built (MFC_BUILD), imported
/// in other programs.
#if defined(MFC_BUILD)
#define MFC_API __declspec(dllexport)
#else
#define MFC_API __declspec(dllimport)
#endif
