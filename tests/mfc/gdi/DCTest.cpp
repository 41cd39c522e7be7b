// CDC: selected objects, output and attributes in two DCs, mapping, clips, fills and texts.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "tests/support/DibSurface.h"

namespace {

/// A DC for a picture with readable pixels. The picture owns the handle.
class PictureDC : public CDC {
public:
    explicit PictureDC(testkit::DibSurface& surface) { Attach(surface.Dc()); }
    ~PictureDC() override { Detach(); }
};

/// A memory DC with the default objects.
class MemoryDC : public CDC {
public:
    MemoryDC() { EXPECT_TRUE(CreateCompatibleDC(nullptr)); }
};

CRect ClipBox(CDC& dc) {
    CRect box;
    dc.GetClipBox(box);
    return box;
}

TEST(DC, SelectingReturnsWhatWasThere) {
    MemoryDC dc;
    CPen red(PS_SOLID, 1, RGB(255, 0, 0));
    CPen blue(PS_SOLID, 1, RGB(0, 0, 255));
    CPen* const first = dc.SelectObject(&red);
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(::GetStockObject(BLACK_PEN), first->m_hObject);
    EXPECT_EQ(&red, dc.SelectObject(&blue)) << "a permanent object comes back as itself";
    EXPECT_EQ(&blue, dc.GetCurrentPen());
    EXPECT_EQ(&blue, dc.SelectStockObject(NULL_PEN));
    EXPECT_EQ(::GetStockObject(NULL_PEN), dc.SelectObject(first)->m_hObject);

    CBrush brush(RGB(1, 2, 3));
    CFont font;
    CBitmap bitmap;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial") && bitmap.CreateBitmap(4, 4, 1, 32, nullptr));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    CFont* const oldFont = dc.SelectObject(&font);
    CBitmap* const oldBitmap = dc.SelectObject(&bitmap);
    ASSERT_TRUE(oldBrush != nullptr && oldFont != nullptr && oldBitmap != nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CBrush), oldBrush->GetRuntimeClass());

    // The overload for CGdiObject finds out the class of the handle.
    EXPECT_EQ(&brush, dc.SelectObject(static_cast<CGdiObject*>(oldBrush)));
    EXPECT_EQ(&font, dc.SelectObject(static_cast<CGdiObject*>(oldFont)));
    EXPECT_EQ(&bitmap, dc.SelectObject(static_cast<CGdiObject*>(oldBitmap)));

    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr))) << "an error, and the pen stays";
    EXPECT_EQ(first->m_hObject, dc.GetCurrentPen()->m_hObject);
    MemoryDC second;
    ASSERT_NE(nullptr, dc.SelectObject(&bitmap));
    EXPECT_EQ(nullptr, second.SelectObject(&bitmap)) << "a bitmap is in one DC at a time";
    dc.SelectObject(oldBitmap);
}

/// A CDC with different output and attribute DCs, as in a print preview.
class SplitDC : public testing::Test {
protected:
    void SetUp() override {
        m_dc.SetOutputDC(m_output);
        m_dc.SetAttribDC(m_attribute);
    }
    void TearDown() override {
        m_dc.ReleaseOutputDC();
        m_dc.ReleaseAttribDC();
    }
    MemoryDC m_output;
    MemoryDC m_attribute;
    CDC m_dc;
};

TEST_F(SplitDC, SettingsReachBothAndTheAttributeDCAnswers) {
    ::SetTextColor(m_output, RGB(1, 0, 0));
    ::SetTextColor(m_attribute, RGB(2, 0, 0));
    EXPECT_EQ(RGB(2, 0, 0), m_dc.SetTextColor(RGB(3, 0, 0)));
    EXPECT_EQ(RGB(3, 0, 0), ::GetTextColor(m_output));
    EXPECT_EQ(RGB(3, 0, 0), ::GetTextColor(m_attribute));

    CPen pen(PS_SOLID, 2, RGB(7, 7, 7));
    ASSERT_NE(nullptr, m_dc.SelectObject(&pen));
    EXPECT_EQ(pen.m_hObject, ::GetCurrentObject(m_output, OBJ_PEN));
    EXPECT_EQ(pen.m_hObject, ::GetCurrentObject(m_attribute, OBJ_PEN));
    m_dc.SelectStockObject(BLACK_PEN);

    m_dc.SetMapMode(MM_ANISOTROPIC);
    m_dc.SetWindowExt(30, 30);
    SIZE extent{};
    ::GetWindowExtEx(m_output, &extent);
    EXPECT_EQ(30, extent.cx);
    EXPECT_EQ(CSize(30, 30), m_dc.GetWindowExt());

    m_dc.MoveTo(5, 6);
    m_dc.LineTo(70, 80);
    EXPECT_EQ(CPoint(70, 80), m_dc.GetCurrentPosition()) << "lines move the position of the DC that answers";
    const POINT corners[] = {{1, 2}, {3, 4}};
    m_dc.PolylineTo(corners, 2);
    EXPECT_EQ(CPoint(3, 4), m_dc.GetCurrentPosition());
}

