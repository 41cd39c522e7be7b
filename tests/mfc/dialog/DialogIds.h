// SPDX-License-Identifier: MIT
// IDs of the dialogs of these tests, for the sources and the resource script.
#pragma once

#define IDD_DATA 200
#define IDD_SMALL 201
#define IDD_LISTS 202

#define IDC_TEXT 1001
#define IDC_CHECK 1002
#define IDC_RADIO_FIRST 1003
#define IDC_RADIO_NOTE 1004
#define IDC_RADIO_SECOND 1005
#define IDC_RADIO_THIRD 1006
#define IDC_OTHER_RADIO 1007
#define IDC_LIST 1008
#define IDC_DROPLIST 1009
#define IDC_COMBO 1010
#define IDC_SCROLL 1011
#define IDC_SLIDER 1012
#define IDC_BOUND 1013
