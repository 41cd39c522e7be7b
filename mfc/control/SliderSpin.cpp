// SPDX-License-Identifier: MIT
// CSliderCtrl and CSpinButtonCtrl.

#include "afx/CommonControls.h"

#include "mfc/control/CommonControlInit.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSliderCtrl::~CSliderCtrl() {
    DestroyWindow();
}

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_BAR_CLASSES);
    return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CSliderCtrl::GetRange(int& nMin, int& nMax) const {
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw) {
    ::SendMessage(m_hWnd, TBM_SETRANGEMIN, static_cast<WPARAM>(bRedraw), nMin);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw) {
    ::SendMessage(m_hWnd, TBM_SETRANGEMAX, static_cast<WPARAM>(bRedraw), nMax);
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw) {
    SetRangeMin(nMin, FALSE);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const {
    nMin = afx_control::Ask(m_hWnd, TBM_GETSELSTART);
    nMax = afx_control::Ask(m_hWnd, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax) {
    ::SendMessage(m_hWnd, TBM_SETSELSTART, FALSE, nMin);
    ::SendMessage(m_hWnd, TBM_SETSELEND, FALSE, nMax);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const {
    ::SendMessage(m_hWnd, TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(lprc));
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const {
    ::SendMessage(m_hWnd, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(lprc));
}

CSpinButtonCtrl::~CSpinButtonCtrl() {
    DestroyWindow();
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    LoadCommonControls(ICC_UPDOWN_CLASS);
    return CWnd::Create(UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const {
    return afx_control::Ask(m_hWnd, UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(lpbError));
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper) {
    ::SendMessage(m_hWnd, UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper) {
    ::SendMessage(m_hWnd, UDM_SETRANGE32, static_cast<WPARAM>(static_cast<INT_PTR>(nLower)), nUpper);
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const {
    ::SendMessage(m_hWnd, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), reinterpret_cast<LPARAM>(&upper));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy) {
    HWND const buddy = pWndBuddy == nullptr ? nullptr : pWndBuddy->m_hWnd;
    return CWnd::FromHandle(
        reinterpret_cast<HWND>(::SendMessage(m_hWnd, UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy), 0)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    return CWnd::FromHandle(reinterpret_cast<HWND>(::SendMessage(m_hWnd, UDM_GETBUDDY, 0, 0)));
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel) {
    return afx_control::Ask(m_hWnd, UDM_SETACCEL, static_cast<WPARAM>(nAccel),
                            reinterpret_cast<LPARAM>(pAccel));
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const {
    return static_cast<UINT>(afx_control::Ask(m_hWnd, UDM_GETACCEL, static_cast<WPARAM>(nAccel),
                                              reinterpret_cast<LPARAM>(pAccel)));
}
