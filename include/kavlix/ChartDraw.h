#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
#include <vector>

#include <kavlix/Dataset.h>
#include <kavlix/Export.h>

namespace kavlix {
class ChartSeries;
class LinearMap;
class Offscreen;
class RoundScale;
} // namespace kavlix

/// A packed device-independent bitmap in a block of global memory: header, colour table, pixel bits.
typedef HANDLE HDIB;

/// A chart window: any number of datasets of (x, y) points, drawn as lines, markers or both, with title,
/// grid, axes and their captions. Its picture can be copied to the clipboard and saved to a file.
///
/// Units are pixels, y growing downwards. Colours are COLORREF. Values are doubles; every conversion to a
/// position truncates toward zero and saturates. Points need not be in order of x. A point with a NaN is a
/// gap in the line; one with an infinite value lies far outside. Only finite points count for the scales.
///
/// Data and properties can be set without a window and do not repaint: call Redraw. Use it on the thread that
/// owns its window.
class KAVLIX_API CChartDraw : public CWnd {
public:
    /// An empty chart without a window.
    CChartDraw();
    ~CChartDraw() override;
    CChartDraw(const CChartDraw&) = delete;
    CChartDraw& operator=(const CChartDraw&) = delete;

    using CWnd::Create;
    /// Creates the window, as a child when `pParentWnd` is given with WS_CHILD. FALSE when that fails. Throws
    /// CResourceException when a window class cannot be registered.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // ---- Data. An index outside its range makes an operation fail and change nothing. No repaint. ----

    /// Appends an empty dataset: a line one pixel wide without markers, in the next of ten colours. Its
    /// index, counted from 0; -1 after a message box when memory ran out.
    int AddDataset();
    int GetDatasetCount() const;
    /// Removes a dataset; those behind it move up by one.
    BOOL RemoveDataset(int nDataset);
    void RemoveAllDatasets();
    /// Appends a point. Result 0 when there is no such dataset or, after a message box, when memory ran out.
    BOOL AddData(int nDataset, double x, double y);
    /// Replaces all points of a dataset by `nCount` others, copied from `pX` and `pY`. With `pX` null X is
    /// the index. Result 0 when there is no such dataset, `nCount` is negative, `pY` is null though there are
    /// points or, after a message box, when memory ran out.
    BOOL SetData(int nDataset, const double* pX, const double* pY, int nCount);
    /// Removes all points of a dataset; its colours and switches stay. FALSE when there is no such dataset.
    /// As all that only removes it needs no memory.
    BOOL ResetData(int nDataset);
    /// Number of points; -1 when there is no such dataset.
    int GetDatasetSize(int nDataset) const;
    /// A point. Result 0, and neither output written, when there is none of that index.
    BOOL GetData(int nDataset, int nIndex, double& x, double& y) const;

    // ---- Datasets' attributes. Result 0 when there is no such dataset. No repaint. ----

    BOOL SetColor(int nDataset, COLORREF color);
    /// Width of the line in pixels, clamped to 0..100; 0 and 1 are one pixel.
    BOOL SetLineSize(int nDataset, int nSize);
    /// Whether the points are joined by a line; default on. Where there are no markers,
    /// points without neighbours to be joined to, and lines that fall on one pixel, are shown as dots of the
    /// line's width, at least 3 pixels.
    BOOL ShowLine(int nDataset, BOOL bShow);
    /// Marker at each point within the scales, 3 pixels to every side; default none.
    BOOL SetMarkerType(int nDataset, CDataset::MarkerType type);
    /// Whether the dataset is drawn, and counts for the scales; default on.
    BOOL ShowDataset(int nDataset, BOOL bShow);

    // ---- Scales. No repaint. ----

    /// Finds the scale from the points: round numbers around all of them, in steps of 1, 2, 2.5 or 5 times a
    /// power of ten. The default.
    void SetAutoXScale();
    void SetAutoYScale();
    /// Fixes a scale. Points outside are clipped. Ticks are the multiples of `dStep`, thinned where their
    /// labels find no room; 0 has a round step found. Result 0, and nothing changed, unless `dMin` lies below
    /// `dMax`, all are finite and `dStep` is not negative.
    BOOL SetXScale(double dMin, double dMax, double dStep = 0);
    BOOL SetYScale(double dMin, double dMax, double dStep = 0);
    /// The scale that CalcDatas found last; 0 to 1 in steps of 0.2 at first.
    void GetXScale(double& dMin, double& dMax, double& dStep) const;
    void GetYScale(double& dMin, double& dMax, double& dStep) const;