TEST_F(SplitDC, SavesAreRestoredTogether) {
    ::SaveDC(m_output); // the two DCs now count differently
    const int saved = m_dc.SaveDC();
    EXPECT_EQ(-1, saved);
    m_dc.SetBkColor(RGB(9, 9, 9));
    EXPECT_TRUE(m_dc.RestoreDC(saved));
    EXPECT_EQ(RGB(255, 255, 255), ::GetBkColor(m_output));
    EXPECT_EQ(RGB(255, 255, 255), ::GetBkColor(m_attribute));
}

TEST(DC, HandlesAndMaps) {
    HDC const raw = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        EXPECT_FALSE(dc.Attach(nullptr));
        ASSERT_TRUE(dc.Attach(raw));
        EXPECT_EQ(raw, dc.m_hAttribDC);
        EXPECT_EQ(&dc, CDC::FromHandle(raw));
        EXPECT_EQ(raw, dc.Detach());
        EXPECT_EQ(nullptr, dc.m_hAttribDC);
        CDC* const temporary = CDC::FromHandle(raw);
        ASSERT_NE(nullptr, temporary);
        EXPECT_NE(&dc, temporary);
        EXPECT_EQ(raw, temporary->GetSafeHdc());
        AfxDeleteTempGdiMaps();
        EXPECT_NE(0u, ::GetObjectType(raw));
        ASSERT_TRUE(dc.Attach(raw));
    }
    EXPECT_EQ(0u, ::GetObjectType(raw)) << "the destructor deletes the DC";
    EXPECT_EQ(nullptr, CDC::FromHandle(nullptr));
}

TEST(DC, ClipsAreCopiedCutAndMoved) {
    testkit::DibSurface surface(100, 80);
    PictureDC dc(surface);
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(10, 10, 50, 40));
    EXPECT_EQ(SIMPLEREGION, dc.SelectClipRgn(&region));
    region.SetRectRgn(50, 50, 60, 60);
    EXPECT_EQ(SIMPLEREGION, dc.IntersectClipRect(20, 0, 60, 30)) << "the DC holds a copy";
    EXPECT_EQ(CRect(20, 10, 50, 30), ClipBox(dc));
    EXPECT_EQ(COMPLEXREGION, dc.ExcludeClipRect(CRect(30, 15, 35, 20)));
    EXPECT_EQ(COMPLEXREGION, dc.OffsetClipRgn(CSize(1, 1)));
    EXPECT_TRUE(!dc.PtVisible(35, 20) && dc.PtVisible(CPoint(29, 17)));
    EXPECT_EQ(NULLREGION, dc.IntersectClipRect(CRect(0, 0, 1, 1)));
    EXPECT_EQ(SIMPLEREGION, dc.SelectClipRgn(&region, RGN_OR));
    EXPECT_NE(ERROR, dc.SelectClipRgn(nullptr));
    EXPECT_EQ(CRect(0, 0, 100, 80), ClipBox(dc));
    EXPECT_EQ(SIMPLEREGION, dc.SelectObject(&region)) << "selecting a region clips, too";
}

TEST(DC, MappingSettersReturnTheFormerValues) {
    MemoryDC dc;
    const int saved = dc.SaveDC();
    EXPECT_EQ(saved + 1, dc.SaveDC()) << "saved once where both DCs are one";
    EXPECT_EQ(MM_TEXT, dc.SetMapMode(MM_ANISOTROPIC));
    EXPECT_EQ(CSize(1, 1), dc.SetWindowExt(300, 200));
    EXPECT_EQ(CSize(1, 1), dc.SetViewportExt(CSize(30, -20)));
    EXPECT_EQ(CSize(300, 200), dc.ScaleWindowExt(2, 1, 1, 2));
    EXPECT_EQ(CSize(30, -20), dc.ScaleViewportExt(2, 1, 1, 1));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(CPoint(5, 50)));
    EXPECT_EQ(CPoint(5, 50), dc.OffsetViewportOrg(1, -1));
    EXPECT_EQ(CPoint(0, 0), dc.SetWindowOrg(10, 10));
    EXPECT_EQ(CPoint(10, 10), dc.OffsetWindowOrg(-10, -10));

    // 10 units a pixel across, 5 units a pixel upwards, origin at (6, 49).
    CRect rect(0, 0, 100, 100);
    dc.LPtoDP(rect);
    EXPECT_EQ(CRect(6, 49, 16, 29), rect);
    dc.DPtoLP(rect);
    EXPECT_EQ(CRect(0, 0, 100, 100), rect);
    CSize size(100, 100);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(10, 20), size) << "a size has no direction and no origin";
    dc.DPtoLP(&size);
    EXPECT_EQ(CSize(100, 100), size);
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_FALSE(dc.RestoreDC(saved));
}

