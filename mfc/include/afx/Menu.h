#pragma once

#include "afx/Export.h"
#include <afx.h>

class CBitmap;
class CWnd;

/// A menu and the handle it owns. The destructor destroys the menu unless it was detached before: detach a
/// menu that a window shows (the window destroys it), and give up submenus that were appended to another
/// menu.
class MFC_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

public:
    /// The handle, or NULL. Change it by Attach() and Detach() only.
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override;

    /// The permanent object of `hMenu`, else a temporary one; NULL for a NULL handle.
    static CMenu* PASCAL FromHandle(HMENU hMenu);
    /// The permanent object of `hMenu`, or NULL.
    static CMenu* PASCAL FromHandlePermanent(HMENU hMenu);
    /// Deletes the temporaries of the calling thread; their handles stay.
    static void PASCAL DeleteTempMap();

    operator HMENU() const { return m_hMenu; }
    BOOL operator==(const CMenu& menu) const { return m_hMenu == menu.m_hMenu; }
    BOOL operator!=(const CMenu& menu) const { return m_hMenu != menu.m_hMenu; }
    /// The handle; NULL also for a NULL object.
    HMENU GetSafeHmenu() const;

    /// Takes ownership of `hMenu`. FALSE for NULL. Throws CMemoryException* when memory runs out; the menu
    /// stays the caller's.
    BOOL Attach(HMENU hMenu);
    /// Gives the handle away.
    HMENU Detach();
    BOOL DestroyMenu();

    /// FALSE on failure, as the other creators.
    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /// Loads from the first module of the resource chain that holds the menu.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);

    /// Items are named by command (MF_BYCOMMAND) or by position from 0 (MF_BYPOSITION). With MF_POPUP the new
    /// item's "ID" is the submenu's handle, which this menu then owns.
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
    /// Takes the item out; a submenu survives and is the caller's.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    /// Takes the item out and destroys its submenu.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }

    /// The former check state (MF_CHECKED or MF_UNCHECKED); 0xFFFFFFFF if there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) {
        return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
    }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    /// The former state (MF_ENABLED, MF_GRAYED, MF_DISABLED); 0xFFFFFFFF if there is no such item.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    /// Command or position of the default item; 0xFFFFFFFF if there is none.
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);

    /// 0xFFFFFFFF if the menu is not valid.
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    /// 0 for a separator; 0xFFFFFFFF for a submenu and beyond the end.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    /// MF_ flags; for a submenu the item count is in the high byte of the low word. 0xFFFFFFFF: no such item.
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    /// Copies at most `nMaxCount` - 1 characters and a zero; returns the characters copied.
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    /// The whole text; empty if there is no such item.
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    /// Temporary, or the permanent object of the submenu; NULL if the item is none.
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

    /// Shows a popup menu at screen position (x, y); its command goes to `pWnd`. With TPM_RETURNCMD the
    /// result is the command chosen, else nonzero for success. `lpRect` is ignored by the system since
    /// Windows 95.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);

    /// Owner-draw items: override both. The defaults draw and measure nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