    // ---- Properties. They store what is given. No repaint. ----

    /// Texts; empty ones take no room. At first all are empty. What is too long for the window is shortened,
    /// with dots at its end.
    void SetTitle(CString text);
    void SetXLabel(CString text);
    void SetYLabel(CString text);
    /// Lines through the plot at the ticks; default both on.
    void SetGrid(BOOL bGridX, BOOL bGridY);
    /// Font of all texts, in tenths of a point; default 90 and "Arial". The title is a third larger and bold.
    /// Sizes are clamped to 10..720.
    void SetTextFont(int nSize, const char* pszFace);
    void SetBkColor(COLORREF color) { m_BkColor = color; }
    void SetTitleColor(COLORREF color) { m_TitleColor = color; }
    void SetXLabelColor(COLORREF color) { m_XLabelColor = color; }
    void SetYLabelColor(COLORREF color) { m_YLabelColor = color; }
    void SetXTickLabelColor(COLORREF color) { m_XTickLabelColor = color; }
    void SetYTickLabelColor(COLORREF color) { m_YTickLabelColor = color; }
    void SetAxisColor(COLORREF color) { m_AxisColor = color; }
    void SetGridColor(COLORREF color) { m_GridColor = color; }
    /// The grid lines at 0, where a scale goes on to both sides of it.
    void SetZeroLineColor(COLORREF color) { m_ZeroLineColor = color; }

    // ---- View ----

    /// Has the whole window repainted, without erasing it first. Nothing without a window.
    void Redraw();
    /// Runs the drawing sequence on any DC, in its logical units, the chart's corner at (0, 0): PaintBkGnd,
    /// DrawTitle, DrawGrid, DrawDatasets, DrawAxes, DrawYScale, DrawXScale. CalcDatas has run before.
    void DrawChart(CDC& dc);

    // ---- Image export. Where data, properties or the window's size changed after CalcDatas, it runs first.

    /// Puts the chart on the clipboard as an enhanced metafile with the description "Ruvex Trace", framed by
    /// the chart's size. False without a window, when memory runs out or when the metafile cannot be made;
    /// the clipboard is untouched then. Whether the clipboard took it is not told.
    virtual bool CopyToClipboard();
    /// Asks for a name and calls CopyToFile(CString) with it. False when the user cancels or memory runs out.
    virtual bool CopyToFile();
    /// Saves the chart as a bitmap file in the colours of the screen, over an existing file. False without a
    /// window or an area, when memory runs out or when the file cannot be made. Throws CFileException when it
    /// cannot be written; what was written until then stays. On a 32-bit screen the pixels are 4 bytes off:
    /// use SaveImage for a picture that is right in every program.
    virtual bool CopyToFile(CString strFileName);
    /// A packed DIB block with a bitmap's pixels, for the caller to free with GlobalFree; the bitmap must be
    /// selected in no DC. A block of 32 bits per pixel has one unused table entry before its pixels. `pPal`
    /// may be null. NULL when memory runs out, GDI does not know the format, or `dwCompression` is
    /// BI_BITFIELDS.
    virtual HANDLE DDBToDIB(CBitmap& bitmap, DWORD dwCompression, CPalette* pPal);
    /// Bytes of the colour table of the DIB whose header (BITMAPINFOHEADER or BITMAPCOREHEADER) is given.
    virtual WORD WINAPI PaletteSize(LPSTR lpbi);
    /// Colour table entries of that DIB: what the header tells, else what its depth has.
    virtual WORD WINAPI DIBNumColors(LPSTR lpbi);
    /// Writes a block as a bitmap file. FALSE, and nothing written, when it is NULL, no block, shorter than
    /// its header tells, or has no BITMAPINFOHEADER. The caller keeps the block, whose biSizeImage is
    /// rewritten. Throws CFileException when the file cannot be written.
    virtual BOOL WINAPI SaveDIB(HDIB hDib, CFile& file);

