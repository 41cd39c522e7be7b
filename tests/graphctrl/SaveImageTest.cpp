// SPDX-License-Identifier: MIT
// The saved picture. Formats and failures are tested with the chart, which shares the code.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/TempFolder.h"

TEST_F(GraphTest, SavesThePictureOfTheWindow) {
    Add(0, {10, 80, 35, 60, 20});
    FixX(0, 4);
    HideTexts();
    const testkit::TempFolder folder;
    const std::string path = folder.Path("picture.bmp");
    EXPECT_FALSE(OpenGraph().SaveImage(path.c_str())) << "without a window";
    ASSERT_TRUE(graph.SaveImage(path.c_str()));
    const auto painted = Paint();
    testkit::DibSurface saved(painted->Width(), painted->Height());
    EXPECT_TRUE(saved.Load(path.c_str()));
    EXPECT_EQ(testkit::Difference(*painted, saved, CRect(0, 0, 299, 199)), "");
}
