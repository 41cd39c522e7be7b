// SPDX-License-Identifier: MIT
// Pictures on the clipboard and in files, and what becomes of every failure.
#include "tests/chartdraw/ChartTest.h"

#include <cstring>
#include <functional>

namespace {

BOOL WINAPI DiskFull(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
    *written = 0;
    ::SetLastError(ERROR_DISK_FULL);
    return FALSE;
}
HDC WINAPI NoMetafile(HDC, LPCTSTR, const RECT*, LPCTSTR) {
    return nullptr;
}
int WINAPI NoBits(HDC, HBITMAP, UINT, UINT, LPVOID, LPBITMAPINFO, UINT) {
    return 0;
}
HANDLE WINAPI Denied(LPCTSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE) {
    ::SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}
int g_live_blocks = 0;
HGLOBAL WINAPI CountAlloc(UINT flags, SIZE_T bytes) {
    const HGLOBAL block = ::GlobalAlloc(flags, bytes);
    g_live_blocks += block != nullptr;
    return block;
}
HGLOBAL WINAPI CountFree(HGLOBAL block) {
    --g_live_blocks;
    return ::GlobalFree(block);
}
template <class Function> void* Address(Function function) {
    return reinterpret_cast<void*>(function);
}

class ChartExportTest : public ChartTest {
protected:
    void SetUp() override {
        ChartTest::SetUp();
        Add({1, 5, 2, 8});
        chart.SetXLabel("East");
        chart.SetTitle("Title");
        const TempFolder folder;
        for (const char* name :
             {"w.bmp", "w.png", "w.emf"}) // the system loads its encoders now, before handles are counted
            chart.SaveImage(folder.Path(name).c_str());
        chart.CopyToFile(folder.Path("w2.bmp").c_str());
        chart.CopyToClipboard();
    }

    /// Runs `save` and checks that it leaves no memory block, handle or GDI object behind.
    void ExpectNothingLeft(const std::function<void()>& save) {
        const testkit::ImportHook alloc("Kavlix.dll", "GlobalAlloc", Address(&CountAlloc));
        const testkit::ImportHook free("Kavlix.dll", "GlobalFree", Address(&CountFree));
        ASSERT_TRUE(alloc.Installed() && free.Installed());
        g_live_blocks = 0;
        const testkit::ObjectCounts objects = testkit::CountObjects();
        const DWORD handles = OpenHandles();
        save();
        EXPECT_EQ(g_live_blocks, 0);
        EXPECT_EQ(OpenHandles(), handles);
        EXPECT_EQ(testkit::CountObjects(), objects);
    }
};

/// What the chart asks the file dialog for, and the dialog's answer: a name, or Cancel if
/// `g_answer` is empty.
DWORD g_flags = 0;
CString g_proposed, g_filter, g_extension, g_answer;
BOOL WINAPI AnswerDialog(LPOPENFILENAME dialog) {
    g_flags = dialog->Flags;
    g_extension = dialog->lpstrDefExt;
    g_proposed = dialog->lpstrFile;
    g_filter = dialog->lpstrFilter;
    ::lstrcpy(dialog->lpstrFile, g_answer);
    return !g_answer.IsEmpty();
}

} // namespace

TEST_F(ChartExportTest, TheFileHoldsThePictureOfTheScreen) {
    const TempFolder folder;
    const std::string path = folder.Path("chart.bmp");
    ExpectNothingLeft([&] { EXPECT_TRUE(chart.CopyToFile(path.c_str())); });
    const auto bytes = FileBytes(path);
    ASSERT_EQ(bytes.size(), 54u + 300 * 200 * 4);
    testkit::DibSurface painted(300, 200);
    PaintInto(painted);
    int wrong = 0;
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 300; ++x) {
            // The pixels stand 4 bytes too late, the bottom row first. The last pixel is missing.
            const std::size_t at =
                54 + 4 + (static_cast<std::size_t>(199 - y) * 300 + static_cast<std::size_t>(x)) * 4;
            if (at + 4 <= bytes.size())
                wrong += RGB(bytes[at + 2], bytes[at + 1], bytes[at]) != painted.At(x, y);
        }
    EXPECT_EQ(wrong, 0);
}

