// SPDX-License-Identifier: MIT
// CChartReferences: lines and bands at values or times of a chart window.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <memory>

class CChartDraw;
namespace kavlix {
struct ChartDrawState;
struct ChartReferencesState;
} // namespace kavlix

/// The reference lines and bands of a CChartDraw, see CChartDraw::GetReferences: limits at values, events and
/// periods at times. Bands are drawn behind the data, lines in front of it. The chart owns them. Setters do not
/// repaint. Members that take an identifier return FALSE, with nothing changed, when there is no such line or band.
class KAVLIX_API CChartReferences {
public:
    /// The axis at whose values a line or band stands.
    enum Axis {
        X, ///< the X axis
        Y, ///< the Y axis on the left
        Y2 ///< the Y axis on the right
    };

    /// Adds a line at a value, with a text beside it. The result is its identifier, which no other line or band of
    /// the chart gets later; -1 when `dValue` is not finite, and when memory runs out; a message box then says so.
    int AddLine(Axis axis, double dValue, CString text, COLORREF color);
    /// Adds a band between two values, in either order. As AddLine. An infinite value reaches to the plot's edge.
    int AddBand(Axis axis, double dFrom, double dTo, CString text, COLORREF color);
    BOOL Remove(int nId); ///< removes a line or band
    void RemoveAll();     ///< removes all lines and bands
    int GetCount() const; ///< number of lines and bands
    /// The identifier of a line or band, 0 to GetCount() - 1 in the order of adding; -1 for another index.
    int GetId(int nIndex) const;
    /// @{
    /// The values: of a line the same value twice. SetValues fails also for values that the line or band could not
    /// be added with.
    BOOL SetValues(int nId, double dFrom, double dTo);
    BOOL GetValues(int nId, double& dFrom, double& dTo) const;
    /// @}
    BOOL SetText(int nId, CString text);    ///< text beside the line, or in the band; default as added
    BOOL SetColor(int nId, COLORREF color); ///< colour; default as added
    BOOL SetLineSize(int nId, int nSize);   ///< width of a line in pixels, clamped to 1..20; default 1
    BOOL SetDashed(int nId, BOOL bDashed);  ///< whether a line is dashed; default FALSE
    /// Whether the user can move it by the mouse, a band as a whole or by one of its edges; default FALSE. The
    /// parent is told by CDN_REFERENCE. It may set other values meanwhile, for instance rounded ones.
    BOOL SetMovable(int nId, BOOL bMovable);
    BOOL Show(int nId, BOOL bShow); ///< whether it is drawn; default TRUE
    /// The line or band that the user can move at a position in client pixels: its identifier, or -1. A line is
    /// hit within 4 pixels, and comes before a band.
    int HitTest(CPoint point) const;

    CChartReferences(const CChartReferences&) = delete;
    CChartReferences& operator=(const CChartReferences&) = delete;

private:
    friend struct kavlix::ChartDrawState;
    friend class CChartDraw;
    explicit CChartReferences(CChartDraw& chart);
    ~CChartReferences();

    std::unique_ptr<kavlix::ChartReferencesState> m_State;
};

KAVLIX_CHECK_HOST(CChartReferences)
