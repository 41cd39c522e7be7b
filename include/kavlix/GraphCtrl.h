// SPDX-License-Identifier: MIT
// CGraphCtrl: the graph control over sample indices, and the base of the graph over time.
#pragma once

#include <afxwin.h>

#include <kavlix/Dataset.h>
#include <kavlix/Export.h>
#include <kavlix/GraphNotify.h>
#include <kavlix/LabelStore.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace kavlix {
struct GraphCtrlState;
class LinearMap;
class Offscreen;
class XPositions;
struct GraphLayout;
struct IndexRange;
struct TickRoom;
} // namespace kavlix

/// A graph of up to 13 datasets: lines with markers, grouped bars, or two lines against two value axes.
/// Around the plot stand a title or caption band, axis labels, tick labels and a legend. The selection mark
/// shows one sample, which the user chooses by mouse or keyboard.
///
/// Window: create the control with `CWnd::Create("MFCGraphCtrl", ...)`, or bind a dialog item with
/// DDX_GraphControl. Use the control on the thread that owns its window. A dialog item may be of another
/// window class, such as STATIC or BUTTON. The procedure of that class then receives the messages of creation
/// and destruction only; the control paints the item and handles its input.
///
/// Units: a logical unit is 1/30 pixel in both directions, at every size of the window; y grows downwards.
/// Colours are COLORREF. Values are doubles. Positions of values are truncated toward zero and saturate.
///
/// Repainting: the setters and the operations on data store their arguments and invalidate nothing.
/// RemoveHeadData and SetSelectionMarkPos are the exceptions. Call Redraw after changing properties and
/// RedrawData after adding samples. Data and properties can be set and read without a window.
///
/// Values without a position: a NaN sample leaves a gap in its line and gets no bar. An infinite sample lies
/// far outside the plot. Datasets whose visible range has the width 0 are not drawn. A value axis whose
/// minimum is above its maximum is upside down. Such an X range shows neither ticks nor bars.
///
/// A mirrored parent window (WS_EX_LAYOUTRTL) mirrors neither the picture nor the mouse positions.
class KAVLIX_API CGraphCtrl : public CWnd {
public:
    /// How the datasets are drawn. With any other value neither data nor X ticks are drawn.
    enum GraphStyle : int {
        GraphStyleLine = 0, ///< every visible dataset is a line with markers against the Y axis
        GraphStyleBar = 1,  ///< a group of bars per sample index: one bar per dataset with samples
        GraphStyleTwoAxis =
            2 ///< dataset 0 is a line against the Y axis, dataset 1 against the Y2 axis; no legend
    };

    /// What stands at the top. Values other than 1 count as TitleStyleText.
    enum TitleStyle : int {
        TitleStyleText = 0,   ///< the title (SetTitle) as plain text
        TitleStyleCaption = 1 ///< a filled band with the window's text (SetWindowText), optionally an icon
    };

    /// Number of datasets of every control. A dataset's number, `nDataset`, is 0 to DatasetCount - 1.
    enum : int { DatasetCount = 13 };

    /// Registers the window class if needed and makes the fonts; creates no window. Throws
    /// CResourceException* when Windows refuses to register the class.
    CGraphCtrl();
    ~CGraphCtrl() override;
    CGraphCtrl(const CGraphCtrl&) = delete;
    CGraphCtrl& operator=(const CGraphCtrl&) = delete;

    // ---- Data. An index outside its range makes a call fail and change nothing. No repaint. ----

    /// Appends `y` to dataset `nDataset`. The sample's X is its index in the dataset; `*pX` receives that X
    /// unless `pX` is null. With the automatic X range, the visible range then ends at that X + 0.001. Result
    /// 1. Result 0, with nothing changed, if there is no dataset `nDataset` or, after a message box, when
    /// memory ran out.
    BOOL AddData(int nDataset, double y, double* pX);
    /// Appends the next X tick label: label i belongs to sample index i. `up` is the label's upper line,
    /// `down` its lower line. With an empty `down`, a long `up` is broken into two lines
    /// (SetXTickLabelUpStringMaxLength). Result 1. Result 0, after a message box, when memory ran out:
    /// neither text is stored then.
    BOOL AddXTickLabel(CString up, CString down);
    /// Removes all samples of a dataset and the selection mark. Colour, marker, line size, legend text
    /// and visibility stay.
    void ResetData(int nDataset);
    /// Number of samples; -1 if there is no dataset `nDataset`.
    int GetDatasetSize(int nDataset) const;
    /// Stores the value of a sample in `y`. Result 0, `y` not written, when there is no such sample.
    BOOL GetYData(int nDataset, int nIndex, double& y) const;
    /// Removes all samples, tick labels, legend texts and the selection mark, and gives title, X label and Y
    /// label their defaults. The Y2 label, colours, styles, ranges and switches stay. When memory for these texts runs
    /// out, CMemoryException* is thrown and nothing changes.
    void ResetAll();

