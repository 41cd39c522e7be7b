// SPDX-License-Identifier: MIT
// CMetaFileDC: recording, playing back, and answers from an attribute DC.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "tests/support/DibSurface.h"

namespace {

TEST(MetaFileDC, RecordsWhatIsDrawnAndPlaysItBack) {
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.CreateEnhanced(nullptr, nullptr, nullptr, _T("Kavlix\0test\0")));
    recorder.FillSolidRect(10, 10, 20, 5, RGB(255, 0, 0));
    HENHMETAFILE const metafile = recorder.CloseEnhanced();
    ASSERT_NE(nullptr, metafile);
    EXPECT_EQ(nullptr, recorder.m_hDC);
    ENHMETAHEADER header{};
    ::GetEnhMetaFileHeader(metafile, sizeof(header), &header);
    testkit::DibSurface picture(40, 30);
    CDC* const dc = CDC::FromHandle(picture.Dc());
    const CRect drawn(header.rclBounds.left, header.rclBounds.top, header.rclBounds.right,
                      header.rclBounds.bottom);
    EXPECT_TRUE(dc->PlayMetaFile(metafile, drawn));
    EXPECT_EQ(RGB(255, 0, 0), picture.At(20, 12));
    EXPECT_EQ(RGB(255, 255, 255), picture.At(20, 5));
    ::DeleteEnhMetaFile(metafile);
}

TEST(MetaFileDC, AnswersOnlyWithAnAttributeDC) {
    CClientDC screen(nullptr);
    CMetaFileDC recorder;
    ASSERT_TRUE(recorder.CreateEnhanced(&screen, nullptr, nullptr, nullptr));
    EXPECT_EQ(CSize(0, 0), recorder.GetTextExtent(_T("text"), 4));

    recorder.SetAttribDC(screen.m_hAttribDC);
    EXPECT_EQ(screen.GetTextExtent(_T("text"), 4), recorder.GetTextExtent(_T("text"), 4));
    recorder.SetMapMode(MM_ANISOTROPIC);
    recorder.SetWindowExt(30, 30);
    EXPECT_EQ(CSize(30, 30), screen.GetWindowExt())
        << "the attribute DC follows, so that it measures as drawn";
    recorder.ReleaseAttribDC();
    ::DeleteEnhMetaFile(recorder.CloseEnhanced());
}

} // namespace
