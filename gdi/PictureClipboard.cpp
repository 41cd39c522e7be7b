// SPDX-License-Identifier: MIT
// Records a picture into an enhanced metafile and gives it to the clipboard.
#include "gdi/PictureClipboard.h"

#include <utility>

#include "gdi/OutOfMemory.h"

namespace kavlix {

MetafilePicture::MetafilePicture(HDC reference, const RECT* frame)
    : m_dc(::CreateEnhMetaFile(reference, nullptr, frame, kPictureDescription)) {
}

MetafilePicture::~MetafilePicture() {
    if (m_dc != nullptr)
        m_picture = ::CloseEnhMetaFile(m_dc);
    if (m_picture != nullptr)
        ::DeleteEnhMetaFile(m_picture);
}

bool MetafilePicture::Draw(const std::function<void(CDC&)>& draw) {
    struct Borrowed : CDC {
        ~Borrowed() override { Detach(); }
    } dc;
    if (m_dc == nullptr || !dc.Attach(m_dc))
        return false;
    draw(dc);
    m_picture = ::CloseEnhMetaFile(std::exchange(m_dc, nullptr));
    return m_picture != nullptr;
}

HENHMETAFILE MetafilePicture::Release() {
    return std::exchange(m_picture, nullptr);
}

bool CopyPicture(CWnd& owner, const RECT* frame, const std::function<void(CDC&)>& draw) {
    MetafilePicture picture(nullptr, frame);
    if (!UnlessRefused([&] { return picture.Draw(draw); }))
        return false;
    PutOnClipboard(owner, picture.Release());
    return true;
}

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
