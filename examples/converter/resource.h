//{{NO_DEPENDENCIES}}
// Used by Converter.rc
//
#define IDD_CONVERTER   102
#define IDR_MAINFRAME   128
#define IDS_BAD_AMOUNT  201
#define IDS_ASK_CLEAR   202
#define IDS_LENGTH      210
#define IDS_MASS        211
#define IDS_TEMPERATURE 212
#define IDS_METRE       220
#define IDS_KILOMETRE   221
#define IDS_INCH        222
#define IDS_FOOT        223
#define IDS_MILE        224
#define IDS_GRAM        230
#define IDS_KILOGRAM    231
#define IDS_OUNCE       232
#define IDS_POUND       233
#define IDS_CELSIUS     240
#define IDS_FAHRENHEIT  241
#define IDS_KELVIN      242
#define IDC_QUANTITY    1001
#define IDC_AMOUNT      1002
#define IDC_FROM        1003
#define IDC_TO          1004
#define IDC_SWAP        1005
#define IDC_DECIMALS    1006
#define IDC_SPIN        1007
#define IDC_CONVERT     1008
#define IDC_RESULT      1009
#define IDC_HISTORY     1010
#define IDC_CLEAR       1011

// Next default values for new objects
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE 129
#define _APS_NEXT_COMMAND_VALUE  32771
#define _APS_NEXT_CONTROL_VALUE  1012
#define _APS_NEXT_SYMED_VALUE    101
#endif
#endif
