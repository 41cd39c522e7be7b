// SPDX-License-Identifier: MIT
// The reference picture of a graph's lines, drawn without any shortcut.
#pragma once

#include "tests/support/PlainLines.h"

#include <afxwin.h>

#include <kavlix/ScrollGraphCtrl.h>

#include <optional>

/// Graphs whose lines are drawn sample by sample. The code shares no arithmetic with the control.
namespace plain {

/// A control that draws its lines itself or by the plain walk. `Control` is CGraphCtrl or CScrollGraphCtrl.
template <class Control> class Graph : public Control {
public:
    using CGraphCtrl::m_Datasets;
    using CGraphCtrl::m_GraphStyle;
    using CGraphCtrl::m_rectPlot;
    using CGraphCtrl::m_SelectionMarkPos;
    using CGraphCtrl::m_XVisibleMax;
    using CGraphCtrl::m_XVisibleMin;
    using CGraphCtrl::m_Y2VisibleMax;
    using CGraphCtrl::m_Y2VisibleMin;
    using CGraphCtrl::m_YVisibleMax;
    using CGraphCtrl::m_YVisibleMin;

    bool isPlain = false; ///< whether lines are drawn by the plain walk

    /// Paints the whole picture.
    void Paint(HDC handle) {
        CDC* dc = CDC::FromHandle(handle);
        this->SetMapModeAnisotropic(*dc);
        this->DrawGraph(*dc);
    }

    /// Whether a sample that is drawn with a wide pen lies more than 30 pixels beyond the plot.
    bool ReachesFarWithAWidePen() const;

    /// The left end of the scrolling graph's view, in x units.
    double& ViewPos();

protected:
    void DrawGraphData(CDC& dc) override {
        if (!isPlain || m_GraphStyle == CGraphCtrl::GraphStyleBar)
            Control::DrawGraphData(dc);
        else
            Walk(dc);
    }

private:
    void Walk(CDC& dc);
    /// The samples to draw.
    void Range(int size, int& first, int& last) const;
    /// The Y range of a dataset, in the plot.
    testkit::PlainScale YScale(int dataset) const;
    /// The position of a sample along the X axis.
    std::optional<int> PlaceOf(int index) const;
};

} // namespace plain
