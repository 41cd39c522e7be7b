// SPDX-License-Identifier: MIT
// Objects that synchronise threads, and locks on them.
#pragma once

#include "afx/Locks.h"
#include "afx/SyncObject.h"
#include <afx.h>
