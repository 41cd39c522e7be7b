// SPDX-License-Identifier: MIT
// CToolTipCtrl.

#include "afx/CommonControls.h"

#include "mfc/control/CommonControlInit.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace {

/// The record of a tool. With `id` 0, the tool is the whole of `window`, and messages about the tool go to
/// the parent. Else the tool is a part of `window`, whose rectangle the caller sets. The record points to
/// `text`.
TOOLINFO ToolOf(const CWnd& window, UINT_PTR id, LPCTSTR text = nullptr) {
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    tool.lpszText = const_cast<LPTSTR>(text);
    if (id != 0) {
        tool.hwnd = window.m_hWnd;
        tool.uId = id;
    } else {
        tool.uFlags = TTF_IDISHWND;
        tool.hwnd = ::GetParent(window.m_hWnd);
        tool.uId = reinterpret_cast<UINT_PTR>(window.m_hWnd);
    }
    return tool;
}

LRESULT Tell(HWND tooltip, UINT message, TOOLINFO& tool) {
    return ::SendMessage(tooltip, message, 0, reinterpret_cast<LPARAM>(&tool));
}

constexpr int kMaxTipText = 1024; // size in characters of the buffer for the text of a tool

} // namespace

CToolTipCtrl::~CToolTipCtrl() {
    DestroyWindow();
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    LoadCommonControls(ICC_BAR_CLASSES);
    return CWnd::CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, pParentWnd == nullptr ? nullptr : pParentWnd->m_hWnd,
                          nullptr, nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    ASSERT((lpRectTool != nullptr) == (nIDTool != 0));
    TOOLINFO tool = ToolOf(*pWnd, nIDTool, lpszText);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    return Tell(m_hWnd, TTM_ADDTOOL, tool) != 0;
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString text;
    return text.LoadString(nIDText) && AddTool(pWnd, static_cast<LPCTSTR>(text), lpRectTool, nIDTool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = ToolOf(*pWnd, nIDTool);
    Tell(m_hWnd, TTM_DELTOOL, tool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const {
    TOOLINFO tool = ToolOf(*pWnd, nIDTool);
    tool.lpszText = str.GetBuffer(kMaxTipText);
    tool.lpszText[0] = 0;
    ::SendMessage(m_hWnd, TTM_GETTEXT, kMaxTipText, reinterpret_cast<LPARAM>(&tool));
    str.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = ToolOf(*pWnd, nIDTool, lpszText);
    Tell(m_hWnd, TTM_UPDATETIPTEXT, tool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool) {
    CString text;
    if (text.LoadString(nIDText))
        UpdateTipText(static_cast<LPCTSTR>(text), pWnd, nIDTool);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect) {
    TOOLINFO tool = ToolOf(*pWnd, nIDTool);
    tool.rect = *lpRect;
    Tell(m_hWnd, TTM_NEWTOOLRECT, tool);
}

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime) {
    ::SendMessage(m_hWnd, TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}
