/// @file afxtempl.h
/// @brief Lists, maps and arrays. There are no collection templates: use those of the standard library.
#pragma once

#include "afxcoll.h"
