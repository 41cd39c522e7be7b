// SPDX-License-Identifier: MIT
// Runs of KavlixMonitor.exe: output, exit status and saved pictures.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "monitor/GraphSettings.h"
#include "monitor/TextConversion.h"
#include "tests/support/TempFolder.h"

#include <objidl.h>
namespace Gdiplus {
using std::max, std::min;
} // namespace Gdiplus
#include <gdiplus.h>

namespace kavlix::test {
namespace {

using monitor::ToText, testkit::TempFolder;

/// The result of a run of KavlixMonitor.exe.
struct MonitorRun {
    unsigned status = 999; ///< 999: it did not start, or did not end in time and was stopped
    std::string output;
    std::string error;
};

/// A decoded picture.
struct Picture {
    int width = 0; ///< 0: the file is no picture
    int height = 0;
    std::vector<std::uint32_t> pixels; ///< 0xRRGGBB, rows from the top

    /// Number of pixels of this colour.
    int Count(std::uint32_t rgb) const {
        return static_cast<int>(std::count(pixels.begin(), pixels.end(), rgb));
    }
    /// The smallest rectangle with all pixels of the colour.
    CRect Where(std::uint32_t rgb) const {
        CRect place(0, 0, 0, 0);
        for (int i = 0; i < static_cast<int>(pixels.size()); ++i)
            if (pixels[static_cast<std::size_t>(i)] == rgb)
                place |= CRect(CPoint(i % width, i / width), CSize(1, 1));
        return place;
    }
};

constexpr DWORD kPatience = 90'000; // milliseconds; a loaded machine may take long

/// A new file whose handle a child process inherits.
HANDLE OpenForProgram(const std::string& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return CreateFile(ToText(path), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
}

std::string Content(const std::string& path) {
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::wstring CommandLine(const std::vector<std::string>& arguments) {
    WCHAR program[MAX_PATH];
    GetModuleFileName(nullptr, program, _countof(program));
    std::wstring line =
        L'"' + std::filesystem::path(program).replace_filename("KavlixMonitor.exe").wstring() + L'"';
    for (const std::string& argument : arguments)
        line += L" \"" + std::filesystem::u8path(argument).wstring() + L"\"";
    return line;
}

/// Runs the KavlixMonitor.exe in the folder of the test program and waits for its end.
MonitorRun RunMonitor(const std::vector<std::string>& arguments) {
    MonitorRun run;
    const TempFolder folder;
    const std::string output = folder.Path("output"), error = folder.Path("error");
    STARTUPINFO startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = OpenForProgram(output);
    startup.hStdError = OpenForProgram(error);
    PROCESS_INFORMATION process{};
    std::wstring line = CommandLine(arguments);
    if (!CreateProcess(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
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

/// Reads a picture file.
Picture ReadPicture(const std::string& path) {
    Picture picture;
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    {
        Gdiplus::Bitmap bitmap(std::filesystem::u8path(path).c_str());
        const Gdiplus::Rect all(0, 0, static_cast<INT>(bitmap.GetWidth()),
                                static_cast<INT>(bitmap.GetHeight()));
        Gdiplus::BitmapData data;
        if (bitmap.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppRGB, &data) == Gdiplus::Ok) {
            picture.width = all.Width;
            picture.height = all.Height;
            const auto* const first = static_cast<const std::uint32_t*>(data.Scan0); // without padding
            for (int i = 0; i < all.Width * all.Height; ++i)
                picture.pixels.push_back(first[i] & 0xFFFFFF);
            bitmap.UnlockBits(&data);
        }
    }
    Gdiplus::GdiplusShutdown(token);
    return picture;
}

constexpr const char* kGood = "time,Load,\u6E29\u5EA6 \U0001F321\n"
                              "2020-01-01 00:00:00,1,20\n"
                              "2020-01-01 00:05:00,,21\n"
                              "2020-01-01 00:10:00,3,22.5\n";

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(MonitorCheck, TellsWhatFilesHoldAndEndsWithWhatWasLeftOut) {
    const TempFolder folder;
    const std::string bad =
        folder.Write("bad.csv", std::string(kGood) + "yesterday,4,5\n2020-01-01 00:20:00,5,6\n");
    const std::string good =
        folder.Write("\u0395\u03BB (\u65E5\u672C) & \u05E2\u05D1 \U0001F321 e\u0301.csv", kGood);
    const std::string none = folder.Path("\u0644\u0627.csv");
    // Longer than 260 UTF-16 units.
    const std::string deep = folder.Path(std::string(150, 'd'));
    const std::string distant = deep + '\\' + std::string(150, 'e') + "\\\u65E5.csv";
    const std::filesystem::path unlimited = L"\\\\?\\" + std::filesystem::u8path(distant).wstring();
    std::filesystem::create_directories(unlimited.parent_path());
    std::ofstream(unlimited) << kGood;
    const struct {
        std::string file;
        unsigned status;
        std::string told;
    } cases[] = {{good, 0, good + "\n  rows: 3\n"},
                 {good, 0, "series \"\u6E29\u5EA6 \U0001F321\": 3"},
                 {distant, 0, distant},
                 {bad, 1, bad + ":5:1: "},
                 {none, 2, none}};
    for (const auto& given : cases) {
        const MonitorRun run = RunMonitor({"--check", given.file});
        EXPECT_EQ(run.status, given.status) << run.output << run.error;
        EXPECT_TRUE(given.status > 0 || run.error.empty()) << run.error;
        EXPECT_TRUE(Contains(run.output, given.told)) << run.output;
    }
    for (std::filesystem::path left = unlimited; left.native().size() > deep.size();
         left = left.parent_path())
        std::filesystem::remove(left);
    const MonitorRun run = RunMonitor({"--size", "wide"});
    EXPECT_EQ(run.status, 2u);
    EXPECT_TRUE(Contains(run.error, "--size")) << run.error;
    EXPECT_TRUE(Contains(RunMonitor({"--help"}).output, "--check"));
}

/// The colour of a series in a picture.
std::uint32_t ColorOf(std::size_t series) {
    const COLORREF color = monitor::DefaultSeriesColor(series);
    return static_cast<std::uint32_t>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
}

/// A recording of `rows` rows, a minute apart; `value` gives each series' value by row.
template <class Value> std::string Csv(int rows, int series, Value value) {
    std::string text = "time";
    for (int s = 0; s < series; ++s)
        text += ",series " + std::to_string(s);
    text += "\n";
    for (int row = 0; row < rows; ++row) {
        text += std::to_string(row * 60);
        for (int s = 0; s < series; ++s)
            text += "," + std::to_string(value(row, s));
        text += "\n";
    }
    return text;
}

class MonitorPicture : public testing::Test {
protected:
    /// Runs the Monitor with these arguments and --shot; returns the saved picture and checks the
    /// exit status.
    Picture Shot(std::vector<std::string> arguments, unsigned status = 0) {
        const std::string shot = m_folder.Path("\u0395\u03BB \u65E5\u672C \u05E2\u05D1 \U0001F321.png");
        arguments.insert(arguments.end(), {"--shot", shot});
        m_run = RunMonitor(arguments);
        EXPECT_EQ(m_run.status, status) << m_run.error;
        return ReadPicture(shot);
    }

    TempFolder m_folder;
    MonitorRun m_run; ///< the last
};

TEST_F(MonitorPicture, ShowsEveryStyleInTheSizeAskedFor) {
    const auto wave = [](int row, int series) {
        return 50 + 20 * series + 15 * std::sin(row / 20.0 + series);
    };
    const std::string first = m_folder.Write("first.csv", Csv(500, 1, wave));
    const std::string second =
        m_folder.Write("second.csv", Csv(500, 2, [&](int row, int s) { return wave(row, s + 1); }));
    const struct {
        const char* style;
        const char* size;
        int width;
        int height;
        int series; ///< drawn
    } cases[] = {{"line", "500x350", 500, 350, 3},
                 {"twoaxis", "1000x640", 1000, 640, 2},
                 {"bar", "2000x1500", 2000, 1500, 3}}; // larger than the screen
    for (const auto& given : cases) {
        SCOPED_TRACE(given.style);
        const Picture picture = Shot({first, second, "--size", given.size, "--style", given.style});
        ASSERT_EQ(picture.width, given.width);
        ASSERT_EQ(picture.height, given.height);
        for (std::size_t series = 0; series < 3; ++series)
            EXPECT_EQ(picture.Count(ColorOf(series)) > 200, static_cast<int>(series) < given.series)
                << series;
        const CRect place = picture.Where(ColorOf(0));
        EXPECT_LT(place.left, given.width / 3);
        EXPECT_GT(place.right, given.width / 2);
        EXPECT_GT(place.Height(), given.height / 12) << "the range is chosen from the values";
    }
}

TEST_F(MonitorPicture, WhatIsWrongIsToldAndTheRestIsShown) {
    const std::string recording =
        m_folder.Write("bad.csv", Csv(50, 1, [](int row, int) { return row * 1.5; }) + "no time,1\n");
    EXPECT_GT(Shot({recording}, 1).Count(ColorOf(0)), 50);
    EXPECT_NE(m_run.error.find(recording + ":52:1: "), std::string::npos) << m_run.error;
    EXPECT_GT(Shot({m_folder.Path("none.csv")}, 2).width, 0) << "the window told it: a picture of that";
    m_run = RunMonitor({recording, "--shot", m_folder.Path("no such folder\\out.png")});
    EXPECT_EQ(m_run.status, 2u);
    const std::string metafile = m_folder.Path("out.emf");
    EXPECT_EQ(RunMonitor({recording, "--shot", metafile}).status, 1u);
    EXPECT_GT(std::filesystem::file_size(std::filesystem::u8path(metafile)), 100'000u)
        << "the pixels of the window";
}

TEST_F(MonitorPicture, LiveReadingsRunAsLongAsAsked) {
    const Picture two = Shot({"--seconds", "1.5"});
    // The graph of percents is above the graph of rates.
    EXPECT_FALSE(two.Where(ColorOf(0)).IsRectEmpty());
    EXPECT_LT(two.Where(ColorOf(0)).top, two.height / 2);
    EXPECT_GT(two.Where(ColorOf(2)).top, two.height / 2);
}

} // namespace
} // namespace kavlix::test