    /// Saves the chart as PNG, BMP or EMF, as the name's extension says. False for another extension, without
    /// a window or an area, when memory runs out or when the file cannot be written; an existing file is as
    /// before then, and nothing half-written is left.
    bool SaveImage(CString strFileName);

protected:
    /// Stores the chart rectangle, lays the chart out in it and computes the scales. OnPaint calls it each
    /// time. Without a window nothing changes. Rectangles and scales stay as they are where it throws because
    /// memory, a DC or a font cannot be had.
    virtual void CalcDatas();

    // ---- Drawing: each draws its own element, and leaves the DC as it was. ----

    /// The background.
    virtual void PaintBkGnd(CDC& dc);
    virtual void DrawTitle(CDC& dc);
    /// The lines at the ticks.
    virtual void DrawGrid(CDC& dc);
    /// The axes' lines and captions.
    virtual void DrawAxes(CDC& dc);
    /// Ticks and numbers.
    virtual void DrawXScale(CDC& dc);
    virtual void DrawYScale(CDC& dc);
    /// Lines and markers.
    virtual void DrawDatasets(CDC& dc);

    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

protected:
    CRect m_rectChart; ///< the client rectangle that CalcDatas stored
    CRect m_rectPlot;  ///< the data's part of it; right and bottom lie outside

private:
    struct Dataset;
    struct FixedScale {
        bool fixed;
        double min;
        double max;
        double step;
    };

    bool IsDataset(int nDataset) const { return nDataset >= 0 && nDataset < GetDatasetCount(); }
    /// Calls `change` with a dataset that exists; what it changes is seen by the next CalcDatas.
    BOOL ChangeDataset(int nDataset, const std::function<void(Dataset&)>& change);
    BOOL FixScale(FixedScale& scale, double dMin, double dMax, double dStep);
    bool PrepareExport();
    bool WriteBitmapFile(const CString& name);
    /// Makes the font of the texts, or the title's; `escapement` in tenths of a degree.
    BOOL MakeTextFont(CFont& font, int escapement, bool title) const;
    kavlix::RoundScale FindScale(bool x, int mostSteps) const;
    void Calculate();
    void LayOut(CDC& dc);
    void FitXScale(CDC& dc, int width);
    kavlix::LinearMap XMap() const;
    kavlix::LinearMap YMap() const;
    /// Has the ticks and labels of a scale drawn with the axes' pen and the texts' font, where scales are
    /// shown.
    void DrawScale(CDC& dc, COLORREF textColor, UINT align, const std::function<void()>& drawTicks) const;
    void DrawLine(CDC& dc, const Dataset& dataset) const;
    void DrawMarkers(CDC& dc, const Dataset& dataset) const;

    std::unique_ptr<kavlix::Offscreen> m_Picture; ///< what WM_PAINT composes in, kept from paint to paint
    std::vector<std::unique_ptr<Dataset>> m_Datasets;
    int m_DatasetsMade = 0; ///< picks the next colour
    FixedScale m_XFixed = {};
    FixedScale m_YFixed = {};
    std::unique_ptr<kavlix::RoundScale> m_XScale;
    std::unique_ptr<kavlix::RoundScale> m_YScale;
    CString m_Title;
    CString m_XLabel;
    CString m_YLabel;
    BOOL m_GridX = TRUE;
    BOOL m_GridY = TRUE;
    int m_FontSize;
    CString m_FontFace;
    COLORREF m_BkColor;
    COLORREF m_TitleColor;
    COLORREF m_XLabelColor;
    COLORREF m_YLabelColor;
    COLORREF m_XTickLabelColor;
    COLORREF m_YTickLabelColor;
    COLORREF m_AxisColor;
    COLORREF m_GridColor;
    COLORREF m_ZeroLineColor;

    // What CalcDatas found.
    bool m_Changed = true; ///< since CalcDatas ran
    CSize m_CalcSize;      ///< of the client area that it saw
    int m_FontPixels = 0;  ///< height of the texts' font as GDI asks for it
    int m_TextHeight = 0;
    int m_TitleHeight = 0;
    bool m_ShowTitle = false;
    bool m_ShowCaptions = false;
    bool m_ShowScales = false;
};
