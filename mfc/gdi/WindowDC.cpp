// SPDX-License-Identifier: MIT
// CPaintDC, CClientDC, CWindowDC and CMetaFileDC.

#include "afx/WindowDC.h"

#include "mfc/gdi/Handles.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!AttachNew(*this, ::BeginPaint(m_hWnd, &m_ps), [this](HDC) { ::EndPaint(m_hWnd, &m_ps); }))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!AttachNew(*this, ::GetDC(m_hWnd), [this](HDC dc) { ::ReleaseDC(m_hWnd, dc); }))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(SafeHandle(pWnd)) {
    if (!AttachNew(*this, ::GetWindowDC(m_hWnd), [this](HDC dc) { ::ReleaseDC(m_hWnd, dc); }))
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
    const auto discard = [](HDC dc) { ::DeleteMetaFile(::CloseMetaFile(dc)); };
    if (!AttachNew(*this, ::CreateMetaFile(lpszFilename), discard))
        return FALSE;
    ReleaseAttribDC(); // a recording has no device that could answer questions
    return TRUE;
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds,
                                 LPCTSTR lpszDescription) {
    HDC const reference = pDCRef == nullptr ? nullptr : pDCRef->m_hAttribDC;
    const auto discard = [](HDC dc) { ::DeleteEnhMetaFile(::CloseEnhMetaFile(dc)); };
    if (!AttachNew(*this, ::CreateEnhMetaFile(reference, lpszFileName, lpBounds, lpszDescription), discard))
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
