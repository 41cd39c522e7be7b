#include "stdafx.h"
#include "Thermostat.h"
#include "GaugeCtrl.h"
#include "MainFrm.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

CThermostatApp::CThermostatApp()
{
    m_nExits = 0;
}

CThermostatApp theApp;

BOOL CThermostatApp::InitInstance()
{
    if (!CGaugeCtrl::RegisterControlClass(AfxGetInstanceHandle()))
        return FALSE;

    CMainFrame* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;

    if (!pFrame->LoadFrame(IDR_MAINFRAME, WS_OVERLAPPEDWINDOW, NULL, NULL))
        return FALSE;

    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}

int CThermostatApp::ExitInstance()
{
    m_nExits++;
    return CWinApp::ExitInstance();
}
