// SPDX-License-Identifier: MIT
// Precompiled header of the recorder program.
#if !defined(AFX_STDAFX_H__RECORDER__INCLUDED_)
#define AFX_STDAFX_H__RECORDER__INCLUDED_

#define VC_EXTRALEAN        // Exclude rarely-used stuff from Windows headers

#include <afxwin.h>         // MFC core and standard components
#include <afxext.h>         // MFC extensions
#include <afxdisp.h>        // MFC Automation classes
#include <afxdtctl.h>       // MFC support for Internet Explorer 4 Common Controls
#include <afxcmn.h>         // MFC support for Windows Common Controls
#include <afxadv.h>
#include <afxmt.h>

#endif // !defined(AFX_STDAFX_H__RECORDER__INCLUDED_)
