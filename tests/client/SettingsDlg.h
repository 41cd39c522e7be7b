#if !defined(AFX_SETTINGSDLG_H__INCLUDED_)
#define AFX_SETTINGSDLG_H__INCLUDED_

#include "GaugeCtrl.h"
#include "resource.h"

class CSettingsDlg : public CDialog
{
public:
    CSettingsDlg(CWnd* pParent = NULL);   // standard constructor
    enum { IDD = IDD_SETTINGS };
    CGaugeCtrl  m_wndGauge;
    CButton     m_btnDefaults;
    CString     m_strName;
    int         m_nTarget;
    double      m_dFactor;
    BOOL        m_bAlarm;
    int         m_nMode;
    CString     m_strRoom;
    protected:
    virtual void DoDataExchange(CDataExchange* pDX);    // DDX/DDV support

protected:
    virtual BOOL OnInitDialog();
    afx_msg void OnChangeTarget();
    afx_msg void OnDefaults();
    afx_msg void OnGaugeChanged();
    DECLARE_MESSAGE_MAP()
};

#endif // !defined(AFX_SETTINGSDLG_H__INCLUDED_)
