// SPDX-License-Identifier: MIT
// ChartDrawState: the parts of a chart behind CChartDraw::m_State, and how the parts reach one another.
#pragma once

#include <kavlix/ChartDraw.h>

#include <cstdint>
#include <memory>
#include <optional>

#include "plot/AxisMap.h"
#include "plot/ValueBounds.h"

namespace kavlix {

struct ChartAxisState;  // chartdraw/ChartAxisState.h: properties and layout of an axis
struct AxisLayout;      // chartdraw/AxisLayout.h: ticks and texts of an axis
struct ChartInputState; // chartdraw/ChartInputState.h: view, history, gestures
struct CsvTable;        // chartdraw/core/CsvWriter.h: what is saved
struct LinkedRange;
struct DrawnDataset;   // chartdraw/DatasetPainter.h
struct ChartLinkState; // chartdraw/ChartLink.h: the charts that share an X view
struct ChartPostState; // chartdraw/ChartPost.h: points of other threads
class ColumnEnds;
class KeptDatasets; // chartdraw/KeptDatasets.h: the painted datasets of the last paint

/// The parts of a chart. Their sources reach the chart's private members by the functions here.
///
/// Drawing: PaintBkGnd, DrawTitle, DrawGrid (DrawBands, then the grid), DrawDatasets, DrawAxes, DrawYScale (both Y axes),
/// DrawXScale (X axis, then DrawOverlay).
struct ChartDrawState {
    using ChartDataset = CChartDraw::Dataset; ///< for functions that are no friends of CChartDraw

    explicit ChartDrawState(CChartDraw& chart);
    ~ChartDrawState();

    /// The state of the chart that has this window; null without one.
    static ChartDrawState* Of(HWND window);

    static constexpr int kAxes = 3;
    enum AxisNumber { kX, kY, kY2 };

    CChartDraw& chart;
    CChartAxis xAxis, yAxis, y2Axis;
    CChartLegend legend;
    CChartCursor cursor;
    CChartReferences references;
    std::unique_ptr<ChartInputState> input;
    std::unique_ptr<ChartLinkState> link;
    std::unique_ptr<ChartPostState> posted;
    std::unique_ptr<KeptDatasets> kept;

    ChartAxisState& AxisState(int axis) { return *Axis(axis).m_State; }
    CChartAxis& Axis(int axis) { return axis == kX ? xAxis : axis == kY ? yAxis : y2Axis; }
    const CChartAxis& Axis(int axis) const { return axis == kX ? xAxis : axis == kY ? yAxis : y2Axis; }

    // ---- Maps of the last layout, values to client pixels (chartdraw/ChartAxis.cpp) ----

    AxisMap Map(int axis) const;              ///< values of an axis
    const AxisLayout& Layout(int axis) const; ///< ticks and texts of an axis
    AxisMap
    XMap(const CChartDraw::Dataset& dataset) const; ///< x of a dataset, which count from its own origin
    AxisMap YMap(const CChartDraw::Dataset& dataset) const; ///< y of a dataset on the axis that it uses
    /// Number of values of the visible datasets that logarithmic axes cannot show: those of 0 and below.
    std::int64_t CountNotShown() const;
    CString note;                    ///< tells the number; above the plot
    CString Caption(int axis) const; ///< title of an axis with its unit
    bool HasAxis(int axis) const { return axis != kY2 || HasSecondYAxis(); }
    bool HasSecondYAxis() const; ///< whether it is shown
    /// Value of the X axis for an x of a dataset.
    double ToAxis(const CChartDraw::Dataset& dataset, double x) const;
    /// x of a dataset for a value of the X axis.
    double ToDataset(const CChartDraw::Dataset& dataset, double value) const;

    // ---- Layout and drawing ----

    /// Takes the room of a legend beside or below the plot from `room`, before the axes are laid out (ChartLegend.cpp).
    void LayOutLegend(CDC& dc, CRect& room);
    /// Places the legend inside the plot after the axes are laid out (ChartLegend.cpp).
    void PlaceLegend(CDC& dc);
    void DrawBands(CDC& dc);          ///< reference bands, behind the data (ChartReferencesPaint.cpp)
    void DrawOverlay(CDC& dc);        ///< reference lines, legend, cursors, zoom box, in this order
    void DrawReferenceLines(CDC& dc); ///< with all texts (ChartReferencesPaint.cpp)
    void DrawReferenceTexts(CDC& dc);
    void DrawLegend(CDC& dc);  ///< ChartLegendPaint.cpp
    void DrawCursors(CDC& dc); ///< with their readout (ChartReadoutPaint.cpp)
    void DrawReadout(CDC& dc);
    void TellNotSaved(const CString& path); ///< a message box (ChartDrawMenu.cpp)
    void DrawZoomBox(CDC& dc);              ///< ChartDrawInput.cpp
    /// Whether the dataset is drawn in a highlighted way: the mouse is over its row in the legend (ChartLegend.cpp).
    bool IsHighlighted(int nDataset) const;
    /// Paints the datasets inside a part of the plot, as one picture or for KeptDatasets; `ends` as for DatasetPainter
    /// (ChartDrawPaintData.cpp).
    void PaintDatasets(CDC& dc, const CRect& part, ColumnEnds* ends) const;
    /// What DatasetPainter draws of a dataset (ChartDrawPaintData.cpp).
    DrawnDataset Drawn(const CChartDraw::Dataset& dataset) const;
    COLORREF FillColor(const CChartDraw::Dataset& dataset) const; ///< colour of bars and of the filled area
    /// Selects the font of the chart's texts for the time of the result.
    BOOL MakeTextFont(CFont& font) const { return chart.MakeTextFont(font, 0, false); }
    int TextHeight() const { return chart.m_TextHeight; } ///< of the last layout, pixels
    const CRect& Plot() const { return chart.m_rectPlot; }
    const CRect& Client() const { return chart.m_rectChart; }
    COLORREF BackgroundColor() const { return chart.m_BkColor; }
    int DatasetCount() const { return chart.GetDatasetCount(); }
    CChartDraw::Dataset& Dataset(int nDataset) const;
    /// The parts forget a dataset that is about to be removed (ChartCursor.cpp, ChartLegend.cpp).
    void DatasetRemoved(int nDataset);
    /// Marks the layout as outdated. A setter that can change the picture calls it.
    void Changed() {
        ASSERT(IsOwnerThread());
        chart.m_Changed = true;
    }

