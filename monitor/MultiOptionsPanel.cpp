// SPDX-License-Identifier: MIT
// Fills and reads the panel's controls.

#include "monitor/MultiOptionsPanel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "monitor/TextConversion.h"

namespace kavlix::monitor {
namespace {

constexpr int kAngles[] = {0, 30, 45, 60, 90, 135, 180, 270, 315}; // degrees
constexpr int kDepths[] = {0, 2, 5, 10, 20, 40};                   // percent of the plot's width
constexpr std::size_t kDefaultDepth = 2;                           // index into kDepths
constexpr LPCTSTR kAllSeries = _T("(means of all series)");

} // namespace

BEGIN_MESSAGE_MAP(CMultiOptionsPanel, CDialog)
    ON_LBN_SELCHANGE(IDC_MULTI_TYPE, &CMultiOptionsPanel::OnChanged)
    ON_CBN_SELCHANGE(IDC_MULTI_DATA, &CMultiOptionsPanel::OnChanged)
    ON_CBN_SELCHANGE(IDC_MULTI_ANGLE, &CMultiOptionsPanel::OnChanged)
    ON_CBN_SELCHANGE(IDC_MULTI_DEPTH, &CMultiOptionsPanel::OnChanged)
    ON_BN_CLICKED(IDC_MULTI_HORIZONTAL, &CMultiOptionsPanel::OnChanged)
    ON_BN_CLICKED(IDC_MULTI_GRID, &CMultiOptionsPanel::OnChanged)
END_MESSAGE_MAP()

bool CMultiOptionsPanel::CreateChild(CWnd& parent, std::function<void()> changed) {
    m_changed = std::move(changed);
    return Create(IDD, &parent) != FALSE;
}

BOOL CMultiOptionsPanel::OnInitDialog() {
    CDialog::OnInitDialog();
    auto* const types = static_cast<CListBox*>(GetDlgItem(IDC_MULTI_TYPE));
    for (const GraphTypeChoice& choice : GraphTypeChoices())
        types->AddString(choice.name);
    types->SetCurSel(0);
    auto* const angles = static_cast<CComboBox*>(GetDlgItem(IDC_MULTI_ANGLE));
    for (const int angle : kAngles)
        angles->AddString(ToText(std::to_string(angle) + "\xC2\xB0"));
    angles->SetCurSel(0);
    auto* const depths = static_cast<CComboBox*>(GetDlgItem(IDC_MULTI_DEPTH));
    for (const int depth : kDepths)
        depths->AddString(ToText(std::to_string(depth) + " %"));
    depths->SetCurSel(static_cast<int>(kDefaultDepth));
    CheckDlgButton(IDC_MULTI_GRID, BST_CHECKED);
    OfferSeries({});
    return FALSE;
}

BOOL CMultiOptionsPanel::PreTranslateMessage(MSG* pMsg) {
    // A dialog would handle every key itself, so offer keys to the main window's accelerators first. The keys
    // that scroll a list stay with the dialog.
    const WPARAM key = pMsg->message == WM_KEYDOWN ? pMsg->wParam : 0;
    const bool forList = key == VK_HOME || key == VK_END || key == VK_PRIOR || key == VK_NEXT;
    CFrameWnd* const frame = GetTopLevelFrame();
    if (frame && !forList && frame->PreTranslateMessage(pMsg))
        return TRUE;
    return CDialog::PreTranslateMessage(pMsg);
}

void CMultiOptionsPanel::OfferSeries(const std::vector<std::string>& names) {
    auto* const box = static_cast<CComboBox*>(GetDlgItem(IDC_MULTI_DATA));
    if (names == m_names && box->GetCount() > 0)
        return;
    const int before = names.size() == m_names.size() ? box->GetCurSel() : -1;
    m_names = names;
    box->ResetContent();
    box->AddString(kAllSeries);
    for (const std::string& name : names)
        box->AddString(ToText(name));
    // A single series shows all its statistics: the mean alone says little.
    box->SetCurSel(before >= 0 ? before : names.size() == 1 ? 1 : 0);
}

int CMultiOptionsPanel::Chosen(int id, UINT message) const {
    return static_cast<int>(::SendDlgItemMessage(m_hWnd, id, message, 0, 0));
}

MultiOptions CMultiOptionsPanel::Options() const {
    MultiOptions options;
    const auto at = [](const auto& list, int index) {
        return list[static_cast<std::size_t>(
            std::clamp<int>(index, 0, static_cast<int>(std::size(list)) - 1))];
    };
    options.type = at(GraphTypeChoices(), Chosen(IDC_MULTI_TYPE, LB_GETCURSEL)).type;
    const int data = Chosen(IDC_MULTI_DATA, CB_GETCURSEL);
    if (data > 0)
        options.series = static_cast<std::size_t>(data - 1);
    options.labelAngle = at(kAngles, Chosen(IDC_MULTI_ANGLE, CB_GETCURSEL));
    options.depth = at(kDepths, Chosen(IDC_MULTI_DEPTH, CB_GETCURSEL)) / 100.0;
    options.horizontal = ::IsDlgButtonChecked(m_hWnd, IDC_MULTI_HORIZONTAL) == BST_CHECKED;
    options.grid = ::IsDlgButtonChecked(m_hWnd, IDC_MULTI_GRID) == BST_CHECKED;
    return options;
}

void CMultiOptionsPanel::OnChanged() {
    m_changed();
}

} // namespace kavlix::monitor
