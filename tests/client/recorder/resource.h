// SPDX-License-Identifier: MIT
// Resource and command IDs of the recorder program.
#define IDR_MAINFRAME                   128
#define IDD_RATE                        130
#define IDD_VIEW                        131
#define IDD_NAME                        132
#define IDD_FINISH                      133
#define IDD_NOTE                        134
#define IDS_SETTINGS                    140
#define IDS_VIEW_CAPTION                141

#define IDC_RATE                        1000
#define IDC_TABS                        1001
#define IDC_NAME                        1002
#define IDC_CURVE                       1003

#define ID_INDICATOR_SAMPLES            59200
#define ID_RECORD_START                 32771
#define ID_RECORD_CLEAR                 32772
#define ID_RECORD_ONCE                  32773
#define ID_RECORD_TWICE                 32774
#define ID_VIEW_SETTINGS                32775
#define ID_VIEW_SETUP                   32776
#define ID_VIEW_PANEL                   32777
#define ID_VIEW_NOTE                    32778
