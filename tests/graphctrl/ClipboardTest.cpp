// What another process finds on the clipboard after a copy.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"

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
    Found() = default;
    Found(const Found&) = delete;
    Found& operator=(const Found&) = delete;
    ~Found() { ::DeleteEnhMetaFile(picture); }

    std::string text;               ///< lines "name value"
    HENHMETAFILE picture = nullptr; ///< null when no metafile is there

    /// The value of a line; "none" when there is no such line.
    std::string Line(const std::string& name) const {
        const std::size_t at = ("\n" + text).find("\n" + name + " ");
        if (at == std::string::npos)
            return "none";
        const std::size_t begin = at + name.size() + 1;
        return text.substr(begin, text.find('\n', begin) - begin);
    }
};

void ReadElsewhere(Found& found) {
    const std::string base = Folder() + "clipboard_" + std::to_string(::GetCurrentProcessId());
    const std::string texts = base + ".txt", picture = base + ".emf";
    ::DeleteFileA(texts.c_str());
    ::DeleteFileA(picture.c_str());
    EXPECT_EQ(Reader("read \"" + base + "\"").Result(), 0);
    std::ostringstream text;
    text << std::ifstream(texts).rdbuf();
    found.text = text.str();
    const HENHMETAFILE file = ::GetEnhMetaFileA(picture.c_str());
    found.picture = ::CopyEnhMetaFileA(file, nullptr);
    ::DeleteEnhMetaFile(file);
    ::DeleteFileA(texts.c_str());
    ::DeleteFileA(picture.c_str());
}

/// Bounds, frame and records of a metafile, byte by byte. The description is left out.
std::string Contents(HENHMETAFILE picture) {
    ENHMETAHEADER header = {};
    ::GetEnhMetaFileHeader(picture, sizeof(header), &header);
    std::string contents(reinterpret_cast<const char*>(&header.rclBounds), 2 * sizeof(RECTL));
    const auto append = [](HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM to) {
        // Bytes behind the end of a font's name are not initialized.
        constexpr UINT kFontBytes = offsetof(EMREXTCREATEFONTINDIRECTW, elfw.elfLogFont.lfFaceName);
        if (record->iType != EMR_HEADER)
            reinterpret_cast<std::string*>(to)->append(
                reinterpret_cast<const char*>(record),
                record->iType == EMR_EXTCREATEFONTINDIRECTW ? kFontBytes : record->nSize);
        return 1;
    };
    ::EnumEnhMetaFile(nullptr, picture, append, &contents, nullptr);
    return contents;
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
    for (int style = 0; style < 3; ++style) {
        SCOPED_TRACE(style);
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        graph.SetTitleStyle(style == 2 ? CGraphCtrl::TitleStyleCaption : CGraphCtrl::TitleStyleText);
        graph.ShowIconMaximize(TRUE, FALSE);
        graph.Redraw();
        Settle();
        const CRect client = ClientRect();
        testkit::DibSurface shown(client.Width(), client.Height());
        shown.Grab(graph.m_hWnd);

        PutText(parent.m_hWnd, "before");
        if (style == 1)
            graph.SendMessage(WM_COMMAND, ID_EDIT_COPY);
        else
            EXPECT_EQ(graph.CopyToClipboard(), 1);
        EXPECT_EQ(::GetOpenClipboardWindow(), nullptr) << "closed again";
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0") << "nothing to repaint by that";

        Found found;
        ReadElsewhere(found);
        EXPECT_NE((" " + found.Line("formats") + " ").find(" 14 "), std::string::npos) << found.text;
        EXPECT_EQ(found.Line("text"), "none") << "emptied before";
        ASSERT_NE(found.picture, nullptr);
        WCHAR description[40] = L"";
        ::GetEnhMetaFileDescriptionW(found.picture, 40, description);
        EXPECT_STREQ(description, L"Ruvex Trace");
        const auto painted = Record();
        EXPECT_TRUE(Contents(found.picture) == Contents(painted->Handle()))
            << "the one painter's records, drawn in the same frame";

        // The frame is what is drawn, which is the client area at least.
        ENHMETAHEADER header = {};
        ::GetEnhMetaFileHeader(found.picture, sizeof(header), &header);
        const CRect bounds(reinterpret_cast<const RECT&>(header.rclBounds));
        EXPECT_EQ(Text(bounds | CRect(0, 0, client.right - 1, client.bottom - 1)), Text(bounds));
        EXPECT_GE(header.nDescription, 13u) << "one zero ends the text, one the texts";

        // In the frame's own unit a pixel of the reference device becomes a pixel exactly. The player rounds
        // positions half-way between two pixels in another way than the control's mapping.
        testkit::DibSurface played(client.right, client.bottom);
        ::SetMapMode(played.Dc(), MM_ANISOTROPIC);
        ::SetWindowExtEx(played.Dc(), header.szlMillimeters.cx * 100, header.szlMillimeters.cy * 100,
                         nullptr);
        ::SetViewportExtEx(played.Dc(), header.szlDevice.cx, header.szlDevice.cy, nullptr);
        ::PlayEnhMetaFile(played.Dc(), found.picture, reinterpret_cast<const RECT*>(&header.rclFrame));
        // It plays in the advanced mode, where bars are a pixel larger.
        if (style != CGraphCtrl::GraphStyleBar) {
            EXPECT_EQ(testkit::Displaced(shown, played, CRect(0, 0, 299, 199), 1), 0);
        }
        EXPECT_GT(played.Count(graph.m_Datasets[0].m_Color), 100);
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
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(graph.CopyToClipboard(), 1) << "not detected";
        EXPECT_EQ(testkit::CountObjects(), before) << "the pictures that nobody took are gone";
        ::SetEvent(release);
        EXPECT_EQ(holder.Result(), 0);
    }
    ::CloseHandle(opened);
    ::CloseHandle(release);
    Found held, copied;
    ReadElsewhere(held);
    EXPECT_EQ(held.Line("text"), "held") << held.text;
    EXPECT_EQ(held.picture, nullptr);

    EXPECT_EQ(graph.CopyToClipboard(), 1);
    ReadElsewhere(copied);
    EXPECT_EQ(copied.Line("text"), "none");
    EXPECT_NE(copied.picture, nullptr) << "copying works again";
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
    Found found;
    ReadElsewhere(found);
    EXPECT_EQ(found.Line("text"), "kept");
}
