// Another program that uses the clipboard, for tests of what controls put there.
//
//   clipboard_reader read BASE              writes formats and text that it finds to BASE.txt, a metafile to
//                                           BASE.emf
//   clipboard_reader hold OPENED RELEASE    puts a text there and keeps the clipboard open: sets the event
//                                           OPENED, and closes when the event RELEASE is set

#include <windows.h>

#include <cstring>
#include <fstream>
#include <string>

namespace {

enum Result { kDone = 0, kBadArguments = 1, kNotOpened = 2, kNotSaved = 3, kNotReleased = 4 };

constexpr DWORD kLongestWait = 60000; // milliseconds
constexpr char kHeldText[] = "held";

/// The system's own clipboard helpers may have it open for a moment.
bool Open(HWND owner) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < kLongestWait / 6; Sleep(1))
        if (OpenClipboard(owner))
            return true;
    return false;
}

int Read(const std::string& base) {
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
        const HENHMETAFILE saved = CopyEnhMetaFileA(static_cast<HENHMETAFILE>(data), (base + ".emf").c_str());
        if (!DeleteEnhMetaFile(saved))
            result = kNotSaved;
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
    if (argc == 3 && std::strcmp(argv[1], "read") == 0)
        return Read(argv[2]);
    if (argc == 4 && std::strcmp(argv[1], "hold") == 0)
        return Hold(argv[2], argv[3]);
    return kBadArguments;
}
