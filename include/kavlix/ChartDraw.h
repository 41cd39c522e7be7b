// SPDX-License-Identifier: MIT
// CChartDraw: a chart window that draws datasets of points and exports its picture.
#pragma once

#include <afxwin.h>

#include <kavlix/ChartAxis.h>
#include <kavlix/ChartCursor.h>
#include <kavlix/ChartLegend.h>
#include <kavlix/ChartNotify.h>
#include <kavlix/ChartReferences.h>
#include <kavlix/ChartStatistics.h>
#include <kavlix/Dataset.h>
#include <kavlix/Export.h>

#include <functional>
#include <memory>
#include <vector>

namespace kavlix {
struct ChartDrawState;
class ChartSeries;
class LabelRow;
class Offscreen;
} // namespace kavlix

/// A packed device-independent bitmap in a block of global memory: header, colour table, pixels.
typedef HANDLE HDIB;

/// A chart window: any number of datasets of (x, y) points, drawn as lines, markers or both, with title,
/// grid, axes and captions. The chart's picture can be copied to the clipboard and saved to a file.
///
/// Units are pixels, y growing downwards. Colours are COLORREF. Values are doubles; every conversion of a
/// value to a position truncates toward zero and saturates. The points of a dataset may come in any order of
/// x. A point with a NaN is a gap in the line. A point with an infinite value lies far outside the plot. Only
/// finite points influence the scales.
///
/// Data and properties can be set without a window. Setting them does not repaint: call Redraw. Use the chart
/// on the thread that owns its window; only PostData may be called on any thread.
///
/// Beside these members stand parts with classes of their own: the axes (linear, logarithmic, time), the legend,
/// the cursors, and reference lines and bands. All of them are off, and the user cannot change the view, until the
/// host asks for it (SetViewFlags).
///
/// A mirrored parent window (WS_EX_LAYOUTRTL) does not mirror the control: picture and mouse positions run from
/// left to right.
class KAVLIX_API CChartDraw : public CWnd {
public:
    /// An empty chart without a window.
    CChartDraw();
    ~CChartDraw() override;
    CChartDraw(const CChartDraw&) = delete;
    CChartDraw& operator=(const CChartDraw&) = delete;

    using CWnd::Create;
    /// Creates the window as a child of `pParentWnd`; WS_CHILD is added to `dwStyle`. FALSE when the window
    /// cannot be created. Throws CResourceException* when the window class cannot be registered.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // ---- Data. With an invalid index an operation fails and changes nothing. None of them repaints. ----

    /// Appends an empty dataset, drawn as a line one pixel wide without markers, in the next of ten
    /// colours. The result is the dataset's index, counted from 0, or -1 when memory runs out; a
    /// message box then says so.
    int AddDataset();
    int GetDatasetCount() const; ///< number of datasets
    /// Removes a dataset. The indices of the later datasets decrease by one.
    BOOL RemoveDataset(int nDataset);
    void RemoveAllDatasets(); ///< leaves the chart without datasets
    /// Appends a point. FALSE when there is no such dataset, and when memory runs out; a message box then
    /// says so. The first point whose x is NaN or less than the x before makes the dataset one in any order, until
    /// SetData or ResetData: then gap limits have no effect, and inserting is appending. Use InsertData for late points.
    BOOL AddData(int nDataset, double x, double y);
    /// Replaces all points of a dataset by `nCount` points, copied from `pX` and `pY`. If `pX` is null, each
    /// point's x is its index. FALSE, with nothing changed, when there is no such dataset, when `nCount` is
    /// negative, when `pY` is null and `nCount` positive, and when memory runs out; a message box reports
    /// only the last case.
    BOOL SetData(int nDataset, const double* pX, const double* pY, int nCount);
    /// Removes all points of a dataset and keeps its attributes. Needs no memory. FALSE when there is no such
    /// dataset.
    BOOL ResetData(int nDataset);
    /// Number of points, or -1 when there is no such dataset.
    int GetDatasetSize(int nDataset) const;
    /// Writes a point's values to `x` and `y`. FALSE, with neither written, when there is no such point.
    BOOL GetData(int nDataset, int nIndex, double& x, double& y) const;

