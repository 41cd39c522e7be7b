// Extension DLLs and CPrintInfo. Splitters, tool bars and form views do not exist in this library.
#pragma once

#include "afx/PrintInfo.h"
#include <afxwin.h>
