#include "tests/support/MetafileSummary.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <vector>

// Another program that uses the clipboard, for tests of what controls put there.
//
//   clipboard_reader read BASE WIDTH HEIGHT    writes what it finds to BASE.txt; plays a metafile unscaled
//   into a
//                                              white picture of that size, whose pixels go to BASE.bits
//   clipboard_reader hold OPENED RELEASE       puts a text there and keeps the clipboard open: sets the event
//                                              OPENED, and closes when the event RELEASE is set

namespace {

enum Result { kDone = 0, kBadArguments = 1, kNotOpened = 2, kNotDrawn = 3, kNotReleased = 4 };

constexpr DWORD kLongestWait = 60000; // milliseconds
constexpr char kHeldText[] = "held";

/// The system's own clipboard helpers may have it open for a moment.
bool Open(HWND owner) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < kLongestWait / 6; Sleep(1))
        if (OpenClipboard(owner))
            return true;
    return false;
}

void WriteDescription(HENHMETAFILE picture, std::ostream& out) {
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(picture, sizeof(header), &header);
    // From the file itself: the function that returns descriptions adds zeros of its own.
    std::vector<BYTE> file(GetEnhMetaFileBits(picture, 0, nullptr));
    GetEnhMetaFileBits(picture, static_cast<UINT>(file.size()), file.data());
    out << "description ";
    for (DWORD i = 0; i < header.nDescription; ++i) {
        WCHAR character = 0;
        std::memcpy(&character, &file[header.offDescription + i * sizeof(WCHAR)], sizeof(WCHAR));
        if (character >= ' ' && character < 127)
            out << static_cast<char>(character);
        else
            out << "<" << character << ">";
    }
    out << "\n";
}

bool Play(HENHMETAFILE picture, int width, int height, const std::string& path) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (dc == nullptr || bitmap == nullptr)
        return false;
    const HGDIOBJ former = SelectObject(dc, bitmap);
    PatBlt(dc, 0, 0, width, height, WHITENESS);
    // The frame's own unit, so that a pixel of the reference device becomes a pixel exactly.
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(picture, sizeof(header), &header);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, header.szlMillimeters.cx * 100, header.szlMillimeters.cy * 100, nullptr);
    SetViewportExtEx(dc, header.szlDevice.cx, header.szlDevice.cy, nullptr);
    const RECT frame = {header.rclFrame.left, header.rclFrame.top, header.rclFrame.right,
                        header.rclFrame.bottom};
    const bool played = PlayEnhMetaFile(dc, picture, &frame) != FALSE;
    GdiFlush();
    std::ofstream(path, std::ios::binary)
        .write(static_cast<const char*>(bits), static_cast<std::streamsize>(width) * height * 4);
    SelectObject(dc, former);
    DeleteObject(bitmap);
    DeleteDC(dc);
    return played;
}

int Read(const std::string& base, int width, int height) {
    if (!Open(nullptr))
        return kNotOpened;
    std::ofstream out(base + ".txt");
    out << "formats";
    for (UINT format = EnumClipboardFormats(0); format != 0; format = EnumClipboardFormats(format))
        if (format < CF_MAX)
            out << " " << format;
    out << "\n";
    if (const HANDLE text = IsClipboardFormatAvailable(CF_TEXT) ? GetClipboardData(CF_TEXT) : nullptr)
        out << "text " << static_cast<const char*>(GlobalLock(text)) << "\n";
    int result = kDone;
    if (const HANDLE data =
            IsClipboardFormatAvailable(CF_ENHMETAFILE) ? GetClipboardData(CF_ENHMETAFILE) : nullptr) {
        const auto picture = static_cast<HENHMETAFILE>(data);
        WriteDescription(picture, out);
        out << testkit::MetafileSummary(picture);
        if (!Play(picture, width, height, base + ".bits"))
            result = kNotDrawn;
    }
    CloseClipboard();
    return result;
}

int Hold(const char* opened_name, const char* release_name) {
    const HANDLE opened = OpenEventA(EVENT_MODIFY_STATE, FALSE, opened_name);
    const HANDLE release = OpenEventA(SYNCHRONIZE, FALSE, release_name);
    const HWND owner = CreateWindowA("STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (opened == nullptr || release == nullptr || !Open(owner))
        return kNotOpened;
    EmptyClipboard();
    const HGLOBAL text = GlobalAlloc(GMEM_MOVEABLE, sizeof(kHeldText));
    std::memcpy(GlobalLock(text), kHeldText, sizeof(kHeldText));
    GlobalUnlock(text);
    SetClipboardData(CF_TEXT, text);
    SetEvent(opened);
    const DWORD released = WaitForSingleObject(release, kLongestWait);
    CloseClipboard();
    return released == WAIT_OBJECT_0 ? kDone : kNotReleased;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 5 && std::strcmp(argv[1], "read") == 0)
        return Read(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
    if (argc == 4 && std::strcmp(argv[1], "hold") == 0)
        return Hold(argv[2], argv[3]);
    return kBadArguments;
}
