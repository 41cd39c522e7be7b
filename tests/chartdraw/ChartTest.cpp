// SPDX-License-Identifier: MIT
// Files and handles, as the chart's tests ask for them.
#include "tests/chartdraw/ChartTest.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

Strings TempFolder::Names() const {
    Strings names;
    for (const auto& file : std::filesystem::directory_iterator(Path()))
        names.push_back(file.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

DibBitmap::DibBitmap(int width, int height, int bits) : m_stride((width * bits + 31) / 32 * 4) {
    struct {
        BITMAPINFOHEADER header = {};
        RGBQUAD colors[256] = {};
    } info;
    info.header.biSize = sizeof info.header;
    info.header.biWidth = width;
    info.header.biHeight = -height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(bits);
    for (int i = 0; i < 256; ++i)
        info.colors[i] = {static_cast<BYTE>((i & 3) * 85), static_cast<BYTE>((i >> 2 & 7) * 36),
                          static_cast<BYTE>((i >> 5) * 36), 0};
    info.colors[255] = {255, 255, 255, 0};
    void* memory = nullptr;
    bitmap.Attach(::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &memory,
                                     nullptr, 0));
    m_rows = static_cast<unsigned char*>(memory);
}

void DibBitmap::SetRow(int y, const std::vector<unsigned char>& bytes) {
    ::GdiFlush();
    std::copy(bytes.begin(), bytes.end(), m_rows + y * m_stride);
}

std::vector<unsigned char> FileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::vector<unsigned char>(std::istreambuf_iterator<char>(file), {});
}

DWORD OpenHandles() {
    DWORD count = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &count);
    return count;
}
