// SPDX-License-Identifier: MIT
// A small program in the ordinary style of the class library: application, frame and dialog.
#if !defined(AFX_THERMOSTAT_H__INCLUDED_)
#define AFX_THERMOSTAT_H__INCLUDED_

#ifndef __AFXWIN_H__
    #error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"       // main symbols

class CThermostatApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
};

class CSettingsDlg : public CDialog
{
public:
    CSettingsDlg(CWnd* pParent = NULL);   // standard constructor
    enum { IDD = IDD_SETTINGS };
    CButton     m_btnDefaults;
    CString     m_strName;
    int         m_nTarget;
    BOOL        m_bAlarm;
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support

protected:
    afx_msg void OnDefaults();
    DECLARE_MESSAGE_MAP()
};

class CMainFrame : public CFrameWnd
{
    DECLARE_DYNAMIC(CMainFrame)

public:
    CMainFrame();
    BOOL m_bOn;
    int m_nTarget;
    CString m_strName;
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);

protected:
    afx_msg void OnHeatingOn();
    afx_msg void OnUpdateHeatingOn(CCmdUI* pCmdUI);
    afx_msg void OnHeatingWarmer();
    afx_msg void OnUpdateHeatingWarmer(CCmdUI* pCmdUI);
    afx_msg void OnViewSettings();
    DECLARE_MESSAGE_MAP()
};

extern CThermostatApp theApp;

#endif // !defined(AFX_THERMOSTAT_H__INCLUDED_)
