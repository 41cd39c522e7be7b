// SPDX-License-Identifier: MIT
// Whether the tests run under Wine, and notes of what differs elsewhere.
#pragma once

#include <windows.h>

#include <cstdio>

namespace testkit {

/// Whether this program runs under Wine.
inline bool UnderWine() {
    static const bool isWine =
        ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
    return isWine;
}

/// The number of notes so far. The test program writes it at its end.
inline int notes = 0;

inline void Note(const char* file, int line, const char* message) {
    ++notes;
    std::printf("NOTE %s:%d: only seen under Wine\n%s\n", file, line, message);
}

} // namespace testkit
