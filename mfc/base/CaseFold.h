// SPDX-License-Identifier: MIT
// Lower and upper case of CString's characters.
#pragma once

#include <afx.h>

/// Compares two texts by the values of the TCHARs of their lower-case forms. Returns -1, 0 or 1.
int AfxCompareFolded(LPCTSTR left, LPCTSTR right);

/// Converts the text to upper or lower case. The length may change in a code page. If the text has bytes that are
/// not valid in the code page, only ASCII letters are converted.
AfxText AfxWithCase(const AfxText& text, bool upper);
