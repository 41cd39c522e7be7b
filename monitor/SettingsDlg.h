// SPDX-License-Identifier: MIT
// The settings dialog with its preview.
#pragma once

#include <afxwin.h>

#include "monitor/MonitorGraph.h"
#include "monitor/resource.h"

namespace kavlix::monitor {

/// A push button that shows a colour.
class CColorButton : public CButton {
public:
    void SetColor(COLORREF color);
    COLORREF Color() const { return m_color; }

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

private:
    COLORREF m_color = RGB(0, 0, 0);
};

/// Changes a graph's settings. A preview shows every change at once. The caller applies Settings() when the
/// dialog has returned IDOK.
class CSettingsDlg : public CDialog {
public:
    enum { IDD = IDD_SETTINGS };

    /// The preview shows the part `visible` of `source`.
    CSettingsDlg(GraphSource source, recording::VisibleRange visible, GraphSettings settings,
                 CWnd* parent = nullptr);

    const GraphSettings& Settings() const { return m_settings; }
    const CMonitorGraph& Preview() const { return m_preview; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    afx_msg void OnGraphChanged();
    afx_msg void OnSeriesChosen();
    afx_msg void OnChooseColor();
    DECLARE_MESSAGE_MAP()

private:
    void FillChoices();
    void SettingsToMembers();
    void MembersToSettings();
    void ShowSettings();

    GraphSource m_source;
    recording::VisibleRange m_visible;
    GraphSettings m_settings;

    CMonitorGraph m_preview;
    CColorButton m_colorButton;
    CComboBox m_styleBox;
    CComboBox m_titleStyleBox;
    CComboBox m_seriesBox;
    CComboBox m_lineSizeBox;
    CComboBox m_markerBox;
    CString m_title;
    int m_style = 0;
    int m_titleStyle = 0;
    BOOL m_legend = FALSE;
    BOOL m_gridX = FALSE;
    BOOL m_gridY = FALSE;
    int m_series = 0;
    int m_lineSize = 0;
    int m_marker = 0;
    BOOL m_showSeries = FALSE;
    bool m_filling = true; ///< the dialog is setting its controls: their notifications are ignored
};

} // namespace kavlix::monitor
