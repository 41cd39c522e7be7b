// SPDX-License-Identifier: MIT
// Makes DIB sections.
#include "gdi/Bitmap.h"

namespace kavlix {

bool Own(CGdiObject& object, HGDIOBJ made) {
    try {
        return object.Attach(made) != FALSE;
    } catch (...) {
        ::DeleteObject(made);
        throw;
    }
}

bool MakeDirectBitmap(CBitmap& bitmap, HDC dc, CSize size, void** pixels, WORD bits) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // row 0 on top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    info.bmiHeader.biCompression = BI_RGB;
    void* memory = nullptr;
    if (!Own(bitmap, ::CreateDIBSection(dc, &info, DIB_RGB_COLORS, &memory, nullptr, 0)))
        return false;
    if (pixels != nullptr)
        *pixels = memory;
    return true;
}

} // namespace kavlix
