// SPDX-License-Identifier: MIT
// CChartDraw: lifetime, scales and properties.
#include <kavlix/ChartDraw.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "chartdraw/ChartDrawDataset.h"
#include "chartdraw/ChartDrawState.h"
#include "chartdraw/ChartInputState.h"
#include "chartdraw/ChartPost.h"
#include "gdi/Mirroring.h"
#include "gdi/Offscreen.h"

using namespace kavlix;

BEGIN_MESSAGE_MAP(CChartDraw, CWnd)
    ON_WM_NCCREATE()
    ON_MESSAGE(WM_STYLECHANGING, &CChartDraw::OnStyleChanging)
    ON_WM_DESTROY()

    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CChartDraw::OnPrintClient)

    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CChartDraw::OnMouseLeave)
    ON_WM_MOUSEWHEEL()
    ON_MESSAGE(WM_MOUSEHWHEEL, &CChartDraw::OnMouseHWheel)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()

    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()

    ON_REGISTERED_MESSAGE(g_postedMessage, &CChartDraw::OnPostedData)

    ON_WM_CONTEXTMENU()
    ON_COMMAND(ID_CHART_SAVE_PICTURE, &CChartDraw::OnSavePicture)
    ON_COMMAND(ID_CHART_SAVE_DATA, &CChartDraw::OnSaveData)
    ON_COMMAND(ID_CHART_FIT, &CChartDraw::OnFit)
    ON_COMMAND(ID_CHART_BACK, &CChartDraw::OnBack)
END_MESSAGE_MAP()

CChartDraw::CChartDraw() : m_State(std::make_unique<ChartDrawState>(*this)) {
}

CChartDraw::~CChartDraw() = default;

BOOL CChartDraw::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return CWnd::Create(windowClass, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CChartDraw::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    StopMirroring(*this);
    m_State->input->BeginWindow();
    m_State->OpenPosting();
}

void CChartDraw::OnDestroy() {
    m_State->ClosePosting();
    m_State->LeaveLink();
    CWnd::OnDestroy();
}

BOOL CChartDraw::OnNcCreate(LPCREATESTRUCT) {
    StopMirroring(*this);
    return static_cast<BOOL>(Default());
}

LRESULT CChartDraw::OnStyleChanging(WPARAM wParam, LPARAM lParam) {
    RefuseMirroring(wParam, lParam);
    return Default();
}

void CChartDraw::Redraw() {
    if (m_hWnd != nullptr)
        InvalidateRect(nullptr, FALSE);
}

void CChartDraw::SetAutoXScale() {
    m_XFixed.fixed = false;
    m_State->ResetRange(ChartDrawState::kX);
}

void CChartDraw::SetAutoYScale() {
    m_YFixed.fixed = false;
    m_State->ResetRange(ChartDrawState::kY);
}

BOOL CChartDraw::SetXScale(double dMin, double dMax, double dStep) {
    return FixScale(m_XFixed, ChartDrawState::kX, dMin, dMax, dStep);
}

BOOL CChartDraw::SetYScale(double dMin, double dMax, double dStep) {
    return FixScale(m_YFixed, ChartDrawState::kY, dMin, dMax, dStep);
}

BOOL CChartDraw::FixScale(FixedScale& scale, int axis, double dMin, double dMax, double dStep) {
    if (!std::isfinite(dMin) || !std::isfinite(dMax) || !(dMin < dMax) || !std::isfinite(dStep) || dStep < 0)
        return FALSE;
    scale = {true, dMin, dMax, dStep};
    m_State->ResetRange(axis);
    return TRUE;
}

void CChartDraw::SetTitle(CString text) {
    m_Title = std::move(text);
    m_Changed = true;
}

void CChartDraw::SetXLabel(CString text) {
    m_XLabel = std::move(text);
    m_Changed = true;
}

void CChartDraw::SetYLabel(CString text) {
    m_YLabel = std::move(text);
    m_Changed = true;
}

void CChartDraw::SetGrid(BOOL bGridX, BOOL bGridY) {
    m_GridX = bGridX;
    m_GridY = bGridY;
}

void CChartDraw::SetTextFont(int nSize, LPCTSTR pszFace) {
    constexpr int kSmallestSize = 10;
    constexpr int kLargestSize = 720;
    m_FontFace = pszFace; // first, because only this step can throw
    m_FontSize = std::clamp(nSize, kSmallestSize, kLargestSize);
    m_Changed = true;
}
