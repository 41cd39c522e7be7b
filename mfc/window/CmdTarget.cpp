// SPDX-License-Identifier: MIT
// CCmdTarget: from a command or notification to its handler.

#include "afx/CmdTarget.h"

#include "afx/App.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP_ENTRY CCmdTarget::_messageEntries[] = {{0, 0, 0, 0, AfxSig::End, AfxHandler()}};
const AFX_MSGMAP CCmdTarget::messageMap = {nullptr, CCmdTarget::_messageEntries};

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return &messageMap;
}

const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP_ENTRY* lpEntry, UINT nMsg, UINT nCode,
                                            UINT nID) {
    for (; lpEntry->nSig != AfxSig::End; ++lpEntry) {
        if (lpEntry->nCode != nCode || nID < lpEntry->nID || nID > lpEntry->nLastID)
            continue;
        const UINT message = lpEntry->pnRegistered != nullptr ? *lpEntry->pnRegistered : lpEntry->nMessage;
        if (message == nMsg)
            return lpEntry;
    }
    return nullptr;
}

namespace {

/// The parts of OnCmdMsg()'s `nCode`: the message in the high word (0 stands for WM_COMMAND) and the
/// notification code in the low word.
struct CommandCode {
    UINT message = WM_COMMAND;
    UINT code = 0;

    CommandCode(int packed, const void* extra) {
        if (packed == CN_UPDATE_COMMAND_UI) {
            code = static_cast<UINT>(CN_UPDATE_COMMAND_UI);
            return;
        }
        code = LOWORD(packed);
        if (HIWORD(packed) != 0)
            message = HIWORD(packed);
        if (message == WM_NOTIFY || message == WM_REFLECT_BASE + WM_NOTIFY) {
            // Codes of WM_NOTIFY have 32 bits, so the code comes from the notification record.
            const auto* const notify = static_cast<const AFX_NOTIFY*>(extra);
            code = notify != nullptr ? notify->pNMHDR->code
                                     : static_cast<UINT>(static_cast<short>(LOWORD(packed)));
        } else if (message == WM_REFLECT_BASE + WM_COMMAND && code == LOWORD(CN_UPDATE_COMMAND_UI)) {
            code = static_cast<UINT>(CN_UPDATE_COMMAND_UI);
        }
    }
};

BOOL CallHandler(CCmdTarget* target, UINT id, const AFX_MSGMAP_ENTRY& entry, void* extra) {
    const AfxHandler& handler = entry.pfn;
    auto* const notify = static_cast<AFX_NOTIFY*>(extra);
    switch (entry.nSig) {
    case AfxSig::Command:
        (target->*handler.command)();
        return TRUE;
    case AfxSig::CommandRange:
        (target->*handler.commandRange)(id);
        return TRUE;
    case AfxSig::CommandEx:
        return (target->*handler.commandEx)(id);
    case AfxSig::ControlReflectEx:
        return (target->*handler.controlReflectEx)();
    case AfxSig::UpdateUI: {
        auto* const update = static_cast<CCmdUI*>(extra);
        update->m_bContinueRouting = FALSE;
        (target->*handler.updateUI)(update);
        const BOOL handled = !update->m_bContinueRouting;
        update->m_bContinueRouting = FALSE;
        return handled;
    }
    case AfxSig::Notify:
        (target->*handler.notify)(notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSig::NotifyRange:
        (target->*handler.notifyRange)(id, notify->pNMHDR, notify->pResult);
        return TRUE;
    case AfxSig::NotifyEx:
        return (target->*handler.notifyEx)(id, notify->pNMHDR, notify->pResult);
    case AfxSig::NotifyReflectEx:
        return (target->*handler.notifyReflectEx)(notify->pNMHDR, notify->pResult);
    default:
        return FALSE;
    }
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const CommandCode command(nCode, pHandlerInfo == nullptr ? pExtra : nullptr);
    const AFX_MSGMAP* map = GetMessageMap();
    while (map != nullptr) {
        if (const AFX_MSGMAP_ENTRY* const entry =
                AfxFindMessageEntry(map->lpEntries, command.message, command.code, nID)) {
            if (pHandlerInfo == nullptr)
                return CallHandler(this, nID, *entry, pExtra);
            pHandlerInfo->pTarget = this;
            pHandlerInfo->pmf = entry->nSig == AfxSig::Command ? entry->pfn.command : nullptr;
            return TRUE;
        }
        map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr;
    }
    return FALSE;
}

void CCmdTarget::BeginWaitCursor() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(1);
}

CWaitCursor::~CWaitCursor() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CWaitCursor::Restore() {
    if (CWinApp* const app = AfxGetApp())
        app->DoWaitCursor(0);
}
