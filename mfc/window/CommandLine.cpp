// SPDX-License-Identifier: MIT
// CCommandLineInfo: the conventional flags of a command line.

#include "afx/App.h"

void CCommandLineInfo::ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast) {
    if (bFlag)
        ParseParamFlag(pszParam);
    else
        ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParamFlag(LPCTSTR pszParam) {
    const auto is = [&](LPCTSTR flag) { return ::lstrcmp(pszParam, flag) == 0; };
    const auto isAnyCase = [&](LPCTSTR flag) { return ::lstrcmpi(pszParam, flag) == 0; };
    if (is(TEXT("pt")))
        m_nShellCommand = FilePrintTo;
    else if (is(TEXT("p")))
        m_nShellCommand = FilePrint;
    else if (isAnyCase(TEXT("Register")) || isAnyCase(TEXT("Regserver")))
        m_nShellCommand = AppRegister;
    else if (isAnyCase(TEXT("Unregister")) || isAnyCase(TEXT("Unregserver")))
        m_nShellCommand = AppUnregister;
    else if (is(TEXT("dde")))
        m_nShellCommand = FileDDE;
    else if (isAnyCase(TEXT("Embedding"))) {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    } else if (isAnyCase(TEXT("Automation"))) {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
}

void CCommandLineInfo::ParseParamNotFlag(LPCTSTR pszParam) {
    if (m_strFileName.IsEmpty())
        m_strFileName = pszParam;
    else if (m_nShellCommand == FilePrintTo && m_strPrinterName.IsEmpty())
        m_strPrinterName = pszParam;
    else if (m_nShellCommand == FilePrintTo && m_strDriverName.IsEmpty())
        m_strDriverName = pszParam;
    else if (m_nShellCommand == FilePrintTo && m_strPortName.IsEmpty())
        m_strPortName = pszParam;
}

void CCommandLineInfo::ParseLast(BOOL bLast) {
    if (!bLast)
        return;
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}
