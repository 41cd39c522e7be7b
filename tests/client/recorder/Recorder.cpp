// SPDX-License-Identifier: MIT
// The recorder's application, frame and dialogs.
#include "stdafx.h"
#include "Recorder.h"

CRecorderApp theApp;

static const UINT indicators[] =
{
    ID_SEPARATOR,           // status line indicator
    ID_INDICATOR_SAMPLES,
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
    ID_INDICATOR_SCRL,
};

BOOL CRecorderApp::InitInstance()
{
    AfxEnableControlContainer();
    SetRegistryKey(_T("Kavlix Recorder"));
    LoadStdProfileSettings(4);
    CMainFrame* pFrame = new CMainFrame;
    m_pMainWnd = pFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME))
        return FALSE;
    pFrame->MoveWindow(20, 20, 500, 300);
    pFrame->ShowWindow(SW_SHOW);
    pFrame->UpdateWindow();
    return TRUE;
}

int CRecorderApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt)
{
    m_strLastMessage = lpszPrompt;
    return AfxGetThread() == this ? CWinApp::DoMessageBox(lpszPrompt, nType, nIDPrompt) : IDOK;
}

CString CRecorderApp::RecentFile(UINT nID) const
{
    return (*m_pRecentFileList)[nID - ID_FILE_MRU_FILE1];
}

BEGIN_MESSAGE_MAP(CCurve, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CCurve::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    dc.FillSolidRect(&rect, m_nCurve == 0 ? RGB(255, 255, 220) : RGB(220, 240, 255));
    dc.MoveTo(rect.left, m_nCurve == 0 ? rect.bottom : rect.top);
    dc.LineTo(rect.right, m_nCurve == 0 ? rect.top : rect.bottom);
}

IMPLEMENT_DYNCREATE(CRatePage, CPropertyPage)

BEGIN_MESSAGE_MAP(CRatePage, CPropertyPage)
    ON_EN_CHANGE(IDC_RATE, OnChangeRate)
END_MESSAGE_MAP()

void CRatePage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_RATE, m_nRate);
    DDV_MinMaxInt(pDX, m_nRate, 1, 1000);
}

void CRatePage::OnChangeRate()
{
    SetModified();
}

BOOL CRatePage::OnApply()
{
    m_nApplied++;
    SetModified(FALSE);
    return CPropertyPage::OnApply();
}

IMPLEMENT_DYNCREATE(CViewPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CViewPage, CPropertyPage)
    ON_NOTIFY(TCN_SELCHANGE, IDC_TABS, OnSelchangeTabs)
END_MESSAGE_MAP()

CViewPage::CViewPage() : CPropertyPage(IDD_VIEW, IDS_VIEW_CAPTION), m_bReset(FALSE)
{
}

BOOL CViewPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    m_wndTabs.SubclassDlgItem(IDC_TABS, this);
    m_wndTabs.InsertItem(0, _T("Level"));
    m_wndTabs.InsertItem(1, _T("Speed"));
    CRect rect;
    m_wndTabs.GetClientRect(&rect);
    m_wndTabs.AdjustRect(FALSE, &rect);
    return m_wndCurve.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, rect, &m_wndTabs, IDC_CURVE);
}

void CViewPage::OnSelchangeTabs(NMHDR*, LRESULT* pResult)
{
    m_wndCurve.m_nCurve = m_wndTabs.GetCurSel();
    m_wndCurve.Invalidate();
    *pResult = 0;
}

void CViewPage::OnReset()
{
    m_bReset = TRUE;
    CPropertyPage::OnReset();
}

IMPLEMENT_DYNAMIC(CSettingsSheet, CPropertySheet)

CSettingsSheet::CSettingsSheet(CWnd* pParentWnd) : CPropertySheet(IDS_SETTINGS, pParentWnd)
{
    AddPage(&m_pageRate);
    AddPage(&m_pageView);
}

void CNamePage::DoDataExchange(CDataExchange* pDX)
{
    CPropertyPage::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_NAME, m_strName);
}

BOOL CNamePage::OnSetActive()
{
    ((CPropertySheet*)GetParent())->SetWizardButtons(PSWIZB_NEXT);
    return CPropertyPage::OnSetActive();
}

LRESULT CNamePage::OnWizardNext()
{
    UpdateData();
    return m_strName.IsEmpty() ? -1 : 0;
}

BOOL CFinishPage::OnSetActive()
{
    CPropertySheet* pSheet = (CPropertySheet*)GetParent();
    pSheet->SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
    return CPropertyPage::OnSetActive();
}

BOOL CNoteDlg::Create(CWnd* pParentWnd, LPCTSTR lpszNote)
{
    if (!Create(IDD_NOTE, pParentWnd))
        return FALSE;
    SetDlgItemText(IDC_NAME, lpszNote);
    return TRUE;
}

CPickDlg::CPickDlg(CWnd* pParentWnd, BOOL bOld)
    : CFileDialog(TRUE, _T("csv"), NULL, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, _T("Recordings (*.csv)|*.csv||"),
          pParentWnd, 0, FALSE)
{
    if (bOld)
        m_ofn.Flags &= ~OFN_EXPLORER;
}

