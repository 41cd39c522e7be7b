// The helpers themselves: a check that cannot see a planted fault would prove nothing elsewhere.

#include "tests/support/AllocationGuard.h"
#include "tests/support/DibSurface.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MetafileRecorder.h"

#include <afxwin.h>

#include <gtest/gtest.h>

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
    SelectObject(dc, CreatePen(PS_DOT, 0, RGB(0x11, 0x22, 0x33)));
    const HBRUSH brush = CreateSolidBrush(RGB(0xAA, 0xBB, 0xCC));
    const HGDIOBJ oldBrush = SelectObject(dc, brush);
    SelectObject(dc,
                 CreateFontA(350, 0, 900, 0, 700, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, DEFAULT_PITCH, "Arial"));
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
    const HGDIOBJ pen = SelectObject(dc, GetStockObject(NULL_PEN));
    Ellipse(dc, 0, 0, 10, 10);
    const HRGN fill = CreateRectRgn(2, 3, 50, 60);
    FillRgn(dc, fill, brush);
    SelectClipRgn(dc, nullptr);
    SelectObject(dc, oldBrush);
    const HGDIOBJ font = SelectObject(dc, GetStockObject(SYSTEM_FONT));
    for (HGDIOBJ object : {pen, HGDIOBJ(brush), font, HGDIOBJ(clip), HGDIOBJ(fill)})
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
    SetPixel(b.Dc(), 4, 5, RGB(255, 0, 0));
    SetPixel(b.Dc(), 6, 8, RGB(255, 0, 0));
    EXPECT_EQ(Displaced(a, b, {0, 0, 20, 10}, 1), 0) << "each a pixel away";
    SetPixel(b.Dc(), 12, 2, RGB(255, 0, 0));
    EXPECT_EQ(Displaced(a, b, {0, 0, 20, 10}, 1), 1) << "one that the other picture has nowhere near";
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