TEST_F(ChartExportTest, AScreenOfManyColoursNeedsNoPalette) {
    class Seen : public OpenChart {
    public:
        HGDIOBJ seen = ::GetStockObject(NULL_PEN);
        HANDLE DDBToDIB(CBitmap&, DWORD, CPalette* palette) override {
            seen = palette->GetSafeHandle();
            return nullptr;
        }
    } other;
    ASSERT_TRUE(other.Create(WS_CHILD, CRect(0, 0, 20, 20), &parent, 6));
    EXPECT_FALSE(other.CopyToFile(TempFolder().Path("none.bmp").c_str()));
    EXPECT_EQ(other.seen, nullptr);
}

TEST_F(ChartExportTest, EveryFailureHasItsResultAndLeavesNothing) {
    const TempFolder folder;
    const std::string umlauts = ::GetACP() == CP_UTF8 ? "\xC3\xA4\xC3\xB6" : "\xE4\xF6";
    const std::pair<std::string, bool> cases[] = {{folder.Path() + "\\" + umlauts, true},
                                                  {folder.Path("existing"), true},
                                                  {folder.Path(std::string(5000, 'n')), false},
                                                  {folder.Path("none\\chart"), false}};
    for (const std::string extension : {".BMP", ".png", ".emf", ".gif", ""})
        for (const auto& each : cases) {
            const std::string& name = each.first;
            const bool saved = each.second;
            const std::string path = name + extension;
            SCOPED_TRACE(path.substr(0, 200) + extension);
            const bool isPicture = saved && extension != ".gif" && !extension.empty();
            if (name == folder.Path("existing"))
                std::ofstream(path, std::ios::binary) << std::string(900000, 'x');
            const Strings before = folder.Names();
            const std::size_t size = FileBytes(path).size();
            ExpectNothingLeft([&] { EXPECT_EQ(chart.SaveImage(path.c_str()), isPicture); });
            EXPECT_EQ(isPicture, FileBytes(path).size() != size);
            EXPECT_TRUE(isPicture || folder.Names() == before) << "nothing half-written";
            ExpectNothingLeft([&] { EXPECT_EQ(chart.CopyToFile(path.c_str()), saved); });
            EXPECT_EQ(saved, FileBytes(path).size() == 54 + 300 * 200 * 4) << "an existing file is cut";
        }
}

TEST_F(ChartExportTest, AFullDiskIsReported) {
    const TempFolder folder;
    std::ofstream(folder.Path("old.png")) << "old";
    const testkit::ImportHook mfc("KavlixMfc.dll", "WriteFile", Address(&DiskFull));
    const testkit::ImportHook own("Kavlix.dll", "WriteFile", Address(&DiskFull));
    ASSERT_TRUE(mfc.Installed() && own.Installed());
    ExpectNothingLeft([&] {
        int cause = 0;
        try {
            chart.CopyToFile(folder.Path("full.bmp").c_str());
        } catch (CFileException* exception) {
            cause = exception->m_cause;
            exception->Delete();
        }
        EXPECT_EQ(cause, CFileException::diskFull);
    });
    ::DeleteFileA(folder.Path("full.bmp").c_str());
    for (const char* name : {"old.png", "new.bmp", "new.emf"})
        ExpectNothingLeft([&] { EXPECT_FALSE(chart.SaveImage(folder.Path(name).c_str())) << name; });
    EXPECT_EQ(folder.Names(), Strings{"old.png"});
    EXPECT_EQ(FileBytes(folder.Path("old.png")).size(), 3u) << "as it was";
}

TEST_F(ChartExportTest, WhatCannotBeMadeWritesNothing) {
    const TempFolder folder;
    const auto refused = [&](const char* module, const char* function, void* replacement) {
        const testkit::ImportHook hook(module, function, replacement);
        ASSERT_TRUE(hook.Installed()) << function;
        ExpectNothingLeft([&] { EXPECT_FALSE(chart.CopyToFile(folder.Path("x.bmp").c_str())) << function; });
    };
    refused("Kavlix.dll", "GetDIBits", Address(&NoBits));
    refused("KavlixMfc.dll", "CreateFileA", Address(&Denied)); // as in a folder that is read-only
    const DWORD sequence = ::GetClipboardSequenceNumber();
    {
        const testkit::ImportHook hook("Kavlix.dll", "CreateEnhMetaFileA", Address(&NoMetafile));
        ASSERT_TRUE(hook.Installed());
        ExpectNothingLeft([&] {
            EXPECT_FALSE(chart.CopyToClipboard());
            EXPECT_FALSE(chart.SaveImage(folder.Path("x.emf").c_str()));
        });
    }
    EXPECT_EQ(::GetClipboardSequenceNumber(), sequence) << "untouched";
    Resize(0, 0);
    EXPECT_FALSE(chart.CopyToFile(folder.Path("x.bmp").c_str()));
    EXPECT_FALSE(chart.SaveImage(folder.Path("x.png").c_str()));
    EXPECT_EQ(folder.Names(), Strings());
}

