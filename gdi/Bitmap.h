// SPDX-License-Identifier: MIT
// DIB sections (bitmaps whose pixels lie in the process's memory), and the ownership of new GDI objects.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// Makes a DIB section with `bits` (24 or 32) per pixel and the top row first. False when GDI cannot make it.
/// `pixels` receives the address of the pixels if it is not null.
bool MakeDirectBitmap(CBitmap& bitmap, HDC dc, CSize size, void** pixels = nullptr, WORD bits = 32);
/// Attaches the new handle `made` to `object`. False when `made` is null. When attaching throws because
/// memory runs out, deletes the handle and passes the exception on to the caller.
bool Own(CGdiObject& object, HGDIOBJ made);

} // namespace kavlix
