// Enhanced metafiles: drawn, and handed over to the clipboard.
#pragma once

#include <afxwin.h>

#include <functional>

namespace kavlix {

/// The description of the controls' metafiles. One text instead of the usual two: the second is empty, and
/// the literal's own zero ends the list. A reader of two texts finds all the zeros that it looks for.
constexpr char kPictureDescription[] = "Ruvex Trace\0\0";

/// A metafile in the making, with the description above. It is deleted at the end unless Release() gave it
/// away.
class MetafilePicture {
public:
    /// `frame` in hundredths of a millimetre; null for what is drawn. The reference device is the screen when
    /// `reference` is null.
    explicit MetafilePicture(HDC reference = nullptr, const RECT* frame = nullptr);
    ~MetafilePicture();
    MetafilePicture(const MetafilePicture&) = delete;
    MetafilePicture& operator=(const MetafilePicture&) = delete;

    /// Draws; false when the metafile cannot be made. What `draw` throws leaves.
    bool Draw(const std::function<void(CDC&)>& draw);
    HENHMETAFILE Get() const { return m_picture; }
    /// The picture, which is the caller's now.
    HENHMETAFILE Release();

private:
    HDC m_dc;
    HENHMETAFILE m_picture = nullptr;
};

/// Draws a metafile and puts it on the clipboard. False, the clipboard untouched, when memory or GDI's
/// objects run out. A clipboard held by somebody else is not detected.
bool CopyPicture(CWnd& owner, const RECT* frame, const std::function<void(CDC&)>& draw);

/// Hands a picture over to the clipboard in place of its content; deletes it when the clipboard takes none.
void PutOnClipboard(CWnd& owner, HENHMETAFILE picture);

} // namespace kavlix
