// Thermostat.cpp : Defines the class behaviors for the application.
//

#include "stdafx.h"
#include "Thermostat.h"
#include "GaugeCtrl.h"
#include "MainFrm.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CThermostatApp

BEGIN_MESSAGE_MAP(CThermostatApp, CWinApp)
    //{{AFX_MSG_MAP(CThermostatApp)
    ON_COMMAND(ID_APP_ABOUT, OnAppAbout)
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CThermostatApp construction

CThermostatApp::CThermostatApp()
{
    m_nExits = 0;
}

/////////////////////////////////////////////////////////////////////////////
// The one and only CThermostatApp object

CThermostatApp theApp;

/////////////////////////////////////////////////////////////////////////////
// CThermostatApp initialization

BOOL CThermostatApp::InitInstance()
{
    if (!CGaugeCtrl::RegisterControlClass(AfxGetInstanceHandle()))
        return FALSE;

    CMainFrame* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;

    // create and load the frame with its resources
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

/////////////////////////////////////////////////////////////////////////////
// CAboutDlg dialog used for App About

class CAboutDlg : public CDialog
{
public:
    CAboutDlg() : CDialog(IDD_ABOUTBOX)
    {
    }

protected:
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CAboutDlg, CDialog)
    //{{AFX_MSG_MAP(CAboutDlg)
        // No message handlers
    //}}AFX_MSG_MAP
END_MESSAGE_MAP()

// App command to run the dialog
void CThermostatApp::OnAppAbout()
{
    CAboutDlg aboutDlg;
    aboutDlg.DoModal();
}
