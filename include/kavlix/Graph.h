#pragma once

#include <afxwin.h>

#include <cstdint>

#include <kavlix/Export.h>
#include <kavlix/GraphSeries.h>

struct CPrintInfo;

namespace kavlix {
struct GraphPass;
struct GraphFrame;
struct ScaleTicks;
struct SeriesSlots;
class PlotScale;
} // namespace kavlix

/// What a CGraph shows; codes for CGraph::SetGraphType.
enum GraphType : int {
    GraphTypeBar = 0,
    GraphTypeLine = 1,
    GraphTypePie = 2,
    GraphTypeScatter = 3,
    GraphTypeBoxWhisker = 4,
    GraphTypeStackedBar = 20,
    GraphTypeXYLine = 21,
    GraphType3DBar = 30,
    GraphType3DLine = 31,
    GraphType3DPie = 32,
    GraphType3DStackedBar = 320
};

/// The legend text of one group.
class KAVLIX_API CGraphLegendText : public CStatic {
public:
    CGraphLegendText(int index, const CString& text) : legendIndex(index), legendText(text) {}
    ~CGraphLegendText() override;

    int legendIndex; ///< the group it was set for; lookups go by position
    CString legendText;
};

/// The legend texts of a graph, in order of arrival.
class KAVLIX_API CGraphLegendList : public CStatic {
public:
    CGraphLegendList();
    ~CGraphLegendList() override;
    CGraphLegendList(const CGraphLegendList&) = delete;
    CGraphLegendList& operator=(const CGraphLegendList&) = delete;

    void Add(int index, const CString& text);
    /// The text at `position`, counted from 0; empty when there is none.
    CString TextAt(int position) const;
    /// Takes the text at `position` out; no such position changes nothing.
    void RemoveAt(int position);
    void RemoveAll();
    int GetCount() const { return static_cast<int>(legends->GetCount()); }
    /// Characters of the longest text ever added.
    int GetMaxLength() const { return legendMaxLength; }

private:
    int legendMaxLength = 0;
    CObList* legends;
};

/// A graph of whole numbers in one of eleven types, which the host paints into any device context and prints.
///
/// It needs no window and reacts to no message: setters only store, and what they stored shows at the next
/// DrawGraph or PrintGraph. The host fills it with series (CGraphSeries), group colours and legend texts.
///
/// What the types show. A group is a key of the series; group j has the colour of entry j of the colour list
/// and legend row j. Texts have the text colour of the DC; a share inside a pie has black or white.
/// - Bar, 3D bar: for each series a slot with a bar for each group, from the zero line to the value.
/// - Stacked bar, 3D stacked bar: the groups of a series on top of each other; negative values downwards.
/// - Line, 3D line: a line (a ribbon) for each group over the series; a missing value is a gap.
/// - Pie, 3D pie: a pie for each series, with a sector for each group and its share in percent; values of 0
/// and
///   below have none. When there is no room for all pies the first ones are shown, and how many are not.
/// - XY line, scatter: each series is a set of points, X its keys and Y its values, with a marker shape of
/// its
///   own. XY line joins them in ascending order of X. A point has the colour of its group, a line that of the
///   series' position; with SetLegendBySeries points too.
/// - Box-whisker: for each series a box from the lower to the upper quartile of its values, the median as a
/// line
///   in it, whiskers to the last value within 1.5 interquartile ranges of the box, and circles for the values
///   beyond. The quartile p of n values in order, counted from 0, lies at rank p * (n - 1), interpolated
///   between the two values on either side. A box stands for no group and is grey, and a circle has the
///   colour of its value's group; with SetLegendBySeries both have the colour of the series' position.
///
/// The value axis runs from the lower to the upper tick limit; what lies outside is cut at the plot's edge.
/// Labels that would overlap stand in two rows or are thinned out; labels too long for their room end in
/// dots.
class KAVLIX_API CGraph : public CStatic {
public:
    /// A bar graph without a colour list: every group is black until SetColor makes one.
    CGraph();
    /// `type` is one of the GraphType codes; any other is kept, and no series are drawn. A type that is not 0
    /// counts as a choice of the quadrant type, also when the type is changed later.
    explicit CGraph(int type);
    /// Deletes all series, colours and legend texts.
    ~CGraph() override;
    CGraph(const CGraph&) = delete;
    CGraph& operator=(const CGraph&) = delete;

