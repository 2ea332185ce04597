/// @file KxMFCWrapper.h
/// @brief Includes every public header of the library.
///
/// For sources that are new. Ported sources keep the header names that they have, such as afxwin.h, which
/// stand in a folder of their own and include these headers.
#pragma once

#include "KxApplication.h"
#include "KxClipboard.h"
#include "KxCollections.h"
#include "KxControls.h"
#include "KxDiagnostics.h"
#include "KxDialogs.h"
#include "KxDrawing.h"
#include "KxFiles.h"
#include "KxGeometry.h"
#include "KxMessageConstants.h"
#include "KxMessages.h"
#include "KxPathNames.h"
#include "KxRegistry.h"
#include "KxString.h"
#include "KxStyleConstants.h"
#include "KxUser32.h"
#include "KxWinTypes.h"
#include "KxWindowPrivate.h"
#include "KxWindows.h"
