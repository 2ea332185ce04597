/// @file afxcmn.h
/// @brief The common controls.
#pragma once

#include "afxwin.h"
#include "commctrl.h"