    /// @name Settings: they store and repaint nothing
    /// @{
    void SetGraphType(int type) { graphType = type; }
    /// Angle of the series labels in degrees, counter-clockwise; any number counts by its remainder of 360.
    void SetXAxisAlignment(int degrees) { xAxisAlign = degrees; }
    void SetGraphTitle(CString title) { graphTitle = title; }
    /// Caption of the level axis. Its length also decides how much room turned series labels get below the
    /// axis, and how much horizontal and scatter graphs leave for the labels on the left.
    void SetXAxisLabel(CString label);
    /// Caption of the upright axis.
    void SetYAxisLabel(CString label);
    /// Height of the series labels in pixels (default 12). Sizes below 1 count as 1.
    void SetXTickFontSize(int size) { xTickFontSize = size; }
    /// Height of the value labels in pixels (default 12). Sizes below 1 count as 1.
    void SetYTickFontSize(int size) { yTickFontSize = size; }
    /// Height of the legend texts in pixels (default 12). Sizes below 1 count as 1.
    void SetLegendFontSize(int size) { legendFontSize = size; }
    /// TRUE: in XY line, scatter and box-whisker graphs the legend has a row for each series instead of each
    /// group, and everything of a series has the colour of that row. FALSE (the default): rows and colours go
    /// by group, as in all other types. The rows' texts are those of SetLegend in either case.
    void SetLegendBySeries(BOOL bySeries) { legendBySeries = bySeries; }
    void SetGridLines(BOOL show) { graphHasGridLines = show; }
    /// 1: values grow upwards; 0: to the right. A 3D line graph keeps 1; pies and scatter graphs do not
    /// differ.
    void SetGraphAlignment(int alignment) { graphAlignment = graphType == GraphType3DLine ? 1 : alignment; }
    /// Limits of the value axis and the step between two ticks. The number of intervals is the range divided
    /// by the step, rounded up. A step of 0 leaves the setting unchanged. Drawing takes the step's magnitude,
    /// limits in falling order as an axis that runs down, and equal limits as a range of 1.
    void SetTickLimits(int min, int max, int step);
    /// Depth of the 3D types as a fraction of the plot's width (default 0.05). Drawing gives it at most half
    /// of the plot; a negative ratio, or NaN, makes no depth.
    void Set3DDepthRatio(double ratio) { depthRatio = ratio; }
    /// Chooses the quadrants a bar graph shows; ignored for every other type. 1: values and keys from 0 up;
    /// 2: negative keys too; 3: negative values too; 4: both. Any other number sets type 1 and leaves the
    /// choice to DrawGraph as before. With types 3 and 4 the zero line lies in the middle of the value axis,
    /// which reaches on both sides as far as the larger of both tick limits.
    void SetGraphQuadType(int type);
    /// How far each ribbon of a 3D line graph reaches into the depth, in pixels to the right and up. 0, 0
    /// (the default) shares out the depth of Set3DDepthRatio; at most half of the plot is used.
    void Set3DLineBase(int x, int y);
    /// The rectangle to print into, in twips (1/1440 inch) with y growing upwards from the page's top: a
    /// printed graph reaches from `left` to `right` and from `graphTop` down four inches, or to `bottom` if
    /// that is higher.
    void SetMargins(int top, int bottom, int left, int right, int graphTop);
    /// Appends a colour to the list. Colours go by position in the list, not by `group`. Changes nothing when
    /// memory runs out.
    void SetColor(int group, COLORREF color);
    /// Appends a legend text; ignored for a scatter graph. Texts go by position in the list. The legend's box
    /// is sized by the longest text's GetLength(); where a text is wider than that, the colour beside it
    /// covers its end. The heading may be wider than a box of short texts. Changes nothing when memory runs
    /// out.
    void SetLegend(int group, CString text);
    /// @}

    /// @name Contents
    /// @{
    /// Takes the series over. The number of groups becomes the largest number of values of any series so far;
    /// values that a series gets later do not change it. NULL, and a series that is in already, is ignored.
    /// When memory runs out, the series is deleted, and the exception passes on.
    void AddSeries(CGraphSeries* series);
    /// Deletes the first series of that name (case counts); none changes nothing. The number of groups stays.
    void RemoveSeries(CString label);
    /// Takes exactly the entry at `index` out; no such entry changes nothing.
    void RemoveColor(int index);
    void RemoveLegend(int index);
    /// Each empties its list. The number of groups and the room of the legend stay as they are.
    void RemoveAllSeries();
    void RemoveAllColors();
    void RemoveAllLegends();
    /// Series, legend texts and colours.
    void RemoveAllData();
    /// @}

