// Header files of the system that change seldom.
#pragma once

#define VC_EXTRALEAN
#ifndef WINVER
#define WINVER 0x0601
#endif

#include <afxwin.h>
#include <afxcmn.h>
