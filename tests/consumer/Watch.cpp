// SPDX-License-Identifier: MIT
// watch: starts a program, looks at its window from outside, and ends it. It uses nothing but Windows.
//
//   watch PICTURE.bmp RRGGBB... PROGRAM   waits until each colour is seen across the program's window, saves the window's
//                                         picture, closes the window; fails unless the program ends with status 0
//   watch --box PROGRAM                   waits for a message box, prints its text, presses its button, and prints the
//                                         program's exit status
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr DWORD kLongest = 30000; // milliseconds until a wait counts as failed
constexpr DWORD kLookAgain = 20;  // milliseconds between two looks
constexpr DWORD kSpoiled = 2;     // exit status of a program that this one had to end
constexpr int kShareOfColumns =
    3; // a line is seen when it colours 1 / kShareOfColumns of the window's columns

[[noreturn]] void Fail(const std::string& what) {
    std::printf("watch: %s\n", what.c_str());
    std::exit(1);
}

class Program {
public:
    explicit Program(std::string command) {
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        if (!CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                            &m_info))
            Fail(command + " does not start");
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() { TerminateProcess(m_info.hProcess, kSpoiled); }

    /// Looks until `seen` is true. Fails when the program ends or the time is over.
    void WaitUntil(const char* what, const std::function<bool()>& seen) {
        const ULONGLONG started = GetTickCount64();
        while (!seen()) {
            if (WaitForSingleObject(m_info.hProcess, kLookAgain) == WAIT_OBJECT_0)
                Fail(std::string("the program ended before ") + what + ", status " +
                     std::to_string(Status()));
            if (GetTickCount64() - started > kLongest) {
                TerminateProcess(m_info.hProcess, kSpoiled);
                Fail(std::string("waited in vain for ") + what);
            }
        }
    }
    DWORD StatusAtEnd() {
        if (WaitForSingleObject(m_info.hProcess, kLongest) != WAIT_OBJECT_0)
            Fail("the program does not end");
        return Status();
    }
    /// The program's visible top-level window of a class, or of any class but the message box's. NULL without one.
    HWND Window(bool box) const {
        Search search = {m_info.dwProcessId, box, nullptr};
        EnumWindows(&Program::Look, reinterpret_cast<LPARAM>(&search));
        return search.found;
    }

private:
    struct Search {
        DWORD process;
        bool box;
        HWND found;
    };

    static BOOL CALLBACK Look(HWND window, LPARAM param) {
        auto& search = *reinterpret_cast<Search*>(param);
        DWORD process = 0;
        char name[10] = "";
        GetWindowThreadProcessId(window, &process);
        GetClassNameA(window, name, sizeof name);
        const bool box = std::string(name) == "#32770";
        if (process == search.process && box == search.box && IsWindowVisible(window))
            search.found = window;
        return search.found == nullptr;
    }
    DWORD Status() const {
        DWORD status = 0;
        GetExitCodeProcess(m_info.hProcess, &status);
        return status;
    }

    PROCESS_INFORMATION m_info = {};
};

/// The pixels of a window's client area as the screen shows them.
class Picture {
public:
    explicit Picture(HWND window) {
        RECT client = {};
        POINT corner = {};
        GetClientRect(window, &client);
        ClientToScreen(window, &corner);
        m_header.biSize = sizeof m_header;
        m_header.biWidth = client.right;
        m_header.biHeight = client.bottom;
        m_header.biPlanes = 1;
        m_header.biBitCount = 32;
        void* bits = nullptr;
        const HDC screen = GetDC(nullptr);
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP bitmap = CreateDIBSection(screen, reinterpret_cast<const BITMAPINFO*>(&m_header),
                                                DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ before = SelectObject(memory, bitmap);
        if (bitmap != nullptr &&
            BitBlt(memory, 0, 0, client.right, client.bottom, screen, corner.x, corner.y, SRCCOPY)) {
            GdiFlush();
            const auto* pixels = static_cast<const DWORD*>(bits);
            m_pixels.assign(pixels, pixels + client.right * client.bottom);
        }
        SelectObject(memory, before);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(nullptr, screen);
    }

    /// Whether the colour 0xRRGGBB is in a third of the columns at least.
    bool Crosses(DWORD color) const {
        std::set<std::size_t> columns;
        for (std::size_t i = 0; i < m_pixels.size(); ++i)
            if ((m_pixels[i] & 0xFFFFFF) == color)
                columns.insert(i % static_cast<std::size_t>(m_header.biWidth));
        return !columns.empty() &&
               columns.size() * kShareOfColumns >= static_cast<std::size_t>(m_header.biWidth);
    }
    void Save(const char* path) const {
        BITMAPFILEHEADER file = {};
        file.bfType = 0x4D42; // "BM"
        file.bfOffBits = sizeof file + sizeof m_header;
        file.bfSize = static_cast<DWORD>(file.bfOffBits + m_pixels.size() * sizeof(DWORD));
        std::ofstream out(path, std::ios::binary);
        out.write(reinterpret_cast<const char*>(&file), sizeof file);
        out.write(reinterpret_cast<const char*>(&m_header), sizeof m_header);
        out.write(reinterpret_cast<const char*>(m_pixels.data()),
                  static_cast<std::streamsize>(m_pixels.size() * sizeof(DWORD)));
    }

private:
    BITMAPINFOHEADER m_header = {};
    std::vector<DWORD> m_pixels;
};

int WatchPicture(const char* path, const std::vector<DWORD>& colors, const char* command) {
    Program program(command);
    HWND window = nullptr;
    program.WaitUntil("a window", [&] { return (window = program.Window(false)) != nullptr; });
    program.WaitUntil("the lines of the chart", [&] {
        const Picture picture(window);
        picture.Save(path);
        for (const DWORD color : colors)
            if (!picture.Crosses(color))
                return false;
        return true;
    });
    PostMessageA(window, WM_CLOSE, 0, 0);
    const DWORD status = program.StatusAtEnd();
    if (status != 0)
        Fail("the program ends with status " + std::to_string(status));
    return 0;
}

int WatchBox(const char* command) {
    Program program(command);
    HWND box = nullptr, label = nullptr;
    constexpr int kTextOfBox = 0xFFFF;
    program.WaitUntil("a message box", [&] {
        box = program.Window(true);
        label = box == nullptr ? nullptr : GetDlgItem(box, kTextOfBox);
        return label != nullptr;
    });
    char text[2000] = "";
    SendMessageA(label, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    std::printf("%s\n", text);
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    std::printf("status %lu\n", program.StatusAtEnd());
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "--box")
        return WatchBox(argv[2]);
    if (argc < 4)
        Fail("usage: watch PICTURE.bmp RRGGBB... PROGRAM, or watch --box PROGRAM");
    std::vector<DWORD> colors;
    for (int i = 2; i < argc - 1; ++i)
        colors.push_back(static_cast<DWORD>(std::strtoul(argv[i], nullptr, 16)));
    return WatchPicture(argv[1], colors, argv[argc - 1]);
}
