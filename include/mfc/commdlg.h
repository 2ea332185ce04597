/// @file commdlg.h
/// @brief The record of the file dialogs.
#pragma once

#include "windows.h"

#include <KxDialogs.h>

/// @name Records under their short names
/// The same record, and pointers to it.
/// @{
using OPENFILENAME = OPENFILENAMEW;
using LPOPENFILENAME = OPENFILENAMEW *;
/// @}
