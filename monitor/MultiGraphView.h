#pragma once

#include "monitor/GraphSettings.h"
#include "monitor/recording/Recording.h"

#include <kavlix/Graph.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavlix::monitor {

/// A type of graph as a person chooses it.
struct GraphTypeChoice {
    int type;
    const char* name;
};
const std::vector<GraphTypeChoice>& GraphTypeChoices();

/// What a person chooses about the multi-type graph.
struct MultiOptions {
    int type = GraphTypeBar;
    /// The series whose lowest, mean and highest values are shown; none: the means of all visible series.
    std::optional<std::size_t> series;
    bool horizontal = false;
    bool grid = true;
    int labelAngle = 0; ///< degrees
    double depth = 0.05;
};

/// Shows statistics of a recording, by periods, in a multi-type graph.
///
/// Bars, lines and pies have a group for each statistic and a slot for each period. The box-whisker type has
/// a box of all values for each period, or for each series when all are shown. Scatter and XY line have the
/// period's number along X.
class CMultiGraphView : public CWnd {
public:
    bool CreateChild(CWnd& parent, UINT id);

    /// Shows statistics. Repaints.
    /// @param recording null: nothing
    void Show(const recording::Recording* recording, const GraphSettings& settings,
              const MultiOptions& options);

    /// Paints the picture at the size of the window, one logical unit to a pixel.
    void Draw(CDC& dc);

    /// Paints the picture across the top of a page, with margins.
    /// @param page width and height in twips
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
