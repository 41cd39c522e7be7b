#if !defined(AFX_SETTINGSDLG_H__INCLUDED_)
#define AFX_SETTINGSDLG_H__INCLUDED_

#include "GaugeCtrl.h"
#include "resource.h"

class CSettingsDlg : public CDialog
{
public:
    CSettingsDlg(CWnd* pParent = NULL);   // standard constructor

    //{{AFX_DATA(CSettingsDlg)
    enum { IDD = IDD_SETTINGS };
    CGaugeCtrl  m_wndGauge;
    CButton     m_btnDefaults;
    CString     m_strName;
    int         m_nTarget;
    double      m_dFactor;
    BOOL        m_bAlarm;
    int         m_nMode;
    CString     m_strRoom;
    //}}AFX_DATA

    //{{AFX_VIRTUAL(CSettingsDlg)
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support
    //}}AFX_VIRTUAL

protected:

    //{{AFX_MSG(CSettingsDlg)
    virtual BOOL OnInitDialog();
    afx_msg void OnChangeTarget();
    afx_msg void OnDefaults();
    afx_msg void OnGaugeChanged();
    //}}AFX_MSG
    DECLARE_MESSAGE_MAP()
};

// CMonitorDlg : modeless, deletes itself

class CMonitorDlg : public CDialog
{
public:
    CMonitorDlg(CMonitorDlg** ppThis);

    BOOL Create(CWnd* pParent);
    void ShowReading(LPCTSTR lpszName, int nDegrees);

protected:
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PostNcDestroy();

    CMonitorDlg** m_ppThis;

    DECLARE_MESSAGE_MAP()
};

#endif // !defined(AFX_SETTINGSDLG_H__INCLUDED_)
