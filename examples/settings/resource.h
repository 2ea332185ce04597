// Identifiers of the dialog and of its controls.
#pragma once

#define IDD_SETTINGS 101

#define IDC_NAME 1001
#define IDC_PORT 1002
#define IDC_INTERVAL 1003
#define IDC_SPEED 1004
#define IDC_FORMAT 1005
#define IDC_UNITS_METRIC 1006
#define IDC_UNITS_IMPERIAL 1007
#define IDC_CHANNEL 1008
#define IDC_VOLUME 1009
#define IDC_VOLUME_TEXT 1010
#define IDC_AUTOSTART 1011
