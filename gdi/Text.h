#pragma once

#include <afxwin.h>

namespace kavlix {

/// Makes a font of the controls' usual kind: upright, TrueType, rotated by `escapement` tenths of a degree.
/// Result 0, `font` empty, when GDI cannot.
BOOL MakeFont(CFont& font, int height, int escapement, int weight);

/// Draws a text of the process code page at a reference point, as the DC's alignment says. At most the first
/// 8192 characters are drawn, the longest text that GDI promises to take.
void DrawTextAt(CDC& dc, int x, int y, const char* text, int length);

inline void DrawTextAt(CDC& dc, int x, int y, const CString& text) {
    DrawTextAt(dc, x, y, text, text.GetLength());
}

} // namespace kavlix
