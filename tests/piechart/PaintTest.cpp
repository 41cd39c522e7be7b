// SPDX-License-Identifier: MIT
// Texts, messages, destinations and failures of painting. RandomTest compares the pixels of the sectors.
#include "tests/piechart/PieTest.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "plot/Numeric.h"

class PiePaintTest : public PieTest {
protected:
    /// The texts that a paint draws, each followed by its colour, for example "25.0% 000000".
    Strings Texts() {
        Strings texts;
        const auto picture = Record();
        EXPECT_EQ(picture->ObjectFaults({"Arial 13", "Arial 15"}), "");
        for (const testkit::MetafileRecord& record : picture->Records())
            if (record.kind == testkit::kText && !record.text.empty())
                texts.push_back(record.text + " " + testkit::ColourText(record.state.textColor));
        return texts;
    }
};

TEST_F(PiePaintTest, SliversKeepTheirColour) {
    Add({50, 0.3, 49.7});
    EXPECT_GT(Paint()->Count(PieceColour(1)), 20) << "its two boundaries do not cover it";
}

TEST_F(PiePaintTest, TextsAndTheirColours) {
    pie.AddPiece(RGB(0, 0, 90), RGB(255, 255, 0), 100, 60, "In");
    pie.AddPiece(RGB(0, 90, 0), RGB(0, 0, 120), 100, 36, "Two");
    pie.AddPiece(RGB(90, 0, 0), RGB(255, 255, 255), 100, 4, "White");
    pie.AddPiece(RGB(90, 0, 0), RGB(120, 0, 0), 100, -4, "Negative");
    pie.AddPiece(RGB(90, 0, 0), RGB(120, 0, 0), 0, 0, "No number");
    EXPECT_EQ(Texts(), (Strings{"In FFFF00", "60.0% FFFF00", "Two 000078", "36.0% 000078", "White 000000",
                                "4.0% 000000"}));
    pie.At(1).m_bSelected = TRUE;
    pie.At(2).m_bSelected = TRUE;
    EXPECT_EQ(Texts(), (Strings{"In FFFF00", "60.0% FFFF00", "Two FFFFFF", "36.0% FFFFFF", "White FFFFFF",
                                "4.0% FFFFFF"}));
    // Beside the pie, the white texts of a selected piece stand on a box of the selection's colour.
    const auto picture = Paint();
    const CRect plate = pie.At(2).m_rcItem;
    EXPECT_EQ(picture->At(plate.left, plate.top), pie.m_crSelected);
    EXPECT_TRUE(pie.At(3).m_rcItem.IsRectEmpty());

    pie.Reset();
    pie.AddPiece(RGB(0, 0, 90), RGB(255, 255, 0), 1e-300, 1e9, "Huge");
    EXPECT_EQ(Texts(), Strings{"Huge FFFF00"}) << "no percentage of hundreds of digits";
}

TEST_F(PiePaintTest, ASelectionShowsBesidePiecesOfItsColour) {
    Add({30, 30, 40});
    pie.At(1).m_bSelected = TRUE;
    const auto plain = Paint();
    for (const auto& [colour, isTold] : {std::pair(RGB(255, 0, 0), true), std::pair(RGB(230, 40, 30), true),
                                         std::pair(RGB(200, 90, 90), false)}) {
        pie.At(0).m_crColor = colour;
        const auto told = Paint();
        int light = 0;
        double first = 360, last = 0;
        for (int y = pie.m_rcPie.top; y < pie.m_rcPie.bottom; ++y)
            for (int x = pie.m_rcPie.left; x < pie.m_rcPie.right; ++x)
                if (told->At(x, y) == RGB(255, 255, 255) && plain->At(x, y) != told->At(x, y)) {
                    ++light;
                    const CPoint away = CPoint(x, y) - At(0, 0);
                    const double angle = 180 + std::atan2(-away.x, away.y) * 180 / kavlix::kPi;
                    first = std::min(first, angle);
                    last = std::max(last, angle);
                }
        if (isTold) {
            EXPECT_NEAR(first, 114, 6) << "the line follows the edges of the selected sector";
            EXPECT_NEAR(last, 210, 6);
        }
        EXPECT_EQ(light > 150, isTold);
        EXPECT_EQ(told->At(At(160, 0.3).x, At(160, 0.3).y), pie.m_crSelected);
    }
}

TEST_F(PiePaintTest, LabelsThatBeginAlikeKeepTheirEnds) {
    Resize(400, 300);
    for (int i = 1; i <= 30; ++i)
        pie.AddPiece(PieceColour(i), 0, 30, 1, ("Department " + std::to_string(i)).c_str());
    std::set<std::string> ends;
    for (const std::string& text : Texts()) {
        const std::size_t dots = text.find("...");
        EXPECT_EQ(text.find("Departm... "), std::string::npos);
        ends.insert(text.substr(dots == std::string::npos ? 0 : dots));
    }
    EXPECT_GE(ends.size(), 20u) << "of those beside the pie every one is another";
    EXPECT_EQ(ends.count("...20 000000"), 1u);
}

