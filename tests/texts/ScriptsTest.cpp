// SPDX-License-Identifier: MIT
// Texts of several scripts in the controls' pictures and file names: nothing is lost and no character is cut.
#include <kavlix/Kavlix.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/support/RecordingParent.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Utf8.h"

using testkit::RecordingParent;
using testkit::Utf8;

namespace {

using Texts = std::vector<std::wstring>;

/// Characters of one script. An element is what a reader takes for one character.
struct Script {
    std::string name;
    Texts characters;
};
void PrintTo(const Script& script, std::ostream* out) {
    *out << script.name;
}

const Script kScripts[] = {
    {"Greek",
     {L"\u0398", L"\u03B5", L"\u03C1", L"\u03BC", L"\u03CC", L"\u03B1\u0301", L"\u03C3\u0323\u0302"}},
    {"Japanese",
     {L"\u6E29", L"\u5EA6", L"\u8A08", L"\u6E2C", L"\u304B\u3099", L"\u30CF\u309A", L"\uFF76\uFF9E"}},
    {"Arabic", {L"\u062F", L"\u0631", L"\u062C\u064E", L"\u0629\u064C", L"\u062D\u0651\u0650"}},
    {"Hebrew", {L"\u05E9\u05C1\u05B8", L"\u05DC", L"\u05D5\u05B9", L"\u05DD", L"\u05D1\u05BC"}},
    {"Devanagari",
     {L"\u0924\u093E", L"\u092A", L"\u092E\u093E", L"\u0928\u094D", L"\u0915\u093F\u0902", L"\u0E19\u0E33"}},
    {"BeyondTheBasicPlane",
     {L"\U0001F321\uFE0F", L"\U0001D4AF", L"\U00020BB7", L"\U0001F44D\U0001F3FD",
      L"\U0001F468\u200D\U0001F469\u200D\U0001F467", L"\U0001F1EC\U0001F1F7", L"\u1112\u1161\u11AB"}}};

/// A random text of `count` characters of a script, with a blank now and then.
class RandomText {
public:
    RandomText(std::mt19937& random, const Script& script, int count) {
        for (int i = 0; i < count; ++i) {
            const bool isBlank = i > 0 && i + 1 < count && random() % 7 == 0;
            m_whole += isBlank ? L" " : script.characters[random() % script.characters.size()];
            m_ends.insert(m_whole.size());
        }
    }
    CString Get() const { return m_whole.c_str(); }
    const std::wstring& Whole() const { return m_whole; }

    /// Whether `part` occurs in the text, and begins and ends there between characters.
    bool HasWhole(const std::wstring& part) const {
        for (std::size_t at = 0; (at = m_whole.find(part, at)) != std::wstring::npos; ++at)
            if (m_ends.count(at) > 0 && m_ends.count(at + part.size()) > 0)
                return true;
        return false;
    }

private:
    std::wstring m_whole;
    std::set<std::size_t> m_ends = {0};
};

int CALLBACK CollectText(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM texts) {
    if (record->iType == EMR_EXTTEXTOUTW) {
        const auto& out = reinterpret_cast<const EMREXTTEXTOUTW*>(record)->emrtext;
        const auto* units =
            reinterpret_cast<const WCHAR*>(reinterpret_cast<const char*>(record) + out.offString);
        reinterpret_cast<Texts*>(texts)->emplace_back(units, out.nChars);
    }
    return 1;
}

/// The texts of a metafile; closes the metafile.
Texts TextsOf(HENHMETAFILE picture) {
    Texts texts;
    ::EnumEnhMetaFile(nullptr, picture, &CollectText, &texts, nullptr);
    ::DeleteEnhMetaFile(picture);
    return texts;
}

/// The texts of the control's picture, saved under a name that has `name` in it.
template <class Control> Texts SavedTexts(Control& control, const RandomText& name) {
    const testkit::TempFolder folder;
    const std::wstring path = (std::filesystem::path(folder.Path()) / (name.Whole() + L".emf")).wstring();
    EXPECT_TRUE(control.SaveImage(path.c_str()));
    const HENHMETAFILE picture = ::GetEnhMetaFileW(path.c_str());
    EXPECT_NE(picture, nullptr) << Utf8(path.c_str());
    WCHAR description[32] = L"";
    ::GetEnhMetaFileDescriptionW(picture, 32, description);
    EXPECT_STREQ(description, L"Ruvex Trace");
    return TextsOf(picture);
}

/// How a text appears among the drawn ones. Fails when a character of the text is cut.
enum Appearance { Complete, Shortened, Missing };
Appearance Appears(const RandomText& text, const Texts& drawn) {
    bool isFound = false;
    for (const std::wstring& each : drawn) {
        if (each.empty() || text.Whole().find(each.front()) == std::wstring::npos)
            continue; // a text of another script, or a number
        if (each == text.Whole())
            return Complete;
        isFound = true;
        for (std::size_t from = 0; from <= each.size();) {
            const std::size_t dots = std::min(each.find(L"...", from), each.size());
            const std::wstring part = each.substr(from, dots - from);
            EXPECT_TRUE(text.HasWhole(part)) << Utf8(part.c_str()) << " of " << Utf8(text.Whole().c_str());
            from = dots + 3;
        }
    }
    return isFound ? Shortened : Missing;
}

} // namespace

