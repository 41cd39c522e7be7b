#pragma once

// Strings of Kavlix.dll. Hosts that show other texts put strings of the same numbers into their own
// resources, which are searched first. Those of 5502 and 5503 are
// kept for hosts; nothing here shows them.
#define IDS_CONFIRM_REMOVE_DATA 5501
#define IDS_INVALID_DISPLAY_TYPE 5502
#define IDS_INVALID_PRINT_TYPE 5503
#define IDS_MENU_COPY 5504
#define IDS_MENU_CLEAR_MARK 5505
#define IDS_MENU_REMOVE_DATA 5506
#define IDS_MENU_SEND_MARK 5507
