// SPDX-License-Identifier: MIT
// Fonts and texts: drawing, measuring and cutting texts. Lengths of texts count TCHARs.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>

#include "plot/Numeric.h"

namespace kavlix {

/// Makes the font of the controls' texts: Arial, TrueType, not italic. `height` in logical units,
/// `escapement` in tenths of a degree, `weight` an FW_ constant. 0, and `font` empty, when GDI cannot make
/// the font.
BOOL MakeFont(CFont& font, int height, int escapement, int weight);

/// `text` in UTF-16.
std::wstring ToWide(LPCTSTR text, int length);

/// Length of the first `characters` characters of `text`; `length` when the text has fewer characters. A
/// character is what a reader takes for one: a code point with its combining marks, variation selectors and
/// skin tones, code points that are linked by zero-width joiners, and the two letters of a flag. A code point
/// takes several bytes in double-byte code pages and in UTF-8, and beyond the basic plane two UTF-16 units. An
/// invalid TCHAR counts as one character.
int LengthOfCharacters(LPCTSTR text, int length, int characters);
/// The largest length, at most `most`, at which `text` can be cut without cutting a character.
int WholeCharacters(LPCTSTR text, int length, int most);

/// Draws `length` TCHARs of `text` at the reference point `x`, `y`, which the DC's text alignment refers to.
/// At most kLongestText UTF-16 units are drawn; no character is cut.
void DrawTextAt(CDC& dc, int x, int y, LPCTSTR text, int length);

inline void DrawTextAt(CDC& dc, int x, int y, const CString& text) {
    DrawTextAt(dc, x, y, text, text.GetLength());
}

/// Draws `text` into `rect`, as CDC::DrawText does with the DT_ flags `format`.
void DrawTextIn(CDC& dc, CRect rect, const CString& text, UINT format);

/// Width and height of a one-line text in the DC's font, in logical units. Long texts are cut as in
/// DrawTextAt.
CSize MeasureText(const CDC& dc, LPCTSTR text, int length);

inline CSize MeasureText(const CDC& dc, const CString& text) {
    return MeasureText(dc, text, text.GetLength());
}

/// Height of a line of text in the DC's font, in logical units, at least 1.
int TextHeight(const CDC& dc);

/// The largest length, at most `most`, at which `text` can be cut without cutting a character and for which
/// `fits` is true. `fits` must be true up to some length and false beyond. 0 when not even one character fits.
int FittingLength(const CString& text, int most, const std::function<bool(int length)>& fits);

/// `text` shortened to `room` logical units in the DC's font: the whole text if it fits, otherwise its
/// beginning and three dots. Empty when not even one character and the dots fit. No character is cut.
CString Shortened(const CDC& dc, const CString& text, double room);

/// A box that contains every text of `length` TCHARs drawn at (0, 0) with the DC's font and text alignment, in
/// logical units. Faster than measuring a text, and larger than necessary.
CRect TextBox(const CDC& dc, int length);

/// Width and height of `text` when DrawTextIn draws it into `width` logical units with the same flags. With
/// DT_WORDBREAK the result is wider than `width` only when a single word is wider.
CSize MeasureTextIn(CDC& dc, const CString& text, int width, UINT format);

/// The break of a text into two lines.
struct TextBreak {
    /// Width of the wider line, logical units; 0 when there is no blank between the first and the last
    /// character of the text.
    int width = 0;
    int at = 0; ///< index of the blank at the break, which belongs to neither line
};

/// The break that makes the wider line as narrow as possible. Every blank is tried, so texts of more than
/// kLongestBroken TCHARs, which fit into no two lines beside a chart, are not broken.
constexpr int kLongestBroken = 500;
TextBreak BreakInTwo(CDC& dc, const CString& text);

} // namespace kavlix
