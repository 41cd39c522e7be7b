#pragma once

/// Linkage of everything the class library offers: exported while the library itself is built
/// (MFC_BUILD), imported by everybody else.
#if defined(MFC_BUILD)
#define MFC_API __declspec(dllexport)
#else
#define MFC_API __declspec(dllimport)
#endif
