#pragma once

// Collections of ready-made element types.

#include <afx.h>

#include <afx/Arrays.h>
#include <afx/Lists.h>
#include <afx/Maps.h>
