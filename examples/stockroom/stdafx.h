// What most sources of the program include.
#pragma once

#include <afxwin.h>

#include <afxcmn.h>
#include <afxcoll.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxole.h>
#include <atlbase.h>
#include <tchar.h>
