/// @file KxCollections.h
/// @brief The collection classes: lists, maps and arrays.
#pragma once

#include "KxArrays.h"
#include "KxLists.h"
#include "KxMaps.h"