TEST_F(ChartExportTest, TheDialogNamesTheFile) {
    const TempFolder folder;
    const testkit::ImportHook hook("KavlixMfc.dll", "GetSaveFileNameA", Address(&AnswerDialog));
    ASSERT_TRUE(hook.Installed());
    g_answer.Empty();
    EXPECT_FALSE(chart.CopyToFile()) << "cancelled";
    EXPECT_EQ(folder.Names(), Strings());
    EXPECT_EQ(g_proposed, "Chart");
    EXPECT_EQ(g_filter, "Bitmap ");
    EXPECT_EQ(g_extension, "BMP");
    EXPECT_EQ(g_flags & (OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY),
              DWORD(OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY));
    g_answer = folder.Path("asked.bmp").c_str();
    EXPECT_TRUE(chart.CopyToFile());
    EXPECT_EQ(folder.Names(), Strings{"asked.bmp"});
}

TEST_F(ChartExportTest, ThePictureOnTheClipboard) {
    chart.replaced = "grid"; // what an override draws belongs to the picture
    EXPECT_TRUE(chart.CopyToClipboard());
    testkit::MetafileRecorder expected;
    Record(expected, [&](CDC& dc) { chart.DrawChart(dc); });

    ASSERT_TRUE(chart.OpenClipboard());
    const auto picture = static_cast<HENHMETAFILE>(::GetClipboardData(CF_ENHMETAFILE));
    ASSERT_NE(picture, nullptr);
    char text[40] = "";
    EXPECT_GE(::GetEnhMetaFileDescriptionA(picture, sizeof text, text), 13u);
    EXPECT_STREQ(text, "Ruvex Trace");
    ENHMETAHEADER header = {};
    ::GetEnhMetaFileHeader(picture, sizeof header, &header);
    CSize size(300, 200);
    CClientDC(&chart).DPtoHIMETRIC(&size);
    EXPECT_EQ(CRect(reinterpret_cast<RECT&>(header.rclFrame)), CRect(CPoint(0, 0), size));
    const auto kinds = [](HENHMETAFILE file) {
        std::vector<DWORD> types;
        ::EnumEnhMetaFile(
            nullptr, file,
            [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM list) {
                reinterpret_cast<std::vector<DWORD>*>(list)->push_back(record->iType);
                return 1;
            },
            &types, nullptr);
        return types;
    };
    EXPECT_EQ(kinds(picture), kinds(expected.Handle()));
    ::CloseClipboard();
}

TEST_F(ChartExportTest, ExportsShowTheDataOfNow) {
    chart.CalcDatas();
    chart.AddData(0, 1000, 1000);
    const TempFolder folder;
    EXPECT_TRUE(chart.SaveImage(folder.Path("now.png").c_str()));
    double min, max, step;
    chart.GetXScale(min, max, step);
    EXPECT_EQ(max, 1000);
    for (const bool isAuto : {false, true}) {
        chart.CalcDatas();
        isAuto ? chart.SetAutoYScale() : void(chart.SetYScale(0, 5));
        EXPECT_TRUE(chart.SaveImage(folder.Path("now.png").c_str()));
        chart.GetYScale(min, max, step);
        EXPECT_EQ(max, isAuto ? 1000 : 5);
    }
    Resize(200, 100);
    EXPECT_TRUE(chart.CopyToFile(folder.Path("now.bmp").c_str()));
    EXPECT_EQ(FileBytes(folder.Path("now.bmp")).size(), 54u + 200 * 100 * 4);
}
