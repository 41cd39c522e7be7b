// SPDX-License-Identifier: MIT
// CChartAxis: one axis of a chart window, with its scale and its labels.
#pragma once

#include <afxwin.h>

#include <kavlix/Export.h>

#include <functional>
#include <memory>

class CChartDraw;
namespace kavlix {
struct ChartAxisState;
struct ChartDrawState;
} // namespace kavlix

/// One of the three axes of a CChartDraw: see CChartDraw::GetXAxis, GetYAxis and GetY2Axis. The chart owns its
/// axes. Setters do not repaint: call CChartDraw::Redraw.
///
/// A time axis shows seconds since 1970-01-01 00:00 UTC. Near today a double resolves 0.24 microseconds. For
/// finer times set an origin: values of the axis then count from the origin. The narrowest range is 2e-12 of its larger
/// end, on a logarithmic axis 1e-9 decades, and on a time axis 10 ns but at least 16 steps of a double.
class KAVLIX_API CChartAxis {
public:
    /// What the axis shows.
    enum Kind {
        Linear,      ///< numbers, with ticks at multiples of 1, 2, 2.5 or 5 times a power of ten
        Logarithmic, ///< positive numbers, with ticks at powers of ten; other values are not drawn but counted
        Time         ///< date and time
    };
    /// Where the range of the axis comes from.
    enum RangeMode {
        WholeData,   ///< all points of the visible datasets; the default
        VisibleData, ///< Y axes: the points whose x is in view. The X axis takes it for WholeData.
        Fixed,       ///< the range that the host, the user or a linked chart has set
        Follow ///< X axis: a range of fixed width that moves with the newest point while this point is in view
    };
    /// The text of a tick at a value.
    using LabelFunction = std::function<CString(double dValue)>;

    /// @{
    /// Linear, logarithmic or time; default Linear.
    void SetKind(Kind kind);
    Kind GetKind() const;
    /// @}
    /// Whether values grow to the left or downwards; default FALSE.
    void SetInverted(BOOL bInverted);
    BOOL IsInverted() const; ///< whether values grow to the left or downwards
    /// Title beside the axis, the same as that of CChartDraw::SetXLabel and SetYLabel; default empty. An empty
    /// title takes no room.
    void SetTitle(CString text);
    /// Unit, shown in brackets behind the title, and behind the prefix of engineering labels; default empty.
    void SetUnit(CString text);
    /// Number of decimals of the labels, 0 to 15; -1, the default: as many as the step needs.
    void SetDecimals(int nDecimals);
    /// Labels with an engineering prefix, such as "2.5 k" or "10 µ"; default FALSE.
    void SetEngineering(BOOL bEngineering);
    /// Calls `function` for the text of each label; an empty function, the default, restores the built-in texts.
    /// The function runs while the chart is laid out, and for values that are no ticks while a readout is painted. It must
    /// not call the chart.
    void SetLabelFunction(LabelFunction function);
    /// Time zone of a time axis: an empty name is the local zone, the default; "UTC"; or a name that Windows
    /// knows, such as "W. Europe Standard Time". FALSE, with nothing changed, for an unknown name.
    BOOL SetTimeZone(LPCTSTR pszZone);
    /// @{
    /// The value at which the values of this axis count 0; default 0. Ranges, cursors and reference lines are
    /// relative to it; the points of a dataset are relative to the origin of the dataset, see
    /// CChartDraw::SetDatasetOrigin. Not for logarithmic axes. Ignored unless finite.
    void SetOrigin(double dOrigin);
    double GetOrigin() const;
    /// @}
    /// Whether the second Y axis is shown although no visible dataset uses it; default FALSE. Without effect on
    /// the other axes.
    void SetAlwaysShown(BOOL bShown);

    /// @{
    /// Where the range comes from. SetRange and the user set Fixed. Follow keeps the range's present width, and
    /// moves it to the newest point. Without data and without a range of its own it shows all data to come, and follows
    /// once the user zooms in.
    void SetRangeMode(RangeMode mode);
    RangeMode GetRangeMode() const;
    /// @}
    /// Shows exactly this range; the mode becomes Fixed. Unlike CChartDraw::SetXScale it does not set the ticks.
    /// FALSE, with nothing changed, unless both are finite, dMin < dMax, both are positive on a logarithmic
    /// axis, and a double can show the range.
    BOOL SetRange(double dMin, double dMax);
    /// The range in view: that of the last layout, or one set since then; 0 to 1 before both.
    void GetRange(double& dMin, double& dMax) const;
    /// Position in client pixels of a value at the last layout; FALSE when there is none (no layout, a value
    /// of 0 or below on a logarithmic axis, NaN). Positions are limited to 2^27.
    BOOL GetPosition(double dValue, int& nPosition) const;
    /// The value at a position in client pixels at the last layout; NaN before the first layout.
    double GetValue(int nPosition) const;

    CChartAxis(const CChartAxis&) = delete;
    CChartAxis& operator=(const CChartAxis&) = delete;

private:
    friend struct kavlix::ChartDrawState;
    friend class CChartDraw;
    CChartAxis(CChartDraw& chart, int nAxis);
    ~CChartAxis();

    std::unique_ptr<kavlix::ChartAxisState> m_State;
};

KAVLIX_CHECK_HOST(CChartAxis)