void CPickDlg::OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode)
{
    if (nIDBox == 0x460 && nCode == CD_LBSELCHANGE)     // the list of files
        m_strSeen.Format(_T("item %u"), iCurSel);
}

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SAMPLES, OnUpdateSamples)
    ON_COMMAND(ID_FILE_OPEN, OnFileOpen)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, OnOpenRecent)
    ON_COMMAND(ID_RECORD_START, OnRecordStart)
    ON_COMMAND(ID_RECORD_CLEAR, OnRecordClear)
    ON_UPDATE_COMMAND_UI(ID_RECORD_ONCE, OnUpdateRecordOnce)
    ON_UPDATE_COMMAND_UI(ID_RECORD_CLEAR, OnUpdateRecordClear)
    ON_COMMAND(ID_VIEW_SETTINGS, OnViewSettings)
    ON_COMMAND(ID_VIEW_SETUP, OnViewSetup)
    ON_COMMAND(ID_VIEW_PANEL, OnViewPanel)
    ON_COMMAND(ID_VIEW_NOTE, OnViewNote)
END_MESSAGE_MAP()

CMainFrame::CMainFrame() : m_nSamples(0), m_nRate(10), m_strName(_T("Recorder")), m_bOldDialog(FALSE), m_nLastResult(0)
{
}

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1)
        return -1;
    if (!m_wndStatusBar.Create(this) ||
        !m_wndStatusBar.SetIndicators(indicators, sizeof(indicators) / sizeof(UINT)))
        return -1;
    return 0;
}

BOOL CMainFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    return m_wndView.Create(NULL, NULL, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST);
}

void CMainFrame::OnUpdateSamples(CCmdUI* pCmdUI)
{
    CString str;
    str.Format(_T("%d samples"), m_nSamples);
    pCmdUI->SetText(str);
    pCmdUI->Enable(m_nSamples > 0);
}

BOOL CMainFrame::OpenRecording(LPCTSTR lpszFileName)
{
    CFile file;
    if (!file.Open(lpszFileName, CFile::modeRead | CFile::shareDenyNone))
        return FALSE;
    m_strFile = file.GetFileName();
    theApp.AddToRecentFileList(lpszFileName);
    return TRUE;
}

void CMainFrame::OnFileOpen()
{
    CPickDlg dlg(this, m_bOldDialog);
    if (dlg.DoModal() == IDOK)
        OpenRecording(dlg.GetPathName());
    m_strSeen = dlg.m_strSeen;
}

BOOL CMainFrame::OnOpenRecent(UINT nID)
{
    // A file that is gone is the application's business: it forgets the file.
    CString str = theApp.RecentFile(nID);
    return !str.IsEmpty() && OpenRecording(str);
}

void CMainFrame::OnRecordStart()
{
    m_nSamples += RecordSamples(4, 20);
}

void CMainFrame::OnRecordClear()
{
    m_nSamples = 0;
}

void CMainFrame::OnUpdateRecordOnce(CCmdUI* pCmdUI)
{
    // Items that this version does not offer.
    pCmdUI->m_pMenu->DeleteMenu(ID_RECORD_TWICE, MF_BYCOMMAND);
    pCmdUI->m_pMenu->DeleteMenu(ID_RECORD_ONCE, MF_BYCOMMAND);
}

void CMainFrame::OnUpdateRecordClear(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_nSamples > 0);
}

void CMainFrame::OnViewSettings()
{
    CSettingsSheet sheet(this);
    sheet.m_pageRate.m_nRate = m_nRate;
    m_nLastResult = sheet.DoModal();
    if (sheet.m_pageRate.m_nApplied > 0)
        m_nRate = sheet.m_pageRate.m_nRate;
    m_strSeen.Format(_T("applied %d, curve %d, reset %d"), sheet.m_pageRate.m_nApplied,
        sheet.m_pageView.m_wndCurve.m_nCurve, sheet.m_pageView.m_bReset);
}

void CMainFrame::OnViewSetup()
{
    CPropertySheet wizard(_T("Set up"), this);
    CNamePage pageName;
    CFinishPage pageFinish;
    wizard.AddPage(&pageName);
    wizard.AddPage(&pageFinish);
    wizard.SetWizardMode();
    m_nLastResult = wizard.DoModal();
    if (m_nLastResult == ID_WIZFINISH)
        m_strName = pageName.m_strName;
}

void CMainFrame::OnViewPanel()
{
    if (m_wndPanel.m_hWnd != NULL)
        m_wndPanel.DestroyWindow();
    else
    {
        m_wndPanel.m_pageRate.m_nRate = m_nRate;
        m_wndPanel.Create(this);
    }
}

void CMainFrame::OnViewNote()
{
    if (m_dlgNote.m_hWnd == NULL)
        m_dlgNote.Create(this, _T("Calibrated"));
}
