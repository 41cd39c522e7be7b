// SPDX-License-Identifier: MIT
// CGraph: a graph of whole numbers in eleven types, painted and printed on the host's demand.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <kavlix/GraphSeries.h>
#include <memory>

#include <cstdint>

struct CPrintInfo;

namespace kavlix {
struct GraphState;
struct GraphPass;
struct GraphFrame;
struct ScaleTicks;
struct SeriesSlots;
class PlotScale;
} // namespace kavlix

/// Codes of the graph types, for CGraph::SetGraphType.
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

/// The text of one legend row.
class KAVLIX_API CGraphLegendText : public CStatic {
public:
    CGraphLegendText(int index, const CString& text)
        : legendIndex(index), legendText(text) {} ///< a text with its group
    ~CGraphLegendText() override;

    int legendIndex;    ///< the `group` of CGraph::SetLegend; texts are found by position, not by this number
    CString legendText; ///< the text of the row
};

/// The legend texts of a graph, in the order in which the host set them. Owns the texts.
class KAVLIX_API CGraphLegendList : public CStatic {
public:
    CGraphLegendList();
    ~CGraphLegendList() override;
    CGraphLegendList(const CGraphLegendList&) = delete;
    CGraphLegendList& operator=(const CGraphLegendList&) = delete;

    /// Appends a text. When memory runs out, the list is unchanged and the exception passes on.
    void Add(int index, const CString& text);
    /// The text at `position`, from 0. Empty when the list has no such position.
    CString TextAt(int position) const;
    /// Removes the text at `position`. A position that the list does not have changes nothing.
    void RemoveAt(int position);
    void RemoveAll();                                                      ///< removes all texts
    int GetCount() const { return static_cast<int>(legends->GetCount()); } ///< number of texts
    /// GetLength() of the longest text added so far. Removing texts does not reduce the result.
    int GetMaxLength() const { return legendMaxLength; }

private:
    int legendMaxLength = 0;
    CObList* legends = nullptr;
};

/// A graph of whole numbers in one of eleven types. The host paints it into any device context, and prints
/// it.
///
/// A CGraph needs no window of its own and handles no messages. Setters only store; the next DrawGraph or
/// PrintGraph shows what they stored. The host adds series (CGraphSeries), group colours and legend texts.
///
/// Every value of a series has a key, its group. Group j has the colour at position j of the colour list, and
/// row j of the legend. Texts have the text colour of the DC; a percentage inside a pie is black or white.
/// The types are:
/// - Bar, 3D bar: each series has an equal part of the axis, with a bar for each group, from the zero line to
///   the value.
/// - Stacked bar, 3D stacked bar: the groups of a series stand on top of each other. Negative values hang
///   below the zero line.
/// - Line, 3D line: each group has a line (in 3D a ribbon) across the series. A missing value is a gap.
/// - Pie, 3D pie: each series has a pie, with a sector for each group and, where there is room, the group's
///   share in percent. Values of 0 and below have no sector. If there is no room for all pies, the first ones
///   are shown, and a text tells how many are left out.
/// - XY line, scatter: each series is a set of points: keys are X values, values are Y values. Each series
///   has a marker shape of its own. XY line joins the points in ascending order of X. In the colour
///   list, a point has the colour at the position of its key, and a line the colour at the position of its
///   series. With SetLegendBySeries points have the colour of their series too.
/// - Box-whisker: each series has a box from the lower to the upper quartile of its values, with the median
///   as a line in the box. A whisker reaches to the farthest value within 1.5 interquartile ranges of the
///   box. Values beyond are circles. Quartile p (0.25, 0.5 or 0.75) of n ascending values lies at index
///   p * (n - 1), interpolated between the two neighbouring values. A box is grey, a circle has the colour
///   of its group. With SetLegendBySeries both have the colour of their series.
///
/// The value axis runs from the lower to the upper tick limit, except with the quadrant types 3 and 4 (see
/// SetGraphQuadType). Shapes beyond its ends are cut at the plot's edge. Labels that would overlap stand in
/// two rows, or some are left out. A label too long for its room ends in three dots.
class KAVLIX_API CGraph : public CStatic {
public:
    /// A bar graph without a colour list: every group is black until SetColor creates the list.
    CGraph();
    /// `type` is one of the GraphType codes. With any other code the graph draws axes without series. After
    /// a `type` other than GraphTypeBar, drawings never choose the quadrant type (SetGraphQuadType), also if
    /// the host makes the graph a bar graph later.
    explicit CGraph(int type);
    /// Deletes all series, colours and legend texts.
    ~CGraph() override;
    CGraph(const CGraph&) = delete;
    CGraph& operator=(const CGraph&) = delete;

