// SPDX-License-Identifier: MIT
// The collections of ready-made element types.
#pragma once

#include <afx.h>

#include <afx/Arrays.h>
#include <afx/Lists.h>
#include <afx/Maps.h>
