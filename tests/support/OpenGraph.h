// SPDX-License-Identifier: MIT
// A graph control with everything protected open, and its virtual calls noted.
#pragma once

#include <afxwin.h>

#include <kavlix/GraphCtrl.h>

#include <functional>
#include <string>
#include <vector>

namespace testkit {

/// A graph control, `Base`, as a derived class sees it: everything protected is open, and the virtual
/// operations note that they were called.
template <class Base> class OpenGraphOf : public Base {
public:
    using CGraphCtrl::CalcBarSize, CGraphCtrl::DrawGraph, CGraphCtrl::DrawLegend, CGraphCtrl::DrawTitle,
        CGraphCtrl::GetIndexFromPt, CGraphCtrl::GetPtFromIndex, CGraphCtrl::GetTitleTextHeight,
        CGraphCtrl::SendRemoveDataNotifyMessage, CGraphCtrl::SendSelchangeNotifyMessage,
        CGraphCtrl::SetMapModeAnisotropic;

    using CGraphCtrl::m_AutoXVisible, CGraphCtrl::m_AxisColor, CGraphCtrl::m_BkColor,
        CGraphCtrl::m_BoxCursorColor, CGraphCtrl::m_CaptionColor, CGraphCtrl::m_CaptionFontFace,
        CGraphCtrl::m_CaptionFontSize, CGraphCtrl::m_CaptionTextColor, CGraphCtrl::m_Datasets,
        CGraphCtrl::m_GraphStyle, CGraphCtrl::m_GridColor, CGraphCtrl::m_GridX, CGraphCtrl::m_GridY,
        CGraphCtrl::m_IconMaximized, CGraphCtrl::m_IconMaximizePressed, CGraphCtrl::m_IconMaximizeTracking,
        CGraphCtrl::m_LegendColor, CGraphCtrl::m_LegendItemHeight, CGraphCtrl::m_LegendMargin,
        CGraphCtrl::m_LegendTextColor, CGraphCtrl::m_LegendWidth, CGraphCtrl::m_LineCursorColor,
        CGraphCtrl::m_rectCaption, CGraphCtrl::m_rectClient, CGraphCtrl::m_rectClientInner,
        CGraphCtrl::m_rectIconMaximize, CGraphCtrl::m_rectLegend, CGraphCtrl::m_rectPlot,
        CGraphCtrl::m_rectTitle, CGraphCtrl::m_rectXAxis, CGraphCtrl::m_rectXTickLabel,
        CGraphCtrl::m_rectY2Axis, CGraphCtrl::m_rectY2TickLabel, CGraphCtrl::m_rectYAxis,
        CGraphCtrl::m_rectYTickLabel, CGraphCtrl::m_ReservedValue, CGraphCtrl::m_SelectionMarkPos,
        CGraphCtrl::m_ShowBorder, CGraphCtrl::m_ShowIconMaximize, CGraphCtrl::m_ShowLegend,
        CGraphCtrl::m_ShowLegendBoard, CGraphCtrl::m_ShowMenuRemoveDataBeforeSelectionMark,
        CGraphCtrl::m_ShowXLabel, CGraphCtrl::m_ShowY2Label, CGraphCtrl::m_ShowYLabel, CGraphCtrl::m_Title,
        CGraphCtrl::m_TitleColor, CGraphCtrl::m_TitleStyle, CGraphCtrl::m_XLabel, CGraphCtrl::m_XLabelColor,
        CGraphCtrl::m_XTickLabelColor, CGraphCtrl::m_XTickLabelDown, CGraphCtrl::m_XTickLabelHeight,
        CGraphCtrl::m_XTickLabelUp, CGraphCtrl::m_XTickLabelUpStringMaxLength, CGraphCtrl::m_XVisibleMax,
        CGraphCtrl::m_XVisibleMin, CGraphCtrl::m_Y2Label, CGraphCtrl::m_Y2LabelColor,
        CGraphCtrl::m_Y2TickLabelColor, CGraphCtrl::m_Y2TickLabelScale, CGraphCtrl::m_Y2TickLabelWidth,
        CGraphCtrl::m_Y2Unit, CGraphCtrl::m_Y2UnitExponent, CGraphCtrl::m_Y2VisibleMax,
        CGraphCtrl::m_Y2VisibleMin, CGraphCtrl::m_YLabel, CGraphCtrl::m_YLabelColor,
        CGraphCtrl::m_YTickLabelColor, CGraphCtrl::m_YTickLabelScale, CGraphCtrl::m_YTickLabelWidth,
        CGraphCtrl::m_YUnit, CGraphCtrl::m_YUnitExponent, CGraphCtrl::m_YVisibleMax,
        CGraphCtrl::m_YVisibleMin;

    /// Calls of virtual operations in order: "xaxis 4", "data", "reset labels".
    std::vector<std::string> calls;
    /// WM_ERASEBKGND messages received.
    int erased = 0;
    /// Called when a message is handed on to the default procedure, before it gets there; empty at first.
    std::function<void(UINT, WPARAM, LPARAM)> onDefault;

    void ResetXTickLabel() override {
        calls.push_back("reset labels");
        Base::ResetXTickLabel();
    }
    void InsertGraphMenu(CMenu& menu) override {
        calls.push_back("menu");
        Base::InsertGraphMenu(menu);
    }

protected:
    void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks) override {
        calls.push_back("xaxis " + std::to_string(nTicks));
        Base::DrawXAxis(dc, rectLabel, rectAxis, nTicks);
    }
    void DrawGraphData(CDC& dc) override {
        calls.push_back("data");
        Base::DrawGraphData(dc);
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        erased += message == WM_ERASEBKGND;
        return Base::WindowProc(message, wParam, lParam);
    }
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (onDefault)
            onDefault(message, wParam, lParam);
        return Base::DefWindowProc(message, wParam, lParam);
    }
};

} // namespace testkit
