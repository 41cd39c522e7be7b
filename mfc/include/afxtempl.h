#pragma once

// Collection templates: CArray, CList, CMap, and the typed views of pointer collections.

#include <afx.h>

#include <afx/CArray.h>
#include <afx/CList.h>
#include <afx/CMap.h>
#include <afx/Templates.h>
#include <afx/TypedPtr.h>