    // ---- Mouse and keys. The handlers of ChartDrawInput.cpp call these in this order; true: it is dealt with. ----

    bool PressReference(CPoint point);      ///< begins to move a line (ChartReferences.cpp)
    void MoveReference(CPoint point);       ///< moves it
    void ReleaseReference(bool keep);       ///< ends moving; !keep: restores the values
    bool PressLegend(CPoint point);         ///< hides or shows the dataset of the row (ChartLegend.cpp)
    void HoverLegend(const CPoint* pPoint); ///< highlights the dataset of the row; null: the mouse has left
    void
    HoverCursor(const CPoint* pPoint); ///< moves the first cursor; null: the mouse has left (ChartCursor.cpp)
    bool StepCursor(int nSamples, int nDatasets); ///< moves the shown cursor by samples or to another dataset
    /// Places the second cursor where the first one is, or hides it if it is there. False without the first one.
    bool PinCursor();
    /// CChartCursor::MoveBySamples; with `tell` for the user.
    bool MoveCursor(int nCursor, int nSamples, bool tell);

    // ---- View (chartdraw/ChartDrawView.cpp, which also has CChartAxis' members on ranges) ----

    /// The range that an axis must show. With `isExact` false the layout finds a scale around the data, or uses the one
    /// of SetXScale and SetYScale.
    struct WantedRange {
        bool isExact = false;
        double min = 0;
        double max = 1;
    };
    WantedRange RangeOf(int axis) const;
    /// Bounds of the finite points of the visible datasets on an axis, as values of the axis, on a logarithmic axis of
    /// those above 0: all, or for a Y axis those
    /// between two values of the X axis.
    ValueBounds DataBounds(int axis) const;
    ValueBounds OwnDataBounds(int axis) const; ///< of this chart without those that are linked with it
    ValueBounds OwnDataBounds(int axis, bool visibleOnly) const;
    ValueBounds DataBounds(int axis, double xMin, double xMax) const;
    /// The layout tells the range that it shows.
    void LaidOut(int axis, double min, double max);
    /// The host sets a scale by SetXScale, SetAutoXScale and the like: the view's range of the axis ends.
    void ResetRange(int axis);

    /// Every change of the X view and of Y views passes here: clamps, stores, marks the layout, repaints, shares the
    /// X range with linked charts, and if `tell`, sends CDN_VIEW. For a range that cannot be shown nothing changes.
    bool SetView(int axis, double min, double max, bool tell);
    void SetFixedHomes(); ///< gives the view the ranges of SetXScale and SetYScale
    /// Tells the parent and linked charts that the view has followed new data, if it has. False when the parent has
    /// destroyed the chart or its window meanwhile. A timer of the window calls this after DataChanged.
    bool TellFollowed();
    /// Called when points were added or removed: follow mode moves the view. Runs at every point: it sends nothing.
    void DataChanged();
    /// Changes the points of a dataset by `change` (chartdraw/ChartDrawData.cpp). A message box reports lack of memory.
    template <class Change> BOOL ChangePoints(int nDataset, Change change);

    CsvTable Table(bool visibleOnly); ///< the visible datasets for saving (chartdraw/ChartDrawSaveData.cpp)

    // ---- Links (chartdraw/ChartLink.cpp) ----

    /// Gives the X range to linked charts, which send CDN_VIEW. A handler can destroy this chart meanwhile: nothing of
    /// it may be touched behind this call, unless the result is true.
    bool ShareView();
    void ShareCursor(int nCursor); ///< gives the position of a cursor to linked charts
    /// Lets the plots of linked charts begin and end at the same distances from the edges of their windows.
    void AlignWithLinked(CRect& plot);
    void RedrawMisaligned(); ///< repaints linked charts whose plots are not aligned with the last layout
    void LeaveLink();        ///< the chart's window goes
    std::optional<LinkedRange> ShownRange(); ///< the range of X; empty when the chart has no layout
    LinkedRange SharedRange() const;         ///< what linked charts show
    ValueBounds LinkedDataBounds() const;    ///< of X, of all linked charts, as values of this chart's axis
    void ShowRange(const LinkedRange& range, bool tell); ///< as SetView for the X axis

    // ---- Data from other threads (chartdraw/ChartDrawPost.cpp) ----

    void OpenPosting();  ///< the chart has a window now
    void ClosePosting(); ///< its window goes: queued points are dropped
    void TakePosted();   ///< queued points enter the datasets
    void ReadyToTake();  ///< every paint calls this: further points may come

    /// Sends a notification to the parent and returns its result. `record.hdr.code` and the code's fields are set.
    /// The parent may destroy the window or the chart meanwhile: `alive` is false then, and nothing of the chart may
    /// be touched.
    LRESULT Notify(NMCHARTDRAW& record, bool& alive);

    bool IsOwnerThread() const; ///< for assertions: no window, or the caller's thread owns it
};

} // namespace kavlix
