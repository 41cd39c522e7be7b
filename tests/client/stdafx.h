// SPDX-License-Identifier: MIT
// Precompiled header of the thermostat program.
#if !defined(AFX_STDAFX_H__THERMOSTAT__INCLUDED_)
#define AFX_STDAFX_H__THERMOSTAT__INCLUDED_

#define VC_EXTRALEAN        // Exclude rarely-used stuff from Windows headers

#include <afxwin.h>         // MFC core and standard components
#include <afxext.h>         // MFC extensions
#include <afxcmn.h>         // MFC support for Windows Common Controls

#endif // !defined(AFX_STDAFX_H__THERMOSTAT__INCLUDED_)
