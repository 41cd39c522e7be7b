// SPDX-License-Identifier: MIT
// Moves the settings between the dialog's controls and the preview.

#include "monitor/SettingsDlg.h"

#include <afxdlgs.h>

#include <kavlix/Kavlix.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "monitor/TextConversion.h"

namespace kavlix::monitor {
namespace {

constexpr LPCTSTR kStyleNames[] = {_T("Lines"), _T("Bars"), _T("Two axes")};
constexpr LPCTSTR kTitleStyleNames[] = {_T("Text"), _T("Caption band")};
constexpr int kSwatchMargin = 4; // pixels from the button's edge to its colour

template <class Choices, class Predicate> int IndexOf(const Choices& choices, Predicate predicate) {
    const auto found = std::find_if(choices.begin(), choices.end(), predicate);
    return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
}

} // namespace

void CColorButton::SetColor(COLORREF color) {
    m_color = color;
    if (GetSafeHwnd())
        Invalidate();
}

void CColorButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    const bool enabled = (lpDrawItemStruct->itemState & ODS_DISABLED) == 0;
    const UINT pressed = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0 ? DFCS_PUSHED : 0;
    dc->DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONPUSH | pressed);
    rect.DeflateRect(kSwatchMargin, kSwatchMargin);
    dc->FillSolidRect(rect, enabled ? m_color : GetSysColor(COLOR_BTNFACE));
    if ((lpDrawItemStruct->itemState & ODS_FOCUS) != 0) {
        rect.InflateRect(1, 1);
        dc->DrawFocusRect(rect);
    }
}

BEGIN_MESSAGE_MAP(CSettingsDlg, CDialog)
    ON_EN_CHANGE(IDC_TITLE, &CSettingsDlg::OnGraphChanged)
    ON_CBN_SELCHANGE(IDC_STYLE, &CSettingsDlg::OnGraphChanged)
    ON_CBN_SELCHANGE(IDC_TITLE_STYLE, &CSettingsDlg::OnGraphChanged)
    ON_BN_CLICKED(IDC_LEGEND, &CSettingsDlg::OnGraphChanged)
    ON_BN_CLICKED(IDC_GRID_X, &CSettingsDlg::OnGraphChanged)
    ON_BN_CLICKED(IDC_GRID_Y, &CSettingsDlg::OnGraphChanged)
    ON_CBN_SELCHANGE(IDC_SERIES, &CSettingsDlg::OnSeriesChosen)
    ON_BN_CLICKED(IDC_COLOR, &CSettingsDlg::OnChooseColor)
    ON_CBN_SELCHANGE(IDC_LINE_SIZE, &CSettingsDlg::OnGraphChanged)
    ON_CBN_SELCHANGE(IDC_MARKER, &CSettingsDlg::OnGraphChanged)
    ON_BN_CLICKED(IDC_SHOW_SERIES, &CSettingsDlg::OnGraphChanged)
END_MESSAGE_MAP()

CSettingsDlg::CSettingsDlg(GraphSource source, recording::VisibleRange visible, GraphSettings settings,
                           CWnd* parent)
    : CDialog(CSettingsDlg::IDD, parent), m_source(std::move(source)), m_visible(visible),
      m_settings(std::move(settings)) {
    m_preview.ShowMenuRemoveDataBeforeSelectionMark(FALSE);
}

void CSettingsDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_GraphControl(pDX, IDC_PREVIEW, m_preview);
    DDX_Control(pDX, IDC_COLOR, m_colorButton);
    DDX_Control(pDX, IDC_STYLE, m_styleBox);
    DDX_Control(pDX, IDC_TITLE_STYLE, m_titleStyleBox);
    DDX_Control(pDX, IDC_SERIES, m_seriesBox);
    DDX_Control(pDX, IDC_LINE_SIZE, m_lineSizeBox);
    DDX_Control(pDX, IDC_MARKER, m_markerBox);
    DDX_Text(pDX, IDC_TITLE, m_title);
    DDX_CBIndex(pDX, IDC_STYLE, m_style);
    DDX_CBIndex(pDX, IDC_TITLE_STYLE, m_titleStyle);
    DDX_Check(pDX, IDC_LEGEND, m_legend);
    DDX_Check(pDX, IDC_GRID_X, m_gridX);
    DDX_Check(pDX, IDC_GRID_Y, m_gridY);
    DDX_CBIndex(pDX, IDC_SERIES, m_series);
    DDX_CBIndex(pDX, IDC_LINE_SIZE, m_lineSize);
    DDX_CBIndex(pDX, IDC_MARKER, m_marker);
    DDX_Check(pDX, IDC_SHOW_SERIES, m_showSeries);
}

