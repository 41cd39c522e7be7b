// SPDX-License-Identifier: MIT
// CGraphCtrl: the picture on the clipboard and in files.
#include <kavlix/GraphCtrl.h>
#include <kavlix/PictureFile.h>

#include "gdi/PictureClipboard.h"

using namespace kavlix;

int CGraphCtrl::CopyToClipboard() {
    const auto draw = [this](CDC& dc) {
        SetMapModeAnisotropic(dc);
        DrawGraph(dc);
    };
    return m_hWnd != nullptr && CopyPicture(*this, nullptr, draw);
}

bool CGraphCtrl::SaveImage(CString strFileName) {
    if (m_hWnd == nullptr)
        return false;
    CRect client;
    GetClientRect(&client);
    return SavePicture(strFileName, client.Size(), [this](CDC& dc) {
        SetMapModeAnisotropic(dc);
        DrawGraph(dc);
    });
}

void CGraphCtrl::OnEditCopy() {
    CopyToClipboard();
}
