// SPDX-License-Identifier: MIT
// Files for another program, which compares their pixels with those that were drawn.
#include "tests/chartdraw/ChartTest.h"

#include <fstream>

namespace {

template <class At> void WritePixels(const std::string& base, CSize size, At at) {
    std::ofstream pixels(base + ".rgb", std::ios::binary);
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            for (const int shift : {0, 8, 16})
                pixels << static_cast<char>(at(x, y) >> shift);
}

} // namespace

/// Writes the files. The script compare-pictures has another program compare them.
TEST_F(ChartTest, PicturesForAnotherProgram) {
    char program[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    const std::string path = program, folder = path.substr(0, path.find_last_of('\\')) + "\\chart_pictures";
    ::CreateDirectoryA(folder.c_str(), nullptr);
    chart.SetTitle("Title");
    chart.SetMarkerType(Add({1, 5, 2, 8, -3}), CDataset::MarkerSquare);
    chart.SetLineSize(Add({8, 2, 5, 1, 0}), 4);
    Resize(257, 120); // an odd width: rows of the files are padded
    testkit::DibSurface painted(257, 120);
    PaintInto(painted);
    for (const char* extension : {"png", "bmp", "emf"})
        EXPECT_TRUE(chart.SaveImage((folder + "\\image." + extension).c_str()));
    WritePixels(folder + "\\image", CSize(257, 120), [&](int x, int y) { return painted.At(x, y); });
    const HENHMETAFILE picture = ::GetEnhMetaFileA((folder + "\\image.emf").c_str());
    ASSERT_NE(picture, nullptr);
    testkit::DibSurface played(257, 120);
    const RECT all = {0, 0, 257, 120};
    ::PlayEnhMetaFile(played.Dc(), picture, &all);
    ::DeleteEnhMetaFile(picture);
    EXPECT_LT(testkit::Displaced(painted, played, all, 2), 257 * 120 / 50)
        << "but for letters the same picture";
}
