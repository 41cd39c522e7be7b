#pragma once

#include <windows.h>

#include <string>

/// Compare two texts by the byte values of their lower-case forms: -1, 0 or 1.
int AfxCompareFolded(const char* left, const char* right);

/// The text in the other case, in the code page of the process. Its length may differ. Bytes that are no
/// characters are left as they are.
std::string AfxWithCase(const std::string& text, bool upper);
