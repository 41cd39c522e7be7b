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
#define IDS_CHART_SAVE_PICTURE 5508
#define IDS_CHART_SAVE_DATA 5509
#define IDS_CHART_PRINT 5510
#define IDS_CHART_FIT 5511
#define IDS_CHART_BACK 5512
#define IDS_CHART_NOT_SHOWN_ONE 5513
#define IDS_CHART_NOT_SHOWN 5514
#define IDS_CHART_DIFFERENCE 5515
#define IDS_CHART_MINIMUM 5516
#define IDS_CHART_MAXIMUM 5517
#define IDS_CHART_MEAN 5518
#define IDS_CHART_COUNT 5519
#define IDS_CHART_PICTURE_FILTER 5520
#define IDS_CHART_DATA_FILTER 5521
#define IDS_CHART_NOT_SAVED 5522
