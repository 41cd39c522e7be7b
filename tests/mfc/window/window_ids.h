// SPDX-License-Identifier: MIT
// Resource and command IDs of the window tests.
#pragma once

#define IDR_FRAME 150
#define IDS_TEMPLATE 160
// A number in a block of sixteen strings that Kavlix.dll uses too.
#define IDS_IN_KAVLIX_BLOCK 5530

#define ID_KNOWN 32771
#define ID_NOBODYS 32772
#define ID_BARRED 32773
#define ID_TICKED 32774
#define ID_RADIO 32775
#define ID_RENAMED 32776
#define ID_OF_APP 32777
#define ID_PASSED_ON 32778
