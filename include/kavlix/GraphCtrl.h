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
class Offscreen;
class XPositions;
struct GraphLayout;
struct IndexRange;
struct TickRoom;
} // namespace kavlix

/// A graph of up to 13 datasets, drawn as lines with markers, as grouped bars, or as two lines against two
/// value axes, with title or caption band, axis labels, legend, grid and a selection mark.
///
/// Create it with `CWnd::Create("MFCGraphCtrl", ...)` or bind a dialog item with DDX_GraphControl. Use it on
/// the thread that owns its window. In a window of another class (a STATIC or BUTTON item, say) nothing but
/// creation and destruction reaches that class's procedure: the control alone paints and takes input.
///
/// Units: "logical units" are 1/30 pixel in both directions whatever the window's size, y growing downwards.
/// Colours are COLORREF. Values are doubles; every conversion to a position truncates toward zero and
/// saturates.
///
/// Repainting: properties and data only store (RemoveHeadData and SetSelectionMarkPos excepted). Call Redraw
/// after changing properties, RedrawData after adding samples. Everything but painting also works without a
/// window.
///
/// Values that have no position: a NaN sample leaves a gap in its line and gets no bar; an infinite one is
/// drawn far outside the plot. While a visible range is 0 wide nothing has a position on it: the datasets it
/// scales are not drawn. A range whose minimum lies above its maximum turns a value axis upside down; on the
/// X axis it shows no ticks and no bars.
class KAVLIX_API CGraphCtrl : public CWnd {
public:
    /// How the datasets are drawn. Other values draw frame, axes and labels, but no data.
    enum GraphStyle : int {
        GraphStyleLine = 0, ///< every visible dataset is a line with markers against the Y axis
        GraphStyleBar = 1,  ///< one group of bars per sample, one bar per dataset, against the Y axis
        GraphStyleTwoAxis =
            2 ///< dataset 0 is a line against the Y axis, dataset 1 against the Y2 axis; no legend
    };

    /// What stands at the top. Values other than 1 count as TitleStyleText.
    enum TitleStyle : int {
        TitleStyleText = 0,   ///< the title (SetTitle) as plain text
        TitleStyleCaption = 1 ///< a filled band with the window's text (SetWindowText), optionally an icon
    };

    /// Number of datasets of every control; they are addressed by 0 to DatasetCount - 1.
    static constexpr int DatasetCount = 13;

    /// Registers the window class if needed, sets all defaults and makes the fonts; creates no window. Throws
    /// CResourceException when the window class cannot be registered.
    CGraphCtrl();
    ~CGraphCtrl() override;
    CGraphCtrl(const CGraphCtrl&) = delete;
    CGraphCtrl& operator=(const CGraphCtrl&) = delete;

    // ---- Data. An index outside its range makes an operation fail and change nothing. No repaint. ----

    /// Appends `y` to dataset `nDataset`. Its X is its index in the dataset, stored in `*pX` if that is not
    /// null. With the automatic X range the visible range's right end moves to that X + 0.001. Result 0 when
    /// `nDataset` is outside 0..12 or, after a message box, when memory ran out; nothing has changed then.
    BOOL AddData(int nDataset, double y, double* pX);
    /// Appends the next X tick label: label i belongs to sample index i. With `down` empty, a long `up` is
    /// broken into two lines (SetXTickLabelUpStringMaxLength). Result 1; 0, after a message box, when memory
    /// ran out: neither text is stored then.
    BOOL AddXTickLabel(CString up, CString down);
    /// Removes all samples of a dataset and the selection mark; colour, marker, line size, legend text and
    /// visibility stay. Ignored outside 0..12.
    void ResetData(int nDataset);
    /// Number of samples; -1 outside 0..12.
    int GetDatasetSize(int nDataset) const;
    /// Value of a sample. Result 0, `y` not written, when there is no such sample.
    BOOL GetYData(int nDataset, int nIndex, double& y) const;
    /// Removes all samples, tick labels, legend texts and the selection mark; title, X label and Y label
    /// return to their defaults. The Y2 label, colours, styles, ranges and switches stay.
    void ResetAll();

