// KAVLIX_API: the linkage of every exported declaration.
#pragma once

// Building Kavlix.dll (KAVLIX_BUILD) exports the declarations; a host imports them.
#if defined(KAVLIX_BUILD)
#define KAVLIX_API __declspec(dllexport)
#else
#define KAVLIX_API __declspec(dllimport)
#endif
