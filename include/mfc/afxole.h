/// @file afxole.h
/// @brief Clipboard data.
#pragma once

#include "afxwin.h"

#include <KxClipboard.h>
