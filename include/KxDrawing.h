/// @file KxDrawing.h
/// @brief Includes the headers of drawing.
#pragma once

#include "KxDeviceContext.h"
#include "KxDibData.h"
#include "KxDoubleBuffer.h"
#include "KxGdiTypes.h"
#include "KxPainter.h"
