// SPDX-License-Identifier: MIT
// CDC: handles, creation, saved states. The other members are in the other DC*.cpp files.

#include "afx/DC.h"

#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

std::unique_ptr<CDC> DCTraits::Wrap(HDC handle) {
    auto dc = std::make_unique<CDC>();
    dc->m_hDC = handle;
    dc->m_hAttribDC = handle;
    return dc;
}

void DCTraits::Unwrap(CDC& dc) {
    dc.m_hDC = nullptr;
    dc.m_hAttribDC = nullptr;
}

CDC::~CDC() {
    if (m_hDC != nullptr)
        ::DeleteDC(Detach());
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    ThreadGdiMaps* const maps = GdiMaps();
    CDC* const dc = maps == nullptr ? nullptr : maps->dcs.FromHandle(hDC);
    if (dc != nullptr && dc->m_hDC != hDC) { // a program has called Detach() on the wrapper
        dc->m_hDC = hDC;
        dc->m_hAttribDC = hDC;
    }
    return dc;
}

void PASCAL CDC::DeleteTempMap() {
    if (ThreadGdiMaps* const maps = MadeGdiMaps())
        maps->dcs.DeleteTemporaries();
}

HDC CDC::GetSafeHdc() const {
    // The call is allowed on a NULL object. `volatile` keeps the compiler from removing the test.
    const CDC* volatile self = this;
    return self == nullptr ? nullptr : m_hDC;
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::Attach(HDC hDC) {
    ASSERT(m_hDC == nullptr);
    if (hDC == nullptr)
        return FALSE;
    if (ThreadGdiMaps* const maps = GdiMaps())
        maps->dcs.SetPermanent(hDC, this);
    SetOutputDC(hDC);
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    const HDC handle = m_hDC;
    ThreadGdiMaps* const maps = MadeGdiMaps();
    if (handle != nullptr && maps != nullptr && maps->dcs.Permanent(handle) == this)
        maps->dcs.Remove(handle);
    ReleaseAttribDC();
    ReleaseOutputDC();
    return handle;
}

void CDC::SetAttribDC(HDC hDC) {
    m_hAttribDC = hDC;
}

void CDC::SetOutputDC(HDC hDC) {
    m_hDC = hDC;
}

void CDC::ReleaseAttribDC() {
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC() {
    m_hDC = nullptr;
}

BOOL CDC::IsPrinting() const {
    return ::GetObjectType(m_hDC) == OBJ_DC && ::GetDeviceCaps(m_hDC, TECHNOLOGY) == DT_RASPRINTER;
}

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    const auto* const mode = static_cast<const DEVMODE*>(lpInitData);
    return AttachNew(*this, ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, mode), ::DeleteDC);
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    const auto* const mode = static_cast<const DEVMODE*>(lpInitData);
    return AttachNew(*this, ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, mode), ::DeleteDC);
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return AttachNew(*this, ::CreateCompatibleDC(SafeHandle(pDC)), ::DeleteDC);
}

BOOL CDC::DeleteDC() {
    const HDC handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

BOOL CDC::ResetDC(const DEVMODE* lpDevMode) {
    return ::ResetDC(m_hAttribDC, lpDevMode) != nullptr;
}

int CDC::SaveDC() {
    if (m_hDC == m_hAttribDC || m_hAttribDC == nullptr || m_hDC == nullptr)
        return ::SaveDC(m_hDC != nullptr ? m_hDC : m_hAttribDC);
    // The two DCs count their saved states separately. Only -1, the latest state, has the same meaning
    // for both.
    const bool saved = ::SaveDC(m_hAttribDC) != 0;
    return ::SaveDC(m_hDC) != 0 && saved ? -1 : 0;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    const bool two = m_hDC != nullptr && m_hAttribDC != nullptr && m_hDC != m_hAttribDC;
    ASSERT(!two || nSavedDC < 0);
    const BOOL restored = ::RestoreDC(m_hDC != nullptr ? m_hDC : m_hAttribDC, nSavedDC);
    return two ? ::RestoreDC(m_hAttribDC, nSavedDC) && restored : restored;
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData) {
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}
