// The precompiled header of a ported program.
#pragma once

#include <afxcmn.h>
#include <afxcoll.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxole.h>
#include <afxtempl.h>
#include <afxwin.h>
#include <atlbase.h>
#include <atlstr.h>
#include <tchar.h>
#include <windows.h>
#include <windowsx.h>
