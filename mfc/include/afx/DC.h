// SPDX-License-Identifier: MIT
// CDC, a device context.
#pragma once

#include "afx/Export.h"
#include "afx/GdiObject.h"
#include <afx.h>

class CWnd;

/// Deletes the temporary DC, GDI object and menu wrappers of the calling thread. The message loop calls the
/// function while no message waits and no message handler runs.
void MFC_API AfxDeleteTempGdiMaps();

/// A device context with two handles. Output goes to m_hDC, and m_hAttribDC answers questions; usually both
/// are the same handle. Most setters change both DCs and return the former value of m_hAttribDC, or of m_hDC
/// if m_hAttribDC is NULL; SetBrushOrg(), SetBoundsRect(), SetMiterLimit(), SelectPalette() and the selection
/// of a bitmap change the output DC only. Coordinates are units of the DC's mapping mode (logical units)
/// unless the comment names another unit. On failure, drawing members return FALSE or GDI's error value; they
/// do not throw.
class MFC_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)

public:
    HDC m_hDC = nullptr;       ///< receives the output
    HDC m_hAttribDC = nullptr; ///< answers questions about attributes; usually equal to m_hDC

    CDC() = default;
    /// Deletes the output DC that the object owns.
    ~CDC() override;

    /// The attached object of `hDC`, else a temporary one. NULL for a NULL handle.
    static CDC* PASCAL FromHandle(HDC hDC);
    /// Deletes the temporary objects of the calling thread. The handles stay valid.
    static void PASCAL DeleteTempMap();
    operator HDC() const { return m_hDC; }
    /// m_hDC. The call is allowed on a NULL object and then returns NULL.
    HDC GetSafeHdc() const;
    /// The window of the DC; NULL for memory, printer and metafile DCs.
    CWnd* GetWindow() const;
    /// Sets both handles to `hDC`; the object owns it from now on. FALSE for a NULL handle. Throws
    /// CMemoryException* if memory runs out; the caller then keeps the DC.
    BOOL Attach(HDC hDC);
    /// Clears both handles. The caller deletes or releases the result.
    HDC Detach();
    virtual void SetAttribDC(HDC hDC);
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC();
    virtual void ReleaseOutputDC();
    /// Whether the DC belongs to a printer.
    BOOL IsPrinting() const;

    // Creation. The functions return FALSE on failure.
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    /// A memory DC. A NULL `pDC` stands for the screen.
    BOOL CreateCompatibleDC(CDC* pDC);
    /// Deletes a DC that a Create function made. Do not call the function for a CPaintDC, CClientDC or
    /// CWindowDC: their destructors release the DC.
    BOOL DeleteDC();
    BOOL ResetDC(const DEVMODE* lpDevMode);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    /// Saves the state of both DCs. Returns the argument for RestoreDC(), 0 on failure.
    virtual int SaveDC();
    /// `nSavedDC` is the result of SaveDC(), or a negative number that counts back from the latest save.
    virtual BOOL RestoreDC(int nSavedDC);

    // Selected objects. SelectObject() returns the former object, perhaps a temporary one; NULL on failure.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    /// For memory DCs. A bitmap can be selected into one DC at a time.
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// Like SelectClipRgn(): returns the kind of the clip region.
    int SelectObject(CRgn* pRgn);
    /// For an object of unknown class. For a region the result is always NULL, because GDI does not return
    /// the former region.
    CGdiObject* SelectObject(CGdiObject* pObject);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CPalette* GetCurrentPalette() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    void UpdateColors() { ::UpdateColors(m_hDC); }
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }
    CPoint GetBrushOrg() const;
    /// The origin is in device units. Returns the former origin.
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData);
    /// A brush that sets every second pixel. The library owns the brush.
    static CBrush* PASCAL GetHalftoneBrush();

    // Drawing attributes. Setters return the former value; SetColorAdjustment() returns FALSE on failure.
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF crColor);
    int SetBkMode(int nBkMode);
    int SetPolyFillMode(int nPolyFillMode);
    int SetROP2(int nDrawMode);
    int SetStretchBltMode(int nStretchMode);
    virtual COLORREF SetTextColor(COLORREF crColor);
    int SetArcDirection(int nArcDirection);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const {
        return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
    }
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust);

    // Mapping. Setters return the former value.
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    CPoint GetViewportOrg() const;
    CSize GetViewportExt() const;
    CPoint GetWindowOrg() const;
    CSize GetWindowExt() const;
    virtual int SetMapMode(int nMapMode);
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    /// Extents have an effect in the modes MM_ISOTROPIC and MM_ANISOTROPIC only.
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    /// Convert between logical and device units. The origins shift points and rectangles. Sizes are scaled
    /// and rounded; they keep their sign.
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;
    /// Convert between device or logical units and units of 0.01 mm. In the metric, English and twips modes
    /// the mode defines the length of an inch; in the other modes GetDeviceCaps() does.
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Clipping. Regions are in device units, and the DC copies them. Results of type int are ERROR,
    // NULLREGION, SIMPLEREGION or COMPLEXREGION.
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }
    /// A NULL region removes the clip.
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    /// The offsets are in logical units.
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags);
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags) {
        return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
    }

    // Lines.
    CPoint GetCurrentPosition() const;
    /// Moves the current position and returns the former one.
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                   ptEnd.y);
    }
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                     ptEnd.y);
    }
    /// Angles are in degrees, counter-clockwise: the start angle from the direction to the right, the sweep
    /// angle from the start angle.
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);

    // Shapes and fills.
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    /// Fills the rectangle with one colour, without a brush. The call changes the background colour to `clr`.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// Draws a frame one unit wide: `clrTopLeft` at left and top, `clrBottomRight` at right and bottom.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) {
        return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point) {
        return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                     ptEnd.y);
    }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                   ptEnd.y);
    }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount) {
        return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
    }
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return ::DrawIcon(m_hDC, point.x, point.y, hIcon); }
    /// Draw a bitmap, an icon or a text in a state such as disabled (DSS_ flags).
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                   CBrush* pBrush);

    // Bitmaps and pixels.
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                 int xMask, int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                CBitmap& maskBitmap, int xMask, int yMask);
    /// CLR_INVALID for a pixel outside the clip.
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
    BOOL FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }
    /// `lpRectUpdate` and `pRgnUpdate` receive the uncovered area. Both may be NULL.
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);

    // Text.
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths) {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    /// Returns width and height of the text.
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                        int nTabOrigin) {
        return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
    }
    /// Returns the height of the text. `nCount` -1 stands for a text with a terminating zero.
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                            int nCount, int x, int y, int nWidth, int nHeight);
    /// The attribute DC measures the text; the functions with "Output" ask the output DC. (0, 0) on failure.
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent(str, str.GetLength()); }
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
        return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
    }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const {
        return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
    }
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hDC, lpMetrics); }
    /// Sets the extra space of texts drawn later: GDI distributes `nBreakExtra` units over `nBreakCount`
    /// break characters (usually blanks). Returns 1 on success.
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra);
    DWORD SetMapperFlags(DWORD dwFlag);
    CSize GetAspectRatioFilter() const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth(m_hDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetABCCharWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
        return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
    }
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const {
        return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
    }
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const {
        return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
    }
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const {
        return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
    }

    // Printing. Results above 0 mean success; negative results are SP_ errors.
    int StartDoc(LPDOCINFO lpDocInfo) { return ::StartDoc(m_hDC, lpDocInfo); }
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int)) { return ::SetAbortProc(m_hDC, lpfn); }
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
        return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
    }
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData) {
        return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
    }

    // Metafiles.
    BOOL PlayMetaFile(HMETAFILE hMF) { return ::PlayMetaFile(m_hDC, hMF); }
    /// Stretches the picture to `lpBounds`, in logical units.
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds) {
        return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
    }
    /// For enhanced metafile DCs: records `nDataSize` bytes that playing ignores.
    BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData) {
        return ::GdiComment(m_hDC, nDataSize, pCommentData);
    }

    // Paths.
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    BOOL GetMiterLimit(PFLOAT fMiterLimit) const { return ::GetMiterLimit(m_hDC, fMiterLimit); }
    BOOL SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr); }
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
        return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
    }
    /// `nMode` is RGN_AND, RGN_COPY or another RGN_ mode. The call discards the path.
    BOOL SelectClipPath(int nMode);
};

#include "afx/WindowDC.h"