    // ---- Settings. Setters store their arguments and repaint nothing. The default of a setting is the
    // initial value of its data member below. ----

    void SetGraphType(int type) { graphType = type; } ///< one of the GraphType codes
    /// Angle of the series labels in degrees, counter-clockwise. Full turns do not change the direction. But
    /// with any angle except 0, so also with 360, SetXAxisLabel sets the height for labels below the plot.
    void SetXAxisAlignment(int degrees) { xAxisAlign = degrees; }
    void SetGraphTitle(CString title) { graphTitle = title; } ///< text above the plot
    /// Caption below the plot. The caption's GetLength() also sets the height for series labels below the
    /// plot if their angle is not 0, and in horizontal and scatter graphs the width for the labels on the
    /// left.
    void SetXAxisLabel(CString label);
    /// Caption left of the plot, or inside the plot if there is no room on the left. Reads upwards.
    void SetYAxisLabel(CString label);
    /// Height of the series labels in pixels. Sizes below 1 count as 1.
    void SetXTickFontSize(int size) { xTickFontSize = size; }
    /// Height of the numbers at the axes in pixels. Sizes below 1 count as 1.
    void SetYTickFontSize(int size) { yTickFontSize = size; }
    /// Height of the legend texts in pixels. Sizes below 1 count as 1.
    void SetLegendFontSize(int size) { legendFontSize = size; }
    /// FALSE: the legend has a row for each group. TRUE: in XY line, scatter and box-whisker
    /// graphs the legend has a row for each series, and all points of a series have the colour of that row.
    /// Other types have rows for groups in either case. The rows' texts are always those of SetLegend.
    void SetLegendBySeries(BOOL bySeries) { legendBySeries = bySeries; }
    void SetGridLines(BOOL show) { graphHasGridLines = show; } ///< whether lines cross the plot at the ticks
    /// 1: values grow upwards. 0: values grow to the right. A 3D line graph stores 1 whatever `alignment` is.
    /// Pies look the same for both; in a scatter graph values always grow upwards.
    void SetGraphAlignment(int alignment) { graphAlignment = graphType == GraphType3DLine ? 1 : alignment; }
    /// Limits of the value axis, and the step between two ticks. With a step of 0 the call changes nothing.
    /// Drawing ignores the sign of the step and leaves out ticks that would stand too close. If `max` is
    /// below `min`, values grow the other way. If both are equal, the axis ends at `min` + 1.
    void SetTickLimits(int min, int max, int step);
    /// Depth of the 3D types as a fraction of the plot's width, limited to half of the plot. In 3D pies the
    /// height of the rim, limited to a quarter of the height that a pie has. A ratio of 0 or below, or NaN,
    /// gives no depth.
    void Set3DDepthRatio(double ratio) { depthRatio = ratio; }
    /// Chooses the quadrants of a bar graph; ignored for other graph types. 2 and 4 add the quadrants of
    /// negative keys, 3 and 4 those of negative values; 1 adds none. Until the host has set one of these
    /// numbers, every drawing chooses one from the first value of each series. Any other number sets 1 and
    /// does not change whether drawings choose. With 3 and 4 the zero line lies in the middle of the value
    /// axis, and each half reaches to the limit of SetTickLimits with the larger absolute value.
    void SetGraphQuadType(int type);
    /// How far each ribbon of a 3D line graph reaches into the depth, in pixels to the right and up. If
    /// neither is above 0, the ribbons share the depth of Set3DDepthRatio. All ribbons together reach at most
    /// over half of the plot.
    void Set3DLineBase(int x, int y);
    /// The rectangle to print into, in twips (1/1440 inch); y grows upwards from the page's top. The printed
    /// graph reaches from `left` to `right`, and from `graphTop` down four inches, or to `bottom` if
    /// `bottom` is higher. `top` is stored only.
    void SetMargins(int top, int bottom, int left, int right, int graphTop);
    /// Appends a colour to the list. Drawing finds colours by position in the list, not by `group`. When
    /// memory runs out, the list is unchanged and the exception passes on.
    void SetColor(int group, COLORREF color);
    /// Appends a legend text; ignored for a scatter graph. Drawing finds texts by position in the list, not
    /// by `group`. The legend's width is estimated from GetLength() of the longest text. If a text is wider
    /// than estimated, its colour box covers its end. If all texts are short, the heading may be wider than
    /// the legend. When memory runs out, the list is unchanged and the exception passes on.
    void SetLegend(int group, CString text);

    // ---- Contents ----

