// SPDX-License-Identifier: MIT
// Dialog templates: position and styles, and the list data of RT_DLGINIT resources.

#include "mfc/dialog/DialogTemplate.h"

#include <afxwin.h>

#include <cstring>

namespace {

const LPCTSTR kListDataType = MAKEINTRESOURCE(240);
constexpr WORD kExtendedSignature = 0xFFFF;

/// The first fields of an extended template.
#pragma pack(push, 2)
struct ExtendedTemplate {
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD exStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
};

/// An entry of list data. `size` bytes of text, with the terminating zero, follow. An entry with ID 0 ends
/// the data.
struct ListEntry {
    WORD control;
    WORD message;
    DWORD size;
};
#pragma pack(pop)

// List data use the message numbers of 16-bit Windows.
constexpr WORD kAddToListBox = 0x0401;
constexpr WORD kAddToComboBox = 0x0403;

} // namespace

LPCDLGTEMPLATE LoadDialogTemplate(HINSTANCE module, LPCTSTR name) {
    HRSRC const resource = ::FindResource(module, name, RT_DIALOG);
    HGLOBAL const loaded = resource == nullptr ? nullptr : ::LoadResource(module, resource);
    return loaded == nullptr ? nullptr : static_cast<LPCDLGTEMPLATE>(::LockResource(loaded));
}

bool WantsCentering(LPCDLGTEMPLATE dialogTemplate) {
    ExtendedTemplate extended;
    std::memcpy(&extended, dialogTemplate, sizeof(WORD) * 2);
    DWORD style = dialogTemplate->style;
    int x = dialogTemplate->x;
    int y = dialogTemplate->y;
    if (extended.signature == kExtendedSignature) {
        std::memcpy(&extended, dialogTemplate, sizeof(extended));
        style = extended.style;
        x = extended.x;
        y = extended.y;
    }
    return x == 0 && y == 0 && (style & (WS_CHILD | DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE)) == 0;
}

bool FillLists(HWND dialog, LPCTSTR templateName, const void* listData) {
    if (listData == nullptr && templateName != nullptr) {
        HINSTANCE const module = AfxFindResourceHandle(templateName, kListDataType);
        if (HRSRC const resource = ::FindResource(module, templateName, kListDataType))
            if (HGLOBAL const loaded = ::LoadResource(module, resource))
                listData = ::LockResource(loaded);
    }
    const auto* bytes = static_cast<const BYTE*>(listData);
    while (bytes != nullptr) {
        ListEntry entry{};
        std::memcpy(&entry.control, bytes, sizeof(entry.control));
        if (entry.control == 0)
            break;
        std::memcpy(&entry, bytes, sizeof(entry));
        bytes += sizeof(entry);
        const UINT message = entry.message == kAddToListBox    ? LB_ADDSTRING
                             : entry.message == kAddToComboBox ? CB_ADDSTRING
                                                               : entry.message;
        const LRESULT added =
            ::SendDlgItemMessageA(dialog, entry.control, message, 0, reinterpret_cast<LPARAM>(bytes));
        if ((message == LB_ADDSTRING || message == CB_ADDSTRING) && added < 0)
            return false;
        bytes += entry.size;
    }
    return true;
}
