#if !defined(AFX_THERMOSTAT_H__INCLUDED_)
#define AFX_THERMOSTAT_H__INCLUDED_

#ifndef __AFXWIN_H__
    #error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"       // main symbols

class CThermostatApp : public CWinApp
{
public:
    CThermostatApp();

    int m_nExits;
    public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();
};

extern CThermostatApp theApp;

#endif // !defined(AFX_THERMOSTAT_H__INCLUDED_)