    /// Takes ownership of a series. The number of groups becomes the largest number of values that any added
    /// series had; values stored later do not change it. NULL, and a series that the graph holds already, are
    /// ignored. When memory runs out, the series is deleted and the exception passes on.
    void AddSeries(CGraphSeries* series);
    /// Deletes the first series with this label, case-sensitive. Without a match nothing changes. The number
    /// of groups stays.
    void RemoveSeries(CString label);
    /// Removes the colour at position `index`, from 0. An index that the list does not have changes nothing.
    void RemoveColor(int index);
    /// Removes the legend text at position `index`, from 0. An index that the list does not have changes
    /// nothing.
    void RemoveLegend(int index);
    /// Deletes all series. The number of groups stays.
    void RemoveAllSeries();
    void RemoveAllColors(); ///< empties the colour list
    /// Empties the list of legend texts. The legend keeps its width and is still drawn.
    void RemoveAllLegends();
    /// Removes all series, legend texts and colours.
    void RemoveAllData();

    // ---- Drawing ----

    /// Paints the graph with its upper left corner at (0, 0), in the size of `parentWindow`'s client area.
    /// The DC should be in MM_TEXT: a logical unit is taken as a pixel. The DC's pen draws the edges of the
    /// picture, the legend box and the legend's colour boxes; the DC's brush fills the legend box. Restores
    /// the DC's state. A mirrored DC draws the same picture, unmirrored. Does nothing without a DC or a window.
    /// When memory runs out, the picture is incomplete and the exception passes on.
    void DrawGraph(CDC* pDC);
    /// Paints the same picture in MM_TWIPS into the rectangle of SetMargins, at the DC's own resolution.
    /// Fonts and line widths are those of a screen with 96 dots to the inch. The picture ends at the lower
    /// edge of the page at the latest. The page is `pInfo`'s drawing rectangle, else the size of the DC.
    /// Restores the DC's state. Does nothing without a DC, or when the rectangle is empty. When memory runs
    /// out, the picture is incomplete and the exception passes on.
    void PrintGraph(CDC* pDC, CPrintInfo* pInfo);

private:
    int GetXAxisAlignment() const { return xAxisAlign; }
    COLORREF GetColor(int index) const;
    int LegendRows() const;

    void DrawPicture(CDC& dc, const kavlix::GraphFrame& frame);
    void DrawTitle();
    void ComputeLayout();
    void ChooseQuadrants();
    void PlanPlot();
    void PlanValues();
    void PlanKeys();
    void PlanSlots();
    int FitNumbers(const CString& a, const CString& b);
    kavlix::ScaleTicks PlanTicks(std::int64_t min, std::int64_t max, std::int64_t step, bool left,
                                 bool fromZero);
    // The steps of a drawing. Outside DrawGraph and PrintGraph the members with a CDC* do nothing.

    void DrawSeries(CDC* pDC);
    /// The result is the left edge of the legend box in logical units; 0 outside DrawGraph and PrintGraph.
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
    void DrawOverlayLabels();

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
    // ---- State. Each drawing computes the layout anew, in logical units of the DC. Font sizes are in
    // pixels, margins in twips. ----

    /// @{
    int tickSpace = 10; ///< A setting, or a result of the last drawing.
    CObList* seriesList = nullptr;
    int graphType = GraphTypeBar;
    int graphAlignment = 1;
    int maxHeight = 0;
    int maxWidth = 0;
    CObList* colorList = nullptr;
    CString axisYLabel;
    CString axisXLabel;
    int yApexPoint = 0; ///< y of the point where the axes meet; after PrintGraph in twips on the page
    int xApexPoint = 0; ///< x of the same point
    int yAxisHeight = 0;
    int xAxisWidth = 0;
    int yTickFontSize = 12;
    int xTickFontSize = 12;
    int legendFontSize = 12;
    int numTicks = 10; ///< range of SetTickLimits divided by the step, rounded up if both are above 0
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
    int axisLabelsCut = 0; ///< 1 when the last drawing with axes cut or left out an axis label
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
    /// The window whose client area DrawGraph fills; set by the host, not owned. With NULL DrawGraph draws
    /// nothing.
    CWnd* parentWindow = nullptr;

private:
    kavlix::GraphPass* pass = nullptr; ///< the state of the drawing in progress; nullptr outside a drawing

    std::unique_ptr<kavlix::GraphState> m_State; ///< members of later versions; the size of the class stays

    DECLARE_MESSAGE_MAP()
};

KAVLIX_CHECK_HOST(CGraphLegendText)
KAVLIX_CHECK_HOST(CGraphLegendList)
KAVLIX_CHECK_HOST(CGraph)
