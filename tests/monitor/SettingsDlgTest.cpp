// The Settings dialog: every control changes the preview at once, and what the caller takes.

#include "monitor/SettingsDlg.h"
#include "tests/monitor/MadeRecordings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

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

    /// What the preview follows is what the caller would take.
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
    EXPECT_STREQ(title, "Title");
    EXPECT_EQ(Chosen(IDC_STYLE), 2);
    EXPECT_EQ(Chosen(IDC_SERIES), 0);
    EXPECT_EQ(m_dialog->Preview().GetDatasetSize(2), 100) << "the preview shows the recording";
    EXPECT_EQ(m_dialog->Preview().GetGraphStyle(), CGraphCtrl::GraphStyleTwoAxis);
}

TEST_F(SettingsDlg, EveryChangeOfTheGraphReachesThePreviewAtOnce) {
    Open(2);
    m_dialog->SetDlgItemText(IDC_TITLE, "Other title");
    EXPECT_EQ(Now().title, "Other title");
    Choose(IDC_STYLE, 1);
    EXPECT_EQ(Now().style, CGraphCtrl::GraphStyleBar);
    EXPECT_EQ(m_dialog->Preview().GetGraphStyle(), CGraphCtrl::GraphStyleBar);
    const int titleStyle = Chosen(IDC_TITLE_STYLE);
    Choose(IDC_TITLE_STYLE, 1 - titleStyle);
    EXPECT_EQ(Now().titleStyle, 1 - titleStyle);
    EXPECT_EQ(m_dialog->Preview().GetTitleStyle(), 1 - titleStyle);
    Click(IDC_LEGEND);
    EXPECT_FALSE(Now().legend);
    EXPECT_FALSE(m_dialog->Preview().GetShowLegend());
    Click(IDC_LEGEND);
    EXPECT_TRUE(m_dialog->Preview().GetShowLegend());
    const bool gridX = Now().gridX;
    const bool gridY = Now().gridY;
    Click(IDC_GRID_X);
    EXPECT_NE(Now().gridX, gridX);
    EXPECT_EQ(Now().gridY, gridY);
    Click(IDC_GRID_Y);
    EXPECT_NE(Now().gridY, gridY);
}

TEST_F(SettingsDlg, SeriesAreChangedOneByOne) {
    Open(3);
    Choose(IDC_SERIES, 1);
    Choose(IDC_LINE_SIZE, 2);
    Choose(IDC_MARKER, 4);
    Click(IDC_SHOW_SERIES);
    Choose(IDC_SERIES, 2);
    EXPECT_EQ(Chosen(IDC_LINE_SIZE), 0) << "the controls show the chosen series";
    EXPECT_EQ(Chosen(IDC_MARKER), 0);
    EXPECT_EQ(m_dialog->IsDlgButtonChecked(IDC_SHOW_SERIES), 1u);
    Choose(IDC_MARKER, 1);
    Choose(IDC_SERIES, 1);
    EXPECT_EQ(Chosen(IDC_LINE_SIZE), 2);
    EXPECT_EQ(m_dialog->IsDlgButtonChecked(IDC_SHOW_SERIES), 0u);

    const GraphSettings& settings = Now();
    const GraphSettings before = SettingsOf(Waves(3));
    EXPECT_TRUE(settings.series[0] == before.series[0]);
    EXPECT_EQ(settings.series[1].lineSize, 90);
    EXPECT_EQ(settings.series[1].marker, CDataset::MarkerCircle);
    EXPECT_FALSE(settings.series[1].visible);
    EXPECT_EQ(settings.series[1].color, before.series[1].color);
    EXPECT_EQ(settings.series[2].marker, CDataset::MarkerSquare);
    EXPECT_TRUE(settings.series[2].visible);
}

TEST_F(SettingsDlg, OnlyPossibleChoicesAreOffered) {
    Open(1);
    EXPECT_EQ(m_dialog->SendDlgItemMessage(IDC_STYLE, CB_GETCOUNT), 2) << "two axes need two series";
    m_dialog->DestroyWindow();
    Open(2);
    EXPECT_EQ(m_dialog->SendDlgItemMessage(IDC_STYLE, CB_GETCOUNT), 3);
    EXPECT_TRUE(m_dialog->GetDlgItem(IDC_LEGEND)->IsWindowEnabled());
    Choose(IDC_STYLE, 2);
    EXPECT_FALSE(m_dialog->GetDlgItem(IDC_LEGEND)->IsWindowEnabled()) << "two axes have no legend";
    EXPECT_FALSE(m_dialog->Preview().GetShowLegend());
    Choose(IDC_STYLE, 0);
    EXPECT_TRUE(m_dialog->Preview().GetShowLegend()) << "the legend comes back with the lines";
}

TEST_F(SettingsDlg, TabReachesThePreviewAfterTheControls) {
    Open(2);
    CWnd* const title = m_dialog->GetDlgItem(IDC_TITLE);
    CWnd* const preview = m_dialog->GetDlgItem(IDC_PREVIEW);
    EXPECT_EQ(m_dialog->GetNextDlgTabItem(title, TRUE), preview);
    EXPECT_EQ(m_dialog->GetNextDlgTabItem(preview, FALSE), title);
    // Escape belongs to the preview only while there is a mark to clear.
    MSG escape{preview->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    const auto wanted = [&] {
        return (preview->SendMessage(WM_GETDLGCODE, VK_ESCAPE, reinterpret_cast<LPARAM>(&escape)) &
                DLGC_WANTMESSAGE) != 0;
    };
    EXPECT_FALSE(wanted());
    preview->SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_TRUE(wanted());
}

TEST_F(SettingsDlg, NoControlOverlapsAnotherOrTheBorder) {
    Open(2);
    CRect inside;
    m_dialog->GetClientRect(&inside);
    std::vector<CRect> rects;
    for (CWnd* child = m_dialog->GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT)) {
        char name[32];
        GetClassNameA(child->m_hWnd, name, sizeof name);
        const bool isFrame =
            (child->GetStyle() & BS_TYPEMASK) == BS_GROUPBOX && std::string(name) == "Button";
        CRect rect;
        child->GetWindowRect(&rect);
        m_dialog->ScreenToClient(&rect);
        CRect common;
        common.IntersectRect(rect, inside);
        EXPECT_EQ(common, rect) << "item " << child->GetDlgCtrlID() << " leaves the dialog";
        if (isFrame)
            continue;
        for (const CRect& other : rects)
            EXPECT_FALSE(common.IntersectRect(rect, other))
                << "item " << child->GetDlgCtrlID() << " covers another";
        rects.push_back(rect);

        // Texts of labels and check boxes have the room they need.
        CString text;
        child->GetWindowText(text);
        if (std::string(name) != "Static" && std::string(name) != "Button")
            continue;
        CClientDC dc(child);
        CFont* const old = dc.SelectObject(child->GetFont());
        const int besideText = std::string(name) == "Button" ? 16 : 0;
        EXPECT_LE(dc.GetTextExtent(text).cx + besideText, rect.Width()) << static_cast<LPCTSTR>(text);
        dc.SelectObject(old);
    }
    EXPECT_GE(rects.size(), 18u);
}

} // namespace
} // namespace kavlix::test
