// SPDX-License-Identifier: MIT
// A data recorder in the ordinary style of the class library: frame with status bar and recent files, settings and
// set-up in property sheets, threads that record.
#if !defined(AFX_RECORDER_H__INCLUDED_)
#define AFX_RECORDER_H__INCLUDED_

#ifndef __AFXWIN_H__
    #error include 'stdafx.h' before including this file for PCH
#endif

#include "resource.h"       // main symbols

class CRecorderApp : public CWinApp
{
public:
    CString m_strLastMessage;   // threads must not wait for the user
    CString RecentFile(UINT nID) const;
    virtual BOOL InitInstance();
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
};

// The drawing area of a curve.
class CCurve : public CWnd
{
public:
    int m_nCurve;
    CCurve() : m_nCurve(0) {}
protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

class CRatePage : public CPropertyPage
{
    DECLARE_DYNCREATE(CRatePage)
public:
    CRatePage() : CPropertyPage(IDD_RATE), m_nRate(0), m_nApplied(0) {}
    int m_nRate;
    int m_nApplied;
    virtual BOOL OnApply();
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    afx_msg void OnChangeRate();
    DECLARE_MESSAGE_MAP()
};

class CViewPage : public CPropertyPage
{
    DECLARE_DYNCREATE(CViewPage)
public:
    CViewPage();
    CTabCtrl m_wndTabs;
    CCurve m_wndCurve;
    BOOL m_bReset;
    virtual BOOL OnInitDialog();
    virtual void OnReset();
protected:
    afx_msg void OnSelchangeTabs(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};

class CSettingsSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CSettingsSheet)
public:
    CSettingsSheet(CWnd* pParentWnd = NULL);
    CRatePage m_pageRate;
    CViewPage m_pageView;
};

class CNamePage : public CPropertyPage
{
public:
    CNamePage() : CPropertyPage(IDD_NAME) {}
    CString m_strName;
    virtual BOOL OnSetActive();
    virtual LRESULT OnWizardNext();
protected:
    virtual void DoDataExchange(CDataExchange* pDX);
};

class CFinishPage : public CPropertyPage
{
public:
    CFinishPage() : CPropertyPage(IDD_FINISH) {}
    virtual BOOL OnSetActive();
};

// A modeless dialog with a Create() of its own beside the inherited one.
class CNoteDlg : public CDialog
{
public:
    using CDialog::Create;
    BOOL Create(CWnd* pParentWnd, LPCTSTR lpszNote);
protected:
    virtual void OnCancel() { DestroyWindow(); }
};

class CPickDlg : public CFileDialog
{
public:
    CPickDlg(CWnd* pParentWnd, BOOL bOld);
    CString m_strSeen;          // the old dialog's notification
protected:
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
};

class CMainFrame : public CFrameWnd
{
public:
    CMainFrame();
    CStatusBar m_wndStatusBar;
    CWnd m_wndView;
    CNoteDlg m_dlgNote;
    CSettingsSheet m_wndPanel;
    int m_nSamples;
    int m_nRate;
    CString m_strName;
    CString m_strFile;
    BOOL m_bOldDialog;
    CString m_strSeen;
    INT_PTR m_nLastResult;
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);

protected:
    BOOL OpenRecording(LPCTSTR lpszFileName);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnUpdateSamples(CCmdUI* pCmdUI);
    afx_msg void OnFileOpen();
    afx_msg BOOL OnOpenRecent(UINT nID);
    afx_msg void OnRecordStart();
    afx_msg void OnRecordClear();
    afx_msg void OnUpdateRecordOnce(CCmdUI* pCmdUI);
    afx_msg void OnUpdateRecordClear(CCmdUI* pCmdUI);
    afx_msg void OnViewSettings();
    afx_msg void OnViewSetup();
    afx_msg void OnViewPanel();
    afx_msg void OnViewNote();
    DECLARE_MESSAGE_MAP()
};

extern CRecorderApp theApp;

// Sampler.cpp: `nThreads` threads take `nEach` samples each, at most two of them at the same time. Returns the number
// of samples.
int RecordSamples(int nThreads, int nEach);
// One sample of a channel. Throws CInvalidArgException* for channels below 0, CMemoryException* above 99.
int TakeSample(int nChannel);
// The most threads that ever took samples at the same time.
extern LONG g_nMostAtOnce;

#endif // !defined(AFX_RECORDER_H__INCLUDED_)
