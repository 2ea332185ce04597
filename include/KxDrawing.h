/// @file KxDrawing.h
/// @brief Drawing: device contexts, the painter behind them, window images and bitmaps.
///
/// Ported code begins with the CDC of a window, whose device _CreateDCforHwnd() makes, or of a bitmap
/// (KxDeviceContext.h). All drawing beyond CDC::FillRect() goes through a KxQtPainterWrapper (KxPainter.h),
/// which speaks Win32's vocabulary on any Qt paint device. KxGrQtDoubleBufferImage (KxDoubleBuffer.h) is the
/// device of a window's context, CDibData (KxDibData.h) a bitmap whose pixels are read and written in memory.
/// KxGdiTypes.h has the colours and the bitmap header.
#pragma once

#include "KxDeviceContext.h"
#include "KxDibData.h"
#include "KxDoubleBuffer.h"
#include "KxGdiTypes.h"
#include "KxPainter.h"
