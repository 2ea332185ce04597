// Identifiers of the test programs' resources.
#pragma once

#define IDS_GREETING 100
#define IDS_ONLY_ENGLISH 101
#define IDS_ONLY_NEUTRAL 102
#define IDS_QUOTED 110
#define IDS_ESCAPES 111
#define IDS_WIDE 112
#define IDS_CODE_PAGE 113
#define IDS_SEMICOLON 114
#define IDS_SURROGATES 115
#define IDS_JOINED 116
#define IDS_DRAWN 117
#define IDS_NUL 118
#define IDS_LONG 119
#define IDS_INCLUDED 120
#define IDS_VARIANT 121
#define IDS_ONLY_FRENCH 122
#define IDS_DEFINED 123
#define IDS_SECOND 200
#define IDS_FIRST 1
#define IDS_LAST 65535

#define IDB_ARROW 300
#define IDB_BARE 301
#define IDB_LANGUAGE 302
#define IDI_STAR 310
#define IDD_IGNORED 320
#define IDR_IGNORED 321
