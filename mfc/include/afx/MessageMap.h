// SPDX-License-Identifier: MIT
// Message maps: constant tables from messages, commands and notifications to member functions.
#pragma once

#include "afx/MessageHandler.h"

/// Offset of reflected messages. A parent that hands a message back to the control adds this number to
/// the message.
#define WM_REFLECT_BASE (WM_USER + 0x1C00)

/// The number that message maps use for all messages from WM_CTLCOLORMSGBOX to WM_CTLCOLORSTATIC.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

/// `nCode` of CCmdTarget::OnCmdMsg() for a menu or accelerator command.
#define CN_COMMAND 0
/// `nCode` of CCmdTarget::OnCmdMsg() for a request to update the command's user interface.
#define CN_UPDATE_COMMAND_UI (-1)

/// One row of a message map.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;  ///< message; for commands and notifications WM_COMMAND or WM_NOTIFY; or AFX_REGISTERED
    UINT nCode;     ///< notification code, CN_COMMAND or CN_UPDATE_COMMAND_UI; 0 for window messages
    UINT nID;       ///< first control or command ID; 0 for window messages
    UINT nLastID;   ///< last control or command ID
    AfxSig nSig;    ///< how the handler is called
    AfxHandler pfn; ///< the handler
    const UINT* pnRegistered = nullptr; ///< variable with the number of a registered message, or NULL
};

/// nMessage of the rows of ON_REGISTERED_MESSAGE.
#define AFX_REGISTERED 0xC000u

/// The message map of a class. A function of the class returns the base class's map, so that the table is
/// constant data even if the base class is in another module.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< returns the base class's map; NULL for CCmdTarget
    const AFX_MSGMAP_ENTRY* lpEntries;    ///< the rows; the last one is AfxSig::End
};

/// Finds the row of a window message (`nCode` and `nID` are 0) or of a command in one table. NULL if there
/// is none.
MFC_API const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode,
                                                    UINT nID);

/// Declares the message map of a class. Members after the macro are private unless an access
/// specifier follows.
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

/// Begins the message map of `theClass`. Messages without a row go to the map of `baseClass`.
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

// Rows for commands. ON_COMMAND: `void OnFoo()`. ON_COMMAND_RANGE: `void OnFoo(UINT id)`. ON_COMMAND_EX:
// `BOOL OnFoo(UINT id)`; the result FALSE passes the command on to the next object.

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

// Rows for updates of the user interface: `void OnUpdateFoo(CCmdUI*)`.

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

// Rows for control notifications in WM_COMMAND: `void OnFoo()`; ranges `void OnFoo(UINT id)`.

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
/// Handler of the control itself, `void OnFoo()`. The parent does not get the notification.
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                           \
    {WM_REFLECT_BASE + WM_COMMAND,                                                                           \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::Command,                                                                                        \
     static_cast<void (CCmdTarget::*)()>(memberFxn)},
/// Handler of the control itself, `BOOL OnFoo()`. After FALSE the parent gets the notification too.
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                        \
    {WM_REFLECT_BASE + WM_COMMAND,                                                                           \
     static_cast<UINT>(wNotifyCode),                                                                         \
     0,                                                                                                      \
     0xFFFF,                                                                                                 \
     AfxSig::ControlReflectEx,                                                                               \
     static_cast<BOOL (CCmdTarget::*)()>(memberFxn)},

// Rows for control notifications in WM_NOTIFY: `void OnFoo(NMHDR*, LRESULT*)`; ranges with the ID as
// first argument. Handlers of _EX rows return BOOL: FALSE passes the notification on.

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
/// `BOOL OnFoo(UINT id, NMHDR*, LRESULT*)`. The result FALSE passes the notification on to the next object.
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
/// `nMessageVariable` is a UINT variable. The program sets it with RegisterWindowMessage() before the
/// message arrives.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                   \
    {AFX_REGISTERED,   0, 0, 0, AfxSig::Message, static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(memberFxn),  \
     &nMessageVariable},
/// A message without a window, posted to a CWinThread: `void OnFoo(WPARAM, LPARAM)`.
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
