// SPDX-License-Identifier: MIT
// CMenu, a menu and the handle that it owns.
#pragma once

#include "afx/Export.h"
#include <afx.h>

class CBitmap;
class CWnd;

/// A menu and the handle that it owns. The destructor destroys the menu unless Detach() was called before.
/// Detach a menu that a window shows, because the window destroys it. Detach a submenu that was appended to
/// another menu, because the other menu destroys it.
class MFC_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

public:
    /// The handle, or NULL. Only Attach() and Detach() change the member.
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override;

    /// The attached object of `hMenu`, else a temporary one. NULL for a NULL handle.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    /// The attached object of `hMenu`, or NULL.
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    /// Deletes the temporary objects of the calling thread. The handles stay valid.
    static void PASCAL DeleteTempMap();

    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& menu) const { return m_hMenu == menu.m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return m_hMenu != menu.m_hMenu; }
    /// The handle. The call is allowed on a NULL object and then returns NULL.
    HMENU GetSafeHmenu() const;

    /// Takes ownership of `hMenu`. FALSE for a NULL handle. Throws CMemoryException* if memory runs out; the
    /// caller then keeps the menu.
    BOOL Attach(HMENU hMenu);
    /// Releases ownership: the caller destroys the menu.
    HMENU Detach();
    BOOL DestroyMenu();

    /// The creator functions return FALSE on failure.
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /// Loads the menu from the first module of the resource chain that contains it.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);

    /// Items are identified by command (MF_BYCOMMAND) or by position from 0 (MF_BYPOSITION). With MF_POPUP,
    /// `nIDNewItem` is the handle of the submenu, and this menu owns the submenu from now on.
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    /// Removes the item. A submenu stays valid, and the caller destroys it.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    /// Removes the item and destroys its submenu.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }

    /// Returns the former check state, MF_CHECKED or MF_UNCHECKED; 0xFFFFFFFF if the item does not exist.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    /// Returns the former state, MF_ENABLED, MF_GRAYED or MF_DISABLED; 0xFFFFFFFF if the item does not exist.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    /// Command or position of the default item; 0xFFFFFFFF if there is no default item.
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);

    /// 0xFFFFFFFF if the menu is invalid.
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    /// 0 for a separator; 0xFFFFFFFF for a submenu and for positions beyond the end.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    /// MF_ flags. For a submenu, the high byte of the low word is the number of items. 0xFFFFFFFF if the item
    /// does not exist.
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    /// Copies at most `nMaxCount` - 1 characters and a zero. Returns the number of characters.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    /// Copies the whole text; empty if the item does not exist.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /// The attached or temporary object of the submenu; NULL if the item is not a submenu.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId) {
        return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
    }
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }

    /// Shows a popup menu at the screen position (x, y). `pWnd` receives the command. With TPM_RETURNCMD the
    /// result is the chosen command, else nonzero for success. Windows ignores `lpRect`.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);

    /// Override both functions for owner-drawn items. The defaults do nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
