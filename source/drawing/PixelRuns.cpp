#include "PixelRuns.h"

#include "PixelLayouts.h"

#include <algorithm>
#include <type_traits>

namespace {

// Gives action(layout) for the layout of the depth, or the fallback at an unknown depth.
template <typename Result, typename Action>
Result withLayout(int bitsPerPixel, Result fallback, Action action)
{
    switch (bitsPerPixel) {
    case 1:
        return action(FieldPixels<1>());
    case 2:
        return action(FieldPixels<2>());
    case 4:
        return action(FieldPixels<4>());
    case 8:
        return action(BytePixels8());
    case 16:
        return action(WordPixels16());
    case 24:
        return action(BytePixels24());
    case 32:
        return action(WordPixels32());
    default:
        return fallback;
    }
}

// Walks along a row in one direction, Step being 1 or -1.
template <typename Layout, PixelMatch Match, int Step> class RowWalk
{
public:
    RowWalk(const unsigned char *row, int x, int xStop, unsigned value)
        : m_row(row)
        , m_value(Layout::comparable(value))
        , m_x(x)
        , m_end(xStop + Step)
    {
    }

    int find()
    {
        if (!Layout::isPossible(m_value))
            return Match == PixelMatch::Different ? m_x : m_end;
        if constexpr (!std::is_same_v<Layout, BytePixels24>)
            skipUnits();
        while (m_x != m_end && !matchesHere())
            m_x += Step;
        return m_x;
    }

private:
    bool matchesHere() const { return (Layout::at(m_row, m_x) == m_value) == (Match == PixelMatch::Equal); }

    bool isAtUnitEdge() const { return m_x % Layout::perUnit == (Step > 0 ? 0 : Layout::perUnit - 1); }

    void skipUnits()
    {
        for (; m_x != m_end && !isAtUnitEdge(); m_x += Step) {
            if (matchesHere())
                return;
        }
        skipBlocks<128 / sizeof(typename Layout::Unit)>();
        skipBlocks<16 / sizeof(typename Layout::Unit)>();
        if constexpr (Layout::perUnit > 1)
            skipBlocks<1>();
    }

    template <int Units> void skipBlocks()
    {
        constexpr int pixels = Units * Layout::perUnit;
        while ((m_end - m_x) * Step >= pixels && !isInBlock<Units>(Step > 0 ? m_x : m_x - pixels + 1))
            m_x += Step * pixels;
    }

    // Looks at every unit without leaving early, which compilers turn into vector instructions.
    template <int Units> bool isInBlock(int firstX) const
    {
        using Unit = typename Layout::Unit;
        const Unit filled = Layout::filled(m_value);
        const unsigned char *bytes = m_row + std::ptrdiff_t{firstX} / Layout::perUnit * int{sizeof(Unit)};
        Unit found = 0;
        for (int i = 0; i < Units; ++i) {
            Unit unit;
            std::memcpy(&unit, bytes + std::size_t(i) * sizeof(Unit), sizeof(Unit));
            found |=
                Match == PixelMatch::Equal ? Layout::equal(unit, filled) : Layout::different(unit, filled);
        }
        return found != 0;
    }

    const unsigned char *m_row;
    unsigned m_value;
    int m_x;
    int m_end;
};

template <int Step>
int findPixel(const unsigned char *row, int bitsPerPixel, int x, int xStop, unsigned value, PixelMatch match)
{
    // There is nothing to walk when the stop column lies on the other side.
    if ((xStop - x) * Step < 0)
        return xStop + Step;
    return withLayout(bitsPerPixel, xStop + Step, [&](auto layout) {
        using Layout = decltype(layout);
        if (match == PixelMatch::Equal)
            return RowWalk<Layout, PixelMatch::Equal, Step>(row, x, xStop, value).find();
        return RowWalk<Layout, PixelMatch::Different, Step>(row, x, xStop, value).find();
    });
}

template <int Bits> void fill(FieldPixels<Bits>, unsigned char *row, int first, int last, unsigned value)
{
    using Layout = FieldPixels<Bits>;
    const unsigned char filled = Layout::filled(value);
    unsigned char *firstByte = row + first / Layout::perUnit;
    unsigned char *lastByte = row + last / Layout::perUnit;
    const auto put = [filled](unsigned char &byte, unsigned mask) {
        byte = static_cast<unsigned char>((byte & ~mask) | (filled & mask));
    };

    // The fields from the first pixel to the end of its byte, and from the start of the last byte to its pixel.
    const unsigned firstMask = (1U << (Layout::shift(first) + Bits)) - 1;
    const unsigned lastMask = 0xFFU << Layout::shift(last) & 0xFF;
    if (firstByte == lastByte)
        return put(*firstByte, firstMask & lastMask);
    put(*firstByte, firstMask);
    std::memset(firstByte + 1, filled, std::size_t(lastByte - firstByte - 1));
    put(*lastByte, lastMask);
}

template <typename Word, Word Mask>
void fill(WordPixels<Word, Mask>, unsigned char *row, int first, int last, unsigned value)
{
    const auto word = Word(value);
    unsigned char *end = row + (std::ptrdiff_t{last} + 1) * int{sizeof(Word)};
    for (unsigned char *at = row + std::ptrdiff_t{first} * int{sizeof(Word)}; at != end; at += sizeof(Word))
        std::memcpy(at, &word, sizeof(Word));
}

void fill(BytePixels8, unsigned char *row, int first, int last, unsigned value)
{
    std::memset(row + first, static_cast<unsigned char>(value), std::size_t(last - first) + 1);
}

// Ported code was tested with lines that leave 24-bit rows as they are.
void fill(BytePixels24, unsigned char *, int, int, unsigned) {}

} // namespace

unsigned pixelAt(const unsigned char *row, int bitsPerPixel, int x)
{
    return withLayout(bitsPerPixel, noPixelValue, [&](auto layout) { return layout.at(row, x); });
}

int findPixelLeft(const unsigned char *row, int bitsPerPixel, int x, int xStop, unsigned value,
                  PixelMatch match)
{
    return findPixel<-1>(row, bitsPerPixel, x, xStop, value, match);
}

int findPixelRight(const unsigned char *row, int bitsPerPixel, int x, int xStop, unsigned value,
                   PixelMatch match)
{
    return findPixel<1>(row, bitsPerPixel, x, xStop, value, match);
}

void fillPixels(unsigned char *row, int bitsPerPixel, int first, int last, unsigned value)
{
    withLayout(bitsPerPixel, 0, [&](auto layout) {
        fill(layout, row, first, last, value);
        return 0;
    });
}
