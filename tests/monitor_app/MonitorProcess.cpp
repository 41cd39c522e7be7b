#include "tests/monitor_app/MonitorProcess.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <thread>

#include <objidl.h>
namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace kavlix::test {

namespace {

constexpr DWORD kPatience =
    90'000; // milliseconds: a loaded machine may take long, a hanging program for ever

/// One end of a pipe that a started program writes to, read by a thread so that the program never waits.
class OutputPipe {
public:
    OutputPipe() {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        if (!CreatePipe(&m_read, &m_write, &inherited, 0))
            throw std::runtime_error("no pipe");
        SetHandleInformation(m_read, HANDLE_FLAG_INHERIT, 0);
        m_reader = std::thread([this] {
            char block[4096];
            DWORD count = 0;
            while (ReadFile(m_read, block, sizeof block, &count, nullptr) && count > 0)
                m_text.append(block, count);
        });
    }
    ~OutputPipe() { Finish(); }
    OutputPipe(const OutputPipe&) = delete;
    OutputPipe& operator=(const OutputPipe&) = delete;

    HANDLE WriteEnd() const { return m_write; }

    /// Everything written, once no program holds the other end any more.
    std::string Finish() {
        if (m_reader.joinable()) {
            CloseHandle(m_write);
            m_reader.join();
            CloseHandle(m_read);
        }
        return m_text;
    }

private:
    HANDLE m_read = nullptr;
    HANDLE m_write = nullptr;
    std::thread m_reader;
    std::string m_text;
};

std::string FolderOfProgram() {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string text = path;
    return text.substr(0, text.find_last_of("\\/"));
}

std::string CommandLine(const std::vector<std::string>& arguments) {
    std::string line = "\"" + FolderOfProgram() + "\\KavlixMonitor.exe\"";
    for (const std::string& argument : arguments)
        line += " \"" + argument + "\"";
    return line;
}

} // namespace

TempFolder::TempFolder() {
    char root[MAX_PATH];
    GetTempPathA(sizeof root, root);
    static int count = 0;
    m_path =
        std::string(root) + "kavlix-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    if (!CreateDirectoryA(m_path.c_str(), nullptr))
        throw std::runtime_error("no folder " + m_path);
}

TempFolder::~TempFolder() {
    WIN32_FIND_DATAA entry;
    const HANDLE search = FindFirstFileA((m_path + "\\*").c_str(), &entry);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                DeleteFileA(Path(entry.cFileName).c_str());
        } while (FindNextFileA(search, &entry));
        FindClose(search);
    }
    RemoveDirectoryA(m_path.c_str());
}

std::string TempFolder::Write(const std::string& name, const std::string& content) const {
    const std::string path = Path(name);
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (!file)
        throw std::runtime_error("cannot write " + path);
    std::fwrite(content.data(), 1, content.size(), file);
    std::fclose(file);
    return path;
}

MonitorRun RunMonitor(const std::vector<std::string>& arguments) {
    MonitorRun run;
    OutputPipe output;
    OutputPipe error;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.WriteEnd();
    startup.hStdError = error.WriteEnd();
    PROCESS_INFORMATION process{};
    std::string line = CommandLine(arguments);
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
        return run;
    run.ended = WaitForSingleObject(process.hProcess, kPatience) == WAIT_OBJECT_0;
    if (!run.ended)
        TerminateProcess(process.hProcess, 255);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    run.status = status;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    run.output = output.Finish();
    run.error = error.Finish();
    return run;
}

int Picture::Count(std::uint32_t rgb, int fromX, int toX) const {
    int count = 0;
    const int end = toX < 0 ? width : std::min(toX, width);
    for (int y = 0; y < height; ++y) {
        for (int x = fromX; x < end; ++x)
            count += At(x, y) == rgb;
    }
    return count;
}

int Picture::TopOf(std::uint32_t rgb) const {
    const auto found = std::find(pixels.begin(), pixels.end(), rgb);
    return found == pixels.end() ? -1 : static_cast<int>((found - pixels.begin()) / width);
}

int Picture::BottomOf(std::uint32_t rgb) const {
    const auto found = std::find(pixels.rbegin(), pixels.rend(), rgb);
    return found == pixels.rend() ? -1 : height - 1 - static_cast<int>((found - pixels.rbegin()) / width);
}

int Picture::LeftOf(std::uint32_t rgb) const {
    for (int x = 0; x < width; ++x) {
        if (Count(rgb, x, x + 1) > 0)
            return x;
    }
    return -1;
}

int Picture::RightOf(std::uint32_t rgb) const {
    for (int x = width - 1; x >= 0; --x) {
        if (Count(rgb, x, x + 1) > 0)
            return x;
    }
    return -1;
}

Picture ReadPicture(const std::string& path) {
    Picture picture;
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return picture;
    {
        std::vector<WCHAR> wide(path.size() + 1);
        MultiByteToWideChar(CP_ACP, 0, path.c_str(), -1, wide.data(), static_cast<int>(wide.size()));
        Gdiplus::Bitmap bitmap(wide.data());
        const Gdiplus::Rect all(0, 0, static_cast<INT>(bitmap.GetWidth()),
                                static_cast<INT>(bitmap.GetHeight()));
        Gdiplus::BitmapData data;
        if (bitmap.GetLastStatus() == Gdiplus::Ok &&
            bitmap.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppRGB, &data) == Gdiplus::Ok) {
            picture.width = all.Width;
            picture.height = all.Height;
            for (int y = 0; y < all.Height; ++y) {
                const auto* row = reinterpret_cast<const std::uint32_t*>(
                    static_cast<const BYTE*>(data.Scan0) + static_cast<std::ptrdiff_t>(y) * data.Stride);
                for (int x = 0; x < all.Width; ++x)
                    picture.pixels.push_back(row[x] & 0xFFFFFF);
            }
            bitmap.UnlockBits(&data);
        }
    }
    Gdiplus::GdiplusShutdown(token);
    return picture;
}

} // namespace kavlix::test
