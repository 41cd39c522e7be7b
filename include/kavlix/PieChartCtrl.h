// SPDX-License-Identifier: MIT
// CPieChartCtrl: a pie chart control, and CPieChartPiece, one piece of its data.
#pragma once

#include <afxcoll.h>
#include <afxwin.h>

#include <kavlix/Export.h>
#include <kavlix/GraphNotify.h>

#include <memory>
#include <vector>

namespace kavlix {
struct PieChartCtrlState;
struct PieLabel;
struct PieSector;
} // namespace kavlix

/// One piece of a pie chart. The chart that holds the piece deletes it.
class KAVLIX_API CPieChartPiece : public CObject {
public:
    CPieChartPiece();
    ~CPieChartPiece() override;

    COLORREF m_crColor = 0;     ///< fill colour of the sector
    COLORREF m_crText = 0;      ///< colour of the texts in the sector while the piece is not selected
    double m_dTotal = 0;        ///< the value of a full circle
    double m_dValue = 0;        ///< the sector spans value / total * 360 degrees
    CString m_strLabel;         ///< text beside or in the sector
    BOOL m_bSelected = FALSE;   ///< whether the piece is drawn in the colours of the selection
    CRect m_rcItem{0, 0, 0, 0}; ///< the label's box in the last paint, client pixels; empty without a label
};

/// A pie of coloured pieces with their labels and percentages. A click selects a piece and
/// notifies the parent.
///
/// Create the control with Create, or subclass a dialog item of class "PIE_CHART_CTRL". Use the control on
/// the thread that owns its window. Pieces can be added and read without a window.
///
/// Angles are degrees, 0 at twelve o'clock, growing clockwise on the screen. Positions are client pixels.
///
/// Sectors: the pieces follow one another clockwise in list order. A running sum adds up the spans of the
/// pieces. A sector begins at the highest sum before its piece and ends at the sum with its piece; nothing is
/// shown beyond 360 degrees. Pieces that sum to less than a full circle leave a gap. A negative piece has no
/// sector and lowers the sum; later pieces have no sector until the sum exceeds its highest value again. A
/// piece with total 0 and a positive value takes the rest of the circle. A piece whose span is not a number
/// hides itself and all pieces after it. A piece of exactly 0 has no sector, but usually a label where its
/// sector would be.
///
/// Texts: label and percentage stand inside the sector if they fit, in the piece's text colour. Otherwise
/// they stand beside the pie, and a leader line connects them with the sector; black or white replaces the
/// text colour if the text colour is not legible on the background. Beside the pie a label may be broken into
/// two lines or abbreviated. Labels that begin alike are abbreviated in the middle. If there is no room, the
/// texts of the smallest pieces are left out. A pie that is hardly higher than a line of text has no texts.
///
/// Selection: the sector has the selection's colour, and its texts are white. If any visible piece has nearly
/// the selection's colour itself, a line inside the sector marks the selection, unless the sector is too
/// narrow for the line.
///
/// A mirrored parent window (WS_EX_LAYOUTRTL) does not mirror the control: picture and mouse positions run from
/// left to right.
class KAVLIX_API CPieChartCtrl : public CWnd {
public:
    /// Makes the fonts and tries to register the window class "PIE_CHART_CTRL". Creates no window.
    CPieChartCtrl();
    ~CPieChartCtrl() override;
    CPieChartCtrl(const CPieChartCtrl&) = delete;
    CPieChartCtrl& operator=(const CPieChartCtrl&) = delete;

    /// Registers the window class "PIE_CHART_CTRL" for all modules of the process. The constructor does the
    /// same. Call this function before you create a dialog with an item of the class if no control object
    /// exists yet. FALSE when registration fails, also because the class is registered already.
    static BOOL RegisterWndClass(HINSTANCE hInstance);

    using CWnd::Create;
    /// Creates the control's window with a sunken edge and shows the arrow cursor. `rect` is in the parent's
    /// client pixels, `nID` is the child window's identifier. FALSE when the window cannot be created. Throws
    /// CResourceException* when the window class cannot be registered.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);

    // ---- Data ----

    /// Appends a piece that takes `dValue` / `dTotal` of the circle, and invalidates the window. Result 1, or
    /// 0 with nothing changed when memory runs out.
    int AddPiece(DWORD crColor, DWORD crText, double dTotal, double dValue, const CString& strLabel);
    /// Deletes all pieces and ends the wait mode. Does not repaint.
    void Reset();
    /// Writes the fill colour of piece `nIndex` to `crColor`. An index beyond the last piece gives the last
    /// piece's colour. A negative index, or a chart without pieces, gives 0.
    void GetItemColor(int nIndex, DWORD& crColor);

