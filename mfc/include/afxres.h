// SPDX-License-Identifier: MIT
// Standard command, control and string IDs.
#pragma once

// C++ sources and resource scripts include this header, so it holds preprocessor definitions only.
//
// Ranges: 0x0001-0x6FFF resources of the application, 0x8000-0xDFFF its commands, 0x7000-0x7FFF and
// 0xE000-0xEFFF the framework, 0xF000-0xFFFF system commands and prompts of the framework.

#ifdef RC_INVOKED
#include <winresrc.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Commands
#define ID_SEPARATOR 0

#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PAGE_SETUP 0xE105
#define ID_FILE_PRINT_SETUP 0xE106
#define ID_FILE_PRINT 0xE107
#define ID_FILE_PRINT_DIRECT 0xE108
#define ID_FILE_PRINT_PREVIEW 0xE109
#define ID_FILE_UPDATE 0xE10A
#define ID_FILE_SAVE_COPY_AS 0xE10B
#define ID_FILE_SEND_MAIL 0xE10C
#define ID_FILE_MRU_FIRST 0xE110
#define ID_FILE_MRU_FILE1 0xE110
#define ID_FILE_MRU_FILE2 0xE111
#define ID_FILE_MRU_FILE3 0xE112
#define ID_FILE_MRU_FILE4 0xE113
#define ID_FILE_MRU_FILE5 0xE114
#define ID_FILE_MRU_FILE6 0xE115
#define ID_FILE_MRU_FILE7 0xE116
#define ID_FILE_MRU_FILE8 0xE117
#define ID_FILE_MRU_FILE9 0xE118
#define ID_FILE_MRU_FILE10 0xE119
#define ID_FILE_MRU_FILE11 0xE11A
#define ID_FILE_MRU_FILE12 0xE11B
#define ID_FILE_MRU_FILE13 0xE11C
#define ID_FILE_MRU_FILE14 0xE11D
#define ID_FILE_MRU_FILE15 0xE11E
#define ID_FILE_MRU_FILE16 0xE11F
#define ID_FILE_MRU_LAST 0xE11F

#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_CLEAR_ALL 0xE121
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_FIND 0xE124
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_PASTE_LINK 0xE126
#define ID_EDIT_PASTE_SPECIAL 0xE127
#define ID_EDIT_REPEAT 0xE128
#define ID_EDIT_REPLACE 0xE129
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C

#define ID_WINDOW_NEW 0xE130
#define ID_WINDOW_ARRANGE 0xE131
#define ID_WINDOW_CASCADE 0xE132
#define ID_WINDOW_TILE_HORZ 0xE133
#define ID_WINDOW_TILE_VERT 0xE134
#define ID_WINDOW_SPLIT 0xE135

#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_HELP_INDEX 0xE142
#define ID_HELP_FINDER 0xE143
#define ID_HELP_USING 0xE144
#define ID_CONTEXT_HELP 0xE145
#define ID_HELP 0xE146
#define ID_DEFAULT_HELP 0xE147

#define ID_NEXT_PANE 0xE150
#define ID_PREV_PANE 0xE151

#define ID_VIEW_TOOLBAR 0xE800
#define ID_VIEW_STATUS_BAR 0xE801

#define ID_INDICATOR_EXT 0xE700
#define ID_INDICATOR_CAPS 0xE701
#define ID_INDICATOR_NUM 0xE702
#define ID_INDICATOR_SCRL 0xE703
#define ID_INDICATOR_OVR 0xE704
#define ID_INDICATOR_REC 0xE705

// Child windows of a frame
#define AFX_IDW_CONTROLBAR_FIRST 0xE800
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_CONTROLBAR_LAST 0xE8FF
#define AFX_IDW_PANE_FIRST 0xE900
#define AFX_IDW_PANE_LAST 0xE9FF

// Standard controls in dialog templates
#define IDC_PROPERTY_LIST 0x7000

// Icons that every application may define
#define AFX_IDI_STD_MDIFRAME 0x7801
#define AFX_IDI_STD_FRAME 0x7802

// Buttons of property sheets
#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025

// Strings. An application may define them. The library has English texts for AFX_IDS_IDLEMESSAGE and for the
// indicators ID_INDICATOR_... of the status bar
#define AFX_IDS_APP_TITLE 0xE000
#define AFX_IDS_IDLEMESSAGE 0xE001
#define AFX_IDS_HELPMODEMESSAGE 0xE002

// Messages of the status bar while an item of the system menu is selected: AFX_IDS_SCFIRST plus a sixteenth of the
// difference between the command and SC_SIZE. An application may define them
#define AFX_IDS_SCFIRST 0xEF00
#define AFX_IDS_SCSIZE 0xEF00
#define AFX_IDS_SCMOVE 0xEF01
#define AFX_IDS_SCMINIMIZE 0xEF02
#define AFX_IDS_SCMAXIMIZE 0xEF03
#define AFX_IDS_SCNEXTWINDOW 0xEF04
#define AFX_IDS_SCPREVWINDOW 0xEF05
#define AFX_IDS_SCCLOSE 0xEF06
#define AFX_IDS_SCRESTORE 0xEF12
#define AFX_IDS_SCTASKLIST 0xEF13
// Message for items that other programs add to the system menu
#define AFX_IDS_DESKACCESSORY 0xEF1E

// Prompts. The library has English texts for all except AFX_IDP_USER_BREAK. A string with the same ID in the
// application replaces the library's text.
#define AFX_IDP_NO_ERROR_AVAILABLE 0xF020
#define AFX_IDP_INTERNAL_FAILURE 0xF021
#define AFX_IDP_COMMAND_FAILURE 0xF022
#define AFX_IDP_FAILED_MEMORY_ALLOC 0xF023
#define AFX_IDP_NOT_SUPPORTED 0xF024
#define AFX_IDP_RESOURCE_FAILURE 0xF025
#define AFX_IDP_USER_BREAK 0xF026
#define AFX_IDP_FAILED_TO_LAUNCH_HELP 0xF107

#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_RADIO_BUTTON 0xF115
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117
#define AFX_IDP_PARSE_DATETIME 0xF118
#define AFX_IDP_PARSE_CURRENCY 0xF119
