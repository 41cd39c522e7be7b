#pragma once

#include <afxwin.h>

namespace kavlix {

/// The description of the controls' metafiles. One text instead of the usual two: the second is empty, and
/// the literal's own zero ends the list. A reader of two texts finds all the zeros that it looks for.
constexpr char kPictureDescription[] = "Ruvex Trace\0\0";

/// Hands a picture over to the clipboard in place of its content; deletes it when the clipboard takes none.
void PutOnClipboard(CWnd& owner, HENHMETAFILE picture);

} // namespace kavlix
