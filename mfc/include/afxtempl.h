// SPDX-License-Identifier: MIT
// The collection templates CArray, CList and CMap, and the typed views of pointer collections.
#pragma once

#include <afx.h>

#include <afx/CArray.h>
#include <afx/CList.h>
#include <afx/CMap.h>
#include <afx/Templates.h>
#include <afx/TypedPtr.h>
