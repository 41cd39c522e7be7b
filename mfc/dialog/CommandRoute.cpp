// SPDX-License-Identifier: MIT
// Where a dialog sends the commands that it does not handle.

#include "mfc/dialog/CommandRoute.h"

namespace {

constexpr UINT kFirstCommandId = 0x8000;
constexpr UINT kFirstSystemId = 0xF000;

} // namespace

BOOL PassCommandOn(const CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    const bool command = code == CN_COMMAND || code == static_cast<int>(CN_UPDATE_COMMAND_UI);
    if (!command || id < kFirstCommandId || id >= kFirstSystemId)
        return FALSE;
    CWnd* const parent = dialog.GetParent();
    if (parent != nullptr && parent->OnCmdMsg(id, code, extra, info))
        return TRUE;
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(id, code, extra, info);
}
