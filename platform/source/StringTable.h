#pragma once

#include "ResourceImage.h"

#include <array>

/// The strings of a module for one language, found by number. It reads the bytes of the images.
class StringTable
{
public:
    /// A string that the language lacks is taken from the next best one.
    StringTable(const std::vector<ResourceImage> &images, LanguageId language);

    /// Copies a string, each pair of surrogates as one character, and terminates it.
    /// @param room at least 1.
    /// @return the number of characters without the terminator; 0 when there is no such string.
    int copy(unsigned id, wchar_t *buffer, int room) const;

private:
    static constexpr std::size_t stringsPerBlock = 16;
    static constexpr std::size_t blockCount = 0x10000 / stringsPerBlock;
    struct String
    {
        Bytes units;
        bool hasSurrogates = false;
    };
    using Block = std::array<String, stringsPerBlock>;

    void add(const ResourceImage::Resource &resource);
    void fill(Block &block, Bytes data);

    // Number of the block in m_blocks plus 1, or 0.
    std::array<std::uint16_t, blockCount> m_blockOf{};
    std::vector<Block> m_blocks;
};