    // ---- Datasets' attributes. Result 0 outside 0..12. No repaint. ----

    /// Colour of line, bars, markers and legend swatch. In the two-axis style dataset 0 also colours Y label
    /// and Y tick labels, dataset 1 those of Y2.
    BOOL SetColor(int nDataset, COLORREF color);
    /// Line width in logical units, clamped to 0..1000; 0 draws one pixel.
    BOOL SetLineSize(int nDataset, int nSize);
    /// Marker at each point of a line; an unknown type draws none.
    BOOL SetMarkerType(int nDataset, CDataset::MarkerType type);
    /// Whether the dataset is drawn. Hidden, it keeps its slot among the bars and its legend row (white
    /// swatch).
    BOOL ShowDataset(int nDataset, BOOL bShow);
    /// Text of the legend row; an empty text takes no row.
    BOOL SetLegend(int nDataset, CString text);
    /// Empties all legend texts.
    void ResetLegend();

    // ---- Properties. They store what is given, unchecked. No repaint. ----

    /// Default GraphStyleLine. Setting GraphStyleTwoAxis also turns the legend off and gives the axes' labels
    /// the colours of datasets 0 and 1; going back to another style restores neither.
    void SetGraphStyle(GraphStyle style);
    GraphStyle GetGraphStyle() const { return m_GraphStyle; }
    /// Default TitleStyleText.
    void SetTitleStyle(TitleStyle style) { m_TitleStyle = style; }
    TitleStyle GetTitleStyle() const { return m_TitleStyle; }
    /// A black border of one pixel round the client area; default off.
    void ShowBorder(BOOL bShow) { m_ShowBorder = bShow; }
    /// Whether the context menu offers to remove the samples before the selection mark; default on.
    void ShowMenuRemoveDataBeforeSelectionMark(BOOL bShow) {
        m_ShowMenuRemoveDataBeforeSelectionMark = bShow;
    }

    /// Whether AddData moves the right end of the visible X range to the newest sample; default on.
    void SetAutoXVisible(BOOL bAuto) { m_AutoXVisible = bAuto; }
    /// Ends of the visible ranges; default 0 and 100. X is the sample index.
    void SetXVisibleMin(double x) { m_XVisibleMin = x; }
    void SetXVisibleMax(double x) { m_XVisibleMax = x; }
    void SetYVisibleMin(double y) { m_YVisibleMin = y; }
    void SetYVisibleMax(double y) { m_YVisibleMax = y; }
    void SetY2VisibleMin(double y) { m_Y2VisibleMin = y; }
    void SetY2VisibleMax(double y) { m_Y2VisibleMax = y; }

    /// Texts. Of every text at most the first 8192 characters are drawn, the longest that GDI takes at once.
    void SetTitle(CString text) { m_Title = std::move(text); }
    void SetXLabel(CString text) { m_XLabel = std::move(text); }
    void SetYLabel(CString text) { m_YLabel = std::move(text); }
    void SetY2Label(CString text) { m_Y2Label = std::move(text); }
    /// Whether the axis labels are shown; default on. Y2 only appears in the two-axis style.
    void ShowXLabel(BOOL bShow) { m_ShowXLabel = bShow; }
    void ShowYLabel(BOOL bShow) { m_ShowYLabel = bShow; }
    void ShowY2Label(BOOL bShow) { m_ShowY2Label = bShow; }

    /// Default on; stays off whatever is asked while the style is GraphStyleTwoAxis.
    void ShowLegend(BOOL bShow);
    BOOL GetShowLegend() const { return m_ShowLegend; }
    /// Whether the legend stands on a filled board with a shadow; default on.
    void ShowLegendBoard(BOOL bShow) { m_ShowLegendBoard = bShow; }
    /// Width of the legend in logical units; default 3000.
    void SetLegendWidth(int nWidth) { m_LegendWidth = nWidth; }
    /// Dotted grid lines at the X ticks (line styles only) and at the Y ticks; default off and on.
    void SetGrid(BOOL bGridX, BOOL bGridY);

