// SPDX-License-Identifier: MIT
// The settings dialog: its controls change the preview and the settings that the caller takes.

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <random>

#include "monitor/SettingsDlg.h"
#include "monitor/TextConversion.h"
#include "tests/monitor/MadeRecordings.h"

namespace kavlix::test {
namespace {

using monitor::CSettingsDlg, monitor::GraphSettings, monitor::GraphSource;

GraphSource Waves(std::size_t series) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < series; ++i)
        names.push_back("series " + std::to_string(i));
    return MakeSource(100, names, [](std::size_t sample, std::size_t of) {
        return std::sin(static_cast<double>(sample) / 10) * static_cast<double>(of + 1);
    });
}

/// The dialog, open without a modal loop.
class SettingsDlg : public testing::Test {
protected:
    void Open(std::size_t series, CGraphCtrl::GraphStyle style = CGraphCtrl::GraphStyleLine) {
        const GraphSource source = Waves(series);
        m_dialog =
            std::make_unique<CSettingsDlg>(source, recording::VisibleRange{0, 99}, SettingsOf(source, style));
        ASSERT_TRUE(m_dialog->Create(CSettingsDlg::IDD));
    }
    ~SettingsDlg() override {
        if (m_dialog && m_dialog->GetSafeHwnd())
            m_dialog->DestroyWindow();
    }

    void Choose(int box, int index) {
        m_dialog->SendDlgItemMessage(box, CB_SETCURSEL, static_cast<WPARAM>(index));
        m_dialog->SendMessage(WM_COMMAND, MAKEWPARAM(box, CBN_SELCHANGE),
                              reinterpret_cast<LPARAM>(m_dialog->GetDlgItem(box)->m_hWnd));
    }
    void Click(int button) { m_dialog->SendDlgItemMessage(button, BM_CLICK); }
    int Chosen(int box) { return static_cast<int>(m_dialog->SendDlgItemMessage(box, CB_GETCURSEL)); }

    /// The settings that the caller would take, which the preview must show.
    const GraphSettings& Now() {
        EXPECT_TRUE(m_dialog->Preview().Settings() == m_dialog->Settings()) << "the preview follows";
        return m_dialog->Settings();
    }

    std::unique_ptr<CSettingsDlg> m_dialog;
};

TEST_F(SettingsDlg, OpensWithTheSettingsItWasGivenAndChangesNothing) {
    Open(3, CGraphCtrl::GraphStyleTwoAxis);
    EXPECT_TRUE(Now() == SettingsOf(Waves(3), CGraphCtrl::GraphStyleTwoAxis));
    CString title;
    m_dialog->GetDlgItemText(IDC_TITLE, title);
    EXPECT_STREQ(title, _T("Title"));
    EXPECT_EQ(Chosen(IDC_STYLE), 2);
    EXPECT_EQ(m_dialog->Preview().GetDatasetSize(2), 100) << "the preview shows the recording";
    EXPECT_FALSE(m_dialog->GetDlgItem(IDC_LEGEND)->IsWindowEnabled()) << "two axes have no legend";
    m_dialog->DestroyWindow();
    Open(1);
    EXPECT_EQ(m_dialog->SendDlgItemMessage(IDC_STYLE, CB_GETCOUNT), 2) << "two axes need two series";
}

// Against settings that change as the controls do. The preview must follow every change.
TEST_F(SettingsDlg, EveryChangeReachesThePreviewAndNothingElse) {
    Open(3);
    GraphSettings expected = SettingsOf(Waves(3));
    std::size_t chosen = 0;
    std::mt19937 random(12);
    const auto flip = [this](bool& value, int button) {
        value = !value;
        Click(button);
    };
    for (int step = 0; step < 200; ++step) {
        SCOPED_TRACE(step);
        monitor::SeriesSettings& series = expected.series[chosen];
        const std::size_t choice = random() % 3;
        const int item = static_cast<int>(choice);
        const std::function<void()> changes[] = {
            [&] {
                m_dialog->SetDlgItemText(
                    IDC_TITLE, monitor::ToText(expected.title = std::to_string(step) + " \u65E5\U0001F321"));
            },
            [&] { Choose(IDC_STYLE, expected.style = static_cast<CGraphCtrl::GraphStyle>(item)); },
            [&] {
                Choose(IDC_TITLE_STYLE, expected.titleStyle = static_cast<CGraphCtrl::TitleStyle>(item % 2));
            },
            [&] { flip(expected.gridX, IDC_GRID_X); },
            [&] { flip(expected.gridY, IDC_GRID_Y); },
            [&] { flip(series.visible, IDC_SHOW_SERIES); },
            [&] { Choose(IDC_SERIES, static_cast<int>(chosen = choice)); },
            [&] { series.lineSize = monitor::LineSizeChoices()[choice].size, Choose(IDC_LINE_SIZE, item); },
            [&] { series.marker = monitor::MarkerChoices()[choice].type, Choose(IDC_MARKER, item); },
            [&] { flip(expected.legend, IDC_LEGEND); }};
        const bool twoAxes = expected.style == CGraphCtrl::GraphStyleTwoAxis; // has no legend to switch
        changes[random() % (std::size(changes) - (twoAxes ? 1 : 0))]();
        ASSERT_TRUE(Now() == expected);
        ASSERT_EQ(m_dialog->Preview().GetGraphStyle(), expected.style);
        ASSERT_EQ(m_dialog->Preview().GetTitleStyle(), expected.titleStyle);
        const monitor::SeriesSettings& shown = expected.series[chosen];
        ASSERT_EQ(monitor::LineSizeChoices()[static_cast<std::size_t>(Chosen(IDC_LINE_SIZE))].size,
                  shown.lineSize);
        ASSERT_EQ(monitor::MarkerChoices()[static_cast<std::size_t>(Chosen(IDC_MARKER))].type, shown.marker);
        ASSERT_EQ(m_dialog->IsDlgButtonChecked(IDC_SHOW_SERIES) != 0, shown.visible);
    }
}

TEST_F(SettingsDlg, TabReachesThePreviewAfterTheControls) {
    Open(2);
    CWnd* const title = m_dialog->GetDlgItem(IDC_TITLE);
    CWnd* const preview = m_dialog->GetDlgItem(IDC_PREVIEW);
    EXPECT_EQ(m_dialog->GetNextDlgTabItem(title, TRUE), preview);
    EXPECT_EQ(m_dialog->GetNextDlgTabItem(preview, FALSE), title);
}

TEST_F(SettingsDlg, NoControlOverlapsAnotherOrTheBorder) {
    Open(2);
    CRect inside;
    m_dialog->GetClientRect(&inside);
    std::vector<CRect> rects;
    for (CWnd* child = m_dialog->GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT)) {
        TCHAR name[32];
        GetClassName(child->m_hWnd, name, _countof(name));
        CRect rect;
        child->GetWindowRect(&rect);
        m_dialog->ScreenToClient(&rect);
        CRect common;
        common.IntersectRect(rect, inside);
        SCOPED_TRACE(child->GetDlgCtrlID());
        EXPECT_EQ(common, rect);
        if (CString(name) == _T("Button") && (child->GetStyle() & BS_TYPEMASK) == BS_GROUPBOX)
            continue;
        for (const CRect& other : rects)
            EXPECT_FALSE(common.IntersectRect(rect, other));
        rects.push_back(rect);
    }
    EXPECT_GE(rects.size(), 18u);
}

} // namespace
} // namespace kavlix::test
