#pragma once

#include "afx/MessageMap.h"

/// What CCmdTarget::OnCmdMsg() fills in instead of calling the handler.
struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;       ///< object that would handle the command
    void (CCmdTarget::*pmf)(); ///< its handler, if that takes no arguments; else NULL
};

/// `pExtra` of CCmdTarget::OnCmdMsg() for a WM_NOTIFY notification.
struct AFX_NOTIFY {
    LRESULT* pResult; ///< receives the handler's answer
    NMHDR* pNMHDR;    ///< the notification
};

/// Base of everything that can have a message map: windows, threads and the application.
class MFC_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget() = default;

    /// Routes one command or notification. The base looks through this object's message map; overrides go on
    /// to further objects.
    /// @param nID  command or control ID
    /// @param nCode  CN_COMMAND, CN_UPDATE_COMMAND_UI, or a control's notification code
    /// @param pExtra  CCmdUI* for updates, AFX_NOTIFY* for WM_NOTIFY notifications, else NULL
    /// @param pHandlerInfo  if not NULL the handler is only told, not called
    /// @return nonzero if the command was handled
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// Shows the hourglass until the matching EndWaitCursor(); calls nest.
    void BeginWaitCursor();
    void EndWaitCursor();
    /// Shows the hourglass again after something else (a message box, say) changed the cursor.
    void RestoreWaitCursor();

protected:
    friend class CWnd;

    struct AfxMapNames;
    static const AFX_MSGMAP_ENTRY _messageEntries[];
    static const AFX_MSGMAP messageMap;
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// Shows the hourglass as long as it lives.
class MFC_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};

/// One user-interface item (menu item, button, pane) that is being brought up to date. ON_UPDATE_COMMAND_UI
/// handlers get one and say how the item shall look.
class MFC_API CCmdUI {
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;                 ///< command ID of the item
    UINT m_nIndex = 0;              ///< its position in the menu or bar
    CMenu* m_pMenu = nullptr;       ///< the menu that holds it, if a menu does
    CMenu* m_pSubMenu = nullptr;    ///< the popup that the item opens, if it does
    CMenu* m_pParentMenu = nullptr; ///< the menu that holds m_pMenu, for popups of a menu bar
    CWnd* m_pOther = nullptr;       ///< the window that is the item or holds it, if it is no menu item
    BOOL m_bEnableChanged = FALSE;  ///< whether Enable() was called
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< number of items in the menu or bar

    /// Enables or greys the item.
    virtual void Enable(BOOL bOn = TRUE);
    /// 0 unchecked, 1 checked, 2 undetermined (shown by buttons only).
    virtual void SetCheck(int nCheck = 1);
    /// As SetCheck(), with a radio button's dot.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    /// Makes the framework ask the next object in the command's route, as if there were no handler here.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Asks `pTarget` to update the item. With `bDisableIfNoHndler` the item is greyed when no update handler
    /// called Enable() and nobody would handle the command.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