    /// Inserts a point that comes late: behind the last point whose x is not greater. In a dataset whose x do not
    /// ascend the point is appended. Results as AddData.
    BOOL InsertData(int nDataset, double x, double y);
    /// Replaces the y of the newest point. FALSE when there is no such dataset or no point.
    BOOL ReplaceLastData(int nDataset, double y);
    /// Removes the `nCount` oldest points, at most all. FALSE when there is no such dataset or `nCount` is negative.
    BOOL RemoveHeadData(int nDataset, int nCount);
    /// Lets the points of an empty dataset stand at `dStart`, `dStart` + `dStep` ... without memory for their x. Add
    /// them by AddEvenData; points added otherwise do not count. Stays after ResetData, which begins at `dStart` again.
    /// FALSE when there is no such dataset, it has points, or a value is not finite, and unless `dStep` > 0.
    BOOL SetEvenX(int nDataset, double dStart, double dStep);
    /// Appends a point at the next x of SetEvenX; without SetEvenX x is 0, 1, 2 ... As AddData.
    BOOL AddEvenData(int nDataset, double y);
    /// Limits the history of a dataset to its newest `nMostPoints` points (0: no limit) and to the points within
    /// `dSpan` of the newest x (0: no limit). Older points are removed now and as points are appended. FALSE when
    /// there is no such dataset, and for negative numbers and NaN.
    BOOL SetHistory(int nDataset, int nMostPoints, double dSpan);
    /// Interrupts the line between two points whose x differ by more than `dLimit`, while x ascend; 0, the default:
    /// never. In units of x. FALSE when there is no such dataset, and for negative numbers and NaN.
    BOOL SetGapLimit(int nDataset, double dLimit);
    /// Interrupts the line between two points whose x differ by more than `dFactor` times the median distance of the
    /// dataset's points (found to within 1 %); 0, the default: never. With a limit too, the smaller one holds. Results
    /// as SetGapLimit.
    BOOL SetGapFactor(int nDataset, double dFactor);
    /// The x at which the x of this dataset count 0; default 0. See CChartAxis::SetOrigin. FALSE when there is no such
    /// dataset, and unless `dOrigin` is finite.
    BOOL SetDatasetOrigin(int nDataset, double dOrigin);
    /// Index of the point whose x is nearest to `x`, a value of the X axis; -1 when there is none.
    int FindData(int nDataset, double x) const;
    /// Figures of the points with `dFrom` <= x <= `dTo`, values of the X axis. Found without reading all points while x
    /// ascend. FALSE, with nothing written, when there is no such dataset or a bound is NaN.
    BOOL GetStatistics(int nDataset, double dFrom, double dTo, ChartStatistics& statistics) const;

    // ---- Data from other threads ----

    /// Queues a point, as by InsertData, from any thread. The chart's thread takes all queued points together when it
    /// next handles messages, repaints, and sends CDN_POSTED; a visible chart is painted before it takes further points.
    /// FALSE, with nothing queued, when the queue is full, memory runs out, Windows refuses the message to the chart's
    /// thread, or the chart has no window. Points that are still queued when the window is destroyed are dropped. The
    /// chart object must exist during the call.
    BOOL PostData(int nDataset, double x, double y);
    /// Queues `nCount` points. The result is the number of points queued, from the first one on: fewer than `nCount`
    /// when the queue is full; 0 as above and for null pointers.
    int PostData(int nDataset, const double* pX, const double* pY, int nCount);
    /// Most points that the queue of PostData holds; default 1,048,576, clamped to 1..134,217,728. Queued points stay.
    void SetPostCapacity(int nPoints);
    int GetPostedCount() const; ///< number of points in the queue of PostData

