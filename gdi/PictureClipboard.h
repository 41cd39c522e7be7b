// SPDX-License-Identifier: MIT
// Enhanced metafiles and the clipboard.
#pragma once

#include <afxwin.h>

#include <functional>

namespace kavlix {

/// The description of the controls' metafiles, which hosts read: a name and an empty picture name, each ended
/// by a zero, and a further zero at the end, which the compiler adds to the literal.
constexpr TCHAR kPictureDescription[] = _T("Ruvex Trace\0\0");

/// An enhanced metafile with the description above. The destructor deletes the metafile, unless Release has
/// passed it to the caller.
class MetafilePicture {
public:
    /// `frame` is the picture's frame in hundredths of a millimetre; null for the bounding box of what is
    /// drawn. `reference` is the reference device; null for the screen.
    explicit MetafilePicture(HDC reference = nullptr, const RECT* frame = nullptr);
    ~MetafilePicture();
    MetafilePicture(const MetafilePicture&) = delete;
    MetafilePicture& operator=(const MetafilePicture&) = delete;

    /// Calls `draw` with the metafile's DC, once. False when GDI cannot make the metafile. Exceptions
    /// that `draw` throws pass on to the caller.
    bool Draw(const std::function<void(CDC&)>& draw);
    /// The finished metafile, which this object owns; null before Draw and after Release.
    HENHMETAFILE Get() const { return m_picture; }
    /// The finished metafile, which the caller owns from now on.
    HENHMETAFILE Release();

private:
    HDC m_dc;
    HENHMETAFILE m_picture = nullptr;
};

/// Draws a metafile and puts it on the clipboard; `frame` as for MetafilePicture. False, with the clipboard
/// unchanged, when memory or GDI objects run out. True also when the clipboard does not take the picture, for
/// example because another program holds it open.
bool CopyPicture(CWnd& owner, const RECT* frame, const std::function<void(CDC&)>& draw);

/// Replaces the content of the clipboard by `picture`. Deletes `picture` when the clipboard does not take it.
void PutOnClipboard(CWnd& owner, HENHMETAFILE picture);

} // namespace kavlix