    /// @name Drawing
    /// @{
    /// Paints the graph from (0, 0) on, as large as the client area of `parentWindow`, in the DC's
    /// coordinates (made for MM_TEXT: a unit is a pixel). Frames have the pen, and the legend box pen and
    /// brush, that are selected. The DC's state is as before afterwards. Does nothing without a DC or a
    /// window. When memory runs out, the picture is unfinished, and the exception passes on.
    void DrawGraph(CDC* pDC);
    /// Paints the same picture in MM_TWIPS into the rectangle of SetMargins, at the DC's own resolution;
    /// fonts and line widths are those of a screen with 96 dots to the inch. The rectangle also ends where
    /// the page does: the page is `pInfo`'s drawing area or, without one, what the DC tells. The DC's state
    /// is as before afterwards. Does nothing without a DC or on an empty rectangle. When memory runs out, the
    /// picture is unfinished, and the exception passes on.
    void PrintGraph(CDC* pDC, CPrintInfo* pInfo);
    /// @}

private:
    int GetXAxisAlignment() const { return xAxisAlign; }
    COLORREF GetColor(int index) const;
    BOOL ShowsPie() const;
    BOOL ShowsBySeries() const;
    int LegendRows() const;

    void DrawPicture(CDC& dc, const kavlix::GraphFrame& frame);
    void DrawTitle(CDC& dc);
    void ComputeLayout(CDC& dc);
    void ChooseQuadrants();
    void PlanPlot();
    void PlanValues();
    void PlanKeys();
    void PlanSlots();
    int FitNumbers(const CString& a, const CString& b);
    kavlix::ScaleTicks PlanTicks(std::int64_t min, std::int64_t max, std::int64_t step, bool left,
                                 bool fromZero);
    /// The steps that a drawing consists of, here and in the painters below. Outside DrawGraph and PrintGraph
    /// they do nothing, and DrawLegend's result is 0.
    void DrawSeries(CDC* pDC);
    int DrawLegend(CDC* pDC);
    void DrawAxis(CDC* pDC);
    void Draw3DFrame();
    void DrawScale(const kavlix::PlotScale& scale, const kavlix::ScaleTicks& ticks, bool left);
    void DrawNumber(const CString& text, double position, bool left);
    void DrawAxisLines();
    void DrawSeriesTicks(const kavlix::SeriesSlots& slots);
    void DrawLabelsBelow(const kavlix::SeriesSlots& slots);
    void DrawLabelsLeft(const kavlix::SeriesSlots& slots);
    void DrawCaptions();
    void DrawLateLabels();

    void DrawBarSeries(CDC* pDC);
    void DrawLineSeries(CDC* pDC);
    void DrawPieSeries(CDC* pDC);
    void DrawScatterSeries(CDC* pDC);
    void DrawBoxWhiskerSeries(CDC* pDC);
    void DrawStackedBarSeries(CDC* pDC);
    void DrawXYLineSeries(CDC* pDC);
    void Draw3DBarSeries(CDC* pDC);
    void Draw3DLineSeries(CDC* pDC);
    void Draw3DPieSeries(CDC* pDC);
    void Draw3DStackedBarSeries(CDC* pDC);

protected:
    /// @name State, lengths in the units of the DC; layout fields are those of the last drawing
    /// @{
    int tickSpace = 10;
    CObList* seriesList;
    int graphType = GraphTypeBar;
    int graphAlignment = 1;
    int maxHeight = 0;
    int maxWidth = 0;
    CObList* colorList = nullptr;
    CString axisYLabel;
    CString axisXLabel;
    int yApexPoint = 0; ///< where the axes meet; after printing a place on the page
    int xApexPoint = 0;
    int yAxisHeight = 0;
    int xAxisWidth = 0;
    int yTickFontSize = 12;
    int xTickFontSize = 12;
    int legendFontSize = 12;
    int numTicks = 10;
    int minTick = 0;
    int maxTick = 100;
    int seriesSize = 0;
    CGraphLegendList graphLegend;
    BOOL graphHasLegend = FALSE;
    int legendWidth = 0;
    int xAxisAlign = 0;
    int xAxisLabelLength = 0;
    int yAxisLabelLength = 0;
    CString graphTitle;
    BOOL graphHasGridLines = FALSE;
    int legendMaxText = 0;
    double depthRatio = 0.05;
    int graphQuadType = 1;
    BOOL quadSetManually = FALSE;
    int axisLabelsCut = 0; ///< set by the axis pass when not every label was drawn whole
    int line3DXBase = 0;
    int line3DYBase = 0;
    int topMargin = 0;
    int bottomMargin = 0;
    int leftMargin = 0;
    int rightMargin = 0;
    int printLeft = 0;
    int printTop = 0;
    int printBottom = 0;
    int printRight = 0;
    BOOL legendBySeries = FALSE;
    /// @}

public:
    /// The window whose client area DrawGraph fills; set by the host, not owned. NULL draws nothing.
    CWnd* parentWindow = nullptr;

private:
    kavlix::GraphPass* pass = nullptr; ///< what the painters share, while drawing

    DECLARE_MESSAGE_MAP()
};
