// SPDX-License-Identifier: MIT
// Handles when memory runs out: none is lost, none stays selected or taken.

#include "tests/support/AllocationGuard.h"
#include "tests/support/MemoryRule.h"
#include "tests/support/Refusal.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

using testkit::OnFailure;

struct Handles {
    Handles() {
        dc.CreateCompatibleDC(nullptr);
        brush.CreateSolidBrush(RGB(1, 2, 3));
        window.CreateEx(0, _T("STATIC"), _T(""), WS_POPUP, 0, 0, 9, 9, nullptr, nullptr);
    }
    /// What exists, and whether the brush is selected.
    std::string State() {
        std::string text;
        for (const HANDLE handle : {pen.m_hObject, font.m_hObject, region.m_hObject, HANDLE(made),
                                    HANDLE(recorder), HANDLE(menu), HANDLE(child.m_hWnd)})
            text += handle != nullptr ? '1' : '0';
        return text + (::GetCurrentObject(dc, OBJ_BRUSH) == brush.m_hObject ? "*" : "");
    }
    template <class WindowDC> bool Takes() {
        return !Throws<CResourceException>([&] { EXPECT_EQ(WindowDC(&window).GetWindow(), &window); });
    }
    bool Releases(CDC* taken) { return taken != nullptr && window.ReleaseDC(taken) != 0; }
    CDC dc, made;
    CBrush brush;
    CPen pen;
    CFont font;
    CRgn region;
    CMetaFileDC recorder;
    CMenu menu;
    CWnd window, child;
};

TEST(HandleMemory, NoHandleIsLost) {
    const int failures = testkit::ExpectMemoryRule<Handles>({
        {"pen", OnFailure::False, [](Handles& s) { return s.pen.CreatePen(PS_SOLID, 1, RGB(7, 7, 7)) != 0; }},
        {"font", OnFailure::False, [](Handles& s) { return s.font.CreatePointFont(90, _T("Arial")) != 0; }},
        {"brush in its constructor", OnFailure::False,
         [](Handles&) { return !Throws<CResourceException>([] { CBrush made(RGB(4, 5, 6)); }); }},
        {"region", OnFailure::False, [](Handles& s) { return s.region.CreateEllipticRgn(0, 0, 9, 9) != 0; }},
        {"DC", OnFailure::False, [](Handles& s) { return s.made.CreateCompatibleDC(nullptr) != 0; }},
        {"recording", OnFailure::False,
         [](Handles& s) { return s.recorder.CreateEnhanced(nullptr, nullptr, nullptr, nullptr) != 0; }},
        {"menu", OnFailure::False, [](Handles& s) { return s.menu.CreatePopupMenu() != 0; }},
        {"window's DC", OnFailure::False, [](Handles& s) { return s.Takes<CClientDC>(); }},
        {"paint's DC", OnFailure::False, [](Handles& s) { return s.Takes<CPaintDC>(); }},
        {"wrapped DC", OnFailure::False, [](Handles& s) { return s.Releases(s.window.GetDC()); }},
        {"select", OnFailure::False, [](Handles& s) { return s.dc.SelectObject(&s.brush) != nullptr; }},
        {"attach", OnFailure::Throws,
         [](Handles& s) { return s.pen.Attach(::GetStockObject(BLACK_PEN)) != 0; }},
        {"create a window", OnFailure::False,
         [](Handles& s) { return !!s.child.Create(_T("STATIC"), _T(""), WS_CHILD, CRect(), &s.window, 1); }},
        {"attach a window", OnFailure::Throws,
         [](Handles& s) { return s.child.Attach(::GetDesktopWindow()) && s.child.Detach() != nullptr; }},
    });
    EXPECT_GE(failures, 30);
}

} // namespace