    /// Room for the X tick labels, which run upwards, in logical units; default 1500.
    void SetXTickLabelHeight(int nHeight) { m_XTickLabelHeight = nHeight; }
    /// The most characters in one line of an X tick label without lower text; a longer one is broken into two
    /// lines; default 10. Characters of the process code page, whatever bytes they take; a combining mark
    /// counts with its letter.
    void SetXTickLabelUpStringMaxLength(int nLength) { m_XTickLabelUpStringMaxLength = nLength; }
    /// Room for the Y and Y2 tick labels in logical units; default 1500.
    void SetYTickLabelWidth(int nWidth) { m_YTickLabelWidth = nWidth; }
    void SetY2TickLabelWidth(int nWidth) { m_Y2TickLabelWidth = nWidth; }
    /// Decimal places of the Y and Y2 tick labels; below 1 none, at most 8192; default 0.
    void SetYTickLabelScale(int nDecimals) { m_YTickLabelScale = nDecimals; }
    void SetY2TickLabelScale(int nDecimals) { m_Y2TickLabelScale = nDecimals; }
    /// Unit text above the axis, the power of ten that tick values are divided by before they are printed,
    /// and the decimal places of the tick labels; default "", 0, 0.
    void SetYUnit(CString unit, int nExponent, int nDecimals);
    void SetY2Unit(CString unit, int nExponent, int nDecimals);

    /// The maximize icon of the caption band, and whether it shows the "restore" form; default off, off.
    /// The control maximizes nothing itself: see GCN_MAXIMIZE.
    void ShowIconMaximize(BOOL bShow, BOOL bMaximized);
    /// Font of the caption band: size in tenths of a point on the screen, face; default 80, "Tahoma". The
    /// band is as high as the font; in a font of a thousand pixels and twice the control's height it has no
    /// text.
    void SetCaptionFont(int nSize, const char* pszFace);

    void SetBkColor(COLORREF color) { m_BkColor = color; }                   ///< default 0x00FFFFFF
    void SetTitleColor(COLORREF color) { m_TitleColor = color; }             ///< default 0x008C6060
    void SetXLabelColor(COLORREF color) { m_XLabelColor = color; }           ///< default 0x00E2A27E
    void SetYLabelColor(COLORREF color) { m_YLabelColor = color; }           ///< default 0x00E2A27E
    void SetY2LabelColor(COLORREF color) { m_Y2LabelColor = color; }         ///< default 0x00E2A27E
    void SetAxisColor(COLORREF color) { m_AxisColor = color; }               ///< default 0x00C1DDB9
    void SetXTickLabelColor(COLORREF color) { m_XTickLabelColor = color; }   ///< default 0x004D7F3F
    void SetYTickLabelColor(COLORREF color) { m_YTickLabelColor = color; }   ///< default 0x004D7F3F
    void SetY2TickLabelColor(COLORREF color) { m_Y2TickLabelColor = color; } ///< default 0x00006496
    void SetGridColor(COLORREF color) { m_GridColor = color; }               ///< default 0x00C1DDB9
    void SetLegendColor(COLORREF color) { m_LegendColor = color; }           ///< default 0x00F1E8D7
    void SetLegendTextColor(COLORREF color) { m_LegendTextColor = color; }   ///< default 0x0071513F
    void SetLineCursorColor(COLORREF color) { m_LineCursorColor = color; }   ///< default 0x00646464
    void SetBoxCursorColor(COLORREF color) { m_BoxCursorColor = color; }     ///< default 0x00E1E1E1
    void SetCaptionColor(COLORREF color) { m_CaptionColor = color; }         ///< default 0x00968080
    void SetCaptionTextColor(COLORREF color) { m_CaptionTextColor = color; } ///< default 0x00FFFFFF

