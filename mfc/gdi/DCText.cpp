// SPDX-License-Identifier: MIT
// CDC: text and its measures.

#include "afx/DC.h"
#include "mfc/gdi/Handles.h"

namespace {
/// Width in the low word, height in the high word.
CSize Unpacked(DWORD extent) {
    return CSize(LOWORD(extent), HIWORD(extent));
}

CSize TextExtent(HDC dc, LPCTSTR text, int count) {
    SIZE size{};
    ::GetTextExtentPoint32(dc, text, count, &size);
    return size;
}
} // namespace

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin) {
    return Unpacked(static_cast<DWORD>(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin)));
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                     int x, int y, int nWidth, int nHeight) {
    return ::GrayString(m_hDC, BrushHandle(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return TextExtent(m_hDC, lpszString, nCount);
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const {
    return Unpacked(
        ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
}

int CDC::GetTextFace(CString& rString) const {
    const int needed = ::GetTextFace(m_hAttribDC, 0, nullptr); // includes the terminating zero
    if (needed <= 0) {
        rString.Empty();
        return 0;
    }
    const int copied = ::GetTextFace(m_hAttribDC, needed, rString.GetBuffer(needed));
    rString.ReleaseBuffer();
    return copied;
}

CSize CDC::GetAspectRatioFilter() const {
    SIZE size{};
    ::GetAspectRatioFilterEx(m_hDC, &size);
    return size;
}
