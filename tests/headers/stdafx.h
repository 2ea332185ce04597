// The precompiled header of a ported program.
#pragma once

#include <windows.h>
#include <windowsx.h>
#include <tchar.h>
#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxcoll.h>
#include <afxtempl.h>
#include <afxole.h>
#include <atlbase.h>
#include <atlstr.h>
