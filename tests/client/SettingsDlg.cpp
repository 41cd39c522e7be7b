#include "stdafx.h"
#include "SettingsDlg.h"

CSettingsDlg::CSettingsDlg(CWnd* pParent /*=NULL*/)
    : CDialog(CSettingsDlg::IDD, pParent)
{
    m_strName = _T("");
    m_nTarget = 0;
    m_dFactor = 0.0;
    m_bAlarm = FALSE;
    m_nMode = -1;
    m_strRoom = _T("");
}

void CSettingsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_GAUGE, m_wndGauge);
    DDX_Control(pDX, IDC_DEFAULTS, m_btnDefaults);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, 12);
    DDX_Text(pDX, IDC_TARGET, m_nTarget);
    DDV_MinMaxInt(pDX, m_nTarget, 5, 30);
    DDX_Text(pDX, IDC_FACTOR, m_dFactor);
    DDX_Check(pDX, IDC_ALARM, m_bAlarm);
    DDX_Radio(pDX, IDC_MODE_DAY, m_nMode);
    DDX_CBString(pDX, IDC_ROOM, m_strRoom);
}

BEGIN_MESSAGE_MAP(CSettingsDlg, CDialog)
    ON_EN_CHANGE(IDC_TARGET, OnChangeTarget)
    ON_BN_CLICKED(IDC_DEFAULTS, OnDefaults)
    ON_GN_CHANGED(IDC_GAUGE, OnGaugeChanged)
END_MESSAGE_MAP()

BOOL CSettingsDlg::OnInitDialog()
{
    CString strRooms;
    VERIFY(strRooms.LoadString(IDS_ROOMS));
    CComboBox* pRooms = (CComboBox*)GetDlgItem(IDC_ROOM);
    while (!strRooms.IsEmpty())
    {
        CString strRoom = strRooms.SpanExcluding(_T(";"));
        pRooms->SendMessage(CB_ADDSTRING, 0, (LPARAM)(LPCTSTR)strRoom);
        strRooms.Delete(0, strRoom.GetLength() + 1);
    }

    CDialog::OnInitDialog();
    m_wndGauge.SetPos(m_nTarget * 2);
    return TRUE;  // return TRUE unless you set the focus to a control
}

void CSettingsDlg::OnChangeTarget()
{
    BOOL bOk;
    int nTarget = GetDlgItemInt(IDC_TARGET, &bOk);
    if (bOk)
        m_wndGauge.SetPos(nTarget * 2);
}

void CSettingsDlg::OnDefaults()
{
    m_strName = _T("Home");
    m_nTarget = 20;
    m_dFactor = 1.5;
    m_bAlarm = TRUE;
    m_nMode = 0;
    UpdateData(FALSE);
    m_wndGauge.SetPos(m_nTarget * 2);
}

void CSettingsDlg::OnGaugeChanged()
{
    SetDlgItemInt(IDC_TARGET, m_wndGauge.GetPos() / 2);
}
