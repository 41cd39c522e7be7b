// SPDX-License-Identifier: MIT
// Dialog data exchange (DDX_) and validation (DDV_) routines.
#pragma once

#include "afx/DataExchange.h"
#include <afx.h>

class CListBox;
class CComboBox;

/// Dialog data exchange. Each DDX_ routine copies one value between a member and a control, in the direction
/// of `pDX->m_bSaveAndValidate`. Call the routines from DoDataExchange() only. If the input is not a value of
/// the member's type, the routine shows a message and throws CUserException*. CWnd::UpdateData() catches that
/// exception and returns FALSE.

/// Text of a control. Numbers are decimal, and blanks may surround them. Real numbers are shown with at most
/// 6 (float) or 15 (double) significant digits.
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);

/// State of a check box: 0, 1 or 2 (indeterminate). Another value is shown as 0.
void MFC_API AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// Number, from 0, of the chosen button in the group that starts at `nIDC`; -1 if no button is chosen. The
/// first button has the style WS_GROUP.
void MFC_API AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);

/// Selection of a list box or combo box: the index (-1 for none), the first item that begins with the text,
/// or the item that equals the text. Searches for a text ignore the case.
void MFC_API AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
void MFC_API AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// Text of a combo box. If no item begins with the text (Exact: equals the text), the text goes into the edit
/// field.
void MFC_API AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);

/// Position of a scroll bar control.
void MFC_API AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
/// Position of a slider (trackbar).
void MFC_API AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

/// Binds `rControl` to the control by subclassing the control's window. Later calls for a bound object do
/// nothing. Throws CNotSupportedException* if the window has no such control.
void MFC_API AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

/// Validation of a range. Call the routine directly after the DDX_ routine of the value. While saving, a
/// value outside the range shows a message and throws CUserException*.
void MFC_API AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
void MFC_API AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
void MFC_API AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
void MFC_API AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
void MFC_API AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
void MFC_API AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
void MFC_API AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
void MFC_API AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal);
void MFC_API AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
/// Validation of a length in bytes. While saving, a longer text shows a message and throws CUserException*.
/// While loading, the routine limits the number of characters that the user can type.
void MFC_API AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
