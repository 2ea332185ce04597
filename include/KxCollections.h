/// @file KxCollections.h
/// @brief The collection classes: lists, maps and arrays.
///
/// Includes KxLists.h (CStringList), KxMaps.h (CMapStringToPtr and the inert CMapStringToString) and
/// KxArrays.h (CStringArray, CWordArray, CByteArray and CPtrArray). They have no virtual members and are not
/// synchronised.
///
/// Argument checks are advisory: a bad argument is reported to AfxThrowInvalidArgException(), which returns,
/// and the operation carries on, so test positions and indexes yourself. Each member says where it changes
/// nothing instead.
#pragma once

#include "KxArrays.h"
#include "KxLists.h"
#include "KxMaps.h"
