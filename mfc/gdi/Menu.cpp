// SPDX-License-Identifier: MIT
// CMenu.

#include "afx/Menu.h"

#include "afx/GdiObject.h"
#include "afx/Module.h"
#include "afx/Wnd.h"
#include "mfc/gdi/Handles.h"
#include "mfc/gdi/ThreadMaps.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {
LPCTSTR BitmapItem(const CBitmap* bitmap) {
    return reinterpret_cast<LPCTSTR>(SafeHandle(bitmap));
}
HBITMAP BitmapHandle(const CBitmap* bitmap) {
    return static_cast<HBITMAP>(SafeHandle(bitmap));
}
} // namespace

std::unique_ptr<CMenu> MenuTraits::Wrap(HMENU handle) {
    auto menu = std::make_unique<CMenu>();
    menu->m_hMenu = handle;
    return menu;
}

void MenuTraits::Unwrap(CMenu& menu) {
    menu.m_hMenu = nullptr;
}

CMenu::~CMenu() {
    if (m_hMenu != nullptr)
        DestroyMenu();
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    ThreadGdiMaps* const maps = GdiMaps();
    CMenu* const menu = maps == nullptr ? nullptr : maps->menus.FromHandle(hMenu);
    if (menu != nullptr)
        menu->m_hMenu = hMenu; // a program may have called Detach() or DestroyMenu() on the wrapper
    return menu;
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) {
    ThreadGdiMaps* const maps = MadeGdiMaps();
    return maps == nullptr ? nullptr : maps->menus.Permanent(hMenu);
}

void PASCAL CMenu::DeleteTempMap() {
    if (ThreadGdiMaps* const maps = MadeGdiMaps())
        maps->menus.DeleteTemporaries();
}

HMENU CMenu::GetSafeHmenu() const {
    // The call is allowed on a NULL object. `volatile` keeps the compiler from removing the test.
    const CMenu* volatile self = this;
    return self == nullptr ? nullptr : m_hMenu;
}

BOOL CMenu::Attach(HMENU hMenu) {
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr)
        return FALSE;
    if (ThreadGdiMaps* const maps = GdiMaps())
        maps->menus.SetPermanent(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = m_hMenu;
    m_hMenu = nullptr;
    ThreadGdiMaps* const maps = MadeGdiMaps();
    if (handle != nullptr && maps != nullptr && maps->menus.Permanent(handle) == this)
        maps->menus.Remove(handle);
    return handle;
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = Detach();
    return handle != nullptr && ::DestroyMenu(handle);
}

BOOL CMenu::CreateMenu() {
    return AttachNew(*this, ::CreateMenu(), ::DestroyMenu);
}

BOOL CMenu::CreatePopupMenu() {
    return AttachNew(*this, ::CreatePopupMenu(), ::DestroyMenu);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    HINSTANCE const module = AfxFindResourceHandle(lpszResourceName, RT_MENU);
    return AttachNew(*this, ::LoadMenu(module, lpszResourceName), ::DestroyMenu);
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate) {
    return AttachNew(*this, ::LoadMenuIndirect(lpMenuTemplate), ::DestroyMenu);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, BitmapItem(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, BitmapHandle(pBmpUnchecked),
                                BitmapHandle(pBmpChecked));
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const {
    const int copied = ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    if (lpString != nullptr && nMaxCount > 0)
        lpString[nMaxCount - 1] = 0; // Wine does not terminate a text that it cuts
    return copied;
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0) {
        rString.Empty();
        return 0;
    }
    const int copied = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, SafeHandle(pWnd), lpRect);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {
}