    // ---- Attributes of a dataset. Result 1; 0 if there is no dataset `nDataset`. No repaint. ----

    /// Colour of line, bars, markers and legend swatch. In the two-axis style the Y label and the Y tick
    /// labels get the colour of dataset 0 too, the Y2 label and the Y2 tick labels that of dataset 1.
    BOOL SetColor(int nDataset, COLORREF color);
    /// Line width in logical units, clamped to 0..CDataset::MaxLineSize; 0 draws one pixel.
    BOOL SetLineSize(int nDataset, int nSize);
    /// Marker at each sample of a line; an unknown type draws none.
    BOOL SetMarkerType(int nDataset, CDataset::MarkerType type);
    /// Whether the dataset is drawn. A hidden dataset keeps its place among the bars and its legend row,
    /// whose swatch turns white.
    BOOL ShowDataset(int nDataset, BOOL bShow);
    /// Text of the legend row. A dataset with an empty text has no row.
    BOOL SetLegend(int nDataset, CString text);
    /// Empties all legend texts.
    void ResetLegend();

    // ---- Properties. Setters store their arguments unchecked. No repaint. The default of a property is the
    // initial value of its data member below. ----

    /// Setting GraphStyleTwoAxis also hides the legend and gives the labels of each value axis the colour of
    /// its dataset. Changing to another style restores neither.
    void SetGraphStyle(GraphStyle style);
    GraphStyle GetGraphStyle() const { return m_GraphStyle; }      ///< the stored style
    void SetTitleStyle(TitleStyle style) { m_TitleStyle = style; } ///< chooses what stands at the top
    TitleStyle GetTitleStyle() const { return m_TitleStyle; }      ///< the stored style
    /// Whether a black border of one pixel is drawn round the client area.
    void ShowBorder(BOOL bShow) { m_ShowBorder = bShow; }
    /// Whether the context menu offers to remove the samples before the selection mark.
    void ShowMenuRemoveDataBeforeSelectionMark(BOOL bShow) {
        m_ShowMenuRemoveDataBeforeSelectionMark = bShow;
    }

    /// Automatic X range: whether AddData and RemoveHeadData move the right end of the visible X range.
    void SetAutoXVisible(BOOL bAuto) { m_AutoXVisible = bAuto; }
    /// Ends of the visible ranges, in values of their axis. On the X axis these are sample indices.
    void SetXVisibleMin(double x) { m_XVisibleMin = x; }
    void SetXVisibleMax(double x) { m_XVisibleMax = x; }   ///< right end of the X range
    void SetYVisibleMin(double y) { m_YVisibleMin = y; }   ///< lower end of the Y range
    void SetYVisibleMax(double y) { m_YVisibleMax = y; }   ///< upper end of the Y range
    void SetY2VisibleMin(double y) { m_Y2VisibleMin = y; } ///< lower end of the Y2 range
    void SetY2VisibleMax(double y) { m_Y2VisibleMax = y; } ///< upper end of the Y2 range

    /// Texts. At most the first 8192 UTF-16 units of a text are drawn, since GDI takes no more in one call.
    void SetTitle(CString text) { m_Title = std::move(text); }
    void SetXLabel(CString text) { m_XLabel = std::move(text); }   ///< below the X axis
    void SetYLabel(CString text) { m_YLabel = std::move(text); }   ///< left of the Y axis, upwards
    void SetY2Label(CString text) { m_Y2Label = std::move(text); } ///< right of the Y2 axis
    /// Whether the axis labels are shown. The Y2 label is shown in the two-axis style only.
    void ShowXLabel(BOOL bShow) { m_ShowXLabel = bShow; }
    void ShowYLabel(BOOL bShow) { m_ShowYLabel = bShow; }   ///< see ShowXLabel
    void ShowY2Label(BOOL bShow) { m_ShowY2Label = bShow; } ///< see ShowXLabel

