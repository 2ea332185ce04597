#pragma once

#define IDD_STATION 101
#define IDS_NAME 200
#define IDC_NAME 1001
#define IDC_PORT 1002
