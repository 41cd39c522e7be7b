// SPDX-License-Identifier: MIT
// Texts of the string table.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// The string `id` of the resources; empty if there is none.
inline CString LoadedText(UINT id) {
    CString text;
    if (!text.LoadString(id))
        text.Empty();
    return text;
}

} // namespace kavlix
