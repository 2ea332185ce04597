#pragma once

#include "stdafx.h"

/// @return a text of the string table, empty when there is none.
CString LoadText(UINT nID);
/// @return a text of the string table with a number in it.
CString FormatText(UINT nIDFormat, int nNumber);
