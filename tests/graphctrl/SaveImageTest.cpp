#include "tests/graphctrl/GraphTest.h"

#include <cstdio>

TEST_F(GraphTest, SavesThePictureOfTheWindow) {
    Add(0, {10, 80, 35, 60, 20});
    FixX(0, 4);
    HideTexts();
    char folder[MAX_PATH] = "", path[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    std::snprintf(path, MAX_PATH, "%skvx%lu.bmp", folder, ::GetCurrentProcessId());
    EXPECT_FALSE(OpenGraph().SaveImage(path)) << "without a window";
    ASSERT_TRUE(graph.SaveImage(path));
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.Attach(::LoadImageA(nullptr, path, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE)));
    ::DeleteFileA(path);
    const auto painted = Paint();
    testkit::DibSurface saved(painted->Width(), painted->Height());
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap* const old = dc.SelectObject(&bitmap);
    ::BitBlt(saved.Dc(), 0, 0, saved.Width(), saved.Height(), dc.GetSafeHdc(), 0, 0, SRCCOPY);
    dc.SelectObject(old);
    EXPECT_EQ(testkit::Difference(*painted, saved, CRect(0, 0, 299, 199)), "");
}
