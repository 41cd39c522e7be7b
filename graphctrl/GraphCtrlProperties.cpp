// SPDX-License-Identifier: MIT
// CGraphCtrl: the setters that do more than store one value.
#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <utility>

BOOL CGraphCtrl::SetColor(int nDataset, COLORREF color) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets[nDataset].m_Color = color;
    if (m_GraphStyle == GraphStyleTwoAxis && nDataset == 0) {
        m_YLabelColor = color;
        m_YTickLabelColor = color;
    } else if (m_GraphStyle == GraphStyleTwoAxis && nDataset == 1) {
        m_Y2LabelColor = color;
        m_Y2TickLabelColor = color;
    }
    return TRUE;
}

BOOL CGraphCtrl::SetLineSize(int nDataset, int nSize) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets[nDataset].m_LineSize = std::clamp<int>(nSize, 0, CDataset::MaxLineSize);
    return TRUE;
}

BOOL CGraphCtrl::SetMarkerType(int nDataset, CDataset::MarkerType type) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets[nDataset].m_MarkerType = type;
    return TRUE;
}

BOOL CGraphCtrl::ShowDataset(int nDataset, BOOL bShow) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets[nDataset].m_Visible = bShow;
    return TRUE;
}

BOOL CGraphCtrl::SetLegend(int nDataset, CString text) {
    if (!IsDataset(nDataset))
        return FALSE;
    m_Datasets[nDataset].SetLegend(std::move(text));
    return TRUE;
}

void CGraphCtrl::ResetLegend() {
    for (CDataset& dataset : m_Datasets)
        dataset.SetLegend(_T(""));
}

void CGraphCtrl::SetGraphStyle(GraphStyle style) {
    m_GraphStyle = style;
    if (style != GraphStyleTwoAxis)
        return;
    m_ShowLegend = FALSE;
    m_YLabelColor = m_YTickLabelColor = m_Datasets[0].GetColor();
    m_Y2LabelColor = m_Y2TickLabelColor = m_Datasets[1].GetColor();
}

void CGraphCtrl::ShowLegend(BOOL bShow) {
    m_ShowLegend = m_GraphStyle == GraphStyleTwoAxis ? FALSE : bShow;
}

void CGraphCtrl::SetGrid(BOOL bGridX, BOOL bGridY) {
    m_GridX = bGridX;
    m_GridY = bGridY;
}

void CGraphCtrl::SetYUnit(CString unit, int nExponent, int nDecimals) {
    m_YUnit = std::move(unit);
    m_YUnitExponent = nExponent;
    m_YTickLabelScale = nDecimals;
}

void CGraphCtrl::SetY2Unit(CString unit, int nExponent, int nDecimals) {
    m_Y2Unit = std::move(unit);
    m_Y2UnitExponent = nExponent;
    m_Y2TickLabelScale = nDecimals;
}

void CGraphCtrl::ShowIconMaximize(BOOL bShow, BOOL bMaximized) {
    m_ShowIconMaximize = bShow;
    m_IconMaximized = bMaximized;
}

void CGraphCtrl::SetCaptionFont(int nSize, LPCTSTR pszFace) {
    m_CaptionFontFace = pszFace;
    m_CaptionFontSize = nSize;
}
