// SPDX-License-Identifier: MIT
// The helpers themselves: a check that cannot see a planted fault would prove nothing elsewhere.

#include "tests/support/AllocationGuard.h"
#include "tests/support/GdiCounter.h"
#include "tests/support/MetafileRecorder.h"

#include <afxwin.h>

#include <gtest/gtest.h>

using namespace testkit;

TEST(SupportTest, CounterSeesEachKindOfPlantedLeak) {
    if (!CanCountGdiObjects())
        GTEST_SKIP() << "objects are not counted by kind here";
    // The first window of a thread brings hidden ones of the system's along, for as long as it lives.
    const HWND first = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    DeleteDC(CreateCompatibleDC(nullptr));
    const ObjectCounts before = CountObjects();
    const HGDIOBJ objects[] = {CreatePen(PS_SOLID, 3, RGB(1, 2, 3)), CreateSolidBrush(RGB(1, 2, 3)),
                               CreateFontA(20, 0, 0, 0, 400, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial"),
                               CreateBitmap(4, 4, 1, 1, nullptr), CreateRectRgn(0, 0, 5, 5)};
    const HDC dc = CreateCompatibleDC(nullptr);
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindowA("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    ObjectCounts leaking = before;
    for (int* count : {&leaking.pens, &leaking.brushes, &leaking.fonts, &leaking.regions, &leaking.bitmaps,
                       &leaking.dcs, &leaking.menus, &leaking.windows})
        ++*count;
    EXPECT_EQ(CountObjects(), leaking);
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteDC(dc);
    for (const HGDIOBJ object : objects)
        DeleteObject(object);
    EXPECT_EQ(CountObjects(), before);
    DestroyWindow(first);
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
    EXPECT_NE(recorder.ObjectFaults().find("never deleted: solid 7 000009"), std::string::npos);
    EXPECT_NE(recorder.ObjectFaults().find("still selected at the end: 090000"), std::string::npos);
    DeleteObject(leaked);
    DeleteObject(selected);
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

    guard.FailAt(1);
    // Not a new-expression: the compiler may leave out a block that is deleted at once.
    EXPECT_THROW(::operator delete(::operator new(4)), CMemoryException*);
    EXPECT_TRUE(guard.Failed());
    EXPECT_EQ(guard.Live(), 0);
}
