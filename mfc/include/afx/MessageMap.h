#pragma once

#include "afx/MessageHandler.h"

// Message maps: constant tables that tie a message, a command or a notification to a member function.

/// Added to a message's number when it is handed back to the control that caused it.
#define WM_REFLECT_BASE (WM_USER + 0x1C00)

/// Number used in maps for the whole family WM_CTLCOLORMSGBOX .. WM_CTLCOLORSTATIC.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

/// `nCode` of CCmdTarget::OnCmdMsg() for a menu or accelerator command.
#define CN_COMMAND 0
/// `nCode` of CCmdTarget::OnCmdMsg() for a request to update the command's user interface.
#define CN_UPDATE_COMMAND_UI (-1)

/// One row of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;  ///< message; WM_COMMAND or WM_NOTIFY with nCode and the IDs; AFX_REGISTERED with
                    ///< pnRegistered
    UINT nCode;     ///< notification code, CN_COMMAND, CN_UPDATE_COMMAND_UI; 0 for window messages
    UINT nID;       ///< first control or command ID; 0 for window messages
    UINT nLastID;   ///< last control or command ID
    AfxSig nSig;    ///< how the handler is called
    AfxHandler pfn; ///< the handler
    const UINT* pnRegistered = nullptr; ///< variable that holds a registered message's number
};

/// nMessage of rows made by ON_REGISTERED_MESSAGE.
#define AFX_REGISTERED 0xC000u

/// A class's message map: its rows, and how to reach the base class's map. The base is reached through a
/// function of the class itself, so that the map is constant data also when the base lives in another module.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< NULL at the root
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< ends with AfxSig::End
};

/// Finds the row for a window message (`nCode` and `nID` 0) or a command in one table; NULL if there is none.
MFC_API const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode,
                                                    UINT nID);

/// Declares the message map of a class. Members that follow are private until an access specifier says
/// otherwise.
#define DECLARE_MESSAGE_MAP()                                                                                \
private:                                                                                                     \
    struct AfxMapNames;                                                                                      \
    static const AFX_MSGMAP_ENTRY _messageEntries[];                                                         \
    static const AFX_MSGMAP* _GetBaseMessageMap();                                                           \
                                                                                                             \
protected:                                                                                                   \
    static const AFX_MSGMAP messageMap;                                                                      \
    AFX_BEGIN_IMPLIED_OVERRIDES                                                                              \
    virtual const AFX_MSGMAP* GetMessageMap() const;                                                         \
    AFX_END_IMPLIED_OVERRIDES                                                                                \
                                                                                                             \
private:

/// Begins the message map of `theClass`, which continues in the map of `baseClass`.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    struct theClass::AfxMapNames {                                                                           \
        using Class = theClass;                                                                              \
    };                                                                                                       \
    const AFX_MSGMAP* theClass::_GetBaseMessageMap() {                                                       \
        return &baseClass::messageMap;                                                                       \
    }                                                                                                        \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                      \
        return &theClass::messageMap;                                                                        \
    }                                                                                                        \
    const AFX_MSGMAP theClass::messageMap = {&theClass::_GetBaseMessageMap, theClass::_messageEntries};      \
    const AFX_MSGMAP_ENTRY theClass::_messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, AfxSig::End, AfxHandler() }                                                                \
    }                                                                                                        \
    ;

// Rows for commands: `void OnFoo()`, `BOOL OnFoo(UINT id)` (FALSE keeps the command going), `void OnFoo(UINT
// id)`.

#define ON_COMMAND(id, memberFxn)                                                                            \
    {WM_COMMAND,                                                                                             \
     CN_COMMAND,                                                                                             \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(id),                                                                                  \
     AfxSig::Command,                                                                                        \
     static_cast<void (CCmdTarget::*)()>(memberFxn)},
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                              \
    {WM_COMMAND,                                                                                             \
     CN_COMMAND,                                                                                             \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::CommandRange,                                                                                   \
     static_cast<void (CCmdTarget::*)(UINT)>(memberFxn)},
#define ON_COMMAND_EX(id, memberFxn) ON_COMMAND_EX_RANGE(id, id, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                           \
    {WM_COMMAND,                                                                                             \
     CN_COMMAND,                                                                                             \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::CommandEx,                                                                                      \
     static_cast<BOOL (CCmdTarget::*)(UINT)>(memberFxn)},

// Rows for command user interface: `void OnUpdateFoo(CCmdUI*)`.