    // ---- Attributes of datasets. FALSE when there is no such dataset. None of them repaints. ----

    BOOL SetColor(int nDataset, COLORREF color); ///< colour of line and markers
    /// Width of the line in pixels, clamped to 0..100; 0 and 1 both draw one pixel.
    BOOL SetLineSize(int nDataset, int nSize);
    /// Whether a line joins the points; default TRUE. In a dataset with a line and without markers, a point
    /// between two gaps, and a line that falls on a single pixel, appear as a dot: as wide as the line, but
    /// at least 3 pixels.
    BOOL ShowLine(int nDataset, BOOL bShow);
    /// Marker at each point inside the plot; default none. A marker extends 3 pixels from its point to every
    /// side, a triangle only 2 pixels downwards.
    BOOL SetMarkerType(int nDataset, CDataset::MarkerType type);
    /// Whether the dataset is drawn and influences the scales; default TRUE.
    BOOL ShowDataset(int nDataset, BOOL bShow);
    BOOL IsDatasetShown(int nDataset) const; ///< FALSE also when there is no such dataset

    /// How a dataset is drawn.
    enum DrawStyle {
        StyleLine,     ///< straight lines from point to point; the default
        StyleStep,     ///< horizontally to the x of the next point, then vertically
        StyleImpulses, ///< a vertical line from the baseline to each point
        StyleBars,     ///< a bar from the baseline to each point
        StyleFill      ///< the area between line and baseline, or between two lines, and the line
    };
    /// How the line is drawn. ShowLine(FALSE) leaves the line out and keeps markers, bars and filled area.
    BOOL SetDrawStyle(int nDataset, DrawStyle style);
    /// Width of bars in units of x, centred on the point; 0, the default: a pixel. FALSE also for NaN, infinite and
    /// negative widths.
    BOOL SetBarWidth(int nDataset, double dWidth);
    /// The y at which bars, impulses and filled areas begin; default 0. On a logarithmic axis a baseline of 0 and below
    /// is the axis' lower end. FALSE also unless `dValue` is finite.
    BOOL SetBaseline(int nDataset, double dValue);
    /// Fills the area between the lines of two datasets instead of down to the baseline; -1, the default: the baseline.
    /// The other dataset's index follows when datasets are removed. FALSE when there is no such dataset, and for the
    /// dataset itself.
    BOOL SetFillTo(int nDataset, int nOther);
    /// Colour of bars and of filled areas; CLR_NONE, the default: the dataset's colour for bars, a lighter one for areas.
    BOOL SetFillColor(int nDataset, COLORREF color);
    /// @{
    /// Name for legend, readout and saved data; default empty. GetDatasetName is empty when there is no such dataset.
    BOOL SetDatasetName(int nDataset, CString name);
    CString GetDatasetName(int nDataset) const;
    /// @}
    /// Draws the dataset by the second Y axis; default FALSE.
    BOOL UseSecondYAxis(int nDataset, BOOL bSecond);

    // ---- Scales. None of them repaints. ----

    /// @{
    /// Lets CalcDatas find the scale from the points: a range with round ends that holds all finite points of
    /// the visible datasets, in steps of 1, 2, 2.5 or 5 times a power of ten. This is the default.
    void SetAutoXScale();
    void SetAutoYScale();
    /// @}
    /// @{
    /// Fixes a scale. Points outside the scale are clipped. Ticks stand at the multiples of `dStep`; if their
    /// labels need more room, a multiple of `dStep` is the step. If `dStep` is 0 or far too small for the
    /// range, CalcDatas finds a round step. CalcDatas widens a range that is too narrow for ticks. Logarithmic and time
    /// axes take no step; a logarithmic axis begins above 0. Ends what the user has zoomed or panned. FALSE, with nothing
    /// changed, unless `dMin` < `dMax`, `dStep` >= 0 and all three are finite.
    BOOL SetXScale(double dMin, double dMax, double dStep = 0);
    BOOL SetYScale(double dMin, double dMax, double dStep = 0);
    /// @}
    /// @{
    /// The scale at the last CalcDatas; 0 to 1 in steps of 0.2 before the first CalcDatas. The step of a logarithmic axis
    /// is 0, that of a time axis the shortest distance of two ticks in seconds.
    void GetXScale(double& dMin, double& dMax, double& dStep) const;
    void GetYScale(double& dMin, double& dMax, double& dStep) const;
    /// @}

