#include "gdi/Text.h"

#include <algorithm>
#include <string>

namespace kavlix {

BOOL MakeFont(CFont& font, int height, int escapement, int weight) {
    return font.CreateFont(height, 0, escapement, 0, weight, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_TT_PRECIS,
                           CLIP_LH_ANGLES, PROOF_QUALITY, DEFAULT_PITCH | FF_DONTCARE, "Arial");
}

void DrawTextAt(CDC& dc, int x, int y, const char* text, int length) {
    constexpr int kLongestText = 8192;
    constexpr int kMostBytesPerCharacter = 4;

    // The single-byte call would read the text in the font's character set; the text is in the process code
    // page, which may be UTF-8.
    const int bytes = std::min(length, kLongestText * kMostBytesPerCharacter);
    std::wstring wide(static_cast<std::size_t>(std::max(bytes, 0)), L'\0');
    const int characters = bytes > 0 ? ::MultiByteToWideChar(CP_ACP, 0, text, bytes, wide.data(), bytes) : 0;
    ::TextOutW(dc.GetSafeHdc(), x, y, wide.c_str(), std::min(characters, kLongestText));
}

} // namespace kavlix
