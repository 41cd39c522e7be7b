// SPDX-License-Identifier: MIT
// How notifications, menus and rectangles read as text.

#include "tests/support/GraphFixture.h"

#include "tests/support/Utf8.h"

#include <kavlix/GraphNotify.h>

#include <cstring>
#include <sstream>

namespace testkit {

std::string RecordFields(const RecordingParent::Entry& entry) {
    NMGRAPHCTRL record;
    std::memcpy(&record, entry.record, sizeof record);
    std::ostringstream text;
    text << " flags " << record.nFlags << " at " << record.pt.x << "," << record.pt.y << " index "
         << record.nIndex << " count " << record.nCount;
    return text.str();
}

Strings MenuItems(HMENU menu) {
    Strings items;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        TCHAR text[100] = _T("");
        MENUITEMINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = _countof(text);
        ::GetMenuItemInfo(menu, static_cast<UINT>(i), TRUE, &info);
        std::ostringstream line;
        if ((info.fType & MFT_SEPARATOR) != 0) {
            line << "-";
        } else {
            line << info.wID << ((info.fState & MFS_GRAYED) != 0 ? " gray " : " ") << Utf8(text);
            if ((info.fState & ~static_cast<UINT>(MFS_GRAYED)) != 0)
                line << " state " << info.fState;
        }
        items.push_back(line.str());
    }
    return items;
}

std::string Text(const CRect& rect) {
    std::ostringstream text;
    text << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom;
    return text.str();
}

} // namespace testkit
