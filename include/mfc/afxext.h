/// @file afxext.h
/// @brief Bitmap buttons and what afxwin.h has.
#pragma once

#include "afxwin.h"
