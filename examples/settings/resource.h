// Identifiers of the dialog, of its controls and of the texts.
#pragma once

#define IDD_SETTINGS 101

#define IDS_TITLE 200
#define IDS_STATION 201
#define IDS_NAME 202
#define IDS_PORT 203
#define IDS_INTERVAL 204
#define IDS_SPEED 205
#define IDS_FORMAT 206
#define IDS_UNITS 207
#define IDS_METRIC 208
#define IDS_IMPERIAL 209
#define IDS_CHANNEL 210
#define IDS_VOLUME 211
#define IDS_AUTOSTART 212
#define IDS_OK 213
#define IDS_CANCEL 214
#define IDS_DEFAULT_NAME 215
#define IDS_TEMPERATURE 220
#define IDS_PRESSURE 221
#define IDS_HUMIDITY 222
#define IDS_WIND 223
#define IDS_NO_NAME 230
#define IDS_BAD_PORT 231
#define IDS_BAD_INTERVAL 232

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
