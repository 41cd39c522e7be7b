#pragma once

#include "afx/DC.h"

class CWnd;

/// The DC of one WM_PAINT: BeginPaint() when made, EndPaint() when it ends.
class MFC_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    /// Throws CResourceException* if no DC can be had.
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    /// What BeginPaint() told: the part to paint, and whether the background still has to be erased.
    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd = nullptr;
};

/// The DC of a window's client area, given back when the object ends.
class MFC_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    /// NULL stands for the whole screen. Throws CResourceException* if no DC can be had.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd = nullptr;
};

/// The DC of a whole window, frame and caption included, given back when the object ends.
class MFC_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    /// NULL stands for the whole screen. Throws CResourceException* if no DC can be had.
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd = nullptr;
};

/// A DC that records what is drawn. It answers no questions about a device until SetAttribDC() gives it one
/// that can. A recording that is never closed is thrown away with the object.
class MFC_API CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC() = default;
    ~CMetaFileDC() override;

    /// Starts a recording in the old format, in memory or in a file.
    BOOL Create(LPCTSTR lpszFilename = nullptr);
    /// Starts an enhanced recording.
    /// @param pDCRef  device it is made for; NULL stands for the screen
    /// @param lpszFileName  file to write to; NULL keeps it in memory
    /// @param lpBounds  frame in units of 0.01 mm; NULL takes the smallest that holds all that is drawn
    /// @param lpszDescription  "program\0title\0\0", or NULL
    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription);

    /// End the recording; the caller owns the result and deletes it. NULL on failure. Use the one that fits
    /// Create...().
    HMETAFILE Close();
    HENHMETAFILE CloseEnhanced();
};
