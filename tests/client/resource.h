//{{NO_DEPENDENCIES}}
// Used by Thermostat.rc
#define IDR_MAINFRAME                   128
#define IDD_SETTINGS                    129

#define IDC_NAME                        1000
#define IDC_TARGET                      1001
#define IDC_FACTOR                      1002
#define IDC_ALARM                       1003
#define IDC_MODE_DAY                    1004
#define IDC_MODE_NIGHT                  1005
#define IDC_MODE_AWAY                   1006
#define IDC_ROOM                        1007
#define IDC_GAUGE                       1008
#define IDC_DEFAULTS                    1009

#define ID_HEATING_ON                   32771
#define ID_HEATING_WARMER               32772
#define ID_UNITS_CELSIUS                32773
#define ID_UNITS_FAHRENHEIT             32774
#define ID_VIEW_SETTINGS                32775

#define IDS_ROOMS                       5001