    // ---- Properties. None of them repaints. ----

    /// @{
    /// Title above the plot, and captions of the two axes. All are empty by default; an empty text takes no
    /// room. A text that is too long for the window is shortened and ends in dots.
    void SetTitle(CString text);
    void SetXLabel(CString text);
    void SetYLabel(CString text);
    /// @}
    /// Whether lines cross the plot at the ticks of each scale; default both TRUE.
    void SetGrid(BOOL bGridX, BOOL bGridY);
    /// Font of all texts. `nSize` is in tenths of a point, clamped to 10..720. The title is a third larger
    /// and bold.
    void SetTextFont(int nSize, LPCTSTR pszFace);
    /// @{
    void SetBkColor(COLORREF color) { m_BkColor = color; } ///< Colour of the element that the name says.
    void SetTitleColor(COLORREF color) { m_TitleColor = color; }
    void SetXLabelColor(COLORREF color) { m_XLabelColor = color; }
    void SetYLabelColor(COLORREF color) { m_YLabelColor = color; }
    void SetXTickLabelColor(COLORREF color) { m_XTickLabelColor = color; }
    void SetYTickLabelColor(COLORREF color) { m_YTickLabelColor = color; }
    void SetAxisColor(COLORREF color) { m_AxisColor = color; }
    void SetGridColor(COLORREF color) { m_GridColor = color; }
    /// @}
    /// Colour of the grid line at 0 of a scale that has negative and positive values.
    void SetZeroLineColor(COLORREF color) { m_ZeroLineColor = color; }

    // ---- Parts. The chart owns them. ----

    /// @{
    /// The axes: X, Y on the left, Y on the right.
    CChartAxis& GetXAxis();
    CChartAxis& GetYAxis();
    CChartAxis& GetY2Axis();
    /// @}
    CChartLegend& GetLegend();         ///< list of the datasets
    CChartCursor& GetCursor();         ///< values under the pointer
    CChartReferences& GetReferences(); ///< lines and bands at values and times

    // ---- View ----

