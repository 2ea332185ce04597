/// @file afxwin.h
/// @brief Windows, dialogs, controls, drawing and the application object.
#pragma once

#include "afx.h"
#include "afxmsg.h"
#include "afxres.h"

#include <KxMFCWrapper.h>

/// @name Records under their short names
/// The same records, and pointers to them.
/// @{
using LOGFONT = LOGFONTW;
using LPLOGFONT = LOGFONTW *;
using TEXTMETRIC = TEXTMETRICW;
using LPTEXTMETRIC = TEXTMETRICW *;
/// @}

/// @name The W functions of windows and drawing under their short names
/// As macros they rename members and free functions alike, also those of other libraries that are included
/// later.
/// @{
#define CreateFont CreateFontW
#define ExtractIcon ExtractIconW
#define GetObject GetObjectW
#define GetProfileInt GetProfileIntW
#define GetProfileString GetProfileStringW
#define GetTextMetrics GetTextMetricsW
#define LoadBitmap LoadBitmapW
#define RegisterClipboardFormat RegisterClipboardFormatW
#define WriteProfileString WriteProfileStringW
/// @}