class ScriptsTest : public testing::TestWithParam<Script> {
protected:
    void SetUp() override { ASSERT_TRUE(parent.CreateVisible(500, 400)) << "no display"; }
    RandomText Characters(int count) { return RandomText(random, GetParam(), count); }

    std::mt19937 random{15};
    RecordingParent parent;
};

INSTANTIATE_TEST_SUITE_P(Texts, ScriptsTest, testing::ValuesIn(kScripts),
                         [](const auto& info) { return info.param.name; });

TEST_P(ScriptsTest, OfAGraph) {
    CGraphCtrl graph;
    ASSERT_TRUE(
        graph.Create(_T("MFCGraphCtrl"), _T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 400), &parent, 1));
    const RandomText title = Characters(9);
    const RandomText xLabel = Characters(8);
    const RandomText yLabel = Characters(7);
    const RandomText unit = Characters(3);
    const RandomText legend = Characters(5);
    graph.SetTitle(title.Get());
    graph.SetXLabel(xLabel.Get());
    graph.SetYLabel(yLabel.Get());
    graph.SetYUnit(unit.Get(), 0, 0);
    graph.SetLegend(0, legend.Get());
    const Texts drawn = SavedTexts(graph, title);
    for (const RandomText* each : {&title, &xLabel, &yLabel, &unit, &legend})
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), each->Whole()), 1) << Utf8(each->Whole().c_str());

    CGraphCtrl ticks;
    ASSERT_TRUE(
        ticks.Create(_T("MFCGraphCtrl"), _T(""), WS_CHILD | WS_VISIBLE, CRect(0, 0, 500, 400), &parent, 1));
    const RandomText tick = Characters(40);
    for (int i = 0; i < 3; ++i) {
        ticks.AddXTickLabel(tick.Get(), _T(""));
        ticks.AddData(0, i, nullptr);
    }
    EXPECT_EQ(Appears(tick, SavedTexts(ticks, xLabel)), Shortened) << "a long label is drawn in two lines";
}

TEST_P(ScriptsTest, OfAPie) {
    int shortened = 0;
    for (int round = 0; round < 20; ++round) {
        CPieChartCtrl pie;
        ASSERT_TRUE(pie.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200 + 10 * round, 200), &parent, 1));
        const RandomText label = Characters(20);
        pie.AddPiece(RGB(200, 0, 0), RGB(0, 0, 0), 100, 70, label.Get());
        shortened += Appears(label, SavedTexts(pie, Characters(4))) == Shortened;
    }
    EXPECT_GT(shortened, 0);

    CPieChartCtrl pie;
    ASSERT_TRUE(pie.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), &parent, 1));
    pie.AddPiece(RGB(200, 0, 0), RGB(0, 0, 0), 100, 70, L"abcdefghijk \u0301lmnopqrstu");
    for (const std::wstring& each : SavedTexts(pie, Characters(4)))
        EXPECT_NE(each.substr(0, 1), L"\u0301") << "a blank with a mark is no place for a break";
}

TEST_P(ScriptsTest, OfAChart) {
    CChartDraw chart;
    ASSERT_TRUE(chart.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), &parent, 1));
    int shortened = 0;
    for (int round = 0; round < 40; ++round) {
        const RandomText title = Characters(5 + round);
        chart.SetTitle(title.Get());
        shortened += Appears(title, SavedTexts(chart, Characters(4))) == Shortened;
    }
    EXPECT_GT(shortened, 10);
}

TEST_P(ScriptsTest, OfAMultiTypeGraph) {
    parent.SetWindowPos(nullptr, 0, 0, 250, 200, SWP_NOZORDER);
    int shortened = 0;
    for (int round = 0; round < 40; ++round) {
        CGraph graph(GraphTypeBar);
        graph.parentWindow = &parent;
        const RandomText label = Characters(3 + round);
        for (int i = 0; i < 3; ++i) {
            auto* series = new CGraphSeries;
            series->SetLabel(label.Get());
            series->SetData(0, i + 1);
            graph.AddSeries(series);
        }
        graph.SetTickLimits(0, 4, 1);
        CDC dc;
        dc.Attach(::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr));
        graph.DrawGraph(&dc);
        shortened += Appears(label, TextsOf(::CloseEnhMetaFile(dc.Detach()))) == Shortened;
    }
    EXPECT_GT(shortened, 0);
}
