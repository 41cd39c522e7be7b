// SPDX-License-Identifier: MIT
// Paths and texts of several scripts in the main window, its pages and its dialogs.

#include <dlgs.h>

#include <filesystem>
#include <random>

#include "monitor/MessagesDlg.h"
#include "monitor/MonitorGraph.h"
#include "monitor/TextConversion.h"
#include "monitor/recording/CheckReport.h"
#include "tests/monitor/FrameWithPage.h"
#include "tests/support/MetafileRecorder.h"

namespace kavlix::test {
namespace {

using monitor::CMonitorGraph;
using Characters = std::vector<std::string>;

constexpr const char* kSeries = "\u0398\u03AD\u03C1\u03BC\u03B7 \U0001F321 e\u0301";
constexpr const char* kWord = "\u65E5\u672C"; // stands where the file should have a time

/// Characters as a reader counts them: Greek, Japanese, letters with marks in several scripts, and emoji of several
/// code points.
Characters SomeCharacters(std::mt19937& random, std::size_t count) {
    static const Characters all = {"\u03A9",
                                   "e\u0301\u0323",
                                   "\u6E29",
                                   "\u0634\u0651",
                                   "\u05E9\u05C1\u05B8",
                                   "\u0915\u094D",
                                   "\U0001F321\uFE0F",
                                   "\U0001F469\U0001F3FD\u200D\U0001F52C"};
    Characters characters;
    for (std::size_t i = 0; i < count; ++i)
        characters.push_back(all[random() % all.size()]);
    return characters;
}

std::string Join(const Characters& characters, const std::string& end = {}) {
    std::string text;
    for (const std::string& character : characters)
        text += character;
    return text + end;
}

/// Expects a text that begins with the characters, or that is cut behind a whole one. Returns whether it is cut.
bool ExpectNoneCut(const std::string& shown, const Characters& characters) {
    std::string begin;
    for (const std::string& character : characters) {
        if (shown == begin + "...")
            return true;
        begin += character;
    }
    EXPECT_TRUE(shown.substr(0, begin.size()) == begin) << shown;
    return false;
}

class AnyScript : public FrameWithPage {
protected:
    std::string Legend() {
        struct Inside : CMonitorGraph {
            static CString Of(const CMonitorGraph& graph) {
                return (graph.*(&Inside::m_Datasets))[0].m_Legend;
            }
        };
        return testkit::Utf8(Inside::Of(ControlOf<CMonitorGraph>(IDC_GRAPH)));
    }
    /// The first text that a window paints.
    std::string Heading(CWnd& window) {
        testkit::MetafileRecorder picture;
        window.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(picture.Dc()), PRF_CLIENT);
        picture.Close();
        const std::vector<std::string> texts = picture.Texts();
        return texts.empty() ? "" : texts.front();
    }
    void Resize(int width) { m_frame->SetWindowPos(nullptr, 0, 0, width, 400, SWP_NOMOVE | SWP_NOZORDER); }
};

TEST_F(AnyScript, ShortenedTextsEndWithAWholeCharacter) {
    std::mt19937 random(21);
    int cuts[4] = {};
    for (int round = 0; round < 3; ++round) {
        const Characters series = SomeCharacters(random, 40);
        const Characters file = SomeCharacters(random, 12);
        Open("graph", {m_folder.Write(Join(file, ".csv"), "time," + Join(series) + ",b\n0,1,2\n60,2,3\n")});
        for (int width = 130; width < 700; width += 30) {
            SCOPED_TRACE(width);
            Command(ID_PAGE_GRAPH);
            Resize(width);
            cuts[0] += ExpectNoneCut(Legend(), series);
            cuts[1] += ExpectNoneCut(TitleOf(ControlOf<CMonitorGraph>(IDC_GRAPH)), file);
            Command(ID_PAGE_PIE);
            cuts[2] += ExpectNoneCut(Heading(m_frame->Page()), file);
            cuts[3] += ExpectNoneCut(Text(), file);
        }
    }
    for (const int cut : cuts)
        EXPECT_GT(cut, 2) << "texts that are cut";
}

TEST_F(AnyScript, NamesAndMessagesReachEveryPlaceWhole) {
    const std::string name = "\u05E2\u05D1\u05E8 \u0639\u0631\u0628\u064A \U0001F321 e\u0301.csv";
    const std::string file =
        m_folder.Write(name, "time," + std::string(kSeries) + ",b\n0,1,2\n60,3,2\n" + kWord + ",1,2\n");
    Open("graph", {file});
    EXPECT_EQ(TitleOf(*m_frame), "Kavlix Monitor - " + name);
    EXPECT_EQ(Legend(), kSeries);
    ControlOf<CMonitorGraph>(IDC_GRAPH).SetSelectionMarkPos(1);
    Command(ID_PAGE_CHART);
    EXPECT_EQ(Text(), "1970-01-01 00:01:00   " + std::string(kSeries) + ": 3   b: 2");
    EXPECT_EQ(Heading(ControlOf<CWnd>(IDC_CHART)), name);

    monitor::CMessagesDlg messages(recording::MessageReport(recording::RecordingLoader::Load({file})),
                                   m_frame);
    ASSERT_TRUE(messages.Create(monitor::CMessagesDlg::IDD, m_frame));
    CString shown;
    messages.GetDlgItemText(IDC_MESSAGES, shown);
    messages.DestroyWindow();
    EXPECT_EQ(testkit::Utf8(shown).find(file + ":4:1: "), 0u) << shown;
    EXPECT_NE(testkit::Utf8(shown).find("found \"" + std::string(kWord) + '"'), std::string::npos) << shown;
}

/// The name that the person types into the next file dialog.
CString g_typed;

void CALLBACK TypeName(HWND frame, UINT, UINT_PTR timer, DWORD) {
    const HWND dialog = ::GetLastActivePopup(frame);
    if (dialog == frame)
        return;
    ::KillTimer(frame, timer);
    const int box = ::GetDlgItem(dialog, cmb13) != nullptr ? cmb13 : edt1;
    ::SetDlgItemText(dialog, box, g_typed);
    ::PostMessage(dialog, WM_COMMAND, IDOK, 0);
}

TEST_F(AnyScript, FileDialogsTakeEveryName) {
    constexpr UINT_PTR timer = 99;
    constexpr UINT pause = 100; // milliseconds
    Open("graph", {});
    const auto choose = [&](UINT command, const std::string& path) {
        g_typed = monitor::ToText(path);
        m_frame->SetTimer(timer, pause, &TypeName);
        Command(command);
        WorkOff();
    };
    const std::string name = "\u0395\u03BB\u03BB \u65E5\u672C \u05E9\u05B8 \U0001F321 e\u0301";
    choose(ID_FILE_OPEN, m_folder.Write(name + ".csv", "time,a\n0,1\n60,2\n"));
    EXPECT_EQ(TitleOf(*m_frame), "Kavlix Monitor - " + name + ".csv");
    EXPECT_EQ(Pane(2), "2 rows, 1 series");
    choose(ID_FILE_SAVE_PICTURE, m_folder.Path(name + ".png"));
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::u8path(m_folder.Path(name + ".png"))));
    Command(ID_PAGE_CHART);
    choose(ID_CHART_SAVE_AS, m_folder.Path(name + ".emf"));
    EXPECT_EQ(Text(), "Saved: " + m_folder.Path(name + ".emf"));
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::u8path(m_folder.Path(name + ".emf"))));
}

} // namespace
} // namespace kavlix::test
