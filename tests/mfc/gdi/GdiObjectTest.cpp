// CGdiObject and its classes: ownership, wrappers of handles, threads, fonts measured in points.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

#include "tests/mfc/Refusal.h"

namespace {

bool IsAlive(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

struct MadeObject {
    const char* name;
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
        objects = {{"pen", ::CreatePen(PS_SOLID, 3, 0), RUNTIME_CLASS(CPen)},
                   {"extended pen", ::ExtCreatePen(PS_GEOMETRIC, 5, &solid, 0, nullptr), RUNTIME_CLASS(CPen)},
                   {"brush", ::CreateSolidBrush(0), RUNTIME_CLASS(CBrush)},
                   {"font", ::CreateFontIndirect(&font), RUNTIME_CLASS(CFont)},
                   {"bitmap", ::CreateBitmap(2, 2, 1, 1, nullptr), RUNTIME_CLASS(CBitmap)},
                   {"palette", ::CreatePalette(&palette), RUNTIME_CLASS(CPalette)},
                   {"region", ::CreateRectRgn(0, 0, 1, 1), RUNTIME_CLASS(CRgn)}};
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
        EXPECT_EQ(nullptr, second.m_hObject);
        EXPECT_EQ(nullptr, second.Detach());
    }
    EXPECT_FALSE(IsAlive(owned));
    ASSERT_TRUE(IsAlive(detached));

    CBrush third;
    EXPECT_FALSE(third.Attach(nullptr));
    EXPECT_TRUE(third.Attach(detached));
    EXPECT_EQ(&third, CGdiObject::FromHandle(detached));
    EXPECT_TRUE(third.DeleteObject());
    EXPECT_FALSE(IsAlive(detached));
    EXPECT_FALSE(third.DeleteObject()) << "there is nothing left to delete";
    EXPECT_FALSE(third.CreatePatternBrush(nullptr)) << "the two-step form answers, the constructor throws";
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
        SCOPED_TRACE(object.name);
        ASSERT_NE(nullptr, object.handle);
        CGdiObject* const temporary = CGdiObject::FromHandle(object.handle);
        ASSERT_NE(nullptr, temporary);
        EXPECT_EQ(object.realClass, temporary->GetRuntimeClass());
        EXPECT_EQ(object.handle, temporary->m_hObject);
        EXPECT_EQ(temporary, CGdiObject::FromHandle(object.handle)) << "asked again within the same message";
    }
    const auto pen = static_cast<HPEN>(handles.objects[0].handle);
    EXPECT_EQ(CPen::FromHandle(pen), CGdiObject::FromHandle(pen));
    // A handle of another kind gives NULL.
    EXPECT_EQ(nullptr, CBrush::FromHandle(reinterpret_cast<HBRUSH>(pen)));
    EXPECT_EQ(nullptr, CFont::FromHandle(reinterpret_cast<HFONT>(pen)));
    EXPECT_EQ(nullptr, CPen::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CGdiObject::FromHandle(nullptr));

    AfxDeleteTempGdiMaps();
    for (const MadeObject& object : handles.objects)
        EXPECT_TRUE(IsAlive(object.handle)) << object.name << ": the end of a wrapper destroyed its handle";
    EXPECT_EQ(pen, CPen::FromHandle(pen)->Detach());
    EXPECT_EQ(pen, CPen::FromHandle(pen)->m_hObject) << "a wrapper that let go is filled again";
    // GDI reuses the numbers of deleted handles, often for objects of another kind.
    for (int round = 0; round < 200; ++round) {
        HGDIOBJ const first = ::CreatePen(PS_SOLID, 1, 0);
        ASSERT_TRUE(CGdiObject::FromHandle(first)->IsKindOf(RUNTIME_CLASS(CPen)));
        ::DeleteObject(first);
        HGDIOBJ const second = ::CreateFont(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
        ASSERT_TRUE(CGdiObject::FromHandle(second)->IsKindOf(RUNTIME_CLASS(CFont)));
        ::DeleteObject(second);
    }
    AfxDeleteTempGdiMaps();
}

TEST(GdiObject, PermanentObjectWinsUnlessItsClassIsTooGeneral) {
    class CNamedPen : public CPen {};
    CNamedPen named;
    ASSERT_TRUE(named.CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
    EXPECT_EQ(&named, CPen::FromHandle(named));

    CGdiObject general;
    ASSERT_TRUE(general.Attach(::CreatePen(PS_SOLID, 1, 0)));
    const auto handle = static_cast<HPEN>(general.m_hObject);
    EXPECT_EQ(&general, CGdiObject::FromHandle(handle));
    CPen* const asPen = CPen::FromHandle(handle);
    ASSERT_NE(nullptr, asPen);
    EXPECT_EQ(RUNTIME_CLASS(CPen), asPen->GetRuntimeClass());
    LOGPEN record{};
    EXPECT_EQ(static_cast<int>(sizeof(record)), asPen->GetLogPen(&record));
    AfxDeleteTempGdiMaps();
    EXPECT_TRUE(IsAlive(handle));
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
    EXPECT_EQ(-pixels, height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, "Arial"); }));
    EXPECT_STREQ("Arial", record.lfFaceName);

    // Thirty logical units to a pixel, with y upwards and a moved origin: only the scale may count.
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(kUnitsPerPixel, kUnitsPerPixel);
    dc.SetViewportExt(1, -1);
    dc.SetViewportOrg(17, 230);
    dc.SetWindowOrg(-400, 900);
    EXPECT_EQ(-pixels * kUnitsPerPixel,
              height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, "Arial", &dc); }));
    LOGFONT asked = record;
    asked.lfHeight = kTenthsOfPoint;
    asked.lfWeight = FW_BOLD;
    EXPECT_EQ(-pixels * kUnitsPerPixel,
              height([&](CFont& font) { return font.CreatePointFontIndirect(&asked, &dc); }));
    EXPECT_EQ(FW_BOLD, record.lfWeight);

    const std::string longName(100, 'x');
    height([&](CFont& font) { return font.CreatePointFont(kTenthsOfPoint, longName.c_str()); });
    EXPECT_EQ(std::string(LF_FACESIZE - 1, 'x'), record.lfFaceName);
}

TEST(GdiObject, RegionsCombineAndCompare) {
    CRgn left, right, both;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10) && right.CreateRectRgn(20, 0, 30, 10));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(COMPLEXREGION, both.CombineRgn(&left, &right, RGN_OR));
    EXPECT_TRUE(both.PtInRegion(CPoint(29, 9)) && !both.PtInRegion(15, 5));
    EXPECT_EQ(SIMPLEREGION, both.CopyRgn(&right));
    EXPECT_TRUE(both.EqualRgn(&right) && !both.EqualRgn(&left));
    EXPECT_EQ(ERROR, both.CombineRgn(nullptr, nullptr, RGN_OR));
}

} // namespace
