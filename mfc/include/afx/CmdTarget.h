// SPDX-License-Identifier: MIT
// CCmdTarget, the base of all classes with message maps, and CCmdUI, which updates menu items and buttons.
#pragma once

#include "afx/MessageMap.h"

/// Receives the handler when a caller of CCmdTarget::OnCmdMsg() only asks which handler exists.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;       ///< object with the handler
    void (CCmdTarget::*pmf)(); ///< the handler of a row like ON_COMMAND, of type void(); NULL for other rows
};

/// `pExtra` of CCmdTarget::OnCmdMsg() for a WM_NOTIFY notification.
struct AFX_NOTIFY {
    LRESULT* pResult; ///< receives the handler's result
    NMHDR* pNMHDR;    ///< the notification
};

/// Base of all classes with a message map: windows, threads and the application.
class MFC_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget() = default;

    /// Routes a command or notification to a handler. The base searches the message map of this object;
    /// overrides also ask other objects. `nID` is the ID of the command or control. `nCode` is CN_COMMAND,
    /// CN_UPDATE_COMMAND_UI or a notification code of the control; for a WM_NOTIFY notification, the code is
    /// the low word and WM_NOTIFY the high word. `pExtra` is a CCmdUI* for updates, an AFX_NOTIFY* for
    /// WM_NOTIFY notifications, else NULL. If `pHandlerInfo` is not NULL, the function fills in the handler
    /// and does not call it. Returns nonzero if a handler exists and did not refuse the command.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// Shows the hourglass until the matching EndWaitCursor(). Calls can be nested.
    void BeginWaitCursor();
    void EndWaitCursor();
    /// Shows the hourglass again after another function, such as a message box, changed the cursor.
    void RestoreWaitCursor();

protected:
    friend class CWnd;

    struct AfxMapNames;
    static const AFX_MSGMAP_ENTRY _messageEntries[];
    static const AFX_MSGMAP messageMap;
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// Shows the hourglass while the object exists.
class MFC_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};

/// A user-interface item (menu item, button, pane) during an update. An ON_UPDATE_COMMAND_UI handler receives
/// the object and sets the item's state.
class MFC_API CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;                 ///< command ID of the item
    UINT m_nIndex = 0;              ///< position of the item in the menu or bar
    CMenu* m_pMenu = nullptr;       ///< the menu that contains the item; NULL if the item is not a menu item
    CMenu* m_pSubMenu = nullptr;    ///< the popup that the item opens; NULL if the item opens none
    CMenu* m_pParentMenu = nullptr; ///< the menu or menu bar whose item opens m_pMenu; NULL if there is none
    CWnd* m_pOther = nullptr;       ///< the window that is or contains the item; NULL for menu items
    BOOL m_bEnableChanged = FALSE;  ///< whether a handler called Enable()
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< number of items in the menu or bar

    /// Enables or greys the item.
    virtual void Enable(BOOL bOn = TRUE);
    /// 0 unchecked, 1 checked, 2 undetermined. A menu item shows 2 as checked.
    virtual void SetCheck(int nCheck = 1);
    /// Like SetCheck(), but the mark of a menu item is a dot.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    /// A handler calls the function to pass the update on to the next object, as if the handler did not
    /// exist.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Asks the item's window or, if the window has no handler, `pTarget` to update the item. With
    /// `bDisableIfNoHndler`, if no update handler called Enable(), the function enables the item if `pTarget`
    /// has a handler for the command, and greys the item otherwise.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
