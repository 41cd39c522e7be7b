// Starts KavlixMonitor.exe, waits for its end, and decodes the picture it saved.

#include "tests/monitor/MonitorProcess.h"

#include <windows.h>

#include <algorithm>
#include <fstream>

#include <objidl.h>
namespace Gdiplus {
using std::max, std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace kavlix::test {

namespace {

constexpr DWORD kPatience = 90'000; // milliseconds; a loaded machine may take long

/// A new file whose handle a child process inherits.
HANDLE OpenForProgram(const std::string& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
}

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

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

MonitorRun RunMonitor(const std::vector<std::string>& arguments) {
    MonitorRun run;
    const TempFolder folder;
    const std::string output = folder.Path("output"), error = folder.Path("error");
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = OpenForProgram(output);
    startup.hStdError = OpenForProgram(error);
    PROCESS_INFORMATION process{};
    std::string line = CommandLine(arguments);
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                        &process))
        return run;
    DWORD status = 0;
    if (WaitForSingleObject(process.hProcess, kPatience) != WAIT_OBJECT_0)
        TerminateProcess(process.hProcess, 255);
    else if (GetExitCodeProcess(process.hProcess, &status))
        run.status = status;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    CloseHandle(startup.hStdOutput);
    CloseHandle(startup.hStdError);
    run.output = Content(output);
    run.error = Content(error);
    return run;
}

int Picture::Count(std::uint32_t rgb) const {
    return static_cast<int>(std::count(pixels.begin(), pixels.end(), rgb));
}

Picture::Place Picture::Where(std::uint32_t rgb) const {
    Place place{width, height, -1, -1};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            if (At(x, y) == rgb)
                place = {std::min(place.left, x), std::min(place.top, y), std::max(place.right, x), y};
    }
    return place;
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