TEST_F(PiePaintTest, Messages) {
    EXPECT_EQ(Texts(), Strings{"No Data 000000"});
    pie.Wait(_T("Wait here"), 1);
    EXPECT_EQ(Texts(), Strings{"Wait here 000000"});
    pie.m_crBack = RGB(0, 0, 0);
    EXPECT_EQ(Texts(), Strings{"Wait here FFFFFF"}) << "legible on any background";
    pie.m_crBack = RGB(255, 255, 255);
    const auto waiting = Paint();
    CRect text = waiting->Bounds(RGB(0, 0, 0));
    EXPECT_NEAR(text.CenterPoint().x, 150, 3);
    EXPECT_NEAR(text.CenterPoint().y, 100, 5);
    Add({100});
    EXPECT_EQ(Texts(), (Strings{"100.0% 000000", "Wait here 000000"})) << "the chart stays";
    EXPECT_NE(Record()->Lines(testkit::kRectangle).at(0).find("pen solid 1 000000"), std::string::npos);
    pie.Wait(_T("Wait here"), 0);
    EXPECT_EQ(Texts(), Strings{"100.0% 000000"});
    pie.Reset();
    EXPECT_EQ(Texts(), Strings{"No Data 000000"});
    pie.AddPiece(1, 2, 0, 0, "no number");
    EXPECT_EQ(Texts(), Strings{"No Data 000000"}) << "nothing that could be shown";
    Resize(30, 12);
    EXPECT_TRUE(Texts().empty()) << "no scraps";
}

TEST_F(PiePaintTest, OnePictureForEveryDestination) {
    pie.AddPiece(PieceColour(0), RGB(0, 0, 0), 100, 60, "first");
    pie.AddPiece(PieceColour(1), RGB(0, 0, 0), 100, 4, "second");
    Settle();
    const auto picture = Paint();
    testkit::DibSurface asked(300, 200, RGB(9, 9, 9));
    pie.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(asked.Dc()), PRF_CLIENT);
    EXPECT_EQ(testkit::Difference(*picture, asked), "") << "WM_PRINTCLIENT";

    testkit::DibSurface moved(340, 250, RGB(9, 9, 9));
    ::SetViewportOrgEx(moved.Dc(), 40, 50, nullptr);
    ::IntersectClipRect(moved.Dc(), 0, 0, 100, 200);
    ::SetTextColor(moved.Dc(), RGB(7, 7, 7));
    pie.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(moved.Dc()), PRF_CLIENT);
    EXPECT_EQ(moved.Count(RGB(9, 9, 9)), 340 * 250 - 100 * 200) << "the clip holds";
    EXPECT_EQ(moved.At(60 + 40, 100 + 50), picture->At(60, 100));
    EXPECT_EQ(::GetTextColor(moved.Dc()), COLORREF(RGB(7, 7, 7)));
    EXPECT_EQ(::GetBkMode(moved.Dc()), OPAQUE);
}

TEST_F(PiePaintTest, SavesThePictureOfTheWindow) {
    Resize(161, 120); // an odd width: rows of the file are padded
    Add({30, 20, 50});
    char folder[MAX_PATH] = "", path[MAX_PATH] = "";
    ::GetTempPathA(MAX_PATH, folder);
    ASSERT_NE(::GetTempFileNameA(folder, "kvx", 0, path), 0u);
    EXPECT_FALSE(pie.SaveImage(path));
    const std::string picture = std::string(path) + ".bmp";
    EXPECT_FALSE(OpenPie().SaveImage(picture.c_str())) << "without a window";
    ASSERT_TRUE(pie.SaveImage(picture.c_str()));
    testkit::DibSurface saved(161, 120);
    EXPECT_TRUE(saved.Load(picture.c_str()));
    EXPECT_EQ(testkit::Difference(*Paint(), saved), "");
    ::DeleteFileA(path);
    ::DeleteFileA(picture.c_str());
}

TEST_F(PiePaintTest, TenThousandPieces) {
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(pie.AddPiece(PieceColour(i % 7), 0, 10000, 1, "piece"), 1);
    const auto picture = Paint();
    EXPECT_LT(picture->Count(RGB(0, 0, 0), pie.m_rcPie), 160 * 12) << "boundaries do not blacken the pie";
    Click(At(180, 0.5));
    EXPECT_NEAR(pie.Selected(), 5000, 150);
}