    /// Whether the legend is shown. In the two-axis style this call always hides the legend.
    void ShowLegend(BOOL bShow);
    BOOL GetShowLegend() const { return m_ShowLegend; } ///< whether the legend is shown
    /// Whether the legend stands on a filled board with a shadow.
    void ShowLegendBoard(BOOL bShow) { m_ShowLegendBoard = bShow; }
    /// Width of the legend in logical units.
    void SetLegendWidth(int nWidth) { m_LegendWidth = nWidth; }
    /// Whether dotted grid lines are drawn at the X ticks (line styles only) and at the Y ticks.
    void SetGrid(BOOL bGridX, BOOL bGridY);

    /// Height of the band of X tick labels, whose text runs upwards, in logical units.
    void SetXTickLabelHeight(int nHeight) { m_XTickLabelHeight = nHeight; }
    /// Length up to which an X tick label without a lower text stays one line, in characters. Of a longer
    /// text, the characters beyond this length become the lower line. A character of several TCHARs counts
    /// once, as does a letter with its combining marks.
    void SetXTickLabelUpStringMaxLength(int nLength) { m_XTickLabelUpStringMaxLength = nLength; }
    /// Width of the bands of Y and Y2 tick labels in logical units.
    void SetYTickLabelWidth(int nWidth) { m_YTickLabelWidth = nWidth; }
    void SetY2TickLabelWidth(int nWidth) { m_Y2TickLabelWidth = nWidth; } ///< see SetYTickLabelWidth
    /// Decimal places of the Y and Y2 tick labels; negative numbers count as 0, numbers above 8192 as 8192.
    void SetYTickLabelScale(int nDecimals) { m_YTickLabelScale = nDecimals; }
    void SetY2TickLabelScale(int nDecimals) { m_Y2TickLabelScale = nDecimals; } ///< see SetYTickLabelScale
    /// Sets the unit text above the axis and the decimal places of the tick labels. Tick values are divided
    /// by 10 to the power of `nExponent` before they are printed.
    void SetYUnit(CString unit, int nExponent, int nDecimals);
    void SetY2Unit(CString unit, int nExponent, int nDecimals); ///< see SetYUnit

    /// Whether the caption band has a maximize icon, and whether the icon is drawn in its "restore" form. The
    /// control does not maximize its window: the parent receives GCN_MAXIMIZE.
    void ShowIconMaximize(BOOL bShow, BOOL bMaximized);
    /// Font of the caption band: size in tenths of a point on the screen, and face. The height of the band
    /// follows from the font. A font at least a thousand pixels high draws no text if it is also at least
    /// twice as high as the control.
    void SetCaptionFont(int nSize, LPCTSTR pszFace);

    void SetBkColor(COLORREF color) { m_BkColor = color; }           ///< colour of the background
    void SetTitleColor(COLORREF color) { m_TitleColor = color; }     ///< colour of the title
    void SetXLabelColor(COLORREF color) { m_XLabelColor = color; }   ///< colour of the X label
    void SetYLabelColor(COLORREF color) { m_YLabelColor = color; }   ///< colour of the Y label
    void SetY2LabelColor(COLORREF color) { m_Y2LabelColor = color; } ///< colour of the Y2 label
    /// Colour of the axis lines and ticks. In the two-axis style the value axes have their dataset's colour.
    void SetAxisColor(COLORREF color) { m_AxisColor = color; }
    void SetXTickLabelColor(COLORREF color) { m_XTickLabelColor = color; }   ///< colour of the X tick labels
    void SetYTickLabelColor(COLORREF color) { m_YTickLabelColor = color; }   ///< colour of the Y tick labels
    void SetY2TickLabelColor(COLORREF color) { m_Y2TickLabelColor = color; } ///< colour of the Y2 tick labels
    void SetGridColor(COLORREF color) { m_GridColor = color; }               ///< colour of the grid lines
    /// Colour of the legend's board.
    void SetLegendColor(COLORREF color) { m_LegendColor = color; }
    void SetLegendTextColor(COLORREF color) { m_LegendTextColor = color; } ///< colour of the legend's texts
    /// Colour of the selection mark's dotted line in the line styles; its triangle is always red.
    void SetLineCursorColor(COLORREF color) { m_LineCursorColor = color; }
    /// Colour of the selection mark in the bar style, a band behind the group of bars.
    void SetBoxCursorColor(COLORREF color) { m_BoxCursorColor = color; }
    /// Colour of the caption band and of the maximize icon's lines.
    void SetCaptionColor(COLORREF color) { m_CaptionColor = color; }
    void SetCaptionTextColor(COLORREF color) { m_CaptionTextColor = color; } ///< colour of the caption's text

