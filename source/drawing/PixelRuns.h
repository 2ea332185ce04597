/// @file PixelRuns.h
/// @brief Rows of packed pixels of 1, 2, 4, 8, 16, 24 or 32 bits: reading, searching and filling.
///
/// Rows need no alignment, and nothing is read or written beyond the columns that are asked for, rounded to
/// whole bytes. Pixels of less than 8 bits fill a byte from its most significant end.
#pragma once

/// The row value of no pixel, and the result of reading one at an unknown depth.
constexpr unsigned noPixelValue = 0xFFFFFFFF;

enum class PixelMatch { Equal, Different };

/// @return the pixel's value, of 24 and 32 bits the low 24; #noPixelValue at an unknown depth.
unsigned pixelAt(const unsigned char *row, int bitsPerPixel, int x);

/// Walks from column @p x down to @p xStop.
/// @return the first column that matches @p value; @p xStop - 1 when none does or the depth is unknown.
int findPixelLeft(const unsigned char *row, int bitsPerPixel, int x, int xStop, unsigned value,
                  PixelMatch match);

/// Walks from column @p x up to @p xStop.
/// @return the first column that matches @p value; @p xStop + 1 when none does or the depth is unknown.
int findPixelRight(const unsigned char *row, int bitsPerPixel, int x, int xStop, unsigned value,
                   PixelMatch match);

/// Sets the columns from @p first to @p last, both included. Does nothing at 24 bits and at unknown depths.
void fillPixels(unsigned char *row, int bitsPerPixel, int first, int last, unsigned value);
