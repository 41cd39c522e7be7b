// SPDX-License-Identifier: MIT
// The DCs of windows and of metafiles.
#pragma once

#include "afx/DC.h"

class CWnd;

/// The DC for one WM_PAINT message. The constructor calls BeginPaint(), the destructor EndPaint().
class MFC_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// Throws CResourceException* if the system has no DC.
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    /// The record of BeginPaint(): the rectangle to paint, and whether the background must be erased.
    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd = nullptr;
};

/// The DC of a window's client area. The destructor releases the DC.
class MFC_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    /// NULL stands for the screen. Throws CResourceException* if the system has no DC.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd = nullptr;
};

/// The DC of a whole window with frame and caption. The destructor releases the DC.
class MFC_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// NULL stands for the screen. Throws CResourceException* if the system has no DC.
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd = nullptr;
};

/// A DC that records drawing. m_hAttribDC is NULL after creation, so GetDeviceCaps() and other functions that
/// read attributes work only after SetAttribDC(). The destructor ends a recording that was not closed; a
/// recording in memory is lost, a recording in a file stays.
class MFC_API CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC() = default;
    ~CMetaFileDC() override;

    /// Starts a recording in the old metafile format, in memory or in a file.
    BOOL Create(LPCTSTR lpszFilename = nullptr);
    /// Starts an enhanced recording. `pDCRef` is the reference device; NULL stands for the screen.
    /// `lpszFileName` names a file; NULL keeps the recording in memory. `lpBounds` is the frame in units of
    /// 0.01 mm; NULL takes the smallest frame around the drawing. `lpszDescription` is "program\0title\0\0"
    /// or NULL.
    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription);

    /// End the recording. The caller owns the result and deletes it. NULL on failure. Close() belongs to
    /// Create(), CloseEnhanced() to CreateEnhanced().
    HMETAFILE Close();
    HENHMETAFILE CloseEnhanced();
};