    // ---- View ----

    /// Invalidates the whole client area, without erasing. Nothing happens without a window.
    void Redraw();
    /// Invalidates the data region (plot, X and Y tick labels and a margin) in the layout of the last paint,
    /// without erasing. Nothing happens without a window.
    void RedrawData();
    /// Puts the selection mark on sample `nPos`, or removes it for -1, and calls RedrawData. Ignores an
    /// `nPos` below -1 or beyond the last sample of dataset 0. The parent gets no notification. Assistive
    /// tools get an event at every change of the mark: sample i is child i + 1 of the client object.
    void SetSelectionMarkPos(int nPos);
    /// Puts the picture on the clipboard as an enhanced metafile. Result 1; 0 when there is no window or
    /// memory, or when GDI cannot make the metafile. The result does not tell whether another program
    /// holds the clipboard.
    int CopyToClipboard();
    /// Saves the picture as PNG, BMP or EMF, as the extension of the name says. False for another extension,
    /// without a window, when the client area is empty or a side is longer than 32,767 pixels, when memory or
    /// GDI objects run out, and when the file cannot be written. An existing file is then unchanged, and no
    /// incomplete file is left.
    bool SaveImage(CString strFileName);
    /// Whether `menu` already holds a command `nID`.
    bool IsMenuItem(CMenu& menu, UINT nID);

    // ---- Virtual operations. Their order sets their slots in the virtual table, which hosts rely on. ----

