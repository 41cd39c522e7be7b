// SPDX-License-Identifier: MIT
// What programs with date and time controls include. The library has the common controls of afxcmn.h only.
#pragma once

#include <afxcmn.h>