    // ---- View. Without a window these change state only. ----

    /// Invalidates the whole client area, without erasing.
    void Redraw();
    /// Invalidates the data region (plot, tick labels, a margin), as laid out by the last paint, without
    /// erasing.
    void RedrawData();
    /// Marks sample `nPos`, -1 for no mark, and calls RedrawData; ignored unless -1 <= nPos < samples of
    /// dataset 0. Tells the parent nothing. As every move of the mark, it is reported to assistive tools:
    /// sample i is child i + 1 of the control's client object.
    void SetSelectionMarkPos(int nPos);
    /// Puts the picture on the clipboard as an enhanced metafile. Result 1; 0 when there is no window or the
    /// metafile could not be made, for want of memory too. A clipboard held by somebody else is not detected.
    int CopyToClipboard();
    /// Saves the picture as PNG, BMP or EMF, as the name's extension says. False for another extension,
    /// without a window or an area, when memory runs out or when the file cannot be written; an existing file
    /// is as before then, and nothing half-written is left.
    bool SaveImage(CString strFileName);
    /// Whether `menu` already holds a command `nID`.
    bool IsMenuItem(CMenu& menu, UINT nID);

    // ---- Virtual operations, in the order of their slots. ----

    /// Texts of X tick label `nIndex`; an output whose list has no such entry is left unchanged. Always 1.
    virtual BOOL GetXData(int nIndex, CString& up, CString& down);
    /// Removes the `nCount` oldest samples of every dataset and as many tick labels, clears the selection
    /// mark, moves the right end of the automatic X range to dataset 0's newest sample and calls RedrawData.
    /// A count below 0 counts as 0. The parent is not told.
    virtual void RemoveHeadData(int nCount);
    /// Removes all X tick labels.
    virtual void ResetXTickLabel();
    /// Shows the context menu at `point` (client pixels) and waits for the choice, which arrives as a
    /// command.
    virtual void OnContextGraphMenu(CPoint point);
    /// Puts this control's items on top of `menu`, leaving out commands that it already holds; a separator is
    /// added every time.
    virtual void InsertGraphMenu(CMenu& menu);

protected:
    /// Draws axis line, ticks and tick labels of the X axis; rectangles in logical units, `nTicks` the
    /// largest number of labelled ticks.
    virtual void DrawXAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks);
    /// Draws the datasets and the selection mark into the plot, to which the caller has clipped.
    virtual void DrawGraphData(CDC& dc);
    /// Sample under `point` (logical units), -1 for none. Lines: the nearest in X, wherever it is; bars: the
    /// group.
    virtual int GetIndexFromPt(CPoint point);
    /// Where in the plot sample `nIndex` stands (logical units): on the line of the first visible dataset
    /// that holds it, or in the middle of its group of bars; at the plot's edge when it lies outside. The
    /// middle of the plot when there is no such sample or it has no position. The keyboard's context menu
    /// opens there.
    virtual CPoint GetPtFromIndex(int nIndex);

    // ---- Painting. Destination-independent: screen, printer, metafile and memory DC get the same calls.
    // ----

    /// Registers the window class "MFCGraphCtrl" unless it is. Always TRUE; throws CResourceException on
    /// failure.
    static BOOL RegisterWindowClass();
    /// Gives `dc` the mapping of 30 logical units per pixel with all origins 0.
    void SetMapModeAnisotropic(CDC& dc);
    /// Lays out and paints everything into `dc`, which must have the mapping above; its viewport origin may
    /// be moved to place the picture. Leaves the DC without clip and with the objects and text settings it
    /// had.
    void DrawGraph(CDC& dc);
    /// Draws the title with a bold font of the given height at the top of m_rectTitle.
    void DrawTitle(CDC& dc, int nHeight);
    /// Draws the caption band with its text and icon; sets m_rectCaption and m_rectIconMaximize.
    void DrawCaption(CDC& dc);
    /// Draws the maximize icon into m_rectIconMaximize.
    void DrawIconMaximize(CDC& dc);
    /// Height of a label row, 1/15 of the client's, in logical units; 0 without a window.
    int GetTitleTextHeight();
    /// Draws a value axis with `nTicks` ticks, labels, unit and grid; `nAxis` 0 is Y, 1 is Y2.
    void DrawYAxis(CDC& dc, CRect rectLabel, CRect rectAxis, int nTicks, int nAxis);
    /// Draws the legend rows into m_rectLegend.
    void DrawLegend(CDC& dc);
    /// Width of one bar in logical units, number of datasets with samples, and number of visible sample
    /// positions. Result 0, outputs unchanged, when there is nothing to draw.
    BOOL CalcBarSize(int& nBarWidth, int& nDatasets, int& nVisiblePoints);

    // ---- Notifications ----

    /// Sends GCN_SELCHANGE with the current mark to the parent, if there is one.
    void SendSelchangeNotifyMessage();
    /// Sends GCN_REMOVEDATA to the parent, if there is one.
    void SendRemoveDataNotifyMessage(int nIndex, int nCount);
    /// Sends `record`, its header filled in here, to the parent, if there is one. False when the control has
    /// lost its window, or is gone, by the time the parent has handled it: touch nothing of it then.
    bool Notify(NMGRAPHCTRL& record, UINT nCode);

    // ---- For derived controls ----

    static bool IsDataset(int nDataset) { return nDataset >= 0 && nDataset < DatasetCount; }
    /// Number of samples of each dataset.
    void GetSizes(int (&sizes)[DatasetCount]) const;
    /// Stores the mark and reports the change to assistive tools. No repaint, no notification.
    void StoreMark(int nPos);
    /// State flags of menu items that need a mark.
    UINT MarkItemState() const;
    /// Where in the plot sample `nIndex`, whose X position is `x`, stands; see GetPtFromIndex.
    CPoint PtOfSample(int nIndex, std::optional<int> x);
    /// Draws the datasets of the line styles with the mark: samples stand at `xPositions`, and of each
    /// dataset those of `rangeOf` are looked at.
    void DrawLines(CDC& dc, const kavlix::XPositions& xPositions,
                   const std::function<kavlix::IndexRange(const CDataset&)>& rangeOf);

    void PreSubclassWindow() override;
    /// What the control does not handle: the system's default procedure, whatever class the window has.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

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
    DECLARE_MESSAGE_MAP()

