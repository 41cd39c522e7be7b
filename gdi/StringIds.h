// SPDX-License-Identifier: MIT
// Identifiers of the strings in the resources of Kavlix.dll.
#pragma once

// A host can replace a text: strings with the same numbers in the host's own resources are found first. The
// controls do not show the strings 5502 and 5503, which exist for hosts.
#define IDS_CONFIRM_REMOVE_DATA 5501
#define IDS_INVALID_DISPLAY_TYPE 5502
#define IDS_INVALID_PRINT_TYPE 5503
#define IDS_MENU_COPY 5504
#define IDS_MENU_CLEAR_MARK 5505
#define IDS_MENU_REMOVE_DATA 5506
#define IDS_MENU_SEND_MARK 5507
