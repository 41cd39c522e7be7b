// SPDX-License-Identifier: MIT
// CDC: selected objects, output and attributes in two DCs, mapping, clips and fills.

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

    CBrush brush(RGB(1, 2, 3));
    CFont font;
    CBitmap bitmap;
    ASSERT_TRUE(font.CreatePointFont(120, _T("Arial")) && bitmap.CreateBitmap(4, 4, 1, 32, nullptr));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    CFont* const oldFont = dc.SelectObject(&font);
    CBitmap* const oldBitmap = dc.SelectObject(&bitmap);
    // The overload for CGdiObject finds out the class of the handle.
    EXPECT_EQ(&brush, dc.SelectObject(static_cast<CGdiObject*>(oldBrush)));
    EXPECT_EQ(&font, dc.SelectObject(static_cast<CGdiObject*>(oldFont)));
    EXPECT_EQ(&bitmap, dc.SelectObject(static_cast<CGdiObject*>(oldBitmap)));

    EXPECT_EQ(nullptr, dc.SelectObject(static_cast<CPen*>(nullptr))) << "an error, and the pen stays";
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
        ASSERT_TRUE(dc.Attach(raw));
        EXPECT_EQ(&dc, CDC::FromHandle(raw));
        EXPECT_EQ(raw, dc.Detach());
        CDC* const temporary = CDC::FromHandle(raw);
        EXPECT_EQ(raw, temporary->GetSafeHdc());
        AfxDeleteTempGdiMaps();
        EXPECT_NE(0u, ::GetObjectType(raw));
        ASSERT_TRUE(dc.Attach(raw));
    }
    EXPECT_EQ(0u, ::GetObjectType(raw)) << "the destructor deletes the DC";
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
    EXPECT_NE(ERROR, dc.SelectClipRgn(nullptr));
    EXPECT_EQ(CRect(0, 0, 100, 80), ClipBox(dc));
}

TEST(DC, MappingSettersReturnTheFormerValues) {
    MemoryDC dc;
    const int saved = dc.SaveDC();
    EXPECT_EQ(saved + 1, dc.SaveDC()) << "saved once where both DCs are one";
    EXPECT_EQ(MM_TEXT, dc.SetMapMode(MM_ANISOTROPIC));
    EXPECT_EQ(CSize(1, 1), dc.SetWindowExt(300, 200));
    EXPECT_EQ(CSize(1, 1), dc.SetViewportExt(CSize(30, -20)));
    EXPECT_EQ(CPoint(0, 0), dc.SetViewportOrg(CPoint(5, 50)));

    // 10 units a pixel across and upwards, origin at (5, 50).
    CRect rect(0, 0, 100, 100);
    dc.LPtoDP(rect);
    EXPECT_EQ(CRect(5, 50, 15, 40), rect);
    dc.DPtoLP(rect);
    EXPECT_EQ(CRect(0, 0, 100, 100), rect);
    CSize size(100, 100);
    dc.LPtoDP(&size);
    EXPECT_EQ(CSize(10, 10), size) << "a size has no direction and no origin";
    EXPECT_TRUE(dc.RestoreDC(saved));
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
}

} // namespace