protected:
    GraphStyle m_GraphStyle;
    TitleStyle m_TitleStyle;
    CDataset m_Datasets[DatasetCount];
    kavlix::LabelStore m_XTickLabelUp;
    kavlix::LabelStore m_XTickLabelDown;
    BOOL m_ShowBorder;

    // Layout, in logical units unless said otherwise; written by every paint, empty before the first.
    CRect m_rectPlot;   ///< the data area
    CRect m_rectLegend; ///< the legend board
    CRect m_rectTitle;  ///< the title area
    CRect m_rectXAxis;  ///< strip of the X tick marks, under the plot
    CRect m_rectYAxis;  ///< strip of the Y tick marks, left of the plot
    CRect m_rectY2Axis; ///< strip of the Y2 tick marks, right of the plot; no width but in the two-axis style
    CRect m_rectXTickLabel;   ///< band of the X tick labels
    CRect m_rectYTickLabel;   ///< band of the Y tick labels
    CRect m_rectY2TickLabel;  ///< band of the Y2 tick labels; no width but in the two-axis style
    CRect m_rectIconMaximize; ///< the maximize icon; empty when it is not shown
    CRect m_rectCaption;      ///< the caption band; empty in the other title style
    CRect m_rectClient;       ///< the client rectangle, pixels
    CRect m_rectClientInner;  ///< the same less one pixel on the right and at the bottom, pixels

    BOOL m_AutoXVisible;
    double m_XVisibleMin;
    double m_XVisibleMax;
    double m_YVisibleMin;
    double m_YVisibleMax;
    double m_Y2VisibleMin;
    double m_Y2VisibleMax;
    double m_ReservedValue;      ///< kept for derived classes; the control does not read it
    BOOL m_IconMaximizeTracking; ///< the button went down on the icon; until GCN_MAXIMIZE was handled
    BOOL m_IconMaximizePressed;  ///< the icon is drawn pressed
    BOOL m_GridY;
    BOOL m_GridX;
    COLORREF m_GridColor;
    BOOL m_ShowLegend;
    BOOL m_ShowLegendBoard;
    int m_LegendMargin;     ///< space round legend rows, logical units
    int m_LegendItemHeight; ///< height of a legend row, logical units
    int m_SelectionMarkPos; ///< marked sample index, -1 for none
    COLORREF m_LineCursorColor;
    COLORREF m_BoxCursorColor;
    COLORREF m_BkColor;
    COLORREF m_TitleColor;
    COLORREF m_XLabelColor;
    COLORREF m_YLabelColor;
    COLORREF m_Y2LabelColor;
    COLORREF m_AxisColor;
    COLORREF m_XTickLabelColor;
    COLORREF m_YTickLabelColor;
    COLORREF m_Y2TickLabelColor;
    COLORREF m_LegendColor;
    COLORREF m_LegendTextColor;
    COLORREF m_CaptionColor;
    COLORREF m_CaptionTextColor;
    int m_XTickLabelHeight;
    int m_LegendWidth;
    int m_XTickLabelUpStringMaxLength;
    int m_YTickLabelWidth;
    int m_Y2TickLabelWidth;
    int m_YTickLabelScale;
    int m_Y2TickLabelScale;
    CString m_YUnit;
    CString m_Y2Unit;
    int m_YUnitExponent;
    int m_Y2UnitExponent;
    BOOL m_ShowXLabel;
    BOOL m_ShowYLabel;
    BOOL m_ShowY2Label;
    BOOL m_ShowIconMaximize;
    BOOL m_IconMaximized;
    CString m_CaptionFontFace;
    int m_CaptionFontSize; ///< tenths of a point
    CString m_Title;
    CString m_XLabel;
    CString m_YLabel;
    CString m_Y2Label;
    BOOL m_ShowMenuRemoveDataBeforeSelectionMark;
    CFont m_YTickLabelFont; ///< Y and Y2 tick labels
    CFont m_XTickLabelFont; ///< X tick labels; text runs upwards
    CFont m_UnitFont;       ///< unit texts
    CFont m_LegendFont;     ///< legend rows

