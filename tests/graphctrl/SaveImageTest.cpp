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
    const auto painted = Paint();
    testkit::DibSurface saved(painted->Width(), painted->Height());
    EXPECT_TRUE(saved.Load(path));
    ::DeleteFileA(path);
    EXPECT_EQ(testkit::Difference(*painted, saved, CRect(0, 0, 299, 199)), "");
}
