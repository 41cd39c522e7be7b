// SPDX-License-Identifier: MIT
// CChartCursor: reads the values of a chart window under the pointer.
#pragma once

#include <afxwin.h>

#include <kavlix/ChartStatistics.h>
#include <kavlix/Export.h>

#include <memory>

class CChartDraw;
namespace kavlix {
struct ChartCursorState;
struct ChartDrawState;
} // namespace kavlix

/// The two cursors of a CChartDraw, see CChartDraw::GetCursor: crosshairs at samples, and a readout of their
/// values. The first cursor follows the pointer, and arrow keys move it. The user places the second cursor at the
/// first one, or takes it away there, by Ctrl and a click or by the space bar. The second cursor stays where it is
/// set, and the readout then shows difference, minimum, maximum, mean and number of samples between both. A cursor
/// keeps its sample while other points come and go. Samples are the points whose x and y are finite. The chart owns
/// its cursor. Setters do not repaint.
class KAVLIX_API CChartCursor {
public:
    /// Which samples the cursors show.
    enum Mode {
        Off,     ///< no cursor; the default
        Nearest, ///< the nearest sample of the nearest visible dataset
        All      ///< the nearest sample of each visible dataset
    };
    /// @{
    /// Mode of the cursors. Off hides both.
    void SetMode(Mode mode);
    Mode GetMode() const;
    /// @}
    /// Whether a box shows the values at the cursors; default TRUE.
    void ShowReadout(BOOL bShow);
    /// Colours of the crosshair, and of the readout's texts, background and border.
    void SetColors(COLORREF line, COLORREF text, COLORREF background, COLORREF border);

    /// Places cursor `nCursor` (0 or 1) at the samples nearest to `x`. FALSE, with nothing changed, when the mode
    /// is Off, there is no such cursor, `x` is not finite, or no visible dataset has a sample.
    BOOL SetPosition(int nCursor, double x);
    /// Hides a cursor.
    void Hide(int nCursor);
    /// The x of the sample that a cursor is at; FALSE, with `x` unchanged, while the cursor is hidden.
    BOOL GetPosition(int nCursor, double& x) const;
    /// The dataset of the sample that a cursor is at; -1 while it is hidden.
    int GetDataset(int nCursor) const;
    /// Index of the sample of `nDataset` nearest to a cursor; -1 while the cursor is hidden, and when there is none.
    int GetSample(int nCursor, int nDataset) const;
    /// Moves a cursor by `nSamples` samples of its dataset, and pans the view if the sample is not in it, which repaints
    /// and is told to linked charts. FALSE
    /// when the cursor is hidden or at the end.
    BOOL MoveBySamples(int nCursor, int nSamples);
    /// Statistics of a dataset between the two cursors; FALSE, with nothing written, unless both are shown and the
    /// dataset exists.
    BOOL GetStatistics(int nDataset, ChartStatistics& statistics) const;

    CChartCursor(const CChartCursor&) = delete;
    CChartCursor& operator=(const CChartCursor&) = delete;

private:
    friend struct kavlix::ChartDrawState;
    friend class CChartDraw;
    explicit CChartCursor(CChartDraw& chart);
    ~CChartCursor();

    std::unique_ptr<kavlix::ChartCursorState> m_State;
};

KAVLIX_CHECK_HOST(CChartCursor)
