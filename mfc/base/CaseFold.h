// Lower and upper case in the code page of the process.
#pragma once

#include <windows.h>

#include <string>

/// Compares two texts by the byte values of their lower-case forms. Returns -1, 0 or 1.
int AfxCompareFolded(const char* left, const char* right);

/// Converts the text to upper or lower case in the code page of the process. The length may change. If the
/// text has bytes that are not valid in the code page, only ASCII letters are converted.
std::string AfxWithCase(const std::string& text, bool upper);