    /// What the user can do to the view; see SetViewFlags.
    enum ViewFlags : UINT {
        ViewFixed = 0x00, ///< nothing; the default. Mouse and keyboard messages go to Default().
        ViewZoomX = 0x01, ///< zoom the X axis
        ViewZoomY = 0x02, ///< zoom the Y axes
        ViewPanX = 0x04,  ///< pan along the X axis
        ViewPanY = 0x08,  ///< pan along the Y axes
        ViewKeys = 0x10,  ///< do by keys what the mouse is allowed to; the chart takes the focus at a click
        ViewMenu = 0x20,  ///< context menu with Copy, Save picture, Save data, Fit, Back
        ViewMenuPrint = 0x40, ///< the menu has Print too, see CDN_PRINT
        /// With ViewZoomX and ViewZoomY, the wheel over the plot and the keys + and - zoom the Y axes together with X.
        /// Without it they zoom X alone.
        ViewZoomBoth = 0x80,
        ViewTime = 0x35, ///< for values over time: X by mouse and keys, and the menu
        ViewAll = 0x3F   ///< everything but ViewMenuPrint and ViewZoomBoth
    };
    /// What the user can do to the view by mouse, touch pad and keyboard, flags of ViewFlags. The guide has a table of
    /// mouse and keys. The parent is told every change by CDN_VIEW. Without ViewFlags the cursors, the legend and movable
    /// reference lines still work.
    ///
    /// A drag that is going on is undone.
    void SetViewFlags(UINT nFlags);
    UINT GetViewFlags() const; ///< what the user can do to the view
    /// Ends what the user, SetRange or a linked chart have set: each axis shows the whole data, the visible data (Y axes
    /// in the mode VisibleData), or the scale of SetXScale and SetYScale. The present view enters the history of ViewBack.
    /// Repaints.
    void FitView();
    /// Goes back to the previous view. FALSE when there is none. Repaints.
    BOOL ViewBack();
    /// Shares the view of the X axis and the position of the cursor with `pOther` and all charts that are linked with
    /// `pOther`: a change in one changes all, repaints them, and sends their CDN_VIEW. Ranges are the same times and
    /// values, whatever the origins of the axes are; a chart that cannot show a range keeps its own. A chart leaves its
    /// charts when it is linked again, or when it or its window is destroyed; null only leaves. All linked charts belong
    /// to the same thread. The range is taken from `pOther`. Charts that show their whole data show the data of all of
    /// them; data that is added to one moves another at its next repaint. The plots begin and end at the same distances from
    /// the edges of the windows. FALSE for the chart itself, and when memory
    /// runs out.
    BOOL LinkView(CChartDraw* pOther);

    /// Invalidates the whole client area without erase. Does nothing without a window.
    void Redraw();
    /// Draws the chart on any DC, one logical unit to a pixel, with the chart's upper left corner at (0, 0).
    /// Calls PaintBkGnd, DrawTitle, DrawGrid, DrawDatasets, DrawAxes, DrawYScale and DrawXScale in this
    /// order. CalcDatas must have run before.
    void DrawChart(CDC& dc);

    // ---- Image export. CopyToClipboard, CopyToFile and SaveImage first call CalcDatas if data, properties
    // or the window's size have changed since the last CalcDatas. ----

    /// Puts the chart on the clipboard as an enhanced metafile of the chart's size with the description
    /// "Ruvex Trace". False, with the clipboard unchanged, without a window, when memory runs out, or when
    /// the metafile cannot be made. A clipboard that refuses the metafile does not change the result.
    virtual bool CopyToClipboard();
    /// Asks the user for a file name and calls CopyToFile(CString) with it. False when the user cancels, when
    /// memory runs out, or when that call returns false.
    virtual bool CopyToFile();
    /// Saves the chart as a bitmap file in the screen's colour depth and replaces an existing file. False
    /// without a window, for an empty client area, when memory runs out, or when the file cannot be created.
    /// Throws CFileException when writing fails; the file then stays incomplete. On a 32-bit screen the
    /// file's pixels begin 4 bytes (one pixel) after the place that the file's header gives. Hosts rely on
    /// this offset. Use SaveImage for a file that every program shows correctly.
    virtual bool CopyToFile(CString strFileName);
    /// Copies a bitmap's pixels to a new packed DIB block. The caller frees the block with GlobalFree.
    /// `bitmap` must not be selected into a DC; `pPal` may be null. A block of 32 bits per pixel has one
    /// unused colour table entry before its pixels. NULL when memory runs out, when GDI cannot convert the
    /// bitmap, and for BI_BITFIELDS.
    virtual HANDLE DDBToDIB(CBitmap& bitmap, DWORD dwCompression, CPalette* pPal);
    /// Size in bytes of a DIB's colour table. `lpbi` points to a BITMAPINFOHEADER or BITMAPCOREHEADER.
    virtual WORD WINAPI PaletteSize(LPSTR lpbi);
    /// Number of entries in a DIB's colour table: the header's biClrUsed, or if that is 0 or missing, the
    /// number that belongs to the colour depth. `lpbi` as in PaletteSize.
    virtual WORD WINAPI DIBNumColors(LPSTR lpbi);
    /// Writes a packed DIB block to `file` as a bitmap file. The caller keeps the block; its biSizeImage is
    /// updated. FALSE, with nothing written, when `hDib` is no valid block, has no BITMAPINFOHEADER, or is
    /// shorter than its header says. Throws CFileException when writing fails.
    virtual BOOL WINAPI SaveDIB(HDIB hDib, CFile& file);

