#include "tests/graphctrl/GraphTest.h"
#include "tests/support/ImportHook.h"

#include <algorithm>
#include <cmath>

using GraphAxesTest = GraphTest;

namespace {

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

} // namespace

TEST_F(GraphAxesTest, NoTextIsCutWithinACharacter) {
    const testkit::ImportHook hook("Kavlix.dll", "MultiByteToWideChar", reinterpret_cast<void*>(&FromUtf8));
    ASSERT_TRUE(hook.Installed());
    g_multiByteToWideChar = hook.Original();
    Add(0, {1});
    graph.SetXTickLabelUpStringMaxLength(3);
    const struct {
        const char* text;
        std::wstring first, second; ///< the lines; the second is empty where one holds the text
    } labels[] = {
        {"abc", L"abc", L""},
        {"abcd", L"abc", L"d"},
        {"\xC3\xA9\xC3\xA8\xC3\xA0", L"\u00E9\u00E8\u00E0", L""},
        {"\xC3\xA9\xC3\xA8\xC3\xA0\xC3\xB9", L"\u00E9\u00E8\u00E0", L"\u00F9"},
        {"ab\xE6\xB8\xA9\xE5\xBA\xA6", L"ab\u6E29", L"\u5EA6"},
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

TEST_F(GraphAxesTest, BarSizeOfOddRanges) {
    Record();
    int width = 5, datasets = 6, visible = 7;
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible));
    Add(3, {1, 2, 3, 4});
    Add(0, {1, 2});
    FixX(10, 20);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible)) << "no visible point";
    FixX(3, 0);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible)) << "an inverted range shows none";
    FixX(NAN, NAN);
    EXPECT_FALSE(graph.CalcBarSize(width, datasets, visible));
    EXPECT_EQ(width, 5);
    EXPECT_EQ(datasets, 6);
    EXPECT_EQ(visible, 7);

    FixX(1, 1);
    ASSERT_TRUE(graph.CalcBarSize(width, datasets, visible));
    EXPECT_EQ(width, 0) << "a range of no width has bars of no width";
    EXPECT_EQ(visible, 1);
}
