// SPDX-License-Identifier: MIT
// DDX_Text for numbers and texts, and DDV_MaxChars.

#include <afxdd_.h>
#include <afxres.h>
#include <afxwin.h>

#include "mfc/dialog/ControlText.h"
#include "mfc/dialog/Prompt.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace {

constexpr LPCTSTR kBlanks = _T(" \t\r\n");

/// Sets the text of a control, unless the control already shows the text: setting an equal text would make
/// the control flicker and move the caret.
void ShowText(HWND control, LPCTSTR text) {
    if (ControlText(control) != text)
        ::SetWindowText(control, text);
}

/// Whether a number was read (`end` differs from `start`) and only blanks follow.
bool IsWholeNumber(LPCTSTR start, LPCTSTR end) {
    return end != start && end[_tcsspn(end, kBlanks)] == 0;
}

bool ReadSigned(LPCTSTR text, long long lowest, long long highest, long long& value) {
    LPTSTR end = nullptr;
    errno = 0;
    value = _tcstoi64(text, &end, 10);
    return errno == 0 && IsWholeNumber(text, end) && value >= lowest && value <= highest;
}

/// strtoull accepts negative numbers and wraps them, so texts with '-' are refused first.
bool ReadUnsigned(LPCTSTR text, unsigned long long highest, unsigned long long& value) {
    if (_tcschr(text, '-') != nullptr)
        return false;
    LPTSTR end = nullptr;
    errno = 0;
    value = _tcstoui64(text, &end, 10);
    return errno == 0 && IsWholeNumber(text, end) && value <= highest;
}

/// Accepts decimal notation only: no "inf" or "nan", no hexadecimal numbers.
bool ReadReal(LPCTSTR text, double largest, double& value) {
    if (text[_tcsspn(text, _T("0123456789+-.eE \t\r\n"))] != 0)
        return false;
    LPTSTR end = nullptr;
    value = _tcstod(text, &end);
    return IsWholeNumber(text, end) && std::fabs(value) <= largest;
}

template <class Value> void ExchangeSigned(CDataExchange* pDX, int nIDC, Value& value) {
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(_T("%lld"), static_cast<long long>(value));
        ShowText(control, text);
        return;
    }
    using Limits = std::numeric_limits<Value>;
    long long read = 0;
    if (!ReadSigned(ControlText(control), Limits::min(), Limits::max(), read))
        FailWithPrompt(pDX, AFX_IDP_PARSE_INT);
    value = static_cast<Value>(read);
}

template <class Value> void ExchangeUnsigned(CDataExchange* pDX, int nIDC, Value& value, UINT idPrompt) {
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(_T("%llu"), static_cast<unsigned long long>(value));
        ShowText(control, text);
        return;
    }
    unsigned long long read = 0;
    if (!ReadUnsigned(ControlText(control), std::numeric_limits<Value>::max(), read))
        FailWithPrompt(pDX, idPrompt);
    value = static_cast<Value>(read);
}

template <class Value> void ExchangeReal(CDataExchange* pDX, int nIDC, Value& value, int digits) {
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate) {
        CString text;
        text.Format(_T("%.*g"), digits, static_cast<double>(value));
        ShowText(control, text);
        return;
    }
    double read = 0;
    if (!ReadReal(ControlText(control), std::numeric_limits<Value>::max(), read))
        FailWithPrompt(pDX, AFX_IDP_PARSE_REAL);
    value = static_cast<Value>(read);
}

} // namespace

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    ExchangeUnsigned(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    ExchangeUnsigned(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    ExchangeSigned(pDX, nIDC, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    ExchangeUnsigned(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND const control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ControlText(control);
    else
        ShowText(control, value);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value) {
    ExchangeReal(pDX, nIDC, value, FLT_DIG);
}

void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value) {
    ExchangeReal(pDX, nIDC, value, DBL_DIG);
}

void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars) {
    if (pDX->m_bSaveAndValidate) {
        if (value.GetLength() <= nChars)
            return;
        CString limit;
        limit.Format(_T("%d"), nChars);
        FailWithPrompt(pDX, AFX_IDP_PARSE_STRING_SIZE, limit);
    }
    if (pDX->m_hWndLastControl == nullptr || !pDX->m_bEditLastControl)
        return;
    // A combo box needs CB_LIMITTEXT. An edit control needs EM_LIMITTEXT and could take the number of
    // CB_LIMITTEXT for another message.
    TCHAR className[16] = {};
    ::GetClassName(pDX->m_hWndLastControl, className, _countof(className));
    const UINT message = ::lstrcmpi(className, _T("COMBOBOX")) == 0 ? CB_LIMITTEXT : EM_LIMITTEXT;
    ::SendMessage(pDX->m_hWndLastControl, message, static_cast<WPARAM>(nChars), 0);
}
