// SPDX-License-Identifier: MIT
// What programs find on the clipboard after a copy.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"
#include "tests/support/SeenUnderWine.h"

#include <cstring>
#include <functional>
#include <future>
#include <thread>

namespace {

/// What the clipboard holds.
struct Found {
    Found() {
        EXPECT_TRUE(::OpenClipboard(nullptr));
        if (const HANDLE data = ::GetClipboardData(CF_TEXT))
            text = static_cast<const char*>(::GlobalLock(data));
        picture = ::CopyEnhMetaFile(static_cast<HENHMETAFILE>(::GetClipboardData(CF_ENHMETAFILE)), nullptr);
        ::CloseClipboard();
    }
    Found(const Found&) = delete;
    Found& operator=(const Found&) = delete;
    ~Found() { ::DeleteEnhMetaFile(picture); }

    std::string text;
    HENHMETAFILE picture; ///< null when no metafile is there
};

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

/// Empties the clipboard and puts a text there. `beforeClosing` runs while the clipboard is still open.
void PutText(const char* text, const std::function<void()>& beforeClosing = nullptr) {
    const HWND owner =
        ::CreateWindow(_T("STATIC"), _T(""), 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    EXPECT_TRUE(::OpenClipboard(owner));
    ::EmptyClipboard();
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, std::strlen(text) + 1);
    std::strcpy(static_cast<char*>(::GlobalLock(block)), text);
    ::GlobalUnlock(block);
    EXPECT_NE(::SetClipboardData(CF_TEXT, block), nullptr);
    if (beforeClosing)
        beforeClosing();
    ::CloseClipboard();
    ::DestroyWindow(owner);
}

HDC WINAPI NoMetafile(HDC, LPCTSTR, const RECT*, LPCTSTR) {
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

TEST_F(GraphClipboardTest, ItHoldsThePictureOfTheWindow) {
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

        PutText("before");
        if (style == 1)
            graph.SendMessage(WM_COMMAND, ID_EDIT_COPY);
        else
            EXPECT_EQ(graph.CopyToClipboard(), 1);
        EXPECT_EQ(::GetOpenClipboardWindow(), nullptr);
        EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");

        const Found found;
        EXPECT_EQ(found.text, "");
        ASSERT_NE(found.picture, nullptr);
        WCHAR description[40] = L"";
        ::GetEnhMetaFileDescriptionW(found.picture, 40, description);
        EXPECT_STREQ(description, L"Ruvex Trace");
        const auto painted = Record();
        EXPECT_TRUE(Contents(found.picture) == Contents(painted->Handle()));

        // The frame is what is drawn, which is the client area at least.
        ENHMETAHEADER header = {};
        ::GetEnhMetaFileHeader(found.picture, sizeof(header), &header);
        const CRect bounds(reinterpret_cast<const RECT&>(header.rclBounds));
        EXPECT_EQ(Text(bounds | CRect(0, 0, client.right - 1, client.bottom - 1)), Text(bounds));

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
            ONLY_SEEN_UNDER_WINE(EXPECT_EQ(testkit::Displaced(shown, played, CRect(0, 0, 299, 199), 1),
                                           0)); // the player's rounding
        }
        EXPECT_GT(played.Count(graph.m_Datasets[0].m_Color), 100);
    }
}

TEST_F(GraphClipboardTest, AClipboardHeldByAnotherProgramKeepsItsContent) {
    Fill();
    EXPECT_EQ(graph.CopyToClipboard(), 1);
    std::promise<void> opened, release;
    // The system treats another thread as it treats another program.
    std::thread holder([&] {
        PutText("held", [&] {
            opened.set_value();
            release.get_future().wait();
        });
    });
    opened.get_future().wait();
    const testkit::ObjectCounts before = testkit::CountObjects();
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(graph.CopyToClipboard(), 1) << "not detected";
    EXPECT_EQ(testkit::CountObjects(), before) << "the pictures that nobody took are gone";
    release.set_value();
    holder.join();
    const Found held;
    EXPECT_EQ(held.text, "held");
    EXPECT_EQ(held.picture, nullptr);
    EXPECT_EQ(graph.CopyToClipboard(), 1);
    EXPECT_NE(Found().picture, nullptr);
}

TEST_F(GraphClipboardTest, WhatCannotBeMadeLeavesTheClipboardAlone) {
    Fill();
    PutText("kept");
    const DWORD sequence = ::GetClipboardSequenceNumber();
    CGraphCtrl windowless;
    EXPECT_EQ(windowless.CopyToClipboard(), 0);
    const testkit::ObjectCounts before = testkit::CountObjects();
    for (const bool closes : {false, true}) {
        const testkit::ImportHook hook("Kavlix.dll", closes ? "CloseEnhMetaFile" : "CreateEnhMetaFileA",
                                       closes ? reinterpret_cast<void*>(&NoPicture)
                                              : reinterpret_cast<void*>(&NoMetafile));
        ASSERT_TRUE(hook.Installed());
        EXPECT_EQ(graph.CopyToClipboard(), 0);
    }
    EXPECT_EQ(testkit::CountObjects(), before);
    EXPECT_EQ(::GetClipboardSequenceNumber(), sequence);
    EXPECT_EQ(Found().text, "kept");
}
