// SPDX-License-Identifier: MIT
// The window with the multi-type graph.
#pragma once

#include <kavlix/Graph.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "monitor/GraphSettings.h"
#include "monitor/recording/Recording.h"

namespace kavlix::monitor {

/// A type of graph as the panel offers it.
struct GraphTypeChoice {
    int type; ///< a graph type of CGraph, such as GraphTypeBar
    LPCTSTR name;
};
const std::vector<GraphTypeChoice>& GraphTypeChoices();

/// The person's choices about the multi-type graph.
struct MultiOptions {
    int type = GraphTypeBar;
    /// The series whose lowest, mean and highest values are shown. None: the means of all visible series.
    std::optional<std::size_t> series;
    bool horizontal = false;
    bool grid = true;
    int labelAngle = 0;  ///< angle of the graph's series labels in degrees, counter-clockwise
    double depth = 0.05; ///< depth of the 3D types, as a share of the plot's width
};

/// Shows the statistics of a recording's periods in a multi-type graph.
///
/// Bars, lines and pies have a group for each statistic of the chosen series, or for the mean of each series
/// when all are shown. Each group has an element for each period. The box-whisker type has a box for each
/// period of a series, or for each series when all are shown. Scatter and XY line have the period's number
/// along X.
class CMultiGraphView : public CWnd {
public:
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows the statistics of `recording`; null shows an empty graph. Repaints.
    void Show(const recording::Recording* recording, const GraphSettings& settings,
              const MultiOptions& options);

    /// Paints the picture at the size of the window, one logical unit to a pixel.
    void Draw(CDC& dc);

    /// Prints the picture at the top of a page, with margins. `page` is the size of the page in twips.
    void Print(CDC& dc, CSize page);

    const CGraph& Graph() const { return *m_graph; }

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<CGraph> m_graph = std::make_unique<CGraph>();
};

} // namespace kavlix::monitor
