#pragma once

#include <afxcoll.h>
#include <afxwin.h>

#include <kavlix/Export.h>
#include <kavlix/GraphNotify.h>

#include <vector>

namespace kavlix {
struct PieLabel;
struct PieSector;
} // namespace kavlix

/// One piece of a pie chart. It belongs to its chart.
class KAVLIX_API CPieChartPiece : public CObject {
public:
    CPieChartPiece();
    ~CPieChartPiece() override;

    COLORREF m_crColor; ///< fill colour of the sector
    COLORREF m_crText;  ///< colour of the texts in the sector while the piece is not selected
    double m_dTotal;    ///< the whole of which the piece is a part
    double m_dValue;    ///< the sector spans value / total * 360 degrees
    CString m_strLabel;
    BOOL m_bSelected; ///< drawn in the selection's colours
    CRect m_rcItem;   ///< where the last paint put the label, client pixels; empty when it shows none
};

/// A pie of coloured pieces with their labels and percentages. A click selects a piece and tells the parent.
///
/// Create it with Create, or subclass a dialog item of class "PIE_CHART_CTRL". Use it on the thread that owns
/// its window. Everything but painting and clicking also works without a window.
///
/// Angles are degrees, 0 at twelve o'clock, growing clockwise on the screen. Positions are client pixels.
///
/// What is shown where: the pieces follow one another clockwise in list order. A piece takes the part of the
/// circle that its running sum of spans reaches beyond all before it, and no more than the circle: pieces of
/// less than the whole leave a gap, what exceeds the whole is not shown. A negative piece takes no room, and
/// those after it begin where the sum gets beyond the highest before. A piece with total 0 and a positive
/// value takes all that is left; from one whose span is no number on, nothing is shown. A piece of exactly 0
/// has no sector, but a label at its place.
///
/// Label and percentage stand inside the sector where they fit, in the piece's text colour; else beside the
/// pie with a line to the sector, in that colour or, where it would not be legible on the background, in
/// black or white. Beside the pie a text may be broken in two, abbreviated or, if there is no room, left out,
/// the smallest pieces first; a pie hardly higher than a line has no texts. Labels that begin alike are
/// abbreviated in the middle. The texts of a selected piece are white on the selection's colour. Where a
/// piece has nearly that colour itself, a light line within the selected sector tells the selection too,
/// unless the sector is too narrow for one.
class KAVLIX_API CPieChartCtrl : public CWnd {
public:
    /// Sets all defaults, makes the fonts and tries to register the window class "PIE_CHART_CTRL"; creates no
    /// window.
    CPieChartCtrl();
    ~CPieChartCtrl() override;
    CPieChartCtrl(const CPieChartCtrl&) = delete;
    CPieChartCtrl& operator=(const CPieChartCtrl&) = delete;

    /// Registers the window class "PIE_CHART_CTRL" for all modules of the process. Call it before dialogs
    /// that hold an item of the class, unless a control object exists by then. FALSE when it cannot be
    /// registered, also because it is already.
    static BOOL RegisterWndClass(HINSTANCE hInstance);

    using CWnd::Create;
    /// Creates the control's window with a sunken edge: `rect` in the parent's client pixels, `nID` the
    /// child's identifier. The cursor becomes the arrow. FALSE when the window cannot be created; throws
    /// CResourceException when its class cannot be registered.
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID);

    // ---- Data ----

    /// Appends a piece of `dValue` / `dTotal` of the circle and invalidates the window. Result 1; 0, nothing
    /// changed, when memory runs out.
    int AddPiece(DWORD crColor, DWORD crText, double dTotal, double dValue, const CString& strLabel);
    /// Deletes all pieces and ends the wait mode. No repaint.
    void Reset();
    /// Fill colour of piece `nIndex`, of the last one for an index beyond. 0 for a negative index or without
    /// pieces.
    void GetItemColor(int nIndex, DWORD& crColor);

    // ---- View ----

    /// Stores the wait text and mode and invalidates the window with erase. In any mode but 0 the text stands
    /// in the middle of the window: in place of "No Data" while there are no pieces, else on a band across
    /// the chart, which stays visible and can be clicked beside it. 0 ends waiting, as Reset does.
    void Wait(const char* pszText, int nMode);
    /// Invalidates the window with erase.
    void Refresh();

    /// Saves the picture of the client area as PNG, BMP or EMF, as the extension of the name says (.png,
    /// .bmp, .emf). False without a window, for any other extension, or when the file cannot be written; a
    /// file of that name is then as it was before.
    bool SaveImage(CString strFileName);

    // ---- Geometry ----

    /// Computes the pie's square from the client area, as every paint does. Without a window it stays as it
    /// is.
    void RecalcRect();
    /// The point at `dAngle` on the rim, or with `nInner` on the circle of 60 % of the radius on which labels
    /// stand.
    void CountPoint(double dAngle, CPoint& point, int nInner);
    /// The angle at which `point` is seen from the pie's centre, 0 <= angle < 360; -1 for the centre itself.
    double GetAngleFromPoint(const CPoint& point);
    /// The first piece whose running sum of spans, counted from 0 whatever the start angle, reaches `dAngle`;
    /// -1 when there is none. Clears the selection of every piece and invalidates the label of every piece.
    int GetPieceIndex(double dAngle);

protected:
    /// Lays out and paints the whole client area into `dc`, one logical unit to a pixel, with its origin at
    /// the DC's: screen, printer, metafile and memory DC get the same calls. Records where the labels are.
    /// The DC's state and clip are kept. Does nothing without a window.
    void DrawPie(CDC& dc);

    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    /// Selects the piece under `point` and sends NM_CLICK with an NMPIECHART to the parent, if there is one.
    /// The centre, the line from it to twelve o'clock, and a pie too small to be drawn select nothing.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

protected:
    int m_nWaitMode; ///< 0 while not waiting; see Wait
    CString m_strWait;
    int m_nStartAngle;     ///< where the first piece is drawn, degrees; the click counts from 0 all the same
    COLORREF m_crBack;     ///< default 0x00FFFFFF
    COLORREF m_crOutline;  ///< default 0x00000000
    COLORREF m_crSelected; ///< default 0x000000FF
    CObArray m_arrPieces;  ///< the CPieChartPiece objects, owned
    CFont m_fontLarge;     ///< messages
    CFont m_fontSmall;     ///< labels and percentages
    CRect m_rcPie;         ///< square of the pie, written by every paint; empty before the first

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
};
