// SPDX-License-Identifier: MIT
// CGdiObject and its classes: ownership, wrappers of handles, threads, fonts measured in points.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

#include "tests/support/Refusal.h"

namespace {

bool IsAlive(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

struct MadeObject {
    HGDIOBJ handle;
    CRuntimeClass* realClass;
};

/// One handle of each kind. No CGdiObject owns them.
class GdiHandles {
public:
    GdiHandles() {
        LOGBRUSH solid{BS_SOLID, RGB(1, 2, 3), 0};
        LOGFONT font{};
        font.lfHeight = -12;
        LOGPALETTE palette{0x300, 1, {{1, 2, 3, 0}}};
        objects = {{::CreatePen(PS_SOLID, 3, 0), RUNTIME_CLASS(CPen)},
                   {::ExtCreatePen(PS_GEOMETRIC, 5, &solid, 0, nullptr), RUNTIME_CLASS(CPen)},
                   {::CreateSolidBrush(0), RUNTIME_CLASS(CBrush)},
                   {::CreateFontIndirect(&font), RUNTIME_CLASS(CFont)},
                   {::CreateBitmap(2, 2, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
                   {::CreatePalette(&palette), RUNTIME_CLASS(CPalette)},
                   {::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)}};
    }
    ~GdiHandles() {
        for (const MadeObject& object : objects)
            ::DeleteObject(object.handle);
    }
    std::vector<MadeObject> objects;
};

TEST(GdiObject, DestructorDeletesWhatItOwnsAndOnlyThat) {
    HGDIOBJ owned = nullptr;
    HGDIOBJ detached = nullptr;
    {
        CBrush first;
        ASSERT_TRUE(first.CreateSolidBrush(RGB(10, 20, 30)));
        owned = first.m_hObject;
        CBrush second(RGB(40, 50, 60));
        detached = second.Detach();
    }
    EXPECT_FALSE(IsAlive(owned));
    ASSERT_TRUE(IsAlive(detached));

    CBrush third;
    EXPECT_TRUE(third.Attach(detached));
    EXPECT_TRUE(third.DeleteObject());
    EXPECT_FALSE(IsAlive(detached));
    EXPECT_TRUE(Throws<CResourceException>([] { CBrush brush(static_cast<CBitmap*>(nullptr)); }));
    { // a stock object outlives its owner
        CPen pen;
        ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    }
    EXPECT_TRUE(IsAlive(::GetStockObject(BLACK_PEN)));
}

TEST(GdiObject, TemporariesAreOfTheHandlesRealClass) {
    const GdiHandles handles;
    for (const MadeObject& object : handles.objects) {
        CGdiObject* const temporary = CGdiObject::FromHandle(object.handle);
        EXPECT_EQ(object.realClass, temporary->GetRuntimeClass());
        EXPECT_EQ(object.handle, temporary->m_hObject);
        EXPECT_EQ(temporary, CGdiObject::FromHandle(object.handle)) << "asked again within the same message";
    }
    const auto pen = static_cast<HPEN>(handles.objects[0].handle);
    // A handle of another kind gives NULL.
    EXPECT_EQ(nullptr, CBrush::FromHandle(reinterpret_cast<HBRUSH>(pen)));

    AfxDeleteTempGdiMaps();
    for (const MadeObject& object : handles.objects)
        EXPECT_TRUE(IsAlive(object.handle)) << "the end of a wrapper destroyed its handle";
    // GDI reuses the numbers of deleted handles, often for objects of another kind.
    for (int round = 0; round < 200; ++round) {
        HGDIOBJ const first = ::CreatePen(PS_SOLID, 1, 0);
        ASSERT_TRUE(CGdiObject::FromHandle(first)->IsKindOf(RUNTIME_CLASS(CPen)));
        ::DeleteObject(first);
        HGDIOBJ const second = ::CreateFont(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, _T("Arial"));
        ASSERT_TRUE(CGdiObject::FromHandle(second)->IsKindOf(RUNTIME_CLASS(CFont)));
        ::DeleteObject(second);
    }
    AfxDeleteTempGdiMaps();
}

TEST(GdiObject, EachThreadHasItsOwnObjects) {
    CBrush brush(RGB(1, 1, 1));
    CGdiObject* seen = nullptr;
    bool kind = false;
    std::thread([&] {
        seen = CGdiObject::FromHandle(brush.m_hObject);
        kind = seen != nullptr && seen->IsKindOf(RUNTIME_CLASS(CBrush));
    }).join();
    EXPECT_NE(&brush, seen);
    EXPECT_TRUE(kind);
    EXPECT_TRUE(IsAlive(brush)) << "the other thread's end destroyed a handle it did not own";

    std::unique_ptr<CPen> wanderer;
    std::thread([&] { wanderer = std::make_unique<CPen>(PS_SOLID, 1, RGB(0, 0, 0)); }).join();
    HGDIOBJ const handle = wanderer->m_hObject;
    wanderer.reset(); // its thread, and that thread's map, are gone
    EXPECT_FALSE(IsAlive(handle));
}

TEST(GdiObject, PointFontsAreMeasuredInTheUnitsOfTheirDC) {
    constexpr int kTenthsOfPoint = 80;
    constexpr int kUnitsPerPixel = 30;
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const int pixels = ::MulDiv(dc.GetDeviceCaps(LOGPIXELSY), kTenthsOfPoint, 720);
    LOGFONT record{};
    const auto height = [&](const auto& create) {
        CFont font;
        EXPECT_TRUE(create(font));
        EXPECT_NE(0, font.GetLogFont(&record));
        return record.lfHeight;
    };
    EXPECT_EQ(-pixels,
              height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, _T("Arial")); }));
    EXPECT_STREQ(_T("Arial"), record.lfFaceName);

    // Thirty logical units to a pixel, with y upwards and a moved origin: only the scale may count.
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(kUnitsPerPixel, kUnitsPerPixel);
    dc.SetViewportExt(1, -1);
    dc.SetViewportOrg(17, 230);
    dc.SetWindowOrg(-400, 900);
    EXPECT_EQ(-pixels * kUnitsPerPixel,
              height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, _T("Arial"), &dc); }));
    const CString longName('x', 100);
    height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, longName); });
    EXPECT_EQ(CString('x', LF_FACESIZE - 1), record.lfFaceName);
}

} // namespace
