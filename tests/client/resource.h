// SPDX-License-Identifier: MIT
// Resource and command IDs of the thermostat program.
#define IDR_MAINFRAME                   128
#define IDD_SETTINGS                    129

#define IDC_NAME                        1000
#define IDC_TARGET                      1001
#define IDC_ALARM                       1002
#define IDC_DEFAULTS                    1003

#define ID_HEATING_ON                   32771
#define ID_HEATING_WARMER               32772
#define ID_VIEW_SETTINGS                32773
