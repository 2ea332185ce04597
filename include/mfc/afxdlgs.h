/// @file afxdlgs.h
/// @brief The file dialogs.
#pragma once

#include "afxwin.h"
#include "commdlg.h"