    // ---- View ----

    /// Stores the wait text and mode, and invalidates the window with erase. Mode 0 ends waiting, as Reset
    /// does. In any other mode the text stands in the middle of the window: in place of "No Data" if no
    /// piece has a sector, otherwise on a band in front of the chart. A text too large for the window is left
    /// out. Clicks keep working while the control waits.
    void Wait(LPCTSTR pszText, int nMode);
    /// Invalidates the window with erase.
    void Refresh();

    /// Saves the picture of the client area. The extension of the name (.png, .bmp or .emf) selects the
    /// format. False without a window, for any other extension, when the client area is empty or a side is
    /// longer than 32,767 pixels, when memory or GDI objects run out, or when the file cannot be written; an
    /// existing file of that name then stays unchanged.
    bool SaveImage(CString strFileName);

    // ---- Geometry ----

    /// Computes `m_rcPie` from the client area, as every paint does. Does nothing without a window.
    void RecalcRect();
    /// Writes the point at `dAngle` to `point`: on the rim if `nInner` is 0, otherwise on the circle of 60 %
    /// of the radius, where labels stand.
    void CountPoint(double dAngle, CPoint& point, int nInner);
    /// The direction from the pie's centre to `point`, 0 <= angle < 360; -1 for the centre itself.
    double GetAngleFromPoint(const CPoint& point);
    /// The first piece at which the running sum of spans reaches `dAngle`, or -1 if no piece does. The sum
    /// starts at 0 degrees whatever `m_nStartAngle` is. Clears the selection of every piece and invalidates
    /// the label of every piece.
    int GetPieceIndex(double dAngle);

protected:
    /// Lays out the chart and paints the whole client area into `dc`, with its corner at the DC's origin and
    /// one logical unit to a pixel. Screen, printer, metafile and memory DC get the same calls. Writes the
    /// label boxes to the pieces' `m_rcItem`. Restores the DC's state. Does nothing without a window.
    void DrawPie(CDC& dc);

    void PreSubclassWindow() override; ///< prepares a dialog item

    /// @{
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct); ///< Handles its message or command.
    afx_msg LRESULT OnStyleChanging(WPARAM wParam, LPARAM lParam);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    /// @}
    /// Selects the piece under `point` and sends NM_CLICK with an NMPIECHART to the parent window, if the
    /// control has one. A click on the centre, or on the line from the centre to twelve o'clock, changes
    /// nothing. A click on a part of the circle without a piece removes the selection.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

protected:
    int m_nWaitMode = 0;   ///< 0 while not waiting; see Wait
    CString m_strWait;     ///< text shown while waiting
    int m_nStartAngle = 0; ///< degrees at which a paint begins the first piece; the hit test begins at 0
    COLORREF m_crBack = RGB(255, 255, 255); ///< background
    COLORREF m_crOutline = RGB(0, 0, 0);    ///< outline of the sectors
    COLORREF m_crSelected = RGB(255, 0, 0); ///< fill of a selected sector
    CObArray m_arrPieces;                   ///< the CPieChartPiece objects, owned
    CFont m_fontLarge;                      ///< font of the wait text and "No Data"
    CFont m_fontSmall;                      ///< font of labels and percentages
    CRect m_rcPie{0, 0, 0, 0}; ///< the pie's square at the last paint, client pixels; empty before

private:
    CPieChartPiece& Piece(INT_PTR nIndex) const;
    void InvalidatePiece(const CPieChartPiece& piece);
    bool HasSelection() const;
    bool NotifyClick(UINT nFlags, int nIndex);
    std::vector<kavlix::PieSector> Sectors() const;
    void DrawSectors(CDC& dc, const std::vector<kavlix::PieSector>& sectors);
    void DrawSelection(CDC& dc, const std::vector<kavlix::PieSector>& sectors);
    void DrawOutline(CDC& dc, const std::vector<kavlix::PieSector>& sectors);
    void DrawLabels(CDC& dc, const CRect& client, const std::vector<kavlix::PieSector>& sectors,
                    const CRect& band);
    void DrawLabel(CDC& dc, const CPieChartPiece& piece, const kavlix::PieLabel& label,
                   const CString& strText, int nBreak);
    CRect PlaceMessage(CDC& dc, const CRect& client, const CString& text);
    void DrawMessage(CDC& dc, const CRect& client, const CString& text, const CRect& band, bool bBand);

    std::unique_ptr<kavlix::PieChartCtrlState>
        m_State; ///< members of later versions; the size of the class stays
};

KAVLIX_CHECK_HOST(CPieChartPiece)
KAVLIX_CHECK_HOST(CPieChartCtrl)
