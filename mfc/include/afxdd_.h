#pragma once

#include "afx/DataExchange.h"
#include <afx.h>

class CListBox;
class CComboBox;

/// Dialog data exchange: each routine moves one value between a member and a control, in the direction that
/// `pDX->m_bSaveAndValidate` tells. Call them from DoDataExchange() only. Input that cannot be read as the
/// member's type is told to the user and ends the exchange (CUserException*, which CWnd::UpdateData() answers
/// with FALSE).

/// @name Text of a control. Numbers: decimal, with blanks around allowed; floating-point numbers show 6
/// digits (float) or 15 (double).
/// @{
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
void MFC_API AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
/// @}

/// 0, 1 or 2 (indeterminate); another value is shown as 0.
void MFC_API AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The position, from 0, of the chosen button in the group that starts at `nIDC` (which has WS_GROUP); -1 if
/// none is.
void MFC_API AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);

/// @name Lists: the selected index (-1: none), the selected text, or the text that must match exactly
/// @{
void MFC_API AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
void MFC_API AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// The text of the combo box; a text that no item begins with goes into the edit field, if there is one.
void MFC_API AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
void MFC_API AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
/// @}

/// Position of a scroll bar control.
void MFC_API AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
/// Position of a slider (trackbar).
void MFC_API AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);

/// Binds `rControl` to the control by subclassing it, the first time; later calls change nothing. Throws
/// CNotSupportedException* if there is no such control.
void MFC_API AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

/// Validation: call it right after the value's DDX_ routine. When saving, a value out of range is told to the
/// user and ends the exchange as unreadable input does.
void MFC_API AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
void MFC_API AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
void MFC_API AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
void MFC_API AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
void MFC_API AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
void MFC_API AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
void MFC_API AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
void MFC_API AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal);
void MFC_API AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
/// When loading, also limits what can be typed.
void MFC_API AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