    /// Stores the texts of X tick label `nIndex` in `up` and `down`. Without such a label both stay
    /// unchanged. The result is 1 in either case; CScrollGraphCtrl has results of its own.
    virtual BOOL GetXData(int nIndex, CString& up, CString& down);
    /// Removes the `nCount` oldest samples of every dataset, the `nCount` oldest tick labels, and the
    /// selection mark. With the automatic X range, the visible range then ends 0.001 right of the newest
    /// sample of dataset 0. Calls RedrawData. A negative count counts as 0. The parent gets no notification.
    virtual void RemoveHeadData(int nCount);
    /// Removes all X tick labels.
    virtual void ResetXTickLabel();
    /// Shows the context menu at `point` (client pixels) and returns when the menu is closed. The control
    /// receives the user's choice as WM_COMMAND.
    virtual void OnContextGraphMenu(CPoint point);
    /// Inserts this control's items at the top of `menu`, except for commands that `menu` already holds. A
    /// separator is inserted in any case.
    virtual void InsertGraphMenu(CMenu& menu);

protected:
    /// Draws axis line, ticks and tick labels of the X axis. `rectLabel` and `rectAxis` are the bands of
    /// labels and tick marks in logical units; `nTicks` is about the largest number of labelled ticks. Below
    /// 2 only the axis line is drawn.
    virtual void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks);
    /// Draws the datasets and the selection mark into the plot, to which the caller has clipped `dc`.
    virtual void DrawGraphData(CDC& dc);
    /// Sample that belongs to `point` (logical units), -1 for none. Line styles: the sample nearest in X, at
    /// any distance below 1,000,000 logical units. Bar style: the sample whose group of bars, widened by half
    /// a bar on either side, has the point in its part of the plot.
    virtual int GetIndexFromPt(CPoint point);
    /// Position of sample `nIndex` in logical units, moved into the plot where it lies outside. Y is taken
    /// from the first visible dataset in which the sample has a position. X is the sample's own or, in the
    /// bar style, the middle of the group of bars. Without X or Y the result is the centre of the plot. The
    /// context menu opens at the marked sample's position when the user asks for the menu by keyboard.
    virtual CPoint GetPtFromIndex(int nIndex);

    // ---- Painting. Screen, printer, metafile and memory DC get the same calls. ----

    /// Registers the window class "MFCGraphCtrl" unless it is registered. Always TRUE; throws
    /// CResourceException* when Windows refuses.
    static BOOL RegisterWindowClass();
    /// Gives `dc` the mapping of 30 logical units per pixel with all origins 0.
    void SetMapModeAnisotropic(CDC& dc);
    /// Lays out and paints everything into `dc`, which must have the mapping of SetMapModeAnisotropic. The
    /// viewport origin of `dc` may be anywhere and places the picture. Afterwards `dc` has no clip region,
    /// and the same objects and text settings as before. Does nothing without a window.
    void DrawGraph(CDC& dc);
    /// Draws the title at the top of m_rectTitle in a bold font, `nHeight` logical units high.
    void DrawTitle(CDC& dc, int nHeight);
    /// Draws the caption band with its text, and the maximize icon if it is switched on. Sets m_rectCaption
    /// and, with the icon, m_rectIconMaximize.
    void DrawCaption(CDC& dc);
    /// Draws the maximize icon into m_rectIconMaximize.
    void DrawIconMaximize(CDC& dc);
    /// Height of a label row, 1/15 of the client area's height, in logical units; 0 without a window.
    int GetTitleTextHeight();
    /// Draws a value axis with `nTicks` ticks, their labels and the unit text, and for the Y axis the grid.
    /// With fewer than 2 ticks only the axis line is drawn. `nAxis` is 0 for Y, 1 for Y2; the Y2 axis is
    /// drawn in the two-axis style only.
    void DrawYAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks, int nAxis);
    /// Draws the legend rows into m_rectLegend.
    void DrawLegend(CDC& dc);
    /// Stores the width of one bar in logical units, the number of datasets with samples, and the number of
    /// visible samples of the first dataset that has one. Result 0, outputs unchanged, when no sample lies in
    /// the visible X range.
    BOOL CalcBarSize(int& nBarWidth, int& nDatasets, int& nVisiblePoints);

    // ---- Notifications. Without a parent nothing is sent. ----

    /// Sends GCN_SELCHANGE with the current selection mark to the parent.
    void SendSelchangeNotifyMessage();
    /// Sends GCN_REMOVEDATA to the parent.
    void SendRemoveDataNotifyMessage(int nIndex, int nCount);
    /// Fills in the header of `record` and sends the record to the parent. False without a window, and when
    /// the parent's handler has destroyed the window or deleted this object: access no member then.
    bool Notify(NMGRAPHCTRL& record, UINT nCode);

    // ---- For derived controls ----

    /// Whether there is a dataset `nDataset`.
    static bool IsDataset(int nDataset) { return nDataset >= 0 && nDataset < DatasetCount; }
    /// Stores the number of samples of each dataset in `sizes`.
    void GetSizes(int (&sizes)[DatasetCount]) const;
    /// Sets the selection mark and sends the event for assistive tools. No repaint, no notification.
    void StoreSelectionMark(int nPos);
    /// MF_ flags of a menu item that needs a selection mark: grayed while there is no mark.
    UINT SelectionMarkItemState() const;
    /// The result of GetPtFromIndex for sample `nIndex`. `x` is the sample's X position in logical units;
    /// none for a sample without a position.
    CPoint PtOfSample(int nIndex, std::optional<int> x);
    /// Draws the datasets of the line styles and the selection mark. `xPositions` holds the X positions of
    /// the samples. `rangeOf(dataset)` is the range of the dataset's samples to draw.
    void DrawLines(CDC& dc, const kavlix::XPositions& xPositions,
                   const std::function<kavlix::IndexRange(const CDataset&)>& rangeOf);

    void PreSubclassWindow() override; ///< prepares a dialog item
    /// Passes messages that the control does not handle to the system's default window procedure, also in a
    /// window of another class: that class's procedure gets only the messages of creation and destruction.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// @{
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct); ///< Handles its message or command.
    afx_msg LRESULT OnStyleChanging(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnEditCopy();
    afx_msg void OnHideSelectionMark();
    afx_msg void OnRemoveDataBeforeSelectionMark();
    /// @}
    DECLARE_MESSAGE_MAP()

private:
    // Defaults that several members share.
    static constexpr COLORREF kAxisLabelColor = RGB(126, 162, 226);
    static constexpr COLORREF kAxisColor = RGB(185, 221, 193);
    static constexpr COLORREF kTickLabelColor = RGB(63, 127, 77);
    static constexpr int kTickLabelRoom = 1500; // default size of a band of tick labels, logical units
    // Defaults that ResetAll restores.
    static constexpr TCHAR kDefaultTitle[] = _T("Graph Title");
    static constexpr TCHAR kDefaultXLabel[] = _T("X Label");
    static constexpr TCHAR kDefaultYLabel[] = _T("Y Label");

protected:
    /// @{
    GraphStyle m_GraphStyle = GraphStyleLine; ///< The stored value of this property.
    TitleStyle m_TitleStyle = TitleStyleText;
    CDataset m_Datasets[DatasetCount];   ///< the samples and how they are drawn
    kavlix::LabelStore m_XTickLabelUp;   ///< upper lines of the X tick labels
    kavlix::LabelStore m_XTickLabelDown; ///< lower lines of the X tick labels
    BOOL m_ShowBorder = FALSE;

    // Layout, in logical units except for the last two. Every paint sets these rectangles; before the first
    // paint they are empty.
    CRect m_rectPlot;         ///< the data area
    CRect m_rectLegend;       ///< place of the legend board, also while the legend is hidden
    CRect m_rectTitle;        ///< the title area
    CRect m_rectXAxis;        ///< strip of the X tick marks, under the plot
    CRect m_rectYAxis;        ///< strip of the Y tick marks, left of the plot
    CRect m_rectY2Axis;       ///< strip of the Y2 tick marks, right of the plot; width 0 without a Y2 axis
    CRect m_rectXTickLabel;   ///< band of the X tick labels
    CRect m_rectYTickLabel;   ///< band of the Y tick labels
    CRect m_rectY2TickLabel;  ///< band of the Y2 tick labels; width 0 without a Y2 axis
    CRect m_rectIconMaximize; ///< the maximize icon; empty when it is not shown
    CRect m_rectCaption;      ///< the caption band; empty unless TitleStyleCaption is set
    CRect m_rectClient;       ///< the client rectangle, pixels
    CRect m_rectClientInner;  ///< the client rectangle without its last column and row of pixels, pixels

    BOOL m_AutoXVisible = TRUE;
    double m_XVisibleMin = 0;
    double m_XVisibleMax = 100;
    double m_YVisibleMin = 0;
    double m_YVisibleMax = 100;
    double m_Y2VisibleMin = 0;
    double m_Y2VisibleMax = 100;
    double m_ReservedValue = 1; ///< kept for derived classes; the control does not read it
    BOOL m_IconMaximizeTracking =
        FALSE; ///< TRUE from the press of the icon until the GCN_MAXIMIZE handler returns or the press ends
    BOOL m_IconMaximizePressed = FALSE; ///< the icon is drawn pressed
    BOOL m_GridY = TRUE;
    BOOL m_GridX = FALSE;
    COLORREF m_GridColor = kAxisColor;
    BOOL m_ShowLegend = TRUE;
    BOOL m_ShowLegendBoard = TRUE;
    int m_LegendMargin = 100;     ///< space round legend rows, logical units
    int m_LegendItemHeight = 300; ///< height of a legend row, logical units
    int m_SelectionMarkPos = -1;  ///< index of the marked sample, -1 for no selection mark
    COLORREF m_LineCursorColor = RGB(100, 100, 100);
    COLORREF m_BoxCursorColor = RGB(225, 225, 225);
    COLORREF m_BkColor = RGB(255, 255, 255);
    COLORREF m_TitleColor = RGB(96, 96, 140);
    COLORREF m_XLabelColor = kAxisLabelColor;
    COLORREF m_YLabelColor = kAxisLabelColor;
    COLORREF m_Y2LabelColor = kAxisLabelColor;
    COLORREF m_AxisColor = kAxisColor;
    COLORREF m_XTickLabelColor = kTickLabelColor;
    COLORREF m_YTickLabelColor = kTickLabelColor;
    COLORREF m_Y2TickLabelColor = RGB(150, 100, 0);
    COLORREF m_LegendColor = RGB(215, 232, 241);
    COLORREF m_LegendTextColor = RGB(63, 81, 113);
    COLORREF m_CaptionColor = RGB(128, 128, 150);
    COLORREF m_CaptionTextColor = RGB(255, 255, 255);
    int m_XTickLabelHeight = kTickLabelRoom;
    int m_LegendWidth = 3000;
    int m_XTickLabelUpStringMaxLength = 10;
    int m_YTickLabelWidth = kTickLabelRoom;
    int m_Y2TickLabelWidth = kTickLabelRoom;
    int m_YTickLabelScale = 0;
    int m_Y2TickLabelScale = 0;
    CString m_YUnit;
    CString m_Y2Unit;
    int m_YUnitExponent = 0;
    int m_Y2UnitExponent = 0;
    BOOL m_ShowXLabel = TRUE;
    BOOL m_ShowYLabel = TRUE;
    BOOL m_ShowY2Label = TRUE;
    BOOL m_ShowIconMaximize = FALSE;
    BOOL m_IconMaximized = FALSE;
    CString m_CaptionFontFace = _T("Tahoma");
    int m_CaptionFontSize = 80; ///< tenths of a point
    CString m_Title = kDefaultTitle;
    CString m_XLabel = kDefaultXLabel;
    CString m_YLabel = kDefaultYLabel;
    CString m_Y2Label = _T("Y2 Label");
    BOOL m_ShowMenuRemoveDataBeforeSelectionMark = TRUE;
    /// @}
    CFont m_YTickLabelFont; ///< Y and Y2 tick labels
    CFont m_XTickLabelFont; ///< X tick labels; text runs upwards
    CFont m_UnitFont;       ///< unit texts
    CFont m_LegendFont;     ///< legend rows

private:
    std::unique_ptr<kavlix::GraphCtrlState>
        m_State;                                  ///< members of later versions; the size of the class stays
    std::unique_ptr<kavlix::Offscreen> m_Picture; ///< the bitmap that WM_PAINT reuses from paint to paint
    bool m_MaximizeNotified = false;              ///< GCN_MAXIMIZE of the current press has been sent

    /// Removes the samples of `dataset` and the selection mark.
    void ClearSamples(CDataset& dataset);

    void MakeFonts();
    /// Computes the layout for the client area `client` (logical units) into the m_rect... members.
    kavlix::GraphLayout LayOut(const CRect& client);
    /// Draws the X label, the Y label and, in the two-axis style, the Y2 label.
    void DrawAxisLabels(CDC& dc, const kavlix::GraphLayout& layout);
    /// Draws the legend and, if it is switched on, the legend's board. `right` is the right edge of the
    /// client area in logical units. `clientClip` is the clip region of `dc`, selected again at the end.
    void DrawLegendArea(CDC& dc, int right, CRgn& clientClip);
    /// Draws ticks and tick labels of the X axis in the line styles. The caller has selected `axisPen`.
    void DrawLineTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, CPen& axisPen,
                       const kavlix::TickRoom& room);
    /// Draws ticks and tick labels of the X axis in the bar style with the selected pen.
    void DrawBarTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, const kavlix::TickRoom& room);
    /// Draws X tick label `nIndex` below a tick at `x` (logical units).
    void DrawTickLabel(CDC& dc, const CRect& rectLabel, int x, int nIndex);
    /// Draws the datasets of the bar style and the selection mark.
    void DrawBars(CDC& dc);

    /// The map from sample indices to X positions.
    kavlix::LinearMap XMap() const;
    /// The map from the values of dataset `nDataset` to Y positions.
    kavlix::LinearMap YMapOf(int nDataset) const;
    CPoint ToLogicalPoint(CPoint point);
    CPoint ToClientPoint(CPoint logical);
    /// Dataset whose legend row lies at the height of `point` (logical units), -1 for none. Rows are counted
    /// as if every dataset had one.
    int LegendRowAt(CPoint point) const;

    /// Paints the maximize icon at once, without WM_PAINT. Calls Redraw if memory or GDI objects run out.
    void RepaintIcon();
    /// Ends the press of the maximize icon. No repaint.
    void EndPress();
    /// Sets the selection mark, calls RedrawData and notifies the parent. The result is that of Notify.
    bool MoveSelectionMark(int nPos);
    /// Sends GCN_SELCHANGE. The result is that of Notify.
    bool NotifySelChange();
};

/// Binds the dialog item `nIDC` to `control` by subclassing the item. A control that has a window is
/// left unchanged. Call this function from DoDataExchange. Throws CNotSupportedException* when the item
/// cannot be subclassed.
KAVLIX_API void DDX_GraphControl(CDataExchange* pDX, int nIDC, CGraphCtrl& control);

KAVLIX_CHECK_HOST(CGraphCtrl)
