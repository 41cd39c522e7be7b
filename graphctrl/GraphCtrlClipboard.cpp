#include <kavlix/GraphCtrl.h>

#include "gdi/PictureClipboard.h"
#include "gdi/PictureFile.h"

using namespace kavlix;

int CGraphCtrl::CopyToClipboard() {
    if (m_hWnd == nullptr)
        return 0;
    const HDC metafileDc = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, kPictureDescription);
    if (metafileDc == nullptr)
        return 0;
    CDC dc;
    dc.Attach(metafileDc);
    SetMapModeAnisotropic(dc);
    DrawGraph(dc);
    const HENHMETAFILE picture = ::CloseEnhMetaFile(dc.Detach());
    if (picture == nullptr)
        return 0;
    PutOnClipboard(*this, picture);
    return 1;
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