    /// Saves the chart's picture. The extension of the name (.png, .bmp or .emf) selects the format. False
    /// without a window, for any other extension, when the client area is empty or a side is longer than
    /// 32,767 pixels, when memory runs out, or when the file cannot be written. After a failure an existing
    /// file is unchanged, and no incomplete file is left.
    bool SaveImage(CString strFileName);
    /// Asks the user for a file name and calls SaveData(CString, BOOL) for the range in view. As CopyToFile().
    bool SaveData();
    /// Saves the points of the visible datasets as a table of comma-separated values (RFC 4180: CR LF ends a line) in
    /// UTF-8. The first line has the title of the X axis ("x" if empty) and the names of the datasets ("y1", "y2" ... if
    /// empty). Then there is a line for each x: x as a value of the X axis, and a value for each dataset that has a point
    /// there. Points with the same x in one dataset have lines of their own; points whose x do not ascend keep their
    /// order. The x of a time axis is in ISO 8601 in UTC, with 0, 3, 6 or 9 decimals, as many as all times of the table
    /// need. Numbers have the digits that are needed to read the same double again. NaN is an empty field.
    ///
    /// With `bVisibleOnly` only the points whose x is in view; without a window and a fixed range, all. False when the
    /// file cannot be written or memory runs out. After a failure an existing file is unchanged, and no incomplete file
    /// is left.
    bool SaveData(CString strFileName, BOOL bVisibleOnly);

protected:
    /// Lays the chart out in the client rectangle and computes the scales. Every paint calls this function.
    /// Does nothing without a window. Throws when memory, a DC or a font is missing; rectangles and scales
    /// then stay unchanged.
    virtual void CalcDatas();

    // ---- Drawing. Each function draws one element and restores the DC's state. ----

    /// @{
    virtual void PaintBkGnd(CDC& dc); ///< Draws the element that the name says.
    virtual void DrawTitle(CDC& dc);
    virtual void DrawGrid(CDC& dc);
    /// @}
    /// Draws the axes' lines and captions.
    virtual void DrawAxes(CDC& dc);
    /// @{
    /// Draws the ticks and numbers of a scale. DrawXScale, the last member that is called, then draws what lies in front
    /// of everything: reference lines, legend and cursors. DrawGrid begins with the reference bands.
    virtual void DrawXScale(CDC& dc);
    virtual void DrawYScale(CDC& dc);
    /// @}
    /// Draws the lines and markers of all visible datasets.
    virtual void DrawDatasets(CDC& dc);

    void PreSubclassWindow() override; ///< prepares a dialog item

