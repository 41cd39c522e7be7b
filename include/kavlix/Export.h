#pragma once

/// Linkage of everything Kavlix offers: exported while Kavlix.dll itself is built (KAVLIX_BUILD), imported by
/// hosts.
#if defined(KAVLIX_BUILD)
#define KAVLIX_API __declspec(dllexport)
#else
#define KAVLIX_API __declspec(dllimport)
#endif