BOOL CSettingsDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    FillChoices();
    m_preview.Show(m_source, m_settings);
    m_preview.SetVisible(m_visible);
    SettingsToMembers();
    m_filling = false;
    return TRUE;
}

void CSettingsDlg::FillChoices() {
    // The two-axis style needs two series.
    const std::size_t styles =
        m_settings.series.size() >= 2 ? std::size(kStyleNames) : std::size(kStyleNames) - 1;
    for (std::size_t i = 0; i < styles; ++i)
        m_styleBox.AddString(kStyleNames[i]);
    for (const LPCTSTR name : kTitleStyleNames)
        m_titleStyleBox.AddString(name);
    for (const SeriesSettings& series : m_settings.series)
        m_seriesBox.AddString(ToText(series.name));
    for (const LineSizeChoice& choice : LineSizeChoices())
        m_lineSizeBox.AddString(choice.name);
    for (const MarkerChoice& choice : MarkerChoices())
        m_markerBox.AddString(choice.name);
    const int seriesControls[] = {IDC_SERIES, IDC_COLOR, IDC_LINE_SIZE, IDC_MARKER, IDC_SHOW_SERIES};
    for (const int control : seriesControls)
        GetDlgItem(control)->EnableWindow(!m_settings.series.empty());
}

void CSettingsDlg::SettingsToMembers() {
    m_title = ToText(m_settings.title);
    m_style = m_settings.style;
    m_titleStyle = m_settings.titleStyle;
    m_legend = m_settings.legend;
    m_gridX = m_settings.gridX;
    m_gridY = m_settings.gridY;
    if (m_series >= 0 && m_series < static_cast<int>(m_settings.series.size())) {
        const SeriesSettings& series = m_settings.series[static_cast<std::size_t>(m_series)];
        m_colorButton.SetColor(series.color);
        m_lineSize = IndexOf(
            LineSizeChoices(), [&](const LineSizeChoice& c) { return c.size == series.lineSize; });
        m_marker = IndexOf(MarkerChoices(), [&](const MarkerChoice& c) { return c.type == series.marker; });
        m_showSeries = series.visible;
    }
    ShowSettings();
}

void CSettingsDlg::ShowSettings() {
    const bool filling = std::exchange(m_filling, true);
    UpdateData(FALSE);
    // The two-axis style has no legend.
    GetDlgItem(IDC_LEGEND)->EnableWindow(m_settings.style != CGraphCtrl::GraphStyleTwoAxis);
    m_filling = filling;
}

void CSettingsDlg::MembersToSettings() {
    m_settings.title = ToUtf8(m_title);
    if (m_style >= 0)
        m_settings.style = static_cast<CGraphCtrl::GraphStyle>(m_style);
    if (m_titleStyle >= 0)
        m_settings.titleStyle = static_cast<CGraphCtrl::TitleStyle>(m_titleStyle);
    m_settings.legend = m_legend != FALSE;
    m_settings.gridX = m_gridX != FALSE;
    m_settings.gridY = m_gridY != FALSE;
    if (m_series < 0 || m_series >= static_cast<int>(m_settings.series.size()))
        return;
    SeriesSettings& series = m_settings.series[static_cast<std::size_t>(m_series)];
    series.color = m_colorButton.Color();
    if (m_lineSize >= 0)
        series.lineSize = LineSizeChoices()[static_cast<std::size_t>(m_lineSize)].size;
    if (m_marker >= 0)
        series.marker = MarkerChoices()[static_cast<std::size_t>(m_marker)].type;
    series.visible = m_showSeries != FALSE;
}

void CSettingsDlg::OnGraphChanged() {
    if (m_filling || !UpdateData(TRUE))
        return;
    MembersToSettings();
    m_preview.SetSettings(m_settings);
    GetDlgItem(IDC_LEGEND)->EnableWindow(m_settings.style != CGraphCtrl::GraphStyleTwoAxis);
}

void CSettingsDlg::OnSeriesChosen() {
    m_series = m_seriesBox.GetCurSel();
    SettingsToMembers();
}

void CSettingsDlg::OnChooseColor() {
    CColorDialog dialog(m_colorButton.Color(), CC_FULLOPEN | CC_RGBINIT, this);
    if (dialog.DoModal() != IDOK)
        return;
    m_colorButton.SetColor(dialog.GetColor());
    OnGraphChanged();
}

} // namespace kavlix::monitor
