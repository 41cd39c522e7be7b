// SPDX-License-Identifier: MIT
// DDV_ routines for ranges.

#include <afxdd_.h>
#include <afxres.h>
#include <afxwin.h>

#include "mfc/dialog/Prompt.h"

#include <cfloat>

namespace {

CString Text(long long value) {
    CString text;
    text.Format(_T("%lld"), value);
    return text;
}

CString Text(double value, int digits) {
    CString text;
    text.Format(_T("%.*g"), digits, value);
    return text;
}

void CheckInteger(CDataExchange* pDX, long long value, long long lowest, long long highest) {
    ASSERT(lowest <= highest);
    if (pDX->m_bSaveAndValidate && (value < lowest || value > highest))
        FailWithPrompt(pDX, AFX_IDP_PARSE_INT_RANGE, Text(lowest), Text(highest));
}

void CheckReal(CDataExchange* pDX, double value, double lowest, double highest, int digits) {
    ASSERT(lowest <= highest);
    const bool inside = value >= lowest && value <= highest; // also false for NaN
    if (pDX->m_bSaveAndValidate && !inside)
        FailWithPrompt(pDX, AFX_IDP_PARSE_REAL_RANGE, Text(lowest, digits), Text(highest, digits));
}

} // namespace

void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}

void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal) {
    CheckReal(pDX, value, minVal, maxVal, FLT_DIG);
}

void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal) {
    CheckReal(pDX, value, minVal, maxVal, DBL_DIG);
}

void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    CheckInteger(pDX, value, minVal, maxVal);
}
