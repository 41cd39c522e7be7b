// SPDX-License-Identifier: MIT
// Parts of file names.
#pragma once

#include <afx/String.h>

/// The absolute path of a file, of any length. The name itself if the system cannot tell.
CString AfxFullPath(LPCTSTR name);

/// The part behind the last folder.
CString AfxLastPart(const CString& path);

/// The name without its last dot and the text behind it. A dot in the first place belongs to the name.
CString AfxWithoutExtension(const CString& name);
