/// @file PixelLayouts.h
/// @brief How the pixels of each depth lie in a row.
///
/// A layout reads single pixels and, where pixels lie in whole units, compares all pixels of a unit at once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Pixels of 1, 2 or 4 bits, several in a byte.
template <int Bits> struct FieldPixels
{
    using Unit = std::uint8_t;
    static constexpr int perUnit = 8 / Bits;
    static constexpr Unit fieldMask = (1 << Bits) - 1;
    static constexpr Unit lowestBits = 0xFF / fieldMask; ///< The lowest bit of every field.

    static constexpr int shift(int x) { return 8 - Bits - x % perUnit * Bits; }
    static unsigned at(const unsigned char *row, int x) { return row[x / perUnit] >> shift(x) & fieldMask; }
    /// The value that pixels are compared with: bits that do not fit in a field do not count.
    static unsigned comparable(unsigned value) { return value & fieldMask; }
    static bool isPossible(unsigned) { return true; }

    /// A byte whose fields all hold the value.
    static constexpr Unit filled(unsigned value) { return Unit((value & fieldMask) * lowestBits); }
    /// Not 0 when a field differs.
    static Unit different(Unit unit, Unit filledUnit) { return unit ^ filledUnit; }
    /// Not 0 when a field is equal.
    static Unit equal(Unit unit, Unit filledUnit)
    {
        const unsigned difference = unit ^ filledUnit;
        unsigned folded = difference;
        for (int bit = 1; bit < Bits; ++bit)
            folded |= difference >> bit;
        return Unit(~folded & lowestBits);
    }
};

/// Pixels that are a word each, of which the bits of @p Mask count.
template <typename Word, Word Mask> struct WordPixels
{
    using Unit = Word;
    static constexpr int perUnit = 1;

    static unsigned at(const unsigned char *row, int x)
    {
        Word word;
        std::memcpy(&word, row + std::ptrdiff_t{x} * int{sizeof(Word)}, sizeof(Word));
        return word & Mask;
    }
    static unsigned comparable(unsigned value) { return value; }
    /// False for a value that no pixel can have.
    static bool isPossible(unsigned value) { return value <= Mask; }

    static constexpr Word filled(unsigned value) { return Word(value); }
    static Word different(Word word, Word value) { return Word((word ^ value) & Mask); }
    static Word equal(Word word, Word value) { return Word(word & Mask) == value ? Word(-1) : Word(0); }
};

/// Pixels of 3 bytes, which no unit holds.
struct BytePixels24
{
    static unsigned at(const unsigned char *row, int x)
    {
        const unsigned char *bytes = row + std::ptrdiff_t{x} * 3;
        return bytes[0] | unsigned{bytes[1]} << 8 | unsigned{bytes[2]} << 16;
    }
    static unsigned comparable(unsigned value) { return value; }
    static bool isPossible(unsigned value) { return value <= 0xFFFFFF; }
};

using BytePixels8 = WordPixels<std::uint8_t, 0xFF>;
using WordPixels16 = WordPixels<std::uint16_t, 0xFFFF>;
using WordPixels32 = WordPixels<std::uint32_t, 0xFFFFFF>;
