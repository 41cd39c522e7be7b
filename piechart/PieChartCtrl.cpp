// SPDX-License-Identifier: MIT
// CPieChartCtrl: lifetime, data and geometry. Painting, labels and input have files of their own.
#include <kavlix/PieChartCtrl.h>

#include <algorithm>
#include <memory>
#include <new>

#include "gdi/Mirroring.h"
#include "gdi/ShapeConversion.h"
#include "piechart/core/PieGeometry.h"

using namespace kavlix;

namespace {

constexpr TCHAR kWindowClass[] = _T("PIE_CHART_CTRL");
constexpr int kLargeFontHeight = 15; // pixels
constexpr int kSmallFontHeight = 13; // pixels

void MakePieFont(CFont& font, int height) {
    font.CreateFont(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_CHARACTER_PRECIS,
                    CLIP_CHARACTER_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, _T("Arial"));
}

} // namespace

struct kavlix::PieChartCtrlState {};

BEGIN_MESSAGE_MAP(CPieChartCtrl, CWnd)
    ON_WM_NCCREATE()
    ON_MESSAGE(WM_STYLECHANGING, &CPieChartCtrl::OnStyleChanging)

    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CPieChartCtrl::OnPrintClient)
    ON_WM_ERASEBKGND()

    ON_WM_SIZE()

    ON_WM_LBUTTONDOWN()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

CPieChartPiece::CPieChartPiece() = default;

CPieChartPiece::~CPieChartPiece() = default;

CPieChartCtrl::CPieChartCtrl() {
    RegisterWndClass(AfxGetInstanceHandle());
    MakePieFont(m_fontLarge, kLargeFontHeight);
    MakePieFont(m_fontSmall, kSmallFontHeight);
}

CPieChartCtrl::~CPieChartCtrl() {
    Reset();
}

void CPieChartCtrl::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    StopMirroring(*this);
}

BOOL CPieChartCtrl::OnNcCreate(LPCREATESTRUCT) {
    StopMirroring(*this);
    return static_cast<BOOL>(Default());
}

LRESULT CPieChartCtrl::OnStyleChanging(WPARAM wParam, LPARAM lParam) {
    RefuseMirroring(wParam, lParam);
    return Default();
}

BOOL CPieChartCtrl::RegisterWndClass(HINSTANCE hInstance) {
    WNDCLASS windowClass = {};
    windowClass.style = CS_GLOBALCLASS;
    windowClass.lpfnWndProc = ::DefWindowProc;
    windowClass.hInstance = hInstance;
    windowClass.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    windowClass.lpszClassName = kWindowClass;
    return ::RegisterClass(&windowClass) != 0;
}

BOOL CPieChartCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParent, UINT nID) {
    static const CString windowClass = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW);
    const BOOL created =
        CreateEx(WS_EX_CLIENTEDGE, windowClass, nullptr, dwStyle, rect.left, rect.top, rect.right - rect.left,
                 rect.bottom - rect.top, pParent != nullptr ? pParent->m_hWnd : nullptr,
                 reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
    if (created)
        ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    return created;
}

CPieChartPiece& CPieChartCtrl::Piece(INT_PTR nIndex) const {
    return *static_cast<CPieChartPiece*>(m_arrPieces.GetAt(nIndex));
}

int CPieChartCtrl::AddPiece(DWORD crColor, DWORD crText, double dTotal, double dValue,
                            const CString& strLabel) {
    try {
        auto piece = std::make_unique<CPieChartPiece>();
        piece->m_crColor = crColor;
        piece->m_crText = crText;
        piece->m_dTotal = dTotal;
        piece->m_dValue = dValue;
        piece->m_strLabel = strLabel;
        m_arrPieces.SetAtGrow(m_arrPieces.GetSize(), piece.get());
        piece.release();
    } catch (CMemoryException* exception) {
        exception->Delete();
        return 0;
    } catch (const std::bad_alloc&) {
        return 0;
    }
    if (m_hWnd != nullptr)
        InvalidateRect(nullptr, FALSE);
    return 1;
}

void CPieChartCtrl::Reset() {
    for (INT_PTR i = 0; i < m_arrPieces.GetSize(); ++i)
        delete m_arrPieces.GetAt(i);
    m_arrPieces.RemoveAll();
    m_nWaitMode = 0;
}

void CPieChartCtrl::GetItemColor(int nIndex, DWORD& crColor) {
    const INT_PTR index = std::min<INT_PTR>(nIndex, m_arrPieces.GetSize() - 1);
    crColor = index >= 0 ? Piece(index).m_crColor : 0;
}

void CPieChartCtrl::Wait(LPCTSTR pszText, int nMode) {
    m_strWait = pszText;
    m_nWaitMode = nMode;
    Refresh();
}

void CPieChartCtrl::Refresh() {
    if (m_hWnd != nullptr)
        InvalidateRect(nullptr, TRUE);
}

void CPieChartCtrl::RecalcRect() {
    if (m_hWnd == nullptr)
        return;
    CRect client;
    GetClientRect(&client);
    m_rcPie = ToCRect(PieSquare(ToRect(client)));
}

void CPieChartCtrl::CountPoint(double dAngle, CPoint& point, int nInner) {
    const Point found = PointOnPie(ToRect(m_rcPie), dAngle, nInner != 0);
    point = CPoint(found.x, found.y);
}

double CPieChartCtrl::GetAngleFromPoint(const CPoint& point) {
    return AngleOfPoint(ToRect(m_rcPie), ToPoint(point));
}
