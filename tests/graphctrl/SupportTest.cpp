// The helpers themselves: a check that cannot see a planted fault would prove nothing elsewhere.

#include "tests/support/AllocationGuard.h"
#include "tests/support/DibSurface.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/ImportHook.h"
#include "tests/support/MessageBoxWatcher.h"
#include "tests/support/MetafileRecorder.h"
#include "tests/support/RecordingParent.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>

using namespace testkit;

TEST(SupportTest, CounterSeesEachKindOfPlantedLeak) {
    if (!CanCountGdiObjects())
        GTEST_SKIP() << "the process's GDI table cannot be read here";
    DeleteDC(CreateCompatibleDC(nullptr));
    const ObjectCounts before = CountObjects();
    EXPECT_EQ(CountObjects(), before) << "counting itself must change nothing";

    const HPEN pen = CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HFONT font = CreateFontA(20, 0, 0, 0, 400, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    const HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    const HRGN region = CreateRectRgn(0, 0, 5, 5);
    const HDC dc = CreateCompatibleDC(nullptr);
    const ObjectCounts leaking = CountObjects();
    EXPECT_EQ(leaking.pens, before.pens + 1);
    EXPECT_EQ(leaking.brushes, before.brushes + 1);
    EXPECT_EQ(leaking.fonts, before.fonts + 1);
    EXPECT_EQ(leaking.regions, before.regions + 1);
    EXPECT_EQ(leaking.bitmaps, before.bitmaps + 1);
    EXPECT_EQ(leaking.dcs, before.dcs + 1);
    DeleteDC(dc);
    for (HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(brush), HGDIOBJ(font), HGDIOBJ(bitmap), HGDIOBJ(region)})
        DeleteObject(object);
    EXPECT_EQ(CountObjects(), before);
}

TEST(SupportTest, CounterSeesPlantedWindowsAndMenus) {
    // The first window of a thread brings hidden ones of the system's along, for as long as it lives.
    const HWND first = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(first, nullptr) << "no display";
    const ObjectCounts before = CountObjects();
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    const HWND child = CreateWindowA("STATIC", "", WS_CHILD, 0, 0, 5, 5, first, nullptr, nullptr, nullptr);
    const HWND silent = CreateWindowA("STATIC", "", 0, 0, 0, 5, 5, HWND_MESSAGE, nullptr, nullptr, nullptr);
    const ObjectCounts leaking = CountObjects();
    EXPECT_EQ(leaking.menus, before.menus + 1);
    EXPECT_EQ(leaking.windows, before.windows + 3);
    for (HWND made : {window, child, silent})
        DestroyWindow(made);
    DestroyMenu(menu);
    EXPECT_EQ(CountObjects().menus, before.menus);
    EXPECT_EQ(CountObjects().windows, before.windows);
    DestroyWindow(first);
}

TEST(SupportTest, RecorderReadsBackWhatWasDrawn) {
    MetafileRecorder recorder;
    const HDC dc = recorder.Dc();
    const HPEN pen = CreatePen(PS_DOT, 0, RGB(0x11, 0x22, 0x33));
    const HBRUSH brush = CreateSolidBrush(RGB(0xAA, 0xBB, 0xCC));
    const HFONT font =
        CreateFontA(350, 0, 900, 0, 700, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, DEFAULT_PITCH, "Arial");
    const HGDIOBJ old_pen = SelectObject(dc, pen);
    const HGDIOBJ old_brush = SelectObject(dc, brush);
    const HGDIOBJ old_font = SelectObject(dc, font);
    MoveToEx(dc, 10, 20, nullptr);
    LineTo(dc, 30, 40);
    const POINT corner[] = {{0, 0}, {5, 0}, {5, 5}};
    Polyline(dc, corner, 3);
    LineTo(dc, 31, 41);
    Rectangle(dc, 10, 20, 110, 220);
    const HRGN clip = CreateRectRgn(1, 2, 200, 300);
    SelectClipRgn(dc, clip);
    SetTextColor(dc, RGB(1, 2, 3));
    SetTextAlign(dc, TA_RIGHT | TA_BOTTOM);
    TextOutA(dc, 7, 8, "abc", 3);
    SelectObject(dc, GetStockObject(NULL_PEN));
    Ellipse(dc, 0, 0, 10, 10);
    const HRGN fill = CreateRectRgn(2, 3, 50, 60);
    FillRgn(dc, fill, brush);
    SelectClipRgn(dc, nullptr);
    SelectObject(dc, old_pen);
    SelectObject(dc, old_brush);
    SelectObject(dc, old_font);
    for (HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(brush), HGDIOBJ(font), HGDIOBJ(clip), HGDIOBJ(fill)})
        DeleteObject(object);
    recorder.Close();

    const std::vector<std::string> expected = {
        "line 10,20 30,40 pen dot 0 112233",
        "line 0,0 5,0 pen dot 0 112233",
        "line 5,0 5,5 pen dot 0 112233",
        "line 30,40 31,41 pen dot 0 112233",
        "rect 10,20,110,220 pen dot 0 112233 brush AABBCC",
        "clip 1,2,200,300",
        "text 7,8 right|bottom 010203 Arial 350 bold @900 \"abc\"",
        "ellipse 0,0,10,10 pen null brush AABBCC",
        "region 2,3,50,60 brush AABBCC",
        "clip none",
    };
    EXPECT_EQ(recorder.Lines(kAll), expected);
    EXPECT_EQ(recorder.ObjectFaults(), "");
    EXPECT_EQ(recorder.ObjectsMade(), 3);
    EXPECT_EQ(recorder.FinalState().pen, MetafileState().pen);
}

