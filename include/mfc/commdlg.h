/// @file commdlg.h
/// @brief The record of the file dialogs.
#pragma once

#include "windows.h"

#include <KxDialogs.h>

using OPENFILENAME = OPENFILENAMEW;
using LPOPENFILENAME = OPENFILENAMEW *;