TEST(DC, HundredthsOfAMillimetre) {
    MemoryDC dc;
    const int dpi = dc.GetDeviceCaps(LOGPIXELSX);
    CSize size(dpi, 2 * dc.GetDeviceCaps(LOGPIXELSY));
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(CSize(2540, 5080), size);
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(dpi, size.cx);

    dc.SetMapMode(MM_LOMETRIC); // logical units of 0.1 mm, as the device itself measures them
    size = CSize(1000, 500);
    dc.LPtoHIMETRIC(&size);
    EXPECT_NEAR(10000, size.cx, 100);
    EXPECT_NEAR(5000, size.cy, 100);
    EXPECT_EQ(MM_LOMETRIC, dc.GetMapMode());
    dc.HIMETRICtoLP(&size);
    EXPECT_NEAR(1000, size.cx, 10);
}

TEST(DC, FillsCoverExactlyTheirRectangles) {
    constexpr COLORREF kRed = RGB(255, 0, 0);
    constexpr COLORREF kBlue = RGB(0, 0, 255);
    testkit::DibSurface surface(40, 30);
    PictureDC dc(surface);
    dc.FillSolidRect(5, 6, 10, 4, kRed);
    EXPECT_EQ(40, surface.Count(kRed));
    EXPECT_EQ(CRect(5, 6, 15, 10), CRect(surface.Bounds(kRed)));
    EXPECT_EQ(kRed, dc.GetBkColor());

    dc.FillSolidRect(CRect(0, 0, 40, 30), RGB(255, 255, 255));
    dc.Draw3dRect(CRect(2, 3, 12, 9), kRed, kBlue);
    EXPECT_EQ(CRect(2, 3, 11, 8), CRect(surface.Bounds(kRed)));
    EXPECT_EQ(CRect(2, 3, 12, 9), CRect(surface.Bounds(kBlue)));
    EXPECT_EQ(9 + 5 - 1, surface.Count(kRed)) << "top without its last pixel, left without its last pixel";
    EXPECT_EQ(10 + 6 - 1, surface.Count(kBlue));

    CBrush green(RGB(0, 255, 0));
    dc.FrameRect(CRect(20, 20, 26, 24), &green);
    EXPECT_EQ(2 * 6 + 2 * 2, surface.Count(RGB(0, 255, 0)));

    testkit::DibSurface copy(40, 30);
    PictureDC target(copy);
    EXPECT_TRUE(target.BitBlt(0, 0, 40, 30, &dc, 0, 0, SRCCOPY));
    EXPECT_EQ("", testkit::Difference(surface, copy));
    EXPECT_FALSE(target.BitBlt(0, 0, 40, 30, nullptr, 0, 0, SRCCOPY));
    EXPECT_EQ(kBlue, target.GetPixel(11, 5));
    EXPECT_EQ(CLR_INVALID, target.GetPixel(-1, 0));
}

TEST(DC, HalftoneBrushIsEverySecondPixel) {
    testkit::DibSurface surface(16, 16);
    PictureDC dc(surface);
    dc.SetTextColor(RGB(0, 0, 0));
    dc.SetBkColor(RGB(255, 255, 255));
    CBrush* const brush = CDC::GetHalftoneBrush();
    ASSERT_NE(nullptr, brush);
    EXPECT_EQ(brush->m_hObject, CDC::GetHalftoneBrush()->m_hObject);
    dc.FillRect(CRect(0, 0, 16, 16), brush);
    EXPECT_EQ(128, surface.Count(RGB(0, 0, 0)));
    EXPECT_NE(surface.At(0, 0), surface.At(1, 0));
    EXPECT_NE(surface.At(0, 0), surface.At(0, 1));
}

TEST(DC, TextMembersAgreeWithOneAnother) {
    MemoryDC dc;
    const CSize extent = dc.GetTextExtent(CString("Kavlix"));
    EXPECT_GT(extent.cx, 0);
    EXPECT_EQ(extent, dc.GetTextExtent("Kavlix and more", 6));
    EXPECT_EQ(extent, dc.GetOutputTextExtent("Kavlix", 6));
    EXPECT_EQ(extent, dc.GetTabbedTextExtent("Kavlix", 6, 0, nullptr));
    CRect box(0, 0, 1000, 0);
    EXPECT_EQ(extent.cy, dc.DrawText(CString("Kavlix"), box, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX));
    EXPECT_EQ(extent.cx, box.Width());
    CString face;
    EXPECT_GT(dc.GetTextFace(face), 0);
    EXPECT_FALSE(face.IsEmpty());
}

} // namespace
