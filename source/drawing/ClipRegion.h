/// @file ClipRegion.h
/// @brief Clip regions of Win32 polygons.
#pragma once

#include "KxGdiTypes.h"

#include <QRegion>
#include <QSize>

/// The odd-even area of @p n polygons, on a device of a size and far around it. Empty when they have no area.
QRegion clipRegion(const POINT *points, const UINT *counts, UINT n, QSize device);
