#include <kavlix/GraphCtrl.h>

int CGraphCtrl::CopyToClipboard() {
    if (m_hWnd == nullptr)
        return 0;
    // One text instead of the usual two: the second is empty, and the literal's own zero ends the list. A
    // reader of two texts finds all the zeros that it looks for.
    static const char description[] = "Ruvex Trace\0\0";
    const HDC metafileDc = ::CreateEnhMetaFile(nullptr, nullptr, nullptr, description);
    if (metafileDc == nullptr)
        return 0;
    CDC dc;
    dc.Attach(metafileDc);
    SetMapModeAnisotropic(dc);
    DrawGraph(dc);
    const HENHMETAFILE picture = ::CloseEnhMetaFile(dc.Detach());
    if (picture == nullptr)
        return 0;

    BOOL handedOver = FALSE;
    if (OpenClipboard()) {
        ::EmptyClipboard();
        handedOver = ::SetClipboardData(CF_ENHMETAFILE, picture) != nullptr;
        ::CloseClipboard();
    }
    if (!handedOver)
        ::DeleteEnhMetaFile(picture);
    return 1;
}

void CGraphCtrl::OnEditCopy() {
    CopyToClipboard();
}