TEST(SupportTest, RecorderNamesObjectsLeftBehind) {
    MetafileRecorder recorder;
    const HPEN leaked = CreatePen(PS_SOLID, 7, RGB(0, 0, 9));
    const HBRUSH selected = CreateSolidBrush(RGB(9, 0, 0));
    const HGDIOBJ old = SelectObject(recorder.Dc(), leaked);
    SelectObject(recorder.Dc(), old);
    SelectObject(recorder.Dc(), selected);
    Rectangle(recorder.Dc(), 0, 0, 9, 9);
    recorder.Close();
    EXPECT_NE(recorder.ObjectFaults().find("never deleted: solid 7 000009"), std::string::npos)
        << recorder.ObjectFaults();
    EXPECT_NE(recorder.ObjectFaults().find("still selected at the end: 090000"), std::string::npos)
        << recorder.ObjectFaults();
    DeleteObject(leaked);
    DeleteObject(selected);
}

TEST(SupportTest, PicturesAreComparedPixelByPixel) {
    DibSurface a(20, 10), b(20, 10);
    EXPECT_EQ(Difference(a, b), "");
    SetPixel(a.Dc(), 3, 4, RGB(255, 0, 0));
    SetPixel(a.Dc(), 6, 9, RGB(255, 0, 0));
    EXPECT_EQ(Difference(a, b), "2 pixels differ inside (3,4)-(7,10); first at (3,4): ff against ffffff");
    EXPECT_EQ(Difference(a, b, {0, 0, 3, 10}), "");
    EXPECT_EQ(CRect(a.Bounds(RGB(255, 0, 0))), CRect(3, 4, 7, 10));
    EXPECT_EQ(a.Columns(RGB(255, 0, 0), 0, 20), 2);
    EXPECT_EQ(a.At(20, 0), CLR_INVALID);

    SetPixel(b.Dc(), 4, 5, RGB(255, 0, 0));
    SetPixel(b.Dc(), 6, 8, RGB(255, 0, 0));
    EXPECT_EQ(Displaced(a, b, {0, 0, 20, 10}, 1), 0) << "each a pixel away";
    SetPixel(b.Dc(), 12, 2, RGB(255, 0, 0));
    EXPECT_EQ(Displaced(a, b, {0, 0, 20, 10}, 1), 1) << "one that the other picture has nowhere near";
}

TEST(SupportTest, WatcherAnswersAndNotesMessageBoxes) {
    MessageBoxWatcher watcher(IDNO);
    EXPECT_EQ(MessageBoxA(nullptr, "Go on?", "Question", MB_YESNO | MB_ICONHAND | MB_DEFBUTTON2), IDNO);
    watcher.SetAnswer(IDOK);
    EXPECT_EQ(MessageBoxA(nullptr, "Told.", "Note", MB_OK), IDOK);
    ASSERT_EQ(watcher.Boxes().size(), 2u);
    const MessageBoxWatcher::Box& question = watcher.Boxes()[0];
    EXPECT_EQ(question.text, "Go on?");
    EXPECT_EQ(question.caption, "Question");
    EXPECT_EQ(question.buttons, (std::vector<int>{IDYES, IDNO}));
    EXPECT_EQ(question.defaultButton, IDNO);
    EXPECT_EQ(question.icon, UINT(MB_ICONHAND));
    EXPECT_EQ(watcher.Boxes()[1].buttons, std::vector<int>{IDOK});
    EXPECT_EQ(watcher.Boxes()[1].icon, 0u);
}

TEST(SupportTest, GuardSeesOverrunsLeaksAndLetsAllocationsFail) {
    AllocationGuard guard;
    char* block = new char[10];
    EXPECT_EQ(guard.Live(), 1);
    EXPECT_EQ(guard.Damaged(), 0);
    lstrcpyA(block, "0123456789"); // ten characters and the end mark, one byte too many
    EXPECT_EQ(guard.Damaged(), 1);
    delete[] block;
    EXPECT_EQ(guard.Live(), 0);
    EXPECT_EQ(guard.Damaged(), 1);

    guard.FailAt(2);
    int* volatile first = new int(1);
    EXPECT_THROW(delete new int(2), CMemoryException*);
    EXPECT_TRUE(guard.Failed());
    int* volatile third = new int(3);
    delete first;
    delete third;
    EXPECT_EQ(guard.Live(), 0);
}

namespace {
DWORD WINAPI PlantedTicks() {
    return 4711;
}

/// Reads the import anew at each call: inlined, the compiler would keep the address it read first.
[[gnu::noinline]] DWORD ImportedTicks() {
    return GetTickCount();
}
} // namespace

TEST(SupportTest, ImportHookReplacesOneModulesImport) {
    char self[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, self, MAX_PATH);
    {
        ImportHook hook(self, "GetTickCount", reinterpret_cast<void*>(&PlantedTicks));
        ASSERT_TRUE(hook.Installed());
        EXPECT_EQ(ImportedTicks(), 4711u);
    }
    EXPECT_NE(ImportedTicks(), 4711u);
    EXPECT_FALSE(ImportHook(self, "NoSuchFunction", nullptr).Installed());
}

TEST(SupportTest, ParentNotesMessagesInOrder) {
    RecordingParent parent;
    ASSERT_TRUE(parent.CreateVisible(50, 50));
    parent.Forget();
    NMHDR header = {nullptr, 7, 1254};
    parent.PostMessage(WM_USER + 100, 3, 0);
    parent.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header));
    parent.SendMessage(WM_COMMAND, 0x10001, 0);
    Pump();
    EXPECT_EQ(parent.Log(),
              (std::vector<std::string>{"notify 1254 id 7", "command 0x10001", "message 1124 w=3 l=0"}));
}
