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
    using CGraphCtrl::CalcBarSize;
    using CGraphCtrl::DrawCaption;
    using CGraphCtrl::DrawGraph;
    using CGraphCtrl::DrawIconMaximize;
    using CGraphCtrl::DrawLegend;
    using CGraphCtrl::DrawTitle;
    using CGraphCtrl::DrawYAxis;
    using CGraphCtrl::GetIndexFromPt;
    using CGraphCtrl::GetPtFromIndex;
    using CGraphCtrl::GetTitleTextHeight;
    using CGraphCtrl::RegisterWindowClass;
    using CGraphCtrl::SendRemoveDataNotifyMessage;
    using CGraphCtrl::SendSelchangeNotifyMessage;
    using CGraphCtrl::SetMapModeAnisotropic;

    using CGraphCtrl::m_AutoXVisible;
    using CGraphCtrl::m_AxisColor;
    using CGraphCtrl::m_BkColor;
    using CGraphCtrl::m_BoxCursorColor;
    using CGraphCtrl::m_CaptionColor;
    using CGraphCtrl::m_CaptionFontFace;
    using CGraphCtrl::m_CaptionFontSize;
    using CGraphCtrl::m_CaptionTextColor;
    using CGraphCtrl::m_Datasets;
    using CGraphCtrl::m_GraphStyle;
    using CGraphCtrl::m_GridColor;
    using CGraphCtrl::m_GridX;
    using CGraphCtrl::m_GridY;
    using CGraphCtrl::m_IconMaximized;
    using CGraphCtrl::m_IconMaximizePressed;
    using CGraphCtrl::m_IconMaximizeTracking;
    using CGraphCtrl::m_LegendColor;
    using CGraphCtrl::m_LegendFont;
    using CGraphCtrl::m_LegendItemHeight;
    using CGraphCtrl::m_LegendMargin;
    using CGraphCtrl::m_LegendTextColor;
    using CGraphCtrl::m_LegendWidth;
    using CGraphCtrl::m_LineCursorColor;
    using CGraphCtrl::m_rectCaption;
    using CGraphCtrl::m_rectClient;
    using CGraphCtrl::m_rectClientInner;
    using CGraphCtrl::m_rectIconMaximize;
    using CGraphCtrl::m_rectLegend;
    using CGraphCtrl::m_rectPlot;
    using CGraphCtrl::m_rectTitle;
    using CGraphCtrl::m_rectXAxis;
    using CGraphCtrl::m_rectXTickLabel;
    using CGraphCtrl::m_rectY2Axis;
    using CGraphCtrl::m_rectY2TickLabel;
    using CGraphCtrl::m_rectYAxis;
    using CGraphCtrl::m_rectYTickLabel;
    using CGraphCtrl::m_ReservedValue;
    using CGraphCtrl::m_SelectionMarkPos;
    using CGraphCtrl::m_ShowBorder;
    using CGraphCtrl::m_ShowIconMaximize;
    using CGraphCtrl::m_ShowLegend;
    using CGraphCtrl::m_ShowLegendBoard;
    using CGraphCtrl::m_ShowMenuRemoveDataBeforeSelectionMark;
    using CGraphCtrl::m_ShowXLabel;
    using CGraphCtrl::m_ShowY2Label;
    using CGraphCtrl::m_ShowYLabel;
    using CGraphCtrl::m_Title;
    using CGraphCtrl::m_TitleColor;
    using CGraphCtrl::m_TitleStyle;
    using CGraphCtrl::m_UnitFont;
    using CGraphCtrl::m_XLabel;
    using CGraphCtrl::m_XLabelColor;
    using CGraphCtrl::m_XTickLabelColor;
    using CGraphCtrl::m_XTickLabelDown;
    using CGraphCtrl::m_XTickLabelFont;
    using CGraphCtrl::m_XTickLabelHeight;
    using CGraphCtrl::m_XTickLabelUp;
    using CGraphCtrl::m_XTickLabelUpStringMaxLength;
    using CGraphCtrl::m_XVisibleMax;
    using CGraphCtrl::m_XVisibleMin;
    using CGraphCtrl::m_Y2Label;
    using CGraphCtrl::m_Y2LabelColor;
    using CGraphCtrl::m_Y2TickLabelColor;
    using CGraphCtrl::m_Y2TickLabelScale;
    using CGraphCtrl::m_Y2TickLabelWidth;
    using CGraphCtrl::m_Y2Unit;
    using CGraphCtrl::m_Y2UnitExponent;
    using CGraphCtrl::m_Y2VisibleMax;
    using CGraphCtrl::m_Y2VisibleMin;
    using CGraphCtrl::m_YLabel;
    using CGraphCtrl::m_YLabelColor;
    using CGraphCtrl::m_YTickLabelColor;
    using CGraphCtrl::m_YTickLabelFont;
    using CGraphCtrl::m_YTickLabelScale;
    using CGraphCtrl::m_YTickLabelWidth;
    using CGraphCtrl::m_YUnit;
    using CGraphCtrl::m_YUnitExponent;
    using CGraphCtrl::m_YVisibleMax;
    using CGraphCtrl::m_YVisibleMin;

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
