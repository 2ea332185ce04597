/// @file afxcoll.h
/// @brief Lists, maps and arrays.
#pragma once

#include "afx.h"

#include <KxCollections.h>
