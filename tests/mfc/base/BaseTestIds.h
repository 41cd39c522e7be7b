// SPDX-License-Identifier: MIT
// String resources of the base tests.
#pragma once

#define IDS_BASE_PLAIN 101
#define IDS_BASE_FORMAT 102
#define IDS_BASE_MESSAGE 103
#define IDS_BASE_TIME 104
#define IDS_BASE_LONG 105
