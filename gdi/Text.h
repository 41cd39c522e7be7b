#pragma once

#include <afxwin.h>

namespace kavlix {

/// Makes a font of the controls' usual kind: upright, TrueType, rotated by `escapement` tenths of a degree.
/// Result 0, `font` empty, when GDI cannot.
BOOL MakeFont(CFont& font, int height, int escapement, int weight);

/// Characters of a text in the process code page: in double-byte code pages and in UTF-8 one takes several
/// bytes, and a combining mark belongs to the character before it. Bytes that are no character count one by
/// one.
///
/// Bytes that the first `characters` characters take; `length` when there are no more.
int BytesOfCharacters(const char* text, int length, int characters);
/// The most bytes, up to `bytes`, after which no character is cut.
int WholeCharacters(const char* text, int length, int bytes);

/// UTF-16 units that GDI promises to take of a text.
constexpr int kLongestText = 8192;

/// Draws a text of the process code page at a reference point, as the DC's alignment says. At most the first
/// kLongestText units are drawn; no character is cut.
void DrawTextAt(CDC& dc, int x, int y, const char* text, int length);

inline void DrawTextAt(CDC& dc, int x, int y, const CString& text) {
    DrawTextAt(dc, x, y, text, text.GetLength());
}

/// As CDC::DrawText with its DT_ flags, for a text of the process code page.
void DrawTextIn(CDC& dc, CRect rect, const CString& text, UINT format);

/// Width and height of one line of a text of the process code page with the DC's font, logical units; cut as
/// DrawTextAt cuts.
CSize MeasureText(const CDC& dc, const char* text, int length);

inline CSize MeasureText(const CDC& dc, const CString& text) {
    return MeasureText(dc, text, text.GetLength());
}

/// A box that a text of `length` bytes does not leave, whose reference point is 0, 0, with the DC's font and
/// alignment, logical units: found without measuring the text.
CRect TextBox(const CDC& dc, int length);

/// Width and height that DrawTextIn takes in `width` with the same flags; wider than that when a word is.
CSize MeasureTextIn(CDC& dc, const CString& text, int width, UINT format);

/// Where a text is broken into two lines.
struct TextBreak {
    int width = 0; ///< of the wider line, logical units; 0 when the text holds no blank to break at
    int at = 0;    ///< index of the blank, which belongs to neither line
};

/// The break that leaves the narrowest lines.
TextBreak BreakInTwo(CDC& dc, const CString& text);

} // namespace kavlix
