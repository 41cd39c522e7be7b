// SPDX-License-Identifier: MIT
// Properties and texts of any size.

#include "tests/graphctrl/GraphTest.h"
#include "tests/support/ImportHook.h"

#include <algorithm>

namespace {

bool IsBeginning(const std::string& part, const std::string& whole) {
    return !part.empty() && whole.compare(0, part.size(), part) == 0;
}

#ifndef _UNICODE
void* g_multiByteToWideChar = nullptr;

/// A process whose code page is UTF-8.
int WINAPI FromUtf8(UINT, DWORD flags, const char* text, int length, WCHAR* wide, int room) {
    return reinterpret_cast<decltype(&::MultiByteToWideChar)>(g_multiByteToWideChar)(CP_UTF8, flags, text,
                                                                                     length, wide, room);
}

/// A text in UTF-8 as the metafile shows it in the tests' code page.
std::string Shown(const std::wstring& wide) {
    char text[100] = "";
    ::WideCharToMultiByte(CP_ACP, 0, wide.c_str(), -1, text, sizeof text, nullptr, nullptr);
    return text;
}
#endif

} // namespace

class GraphRobustnessTest : public GraphTest {};

#ifndef _UNICODE
TEST_F(GraphRobustnessTest, NoTextIsCutWithinACharacter) {
    const testkit::ImportHook hook("Kavlix.dll", "MultiByteToWideChar", reinterpret_cast<void*>(&FromUtf8));
    ASSERT_TRUE(hook.Installed());
    g_multiByteToWideChar = hook.Original();
    Add(0, {1});
    graph.SetXTickLabelUpStringMaxLength(3);
    const struct {
        const char* text;
        std::wstring first, second; ///< the lines; the second is empty where one holds the text
    } labels[] = {
        {"abcd", L"abc", L"d"},
        {"\xC3\xA9\xC3\xA8\xC3\xA0\xC3\xB9", L"\u00E9\u00E8\u00E0", L"\u00F9"},
        {"ab\xF0\x9F\x8C\xA1z", L"ab\xD83C\xDF21", L"z"},
        {"abe\xCC\x81z", L"abe\u0301", L"z"}, // a letter and its mark are one character
        {"ab\xC3", L"ab\xFFFD", L""},         // bytes that are no character count one by one
    };
    for (const auto& each : labels) {
        graph.ResetXTickLabel();
        graph.AddXTickLabel(each.text, "");
        const Strings texts =
            Record()->LinesFrom("text 2" + std::string(each.second.empty() ? "330" : "300"));
        ASSERT_EQ(texts.size(), 1u) << each.text;
        EXPECT_NE(texts[0].find("\"" + Shown(each.first) + "\""), std::string::npos) << texts[0];
        const Strings second = Record()->LinesFrom("text 2230,4000");
        EXPECT_EQ(second.empty(), each.second.empty()) << each.text;
        if (!second.empty()) {
            EXPECT_NE(second[0].find("\"" + Shown(each.second) + "\""), std::string::npos) << second[0];
        }
    }
    // The longest text that is drawn ends before what would be cut.
    const std::string most(8191, 'a');
    for (const char* last : {"\xF0\x9F\x8C\xA1", "e\xCC\x81"}) {
        graph.SetXLabel((most + last).c_str());
        const Strings texts = Record()->Texts();
        EXPECT_EQ(std::count(texts.begin(), texts.end(), most), 1) << last;
    }
}
#endif

TEST_F(GraphRobustnessTest, TextsOfAMillionCharacters) {
    const std::string million(1000000, 'W');
    const CString text(million.c_str());
    graph.SetTitle(text);
    graph.SetXLabel(text);
    graph.SetYLabel(text);
    graph.SetY2Label(text);
    graph.SetYUnit(text, 0, 0);
    graph.SetY2Unit(text, 0, 0);
    graph.SetLegend(0, text);
    graph.AddXTickLabel(text, "");
    graph.AddXTickLabel(text, text);
    Add(0, {1, 2});
    for (int style = 0; style < 3; ++style) {
        graph.SetGraphStyle(static_cast<CGraphCtrl::GraphStyle>(style));
        const auto picture = Record();
        const Strings texts = picture->Texts();
        EXPECT_TRUE(IsBeginning(texts[0], million)) << texts[0].size();
        EXPECT_GE(texts[0].size(), 300u);
        EXPECT_EQ(picture->ObjectFaults(kControlFonts), "");
        graph.Redraw();
        graph.UpdateWindow();
    }
    EXPECT_STREQ(graph.m_Title, text);
}

TEST_F(GraphRobustnessTest, APictureTooWideForABitmap) {
    Add(0, {1, 50, 99});
    Resize(32767, 400);
    graph.Redraw();
    graph.UpdateWindow();
    EXPECT_EQ(Text(UpdateRect()), "0,0,0,0");
    Resize(300, 200);
    graph.Redraw();
    graph.UpdateWindow();
    EXPECT_EQ(Record()->ObjectFaults(kControlFonts), "");
}