private:
    std::unique_ptr<kavlix::Offscreen> m_Picture; ///< what WM_PAINT composes in, kept from paint to paint
    bool m_MaximizeTold = false; ///< the parent handles GCN_MAXIMIZE of the press that is tracked

    void ClearSamples(CDataset& dataset);

    kavlix::GraphLayout LayOut(const CRect& client);
    void DrawLabels(CDC& dc, const kavlix::GraphLayout& layout);
    void DrawLegendArea(CDC& dc, int right, CRgn& clientClip);
    void DrawLineTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, CPen& axisPen,
                       const kavlix::TickRoom& room);
    void DrawBarTicks(CDC& dc, const CRect& rectLabel, const CRect& rectAxis, const kavlix::TickRoom& room);
    void DrawTickLabel(CDC& dc, const CRect& rectLabel, int x, int nIndex);
    void DrawBars(CDC& dc);

    CPoint ToLogicalPoint(CPoint point);
    CPoint ToClientPoint(CPoint logical);
    int LegendRowAt(CPoint point) const;
    void RepaintIcon();
    void EndPress();
    bool NotifyMarkMoved();
};

/// Binds the dialog item `nIDC` to `control`, by subclassing it, the first time it is called; later calls do
/// nothing. For DoDataExchange. Throws CNotSupportedException when the item cannot be subclassed.
KAVLIX_API void DDX_GraphControl(CDataExchange* pDX, int nIDC, CGraphCtrl& control);