#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                    \
    {WM_COMMAND,                                                                                             \
     static_cast<UINT>(CN_UPDATE_COMMAND_UI),                                                                \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::UpdateUI,                                                                                       \
     static_cast<void (CCmdTarget::*)(CCmdUI*)>(memberFxn)},
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                              \
    {WM_REFLECT_BASE + WM_COMMAND,                                                                           \
     static_cast<UINT>(CN_UPDATE_COMMAND_UI),                                                                \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::UpdateUI,                                                                                       \
     static_cast<void (CCmdTarget::*)(CCmdUI*)>(memberFxn)},

// Rows for control notifications that come as WM_COMMAND: `void OnFoo()`, ranges `void OnFoo(UINT id)`.

#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    {WM_COMMAND,                                                                                             \
     static_cast<UINT>(wNotifyCode),                                                                         \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(id),                                                                                  \
     AfxSig::Command,                                                                                        \
     static_cast<void (CCmdTarget::*)()>(memberFxn)},
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                 \
    {WM_COMMAND,                                                                                             \
     static_cast<UINT>(wNotifyCode),                                                                         \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::CommandRange,                                                                                   \
     static_cast<void (CCmdTarget::*)(UINT)>(memberFxn)},
/// The control's own handler, `void OnFoo()`; the parent does not see the notification.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    {WM_REFLECT_BASE + WM_COMMAND,                                                                           \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::Command,                                                                                        \
     static_cast<void (CCmdTarget::*)()>(memberFxn)},
/// The control's own handler, `BOOL OnFoo()`; after FALSE the parent sees the notification too.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    {WM_REFLECT_BASE + WM_COMMAND,                                                                           \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::ControlReflectEx,                                                                               \
     static_cast<BOOL (CCmdTarget::*)()>(memberFxn)},

// Rows for control notifications that come as WM_NOTIFY: `void OnFoo(NMHDR*, LRESULT*)`, ranges with the ID
// in front.

#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                \
    {WM_NOTIFY,                                                                                              \
     static_cast<UINT>(wNotifyCode),                                                                         \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(id),                                                                                  \
     AfxSig::Notify,                                                                                         \
     static_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn)},
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                  \
    {WM_NOTIFY,                                                                                              \
     static_cast<UINT>(wNotifyCode),                                                                         \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::NotifyRange,                                                                                    \
     static_cast<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(memberFxn)},
/// `BOOL OnFoo(UINT id, NMHDR*, LRESULT*)`; FALSE keeps the notification going.
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) ON_NOTIFY_EX_RANGE(wNotifyCode, id, id, memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    {WM_NOTIFY,                                                                                              \
     static_cast<UINT>(wNotifyCode),                                                                         \
     static_cast<WORD>(id),                                                                                  \
     static_cast<WORD>(idLast),                                                                              \
     AfxSig::NotifyEx,                                                                                       \
     static_cast<BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(memberFxn)},
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                            \
    {WM_REFLECT_BASE + WM_NOTIFY,                                                                            \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::Notify,                                                                                         \
     static_cast<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn)},
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                         \
    {WM_REFLECT_BASE + WM_NOTIFY,                                                                            \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::NotifyReflectEx,                                                                                \
     static_cast<BOOL (CCmdTarget::*)(NMHDR*, LRESULT*)>(memberFxn)},

// Rows for messages by number: `LRESULT OnFoo(WPARAM, LPARAM)`.

#define ON_MESSAGE(message, memberFxn)                                                                       \
    {static_cast<UINT>(message),                                                                             \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig::Message,                                                                                        \
     static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn)},
/// `nMessageVariable` is a UINT variable that RegisterWindowMessage() has filled by the time messages arrive.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    {AFX_REGISTERED,   0, 0, 0, AfxSig::Message, static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn),  \
     &nMessageVariable},
/// Message without a window, posted to a CWinThread: `void OnFoo(WPARAM, LPARAM)`.
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                \
    {static_cast<UINT>(message),                                                                             \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig::ThreadMessage,                                                                                  \
     static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn)},
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                            \
    {AFX_REGISTERED,                                                                                         \
     0,                                                                                                      \
     0,                                                                                                      \
     0,                                                                                                      \
     AfxSig::ThreadMessage,                                                                                  \
     static_cast<void (CWinThread::*)(WPARAM, LPARAM)>(memberFxn),                                           \
     &nMessageVariable},
