#pragma once

#include "KxDibData.h"

/// Gives the pixel at a point, and all pixels of its colour that touch it or each other, another colour.
/// @return the number of pixels that were filled; 0 when the point is outside or has the colour already.
int FloodFill(CDibData &dib, int x, int y, COLORREF color);
