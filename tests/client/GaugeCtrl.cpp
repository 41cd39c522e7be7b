#include "stdafx.h"
#include "GaugeCtrl.h"

IMPLEMENT_DYNAMIC(CGaugeCtrl, CWnd)

int CGaugeCtrl::m_nAlive = 0;

CGaugeCtrl::CGaugeCtrl() : m_nPaints(0), m_nPos(0), m_brFill(RGB(192, 0, 0)), m_brBack(RGB(255, 255, 255))
{
    m_nAlive++;
}

CGaugeCtrl::~CGaugeCtrl()
{
    m_nAlive--;
}

BOOL CGaugeCtrl::RegisterControlClass(HINSTANCE hInstance)
{
    WNDCLASS wndcls;
    if (::GetClassInfo(hInstance, GAUGE_CLASSNAME, &wndcls))
        return TRUE;

    memset(&wndcls, 0, sizeof(WNDCLASS));
    wndcls.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    wndcls.lpfnWndProc = ::DefWindowProc;
    wndcls.hInstance = hInstance;
    wndcls.hCursor = ::LoadCursor(NULL, IDC_ARROW);
    wndcls.lpszClassName = GAUGE_CLASSNAME;
    if (!AfxRegisterClass(&wndcls))
    {
        AfxThrowResourceException();
        return FALSE;
    }
    return TRUE;
}

void CGaugeCtrl::SetPos(int nPos)
{
    m_nPos = nPos < 0 ? 0 : nPos > 100 ? 100 : nPos;
    if (GetSafeHwnd())
        Invalidate();
}

void CGaugeCtrl::Change(int nPos)
{
    SetPos(nPos);
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), GN_CHANGED), (LPARAM)m_hWnd);
}

BEGIN_MESSAGE_MAP(CGaugeCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

void CGaugeCtrl::OnPaint()
{
    ASSERT_VALID(this);
    CPaintDC dc(this); // device context for painting

    CRect rect;
    GetClientRect(&rect);

    CDC memDC;
    CBitmap bitmap;
    memDC.CreateCompatibleDC(&dc);
    bitmap.CreateCompatibleBitmap(&dc, rect.Width(), rect.Height());
    CBitmap* pOldBitmap = memDC.SelectObject(&bitmap);

    memDC.FillRect(rect, &m_brBack);
    CRect fill(rect);
    fill.right = fill.left + MulDiv(rect.Width(), m_nPos, 100);
    memDC.FillRect(fill, &m_brFill);

    CPen pen(PS_SOLID, 1, RGB(0, 0, 128));
    CPen* pOldPen = memDC.SelectObject(&pen);
    memDC.MoveTo(rect.left, rect.bottom - 1);
    memDC.LineTo(rect.right, rect.bottom - 1);
    memDC.SelectObject(pOldPen);

    CString str;
    str.Format(_T("%d %%"), m_nPos);
    memDC.SetBkMode(TRANSPARENT);
    memDC.SelectObject(GetParent()->GetFont());
    memDC.DrawText(str, rect, DT_SINGLELINE | DT_VCENTER | DT_CENTER);

    dc.BitBlt(0, 0, rect.Width(), rect.Height(), &memDC, 0, 0, SRCCOPY);
    memDC.SelectStockObject(SYSTEM_FONT);
    memDC.SelectObject(pOldBitmap);
    m_nPaints++;
}

BOOL CGaugeCtrl::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CGaugeCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    CRect rect;
    GetClientRect(&rect);
    SetFocus();
    if (rect.Width() > 0)
        Change(MulDiv(point.x, 100, rect.Width()));
    CWnd::OnLButtonDown(nFlags, point);
}

UINT CGaugeCtrl::OnGetDlgCode()
{
    return DLGC_WANTARROWS;
}

void CGaugeCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_LEFT || nChar == VK_RIGHT)
        Change(m_nPos + (nChar == VK_RIGHT ? 10 : -10));
    else
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}
