// SPDX-License-Identifier: MIT
// The thermostat program's classes.
#include "stdafx.h"
#include "Thermostat.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

CThermostatApp theApp;

BOOL CThermostatApp::InitInstance()
{
    CMainFrame* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW, NULL, NULL))
        return FALSE;
    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}

CSettingsDlg::CSettingsDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CSettingsDlg::IDD, pParent)
{
    m_strName = _T("");
    m_nTarget = 0;
    m_bAlarm = FALSE;
}

void CSettingsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_DEFAULTS, m_btnDefaults);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, 12);
    DDX_Text(pDX, IDC_TARGET, m_nTarget);
    DDV_MinMaxInt(pDX, m_nTarget, 5, 30);
    DDX_Check(pDX, IDC_ALARM, m_bAlarm);
}

BEGIN_MESSAGE_MAP(CSettingsDlg, CDialog)
    ON_BN_CLICKED(IDC_DEFAULTS, OnDefaults)
END_MESSAGE_MAP()

void CSettingsDlg::OnDefaults()
{
    m_nTarget = 20;
    m_bAlarm = TRUE;
    UpdateData(FALSE);
}

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_COMMAND(ID_HEATING_ON, OnHeatingOn)
    ON_UPDATE_COMMAND_UI(ID_HEATING_ON, OnUpdateHeatingOn)
    ON_COMMAND(ID_HEATING_WARMER, OnHeatingWarmer)
    ON_UPDATE_COMMAND_UI(ID_HEATING_WARMER, OnUpdateHeatingWarmer)
    ON_COMMAND(ID_VIEW_SETTINGS, OnViewSettings)
END_MESSAGE_MAP()

CMainFrame::CMainFrame() : m_bOn(FALSE), m_nTarget(18), m_strName(_T("Home"))
{
}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    cs.cx = 420;
    cs.cy = 300;
    return TRUE;
}

void CMainFrame::OnHeatingOn()
{
    m_bOn = !m_bOn;
}

void CMainFrame::OnUpdateHeatingOn(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(m_bOn);
}

void CMainFrame::OnHeatingWarmer()
{
    m_nTarget++;
}

void CMainFrame::OnUpdateHeatingWarmer(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bOn && m_nTarget < 30);
}

void CMainFrame::OnViewSettings()
{
    CSettingsDlg dlg(this);
    dlg.m_strName = m_strName;
    dlg.m_nTarget = m_nTarget;
    if (dlg.DoModal() == IDOK)
    {
        m_strName = dlg.m_strName;
        m_nTarget = dlg.m_nTarget;
    }
}
