#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"
#include "tests/support/MetafileSummary.h"

#include <cmath>
#include <fstream>
#include <sstream>

namespace {

constexpr DWORD kLongestWait = 60000; // milliseconds

/// Waits for an object while other processes may send messages here, as the clipboard's next owner does.
bool WaitFor(HANDLE object) {
    const DWORD start = ::GetTickCount();
    while (::GetTickCount() - start < kLongestWait) {
        const DWORD reached =
            ::MsgWaitForMultipleObjects(1, &object, FALSE, kLongestWait, QS_ALLINPUT | QS_SENDMESSAGE);
        if (reached == WAIT_OBJECT_0)
            return true;
        testkit::Pump();
    }
    return false;
}

/// Folder of this program, with the separator.
std::string Folder() {
    char path[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string text = path;
    return text.substr(0, text.find_last_of('\\') + 1);
}

/// A run of the other program that uses the clipboard.
class Reader {
public:
    explicit Reader(const std::string& arguments) {
        STARTUPINFOA startup = {};
        startup.cb = sizeof(startup);
        std::string command = "\"" + Folder() + "clipboard_reader.exe\" " + arguments;
        m_started = ::CreateProcessA(nullptr, &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &startup, &m_process) != FALSE;
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() {
        if (!m_started)
            return;
        ::TerminateProcess(m_process.hProcess, 0); // of no effect on one that has ended
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    /// Waits for the program's end; its exit code, -1 when it did not start or end.
    int Result() {
        DWORD code = 0;
        if (!m_started || !WaitFor(m_process.hProcess) || !::GetExitCodeProcess(m_process.hProcess, &code))
            return -1;
        return static_cast<int>(code);
    }

private:
    PROCESS_INFORMATION m_process = {};
    bool m_started = false;
};

/// What another process finds on the clipboard.
struct Found {
    std::string text;                             ///< lines "name value"
    std::unique_ptr<testkit::DibSurface> picture; ///< null when no metafile is there

    /// The value of a line; "none" when there is no such line.
    std::string Line(const std::string& name) const {
        const std::size_t at = ("\n" + text).find("\n" + name + " ");
        if (at == std::string::npos)
            return "none";
        const std::size_t begin = at + name.size() + 1;
        return text.substr(begin, text.find('\n', begin) - begin);
    }
    /// The part that MetafileSummary writes.
    std::string Summary() const {
        const std::size_t at = text.find("bounds ");
        return at == std::string::npos ? "" : text.substr(at);
    }
};

Found ReadElsewhere(CSize size) {
    const std::string base = Folder() + "clipboard_" + std::to_string(::GetCurrentProcessId());
    const std::string texts_path = base + ".txt", pixels_path = base + ".bits";
    ::DeleteFileA(texts_path.c_str());
    ::DeleteFileA(pixels_path.c_str());
    Found found;
    Reader reader("read \"" + base + "\" " + std::to_string(size.cx) + " " + std::to_string(size.cy));
    EXPECT_EQ(reader.Result(), 0);
    {
        std::ifstream lines(texts_path);
        std::ostringstream text;
        text << lines.rdbuf();
        found.text = text.str();
        std::ifstream bits(pixels_path, std::ios::binary);
        std::vector<char> pixels(static_cast<std::size_t>(size.cx) * size.cy * 4);
        if (bits.read(pixels.data(), static_cast<std::streamsize>(pixels.size()))) {
            BITMAPINFO info = {};
            info.bmiHeader.biSize = sizeof(info.bmiHeader);
            info.bmiHeader.biWidth = size.cx;
            info.bmiHeader.biHeight = -size.cy;
            info.bmiHeader.biPlanes = 1;
            info.bmiHeader.biBitCount = 32;
            found.picture = std::make_unique<testkit::DibSurface>(size.cx, size.cy);
            ::SetDIBitsToDevice(found.picture->Dc(), 0, 0, size.cx, size.cy, 0, 0, 0, size.cy, pixels.data(),
                                &info, DIB_RGB_COLORS);
        }
    }
    ::DeleteFileA(texts_path.c_str());
    ::DeleteFileA(pixels_path.c_str());
    return found;
}

/// Empties the clipboard and puts a text there.
void PutText(HWND owner, const char* text) {
    ASSERT_TRUE(::OpenClipboard(owner));
    ::EmptyClipboard();
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::strcpy(static_cast<char*>(::GlobalLock(block)), text);
    ::GlobalUnlock(block);
    EXPECT_NE(::SetClipboardData(CF_TEXT, block), nullptr);
    ::CloseClipboard();
}

CRect Box(const std::string& text) {
    int box[4] = {};
    std::sscanf(text.c_str(), "%d,%d,%d,%d", &box[0], &box[1], &box[2], &box[3]);
    return CRect(box[0], box[1], box[2], box[3]);
}

/// Pixels of the screen in hundredths of a millimetre; a pixel is about 26.
double Hundredths(int pixels, int length, int resolution) {
    const HDC screen = ::GetDC(nullptr);
    const double result =
        100.0 * pixels * ::GetDeviceCaps(screen, length) / ::GetDeviceCaps(screen, resolution);
    ::ReleaseDC(nullptr, screen);
    return result;
}

HDC WINAPI NoMetafile(HDC, LPCSTR, const RECT*, LPCSTR) {
    return nullptr;
}
HENHMETAFILE WINAPI NoPicture(HDC dc) {
    ::DeleteEnhMetaFile(::CloseEnhMetaFile(dc));
    return nullptr;
}

class GraphClipboardTest : public GraphTest {
protected:
    void Fill() {
        Add(0, {10, 80, 35, 60, 20});
        Add(1, {90, 20, 75, 40, 55});
        graph.SetMarkerType(0, CDataset::MarkerSquare);
        graph.SetLegend(0, "zero");
        FixX(0, 4);
        HideTexts();
        graph.SetCaptionTextColor(graph.m_CaptionColor);
        graph.SetSelectionMarkPos(2);
    }
};

} // namespace

TEST_F(GraphClipboardTest, AnotherProcessFindsThePictureOfTheWindow) {
    Fill();
    const struct {
        const char* name;
        CGraphCtrl::GraphStyle style;
        CGraphCtrl::TitleStyle title;
        bool byMenu;
    } cases[] = {
        {"lines", CGraphCtrl::GraphStyleLine, CGraphCtrl::TitleStyleText, false},
        {"bars, by the menu's command", CGraphCtrl::GraphStyleBar, CGraphCtrl::TitleStyleText, true},
        {"two axes", CGraphCtrl::GraphStyleTwoAxis, CGraphCtrl::TitleStyleText, false},
        {"caption and icon, by the menu's command", CGraphCtrl::GraphStyleLine, CGraphCtrl::TitleStyleCaption,
         true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        graph.SetGraphStyle(each.style);
        graph.SetTitleStyle(each.title);
        graph.ShowIconMaximize(each.title == CGraphCtrl::TitleStyleCaption, FALSE);
        graph.Redraw();
        Settle();
        const CRect client = ClientRect();
        testkit::DibSurface shown(client.Width(), client.Height());
        shown.Grab(graph.m_hWnd);

        PutText(parent.m_hWnd, "before");
        if (each.byMenu)
            graph.SendMessage(WM_COMMAND, ID_EDIT_COPY);
        else
            EXPECT_EQ(graph.CopyToClipboard(), 1);
        EXPECT_EQ(::GetOpenClipboardWindow(), nullptr) << "closed again";
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << "nothing to repaint by that";

        const Found found = ReadElsewhere(client.Size());
        EXPECT_NE((" " + found.Line("formats") + " ").find(" 14 "), std::string::npos) << found.text;
        EXPECT_EQ(found.Line("text"), "none") << "emptied before";
        std::string description = found.Line("description");
        int zeros = 0;
        for (; description.size() > 3 && description.substr(description.size() - 3) == "<0>"; ++zeros)
            description.resize(description.size() - 3);
        EXPECT_EQ(description, "Ruvex Trace");
        EXPECT_GE(zeros, 2) << "one ends the text, one the texts";
        EXPECT_EQ(found.Line("mapping"),
                  "mode 8 window 15000,15000 window origin 0,0 viewport 500,500 viewport origin 0,0");
        const auto painted = Record();
        EXPECT_EQ(found.Summary(), testkit::MetafileSummary(painted->Handle()))
            << "the one painter's records";

        // The frame is what is drawn, which is the client area at least.
        const CRect bounds = Box(found.Line("bounds")), frame = Box(found.Line("frame"));
        CRect both;
        both.UnionRect(bounds, CRect(0, 0, client.right - 1, client.bottom - 1));
        EXPECT_EQ(Text(both), Text(bounds));
        EXPECT_NEAR(frame.left, Hundredths(bounds.left, HORZSIZE, HORZRES), 30);
        EXPECT_NEAR(frame.top, Hundredths(bounds.top, VERTSIZE, VERTRES), 30);
        EXPECT_NEAR(frame.right, Hundredths(bounds.right, HORZSIZE, HORZRES), 30);
        EXPECT_NEAR(frame.bottom, Hundredths(bounds.bottom, VERTSIZE, VERTRES), 30);

        ASSERT_NE(found.picture, nullptr);
        // The player computes positions in another arithmetic: what lies half-way between two pixels may go
        // either way. It plays in the advanced mode, where rectangles without a pen are a pixel larger; that
        // closes the gaps between bars, so bars are compared with a picture painted in that mode.
        if (each.style == CGraphCtrl::GraphStyleBar) {
            ::SetGraphicsMode(shown.Dc(), GM_ADVANCED);
            PaintInto(shown.Dc());
        }
        const CRect compared(0, 0, client.right - 1, client.bottom - 1);
        EXPECT_EQ(testkit::Displaced(shown, *found.picture, compared, 1), 0);
        EXPECT_GT(found.picture->Count(graph.m_Datasets[0].m_Color), 100);
        EXPECT_EQ(found.picture->Count(RGB(255, 0, 0)) > 0, shown.Count(RGB(255, 0, 0)) > 0) << "the mark";
    }
}

TEST_F(GraphClipboardTest, AClipboardHeldByAnotherProgramKeepsItsContent) {
    Fill();
    EXPECT_EQ(graph.CopyToClipboard(), 1);
    const std::string id = std::to_string(::GetCurrentProcessId());
    const std::string opened_name = "kavlix_opened_" + id, release_name = "kavlix_release_" + id;
    const HANDLE opened = ::CreateEventA(nullptr, TRUE, FALSE, opened_name.c_str());
    const HANDLE release = ::CreateEventA(nullptr, TRUE, FALSE, release_name.c_str());
    {
        Reader holder("hold " + opened_name + " " + release_name);
        ASSERT_TRUE(WaitFor(opened));
        const testkit::ObjectCounts before = testkit::CountObjects();
        const DWORD start = ::GetTickCount();
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(graph.CopyToClipboard(), 1) << "not detected";
        EXPECT_LT(::GetTickCount() - start, 5000u) << "it does not wait for the clipboard";
        EXPECT_EQ(testkit::CountObjects(), before) << "the pictures that nobody took are gone";
        ::SetEvent(release);
        EXPECT_EQ(holder.Result(), 0);
    }
    ::CloseHandle(opened);
    ::CloseHandle(release);
    Found found = ReadElsewhere(ClientRect().Size());
    EXPECT_EQ(found.Line("text"), "held") << found.text;
    EXPECT_EQ(found.picture, nullptr);

    EXPECT_EQ(graph.CopyToClipboard(), 1);
    found = ReadElsewhere(ClientRect().Size());
    EXPECT_EQ(found.Line("text"), "none");
    EXPECT_NE(found.picture, nullptr) << "copying works again";
}

TEST_F(GraphClipboardTest, WhatCannotBeMadeLeavesTheClipboardAlone) {
    Fill();
    PutText(parent.m_hWnd, "kept");
    const DWORD sequence = ::GetClipboardSequenceNumber();
    CGraphCtrl windowless;
    EXPECT_EQ(windowless.CopyToClipboard(), 0);
    const testkit::ObjectCounts before = testkit::CountObjects();
    {
        const testkit::ImportHook hook("Kavlix.dll", "CreateEnhMetaFileA",
                                       reinterpret_cast<void*>(&NoMetafile));
        ASSERT_TRUE(hook.Installed());
        EXPECT_EQ(graph.CopyToClipboard(), 0);
    }
    {
        const testkit::ImportHook hook("Kavlix.dll", "CloseEnhMetaFile", reinterpret_cast<void*>(&NoPicture));
        ASSERT_TRUE(hook.Installed());
        EXPECT_EQ(graph.CopyToClipboard(), 0);
    }
    EXPECT_EQ(testkit::CountObjects(), before);
    EXPECT_EQ(::GetClipboardSequenceNumber(), sequence) << "not even opened for change";
    EXPECT_EQ(ReadElsewhere(ClientRect().Size()).Line("text"), "kept");
}
