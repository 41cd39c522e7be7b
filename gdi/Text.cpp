// Texts in the process code page, converted to UTF-16 for GDI.
#include "gdi/Text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace kavlix {

BOOL MakeFont(CFont& font, int height, int escapement, int weight) {
    return font.CreateFont(height, 0, escapement, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_TT_PRECIS,
                           CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

namespace {

constexpr int kMostBytesPerCharacter = 4;

/// Whether a UTF-16 unit is a combining mark. Windows reports C3_NONSPACING for letters with a built-in
/// accent too, but then together with C3_ALPHA.
bool IsMark(wchar_t unit) {
    WORD type = 0;
    return unit >= 0x80 && ::GetStringTypeW(CT_CTYPE3, &unit, 1, &type) &&
           (type & (C3_NONSPACING | C3_ALPHA)) == C3_NONSPACING;
}

struct CodePoint {
    int bytes;
    wchar_t unit; ///< the code point's first UTF-16 unit; 0 for an invalid byte
};

/// The first code point of `text`. Its number of bytes depends on the code page, so all numbers up to
/// kMostBytesPerCharacter are tried.
CodePoint FirstCodePoint(const char* text, int length) {
    if (static_cast<unsigned char>(*text) < 0x80)
        return {1, static_cast<wchar_t>(*text)};
    wchar_t units[2] = {};
    for (int bytes = 1; bytes <= std::min(length, kMostBytesPerCharacter); ++bytes)
        if (::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text, bytes, units, 2) > 0)
            return {bytes, units[0]};
    return {1, 0};
}

/// Number of bytes of the first character of `text`, its combining marks included.
int FirstCharacter(const char* text, int length) {
    int bytes = FirstCodePoint(text, length).bytes;
    while (bytes < length) {
        const CodePoint next = FirstCodePoint(text + bytes, length - bytes);
        if (!IsMark(next.unit))
            break;
        bytes += next.bytes;
    }
    return bytes;
}

/// Number of UTF-16 units of `text` that are drawn: at most kLongestText, and no character is cut unless the
/// first one is longer.
std::size_t DrawnUnits(const std::wstring& text) {
    if (text.size() <= kLongestText)
        return text.size();
    std::size_t end = kLongestText;
    while (end > 0 && (IS_LOW_SURROGATE(text[end]) || IsMark(text[end])))
        --end;
    return end > 0 ? end : kLongestText;
}

/// `text` in UTF-16. The ANSI functions of GDI would read the text in the character set of the font, but the
/// text is in the process code page, which may be UTF-8.
std::wstring Widen(const char* text, int length) {
    const int bytes = std::min(length, (kLongestText + 1) * kMostBytesPerCharacter);
    std::wstring wide(static_cast<std::size_t>(std::max(bytes, 0)), L'\0');
    const int units = bytes > 0 ? ::MultiByteToWideChar(CP_ACP, 0, text, bytes, wide.data(), bytes) : 0;
    wide.resize(static_cast<std::size_t>(units));
    wide.resize(DrawnUnits(wide));
    return wide;
}

std::wstring Widen(const CString& text) {
    return Widen(text, text.GetLength());
}

} // namespace

int BytesOfCharacters(const char* text, int length, int characters) {
    int bytes = 0;
    for (; characters > 0 && bytes < length; --characters)
        bytes += FirstCharacter(text + bytes, length - bytes);
    return bytes;
}

int WholeCharacters(const char* text, int length, int bytes) {
    int whole = 0;
    for (int next = 0; next <= std::min(bytes, length); next += FirstCharacter(text + next, length - next)) {
        whole = next;
        if (next == length)
            break;
    }
    return whole;
}

void DrawTextAt(CDC& dc, int x, int y, const char* text, int length) {
    const std::wstring wide = Widen(text, length);
    ::TextOutW(dc.GetSafeHdc(), x, y, wide.c_str(), static_cast<int>(wide.size()));
}

void DrawTextIn(CDC& dc, CRect rect, const CString& text, UINT format) {
    const std::wstring wide = Widen(text);
    ::DrawTextW(dc.GetSafeHdc(), wide.c_str(), static_cast<int>(wide.size()), &rect, format);
}

CSize MeasureText(const CDC& dc, const char* text, int length) {
    const std::wstring wide = Widen(text, length);
    CSize size(0, 0);
    ::GetTextExtentPoint32W(dc.m_hAttribDC, wide.c_str(), static_cast<int>(wide.size()), &size);
    return size;
}

int TextHeight(const CDC& dc) {
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return std::max(static_cast<int>(metrics.tmHeight), 1);
}

int FittingBytes(const CString& text, int bytes, const std::function<bool(int bytes)>& fits) {
    const int length = text.GetLength();
    int most = 0;
    for (int tooMany = std::min(bytes, length) + 1; tooMany - most > 1;) {
        const int middle = most + (tooMany - most) / 2;
        (fits(WholeCharacters(text, length, middle)) ? most : tooMany) = middle;
    }
    return WholeCharacters(text, length, most);
}

CString Shortened(const CDC& dc, const CString& text, double room) {
    if (MeasureText(dc, text).cx <= room)
        return text;
    const auto withDots = [&text](int bytes) { return text.Left(bytes) + "..."; };
    const int bytes = FittingBytes(text, text.GetLength() - 1,
                                   [&](int bytes) { return MeasureText(dc, withDots(bytes)).cx <= room; });
    return bytes > 0 ? withDots(bytes) : CString();
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
    const std::wstring wide = Widen(text);
    CRect rect(0, 0, width, 0);
    ::DrawTextW(dc.m_hAttribDC, wide.c_str(), static_cast<int>(wide.size()), &rect, format | DT_CALCRECT);
    return rect.Size();
}

TextBreak BreakInTwo(CDC& dc, const CString& text) {
    TextBreak best;
    for (int at = text.Find(' '); at >= 0; at = text.Find(' ', at + 1)) {
        if (at == 0 || at + 1 == text.GetLength())
            continue;
        const int width = std::max(MeasureText(dc, text.Left(at)).cx, MeasureText(dc, text.Mid(at + 1)).cx);
        if (best.width == 0 || width < best.width)
            best = {width, at};
    }
    return best;
}

} // namespace kavlix
