#include "stdafx.h"
#include "Thermostat.h"

#include "MainFrm.h"
#include "SettingsDlg.h"

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_COMMAND(ID_HEATING_ON, OnHeatingOn)
    ON_UPDATE_COMMAND_UI(ID_HEATING_ON, OnUpdateHeatingOn)
    ON_COMMAND(ID_HEATING_WARMER, OnHeatingWarmer)
    ON_UPDATE_COMMAND_UI(ID_HEATING_WARMER, OnUpdateHeatingWarmer)
    ON_COMMAND(ID_VIEW_SETTINGS, OnViewSettings)
    ON_COMMAND_RANGE(ID_UNITS_CELSIUS, ID_UNITS_FAHRENHEIT, OnUnits)
    ON_UPDATE_COMMAND_UI_RANGE(ID_UNITS_CELSIUS, ID_UNITS_FAHRENHEIT, OnUpdateUnits)
END_MESSAGE_MAP()

int CMainFrame::m_nAlive = 0;

CMainFrame::CMainFrame()
    : m_bOn(FALSE), m_nTarget(18), m_nUnits(ID_UNITS_CELSIUS), m_strName(_T("Home")), m_nPaints(0)
{
    m_nAlive++;
}

CMainFrame::~CMainFrame()
{
    m_nAlive--;
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    cs.cx = 420;
    cs.cy = 300;
    return TRUE;
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;

    if (!m_font.CreatePointFont(160, _T("Arial")))
    {
        TRACE0("Failed to create font\n");
        return -1;      // fail to create
    }
    return 0;
}

void CMainFrame::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(rect);

    CFont* pOldFont = dc.SelectObject(&m_font);
    CString str;
    str.Format(_T("%s: %d %s"), m_strName, m_nTarget, m_nUnits == ID_UNITS_CELSIUS ? _T("C") : _T("F"));
    dc.SetTextColor(m_bOn ? RGB(192, 0, 0) : GetSysColor(COLOR_GRAYTEXT));
    dc.TextOut(10, 10, str);
    dc.Draw3dRect(rect, GetSysColor(COLOR_3DSHADOW), GetSysColor(COLOR_3DHILIGHT));
    dc.SelectObject(pOldFont);
    m_nPaints++;
}

void CMainFrame::OnHeatingOn()
{
    m_bOn = !m_bOn;
    Invalidate();
}

void CMainFrame::OnUpdateHeatingOn(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_bOn);
}

void CMainFrame::OnHeatingWarmer()
{
    m_nTarget++;
    Invalidate();
}

void CMainFrame::OnUpdateHeatingWarmer(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bOn && m_nTarget < 30);
}

void CMainFrame::OnUnits(UINT nID)
{
    m_nUnits = (int)nID;
    Invalidate();
}

void CMainFrame::OnUpdateUnits(CCmdUI* pCmdUI)
{
    pCmdUI->SetRadio((int)pCmdUI->m_nID == m_nUnits);
}

void CMainFrame::OnViewSettings()
{
    CSettingsDlg dlg(this);
    dlg.m_strName = m_strName;
    dlg.m_nTarget = m_nTarget;
    dlg.m_dFactor = 1.25;
    dlg.m_nMode = 1;
    dlg.m_strRoom = _T("Bath");
    if (dlg.DoModal() == IDOK)
    {
        m_strName = dlg.m_strName;
        m_nTarget = dlg.m_nTarget;
        Invalidate();
    }
}
