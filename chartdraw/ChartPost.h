// SPDX-License-Identifier: MIT
// The message by which points of other threads reach a chart.
#pragma once

#include <afxwin.h>

namespace kavlix {

/// Registered message: the chart takes the queued points.
extern const UINT g_postedMessage;

} // namespace kavlix
