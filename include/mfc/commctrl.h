/// @file commctrl.h
/// @brief Records and constants of the common controls.
#pragma once

#include "windows.h"

#include <KxControls.h>

/// @name Records under their short names
/// The same records, and pointers to them.
/// @{
using HDITEM = HDITEMW;
using LPHDITEM = HDITEMW *;
using LVITEM = LVITEMW;
using LPLVITEM = LVITEMW *;
using LVCOLUMN = LVCOLUMNW;
using LPLVCOLUMN = LVCOLUMNW *;
using TCITEM = TCITEMW;
using LPTCITEM = TCITEMW *;
using TVITEM = TVITEMW;
using LPTVITEM = TVITEMW *;
using TVINSERTSTRUCT = TVINSERTSTRUCTW;
using LPTVINSERTSTRUCT = TVINSERTSTRUCTW *;
/// @}
