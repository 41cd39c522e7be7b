// SPDX-License-Identifier: MIT
// Texts, which GDI gets in UTF-16.
#include "gdi/Text.h"

#include <kavlix/Characters.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace kavlix {

BOOL MakeFont(CFont& font, int height, int escapement, int weight) {
    return font.CreateFont(height, 0, escapement, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_TT_PRECIS,
                           CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, _T("Arial"));
}

namespace {

struct CodePoint {
    int length;     ///< TCHARs
    char32_t value; ///< 0 for an invalid TCHAR
};

char32_t ValueOf(const wchar_t* units) {
    constexpr char32_t kFirstBeyond = 0x10000; // the first code point that takes two UTF-16 units
    if (IS_SURROGATE_PAIR(units[0], units[1]))
        return kFirstBeyond + ((units[0] - HIGH_SURROGATE_START) << 10) + (units[1] - LOW_SURROGATE_START);
    return units[0];
}

/// The first code point of a text in UTF-16.
CodePoint FirstCodePoint(const wchar_t* text, int length) {
    const bool isPair = length > 1 && IS_SURROGATE_PAIR(text[0], text[1]);
    const wchar_t units[2] = {text[0], isPair ? text[1] : L'\0'};
    return {isPair ? 2 : 1, ValueOf(units)};
}

#ifndef _UNICODE
/// The first code point of a text in the process code page. Its number of bytes depends on the code page, so all
/// numbers up to kMostBytesPerCodePoint are tried.
CodePoint FirstCodePoint(const char* text, int length) {
    constexpr int kMostBytesPerCodePoint = 4;
    if (static_cast<unsigned char>(*text) < 0x80)
        return {1, static_cast<char32_t>(*text)};
    wchar_t units[2] = {};
    for (int bytes = 1; bytes <= std::min(length, kMostBytesPerCodePoint); ++bytes)
        if (::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text, bytes, units, 2) > 0)
            return {bytes, ValueOf(units)};
    return {1, 0};
}
#endif

/// Length of the first character of `text`.
template <class Char> int FirstCharacter(const Char* text, int length) {
    CodePoint last = FirstCodePoint(text, length);
    int end = last.length;
    bool isHalfFlag = IsRegionalIndicator(last.value);
    while (end < length) {
        const CodePoint next = FirstCodePoint(text + end, length - end);
        if (!ContinuesCharacter(last.value, next.value) && !(isHalfFlag && IsRegionalIndicator(next.value)))
            break;
        isHalfFlag = false;
        end += next.length;
        last = next;
    }
    return end;
}

template <class Char> int WholeLength(const Char* text, int length, int most) {
    int whole = 0;
    for (int next = 0; next <= std::min(most, length); next += FirstCharacter(text + next, length - next)) {
        whole = next;
        if (next == length)
            break;
    }
    return whole;
}

/// The part of `text` that is drawn, in UTF-16: GDI's functions for char would read the text in the character set of
/// the font, but the text is in the process code page, which may be UTF-8. At most kLongestText units, and no
/// character is cut unless the first one is longer.
std::wstring Drawn(LPCTSTR text, int length) {
    constexpr int kMostPerUnit = 4; // TCHARs that make one UTF-16 unit
    std::wstring wide = ToWide(text, std::min(length, (kLongestText + 1) * kMostPerUnit));
    if (wide.size() > kLongestText) {
        const int whole = WholeLength(wide.data(), static_cast<int>(wide.size()), kLongestText);
        wide.resize(static_cast<std::size_t>(whole > 0 ? whole : kLongestText));
    }
    return wide;
}

std::wstring Drawn(const CString& text) {
    return Drawn(text, text.GetLength());
}

} // namespace

std::wstring ToWide(LPCTSTR text, int length) {
#ifdef _UNICODE
    return std::wstring(text, static_cast<std::size_t>(std::max(length, 0)));
#else
    std::wstring wide(static_cast<std::size_t>(std::max(length, 0)), L'\0');
    const int units = length > 0 ? ::MultiByteToWideChar(CP_ACP, 0, text, length, wide.data(), length) : 0;
    wide.resize(static_cast<std::size_t>(units));
    return wide;
#endif
}

int LengthOfCharacters(LPCTSTR text, int length, int characters) {
    int end = 0;
    for (; characters > 0 && end < length; --characters)
        end += FirstCharacter(text + end, length - end);
    return end;
}

int WholeCharacters(LPCTSTR text, int length, int most) {
    return WholeLength(text, length, most);
}

