#include <kavlix/GraphCtrl.h>

#include <algorithm>
#include <optional>

#include "gdi/Guards.h"
#include "gdi/Mapping.h"
#include "gdi/OutOfMemory.h"
#include "gdi/ShapeConversion.h"
#include "graphctrl/core/HitTest.h"

using namespace kavlix;

void CGraphCtrl::SetSelectionMarkPos(int nPos) {
    if (nPos < -1 || nPos >= m_Datasets[0].GetSize())
        return;
    StoreMark(nPos);
    RedrawData();
}

// Every change of the mark goes through here, so that screen readers and the like hear of it.
void CGraphCtrl::StoreMark(int nPos) {
    if (nPos == m_SelectionMarkPos)
        return;
    m_SelectionMarkPos = nPos;
    if (m_hWnd == nullptr)
        return;
    if (nPos < 0)
        ::NotifyWinEvent(EVENT_OBJECT_SELECTIONREMOVE, m_hWnd, OBJID_CLIENT, CHILDID_SELF);
    else
        ::NotifyWinEvent(EVENT_OBJECT_SELECTION, m_hWnd, OBJID_CLIENT, nPos + 1);
}

int CGraphCtrl::GetIndexFromPt(CPoint point) {
    int sizes[DatasetCount];
    GetSizes(sizes);
    const Rect plot = ToRect(m_rectPlot);
    switch (m_GraphStyle) {
    case GraphStyleLine:
    case GraphStyleTwoAxis:
        return NearestIndex(LinearMap(m_XVisibleMin, m_XVisibleMax, plot.left, plot.Width()), sizes,
                            DatasetCount, point.x);
    case GraphStyleBar:
        return BarGroupAt(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax, plot, ToPoint(point));
    default:
        return -1;
    }
}

CPoint CGraphCtrl::ToLogicalPoint(CPoint point) {
    return WindowUnits(m_hWnd).ToLogical(point);
}

CPoint CGraphCtrl::ToClientPoint(CPoint logical) {
    return WindowUnits(m_hWnd).ToDevice(logical);
}

CPoint CGraphCtrl::GetPtFromIndex(int nIndex) {
    const Rect plot = ToRect(m_rectPlot);
    if (m_GraphStyle != GraphStyleBar)
        return PtOfSample(nIndex,
                          LinearMap(m_XVisibleMin, m_XVisibleMax, plot.left, plot.Width()).Position(nIndex));
    int sizes[DatasetCount];
    GetSizes(sizes);
    return PtOfSample(nIndex,
                      BarGroupMiddle(sizes, DatasetCount, m_XVisibleMin, m_XVisibleMax, plot, nIndex));
}

// The place of sample `nIndex`, which stands at `x`, if anywhere, and as high as the first dataset shown with
// it.
CPoint CGraphCtrl::PtOfSample(int nIndex, std::optional<int> x) {
    const CRect& plot = m_rectPlot;
    for (int i = 0; i < DatasetCount && x && nIndex >= 0; ++i) {
        double value = 0;
        if (!m_Datasets[i].m_Visible || !m_Datasets[i].GetYData(nIndex, value))
            continue;
        const bool onY2 = m_GraphStyle == GraphStyleTwoAxis && i == 1;
        const std::optional<int> y =
            LinearMap(onY2 ? m_Y2VisibleMin : m_YVisibleMin, onY2 ? m_Y2VisibleMax : m_YVisibleMax,
                      static_cast<int>(plot.bottom), -plot.Height())
                .Position(value);
        if (y && !plot.IsRectEmpty())
            return CPoint(std::clamp<int>(*x, plot.left, plot.right),
                          std::clamp<int>(*y, plot.top, plot.bottom));
    }
    return plot.CenterPoint();
}

void CGraphCtrl::RepaintIcon() {
    if (m_rectIconMaximize.IsRectEmpty())
        return;
    const bool painted = WithinResources([this] {
        CClientDC dc(this);
        SavedDcGuard saved(dc);
        SetMapModeAnisotropic(dc);
        DrawIconMaximize(dc);
    });
    if (!painted)
        Redraw();
}

void CGraphCtrl::OnLButtonDown(UINT, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    const CPoint logical = ToLogicalPoint(point);
    if (m_rectPlot.PtInRect(logical)) {
        StoreMark(GetIndexFromPt(logical));
        RedrawData();
        if (!NotifyMarkMoved())
            return;
    } else if (m_rectIconMaximize.PtInRect(logical)) {
        m_IconMaximizeTracking = TRUE;
        m_IconMaximizePressed = TRUE;
        m_MaximizeTold = false;
        // Whoever held the capture hears of it.
        const HWND window = m_hWnd;
        ::SetCapture(window);
        if (CWnd::FromHandlePermanent(window) != this)
            return;
        RepaintIcon();
    }
    // Last, so that the notifications find the focus where it was.
    ::SetFocus(m_hWnd);
}

void CGraphCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    NMGRAPHCTRL record = {};
    record.nFlags = nFlags;
    record.pt = point;
    if (!Notify(record, GCN_MOUSEMOVE) || !m_IconMaximizeTracking)
        return;
    const BOOL inside = m_rectIconMaximize.PtInRect(ToLogicalPoint(point));
    if (inside == m_IconMaximizePressed)
        return;
    m_IconMaximizePressed = inside;
    RepaintIcon();
}

void CGraphCtrl::OnLButtonUp(UINT nFlags, CPoint point) {
    // The parent's GCN_MAXIMIZE handler may run a message loop: a release that arrives there is not a second
    // click.
    if (m_IconMaximizeTracking && !m_MaximizeTold) {
        const HWND window = m_hWnd;
        // ReleaseCapture() re-enters OnCaptureChanged(), for which there must be no press to cancel.
        m_IconMaximizeTracking = FALSE;
        ::ReleaseCapture();
        if (CWnd::FromHandlePermanent(window) != this)
            return;
        m_IconMaximizeTracking = TRUE;
        bool pressedAnew = false;
        if (m_IconMaximizePressed) {
            m_MaximizeTold = true;
            NMGRAPHCTRL record = {};
            record.nFlags = nFlags;
            record.pt = point;
            // The icon is still down: the parent may repaint it.
            if (!Notify(record, GCN_MAXIMIZE))
                return;
            pressedAnew = !m_MaximizeTold;
        }
        if (!pressedAnew) {
            EndPress();
            RepaintIcon();
        }
    }
    Default();
}

void CGraphCtrl::EndPress() {
    m_IconMaximizeTracking = FALSE;
    m_IconMaximizePressed = FALSE;
    m_MaximizeTold = false;
}

void CGraphCtrl::OnCaptureChanged(CWnd* pWnd) {
    // Somebody else took the mouse in the middle of a press: no click comes of it. Capturing anew is told
    // too.
    if (!m_IconMaximizeTracking || pWnd == this)
        return;
    EndPress();
    RepaintIcon();
}

void CGraphCtrl::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (::GetParent(m_hWnd) == nullptr)
        return;
    const CPoint logical = ToLogicalPoint(point);
    NMGRAPHCTRL record = {};
    record.nFlags = nFlags;
    record.pt = point;
    record.nIndex = -1;
    UINT code = GCN_DBLCLK;
    if (m_rectCaption.PtInRect(logical)) {
        code = GCN_DBLCLK_CAPTION;
    } else if (m_rectLegend.PtInRect(logical)) {
        code = GCN_DBLCLK_LEGEND;
        record.nIndex = LegendRowAt(logical);
    }
    Notify(record, code);
}

int CGraphCtrl::LegendRowAt(CPoint point) const {
    // Rows are counted by dataset, also past datasets without a legend text, which take no row on the screen.
    const std::int64_t rowHeight = std::int64_t{m_LegendMargin} + m_LegendItemHeight;
    std::int64_t top = std::int64_t{m_rectLegend.top} + m_LegendMargin / 2;
    for (int i = 0; i < DatasetCount; ++i, top += rowHeight)
        if (!m_Datasets[i].m_Legend.IsEmpty() && point.y >= top && point.y < top + rowHeight)
            return i;
    return -1;
}

void CGraphCtrl::OnKeyDown(UINT nChar, UINT, UINT) {
    const int mark = m_SelectionMarkPos;
    int moved = mark;
    if (nChar == VK_ESCAPE && mark >= 0)
        moved = -1;
    else if (nChar == VK_LEFT && mark >= 1)
        moved = mark - 1;
    else if (nChar == VK_RIGHT && mark + 1 < m_Datasets[0].GetSize())
        moved = mark + 1;
    if (moved != mark) {
        StoreMark(moved);
        RedrawData();
        if (!NotifyMarkMoved())
            return;
    }
    Default();
}

UINT CGraphCtrl::OnGetDlgCode() {
    UINT code = static_cast<UINT>(Default()) | DLGC_WANTARROWS;
    // While there is a mark to clear, Escape is the control's; else it closes the dialog.
    const MSG* current = GetCurrentMessage();
    if (m_SelectionMarkPos >= 0 && current != nullptr && current->message == WM_GETDLGCODE &&
        current->lParam != 0) {
        const MSG* asked = reinterpret_cast<const MSG*>(current->lParam);
        if (asked->message == WM_KEYDOWN && asked->wParam == VK_ESCAPE)
            code |= DLGC_WANTMESSAGE;
    }
    return code;
}
