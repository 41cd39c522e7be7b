#include "gdi/PictureClipboard.h"

namespace kavlix {

void PutOnClipboard(CWnd& owner, HENHMETAFILE picture) {
    BOOL handedOver = FALSE;
    if (owner.OpenClipboard()) {
        ::EmptyClipboard();
        handedOver = ::SetClipboardData(CF_ENHMETAFILE, picture) != nullptr;
        ::CloseClipboard();
    }
    if (!handedOver)
        ::DeleteEnhMetaFile(picture);
}

} // namespace kavlix
