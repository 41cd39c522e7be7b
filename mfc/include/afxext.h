#pragma once

// Extensions of the framework: extension DLLs. (Splitters, tool bars and form views are not offered.)

#include <afxwin.h>
