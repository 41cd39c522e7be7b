#include "afx/WindowDC.h"

#include "mfc/gdi/Handles.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CMetaFileDC::~CMetaFileDC() {
    if (m_hDC == nullptr)
        return;
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC)
        ::DeleteEnhMetaFile(CloseEnhanced());
    else
        ::DeleteMetaFile(Close());
}

BOOL CMetaFileDC::Create(LPCTSTR lpszFilename) {
    if (!Attach(::CreateMetaFile(lpszFilename)))
        return FALSE;
    ReleaseAttribDC(); // a recording cannot answer for a device
    return TRUE;
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                                 LPCTSTR lpszDescription) {
    HDC const reference = pDCRef == nullptr ? nullptr : pDCRef->m_hAttribDC;
    if (!Attach(::CreateEnhMetaFile(reference, lpszFileName, lpBounds, lpszDescription)))
        return FALSE;
    ReleaseAttribDC();
    return TRUE;
}

HMETAFILE CMetaFileDC::Close() {
    return ::CloseMetaFile(Detach());
}

HENHMETAFILE CMetaFileDC::CloseEnhanced() {
    return ::CloseEnhMetaFile(Detach());
}
