#include "gdi/Text.h"

#include <algorithm>
#include <string>

namespace kavlix {

BOOL MakeFont(CFont& font, int height, int escapement, int weight) {
    return font.CreateFont(height, 0, escapement, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_TT_PRECIS,
                           CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

namespace {

constexpr int kLongestText = 8192;

// The single-byte calls would read a text in the font's character set; the text is in the process code page,
// which may be UTF-8.
std::wstring Widen(const char* text, int length) {
    constexpr int kMostBytesPerCharacter = 4;
    const int bytes = std::min(length, kLongestText * kMostBytesPerCharacter);
    std::wstring wide(static_cast<std::size_t>(std::max(bytes, 0)), L'\0');
    const int characters = bytes > 0 ? ::MultiByteToWideChar(CP_ACP, 0, text, bytes, wide.data(), bytes) : 0;
    wide.resize(static_cast<std::size_t>(std::min(characters, kLongestText)));
    return wide;
}

std::wstring Widen(const CString& text) {
    return Widen(text, text.GetLength());
}

} // namespace

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

CSize MeasureTextIn(CDC& dc, const CString& text, int width, UINT format) {
    const std::wstring wide = Widen(text);
    CRect rect(0, 0, width, 0);
    ::DrawTextW(dc.GetSafeHdc(), wide.c_str(), static_cast<int>(wide.size()), &rect, format | DT_CALCRECT);
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