void DrawTextAt(CDC& dc, int x, int y, LPCTSTR text, int length) {
    const std::wstring wide = Drawn(text, length);
    ::TextOutW(dc.GetSafeHdc(), x, y, wide.c_str(), static_cast<int>(wide.size()));
}

void DrawTextIn(CDC& dc, CRect rect, const CString& text, UINT format) {
    const std::wstring wide = Drawn(text);
    ::DrawTextW(dc.GetSafeHdc(), wide.c_str(), static_cast<int>(wide.size()), &rect, format);
}

CSize MeasureText(const CDC& dc, LPCTSTR text, int length) {
    const std::wstring wide = Drawn(text, length);
    CSize size(0, 0);
    ::GetTextExtentPoint32W(dc.m_hAttribDC, wide.c_str(), static_cast<int>(wide.size()), &size);
    return size;
}

int TextHeight(const CDC& dc) {
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return std::max(static_cast<int>(metrics.tmHeight), 1);
}

int FittingLength(const CString& text, int most, const std::function<bool(int length)>& fits) {
    const int length = text.GetLength();
    int fitting = 0;
    for (int tooLong = std::min(most, length) + 1; tooLong - fitting > 1;) {
        const int middle = fitting + (tooLong - fitting) / 2;
        (fits(WholeCharacters(text, length, middle)) ? fitting : tooLong) = middle;
    }
    return WholeCharacters(text, length, fitting);
}

CString Shortened(const CDC& dc, const CString& text, double room) {
    if (MeasureText(dc, text).cx <= room)
        return text;
    const auto withDots = [&text](int length) { return text.Left(length) + _T("..."); };
    const int length = FittingLength(
        text, text.GetLength() - 1, [&](int length) { return MeasureText(dc, withDots(length)).cx <= room; });
    return length > 0 ? withDots(length) : CString();
}

CRect TextBox(const CDC& dc, int length) {
    constexpr double kRadiansPerTenth = kPi / 1800;
    TEXTMETRIC metrics = {};
    LOGFONT font = {};
    dc.GetTextMetrics(&metrics);
    ::GetObject(::GetCurrentObject(dc.m_hAttribDC, OBJ_FONT), sizeof font, &font);
    // Twice the height leaves space for combining marks and for glyphs of substituted fonts.
    const double height = 2.0 * metrics.tmHeight;
    const double width = std::max<double>(metrics.tmMaxCharWidth, height) * length;
    const UINT align = dc.GetTextAlign() & TA_CENTER; // the mask of TA_LEFT, TA_RIGHT and TA_CENTER
    const double before = height + (align == TA_LEFT ? 0 : width);
    const double behind = height + (align == TA_RIGHT ? 0 : width);
    const double cosine = std::cos(font.lfEscapement * kRadiansPerTenth);
    const double sine = std::fabs(std::sin(font.lfEscapement * kRadiansPerTenth));
    // The direction of y depends on the mapping, so the box of a rotated text extends equally far up and
    // down.
    const double left = (cosine < 0 ? behind : before) * std::fabs(cosine) + height * sine + 1;
    const double right = (cosine < 0 ? before : behind) * std::fabs(cosine) + height * sine + 1;
    const double upright = std::max(before, behind) * sine + height * std::fabs(cosine) + 1;
    return CRect(ToCoordinate(-left), ToCoordinate(-upright), ToCoordinate(right), ToCoordinate(upright));
}

CSize MeasureTextIn(CDC& dc, const CString& text, int width, UINT format) {
    const std::wstring wide = Drawn(text);
    CRect rect(0, 0, width, 0);
    ::DrawTextW(dc.m_hAttribDC, wide.c_str(), static_cast<int>(wide.size()), &rect, format | DT_CALCRECT);
    return rect.Size();
}

TextBreak BreakInTwo(CDC& dc, const CString& text) {
    TextBreak best;
    const int length = text.GetLength();
    if (length > kLongestBroken)
        return best;
    for (int at = text.Find(' '); at >= 0; at = text.Find(' ', at + 1)) {
        // A blank with a combining mark is a character that stays whole.
        if (at == 0 || at + 1 == length || WholeCharacters(text, length, at + 1) != at + 1)
            continue;
        const int width = std::max(MeasureText(dc, text.Left(at)).cx, MeasureText(dc, text.Mid(at + 1)).cx);
        if (best.width == 0 || width < best.width)
            best = {width, at};
    }
    return best;
}

} // namespace kavlix
