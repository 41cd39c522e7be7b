#pragma once

#include <afxwin.h>

#include <kavlix/ScrollGraphCtrl.h>

#include <optional>

/// How a graph's lines are drawn sample by sample: the measure for every shortcut. Written from the rules of
/// the picture alone, it shares no arithmetic with the control.
namespace plain {

/// Where values stand: at `edge` for `min`, at `edge` + `extent` for `max`.
struct Scale {
    double min, max;
    int edge, extent;
    std::optional<int> Place(double value) const;
};

struct Series {
    const CDataset* dataset;
    Scale scale;
};

struct Mark {
    int index;
    COLORREF lineColour;
    int top, bottom;
};

/// Draws the samples `first` to `last`; `place(i)` is the position of sample i along the X axis.
template <class Place>
void DrawLine(HDC dc, const Series& series, int first, int last, const Mark& mark, Place place);

void DrawMarkerShape(HDC dc, int type, int x, int y);
void DrawMarkAt(HDC dc, const Mark& mark, int x);

/// A control that draws its lines either way. `Control` is CGraphCtrl or CScrollGraphCtrl.
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

    bool isPlain = false; ///< whether the lines are walked plainly

    /// Paints the whole picture.
    void Paint(HDC handle) {
        CDC* dc = CDC::FromHandle(handle);
        this->SetMapModeAnisotropic(*dc);
        this->DrawGraph(*dc);
    }

    /// Whether a sample that is drawn with a wide pen lies more than 30 pixels beyond the plot.
    bool ReachesFarWithAWidePen() const;

    /// Where the scrolling graph's view begins, x units.
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
    /// The samples to draw and their places.
    void Range(int size, int& first, int& last) const;
    std::optional<int> PlaceOf(int index) const;
};

} // namespace plain
