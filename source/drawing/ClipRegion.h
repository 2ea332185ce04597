/// @file ClipRegion.h
/// @brief Clip regions of Win32 polygons.
#pragma once

#include "KxGdiTypes.h"

#include <QRectF>
#include <QRegion>

/// The odd-even area of @p n polygons, in the part of the plane that a device shows and far around it. Empty when
/// they have no area.
QRegion clipRegion(const POINT *points, const UINT *counts, UINT n, const QRectF &visible);