    /// @{
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct); ///< Handles its message or command.
    afx_msg LRESULT OnStyleChanging(WPARAM wParam, LPARAM lParam);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint point);
    afx_msg LRESULT OnMouseHWheel(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
    afx_msg void OnEditCopy();
    afx_msg void OnSavePicture();
    afx_msg void OnSaveData();
    afx_msg void OnFilePrint();
    afx_msg void OnFit();
    afx_msg void OnBack();
    afx_msg LRESULT OnPostedData(WPARAM wParam, LPARAM lParam);
    /// @}
    DECLARE_MESSAGE_MAP()

protected:
    CRect m_rectChart{0, 0, 0, 0}; ///< the client rectangle at the last CalcDatas, pixels
    CRect m_rectPlot{0, 0, 0, 0};  ///< the part of m_rectChart in which data is drawn, pixels

private:
    friend struct kavlix::ChartDrawState;
    friend class CChartAxis;
    friend class CChartCursor;
    friend class CChartLegend;
    friend class CChartReferences;
    struct Dataset;
    struct FixedScale {
        bool fixed = false; ///< false: CalcDatas finds the scale and ignores the other members
        double min = 0;
        double max = 0;
        double step = 0; ///< 0: CalcDatas finds a round step
    };

    bool IsDataset(int nDataset) const { return nDataset >= 0 && nDataset < GetDatasetCount(); }
    /// Calls `change` with the dataset and marks the layout as outdated. FALSE when there is no such dataset.
    BOOL ChangeDataset(int nDataset, const std::function<void(Dataset&)>& change);
    BOOL FixScale(FixedScale& scale, int axis, double dMin, double dMax, double dStep);
    bool PrepareExport();
    bool WriteBitmapFile(const CString& name);
    /// Makes the font of the title or of all other texts. `escapement` is in tenths of a degree.
    BOOL MakeTextFont(CFont& font, int escapement, bool title) const;
    void Calculate();
    void LayOut(CDC& dc);
    void FindTicks(CDC& dc, int axis, int length);
    /// Number of the axes that are shown; the second Y axis is the last one.
    int AxisCount() const;
    /// Pixels from the plot to the outer edge of an axis' labels; 0 when scales are not shown.
    int ScaleRoom(int axis) const;
    int CaptionGap() const; ///< pixels between a caption and the labels beside it
    void DrawCaptions(CDC& dc) const;
    /// If scales are shown, selects the axes' pen and the texts' font and calls `drawTicks`.
    void DrawScale(CDC& dc, COLORREF textColor, const std::function<void()>& drawTicks) const;
    void DrawYTicks(CDC& dc, int axis) const;
    kavlix::LabelRow XLabelRow(CDC& dc) const;
    void DrawPeriods(CDC& dc, int top) const;

    std::unique_ptr<kavlix::ChartDrawState> m_State; ///< parts and view; the size of the class stays
    std::unique_ptr<kavlix::Offscreen> m_Picture;    ///< WM_PAINT draws into this bitmap and keeps it
    std::vector<std::unique_ptr<Dataset>> m_Datasets;
    std::size_t m_NextColor = 0; ///< index of the colour that AddDataset takes next
    FixedScale m_XFixed;
    FixedScale m_YFixed;
    CString m_Title;
    CString m_XLabel;
    CString m_YLabel;
    BOOL m_GridX = TRUE;
    BOOL m_GridY = TRUE;
    int m_FontSize = 90; ///< tenths of a point
    CString m_FontFace = _T("Arial");
    COLORREF m_BkColor = RGB(255, 255, 255);
    COLORREF m_TitleColor = RGB(32, 32, 32);
    COLORREF m_XLabelColor = RGB(32, 32, 32);
    COLORREF m_YLabelColor = RGB(32, 32, 32);
    COLORREF m_XTickLabelColor = RGB(64, 64, 64);
    COLORREF m_YTickLabelColor = RGB(64, 64, 64);
    COLORREF m_AxisColor = RGB(96, 96, 96);
    COLORREF m_GridColor = RGB(228, 228, 228);
    COLORREF m_ZeroLineColor = RGB(176, 176, 176);

    // Results of the last CalcDatas.
    bool m_Changed =
        true; ///< data, or a property that the layout depends on, have changed since the last CalcDatas
    CSize m_CalcSize{0, 0}; ///< size of the client area at the last CalcDatas, pixels
    int m_FontPixels = 0;   ///< character height of the texts' font, pixels
    int m_TextHeight = 0;   ///< line height of the texts' font, pixels
    int m_TitleHeight = 0;  ///< line height of the title's font, pixels
    bool m_ShowTitle = false;
    bool m_ShowCaptions = false;
    bool m_ShowScales = false;
};

KAVLIX_CHECK_HOST(CChartDraw)
