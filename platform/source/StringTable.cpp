#include "StringTable.h"

#include <algorithm>
#include <cstring>

namespace {
char16_t unitAt(Bytes text, std::size_t index)
{
    char16_t unit;
    std::memcpy(&unit, text.data + 2 * index, sizeof unit);
    return unit;
}

bool isSurrogate(char16_t unit)
{
    return (unit & 0xF800) == 0xD800;
}

bool containsSurrogates(Bytes text)
{
    for (std::size_t i = 0; i < text.size / 2; ++i) {
        if (isSurrogate(unitAt(text, i)))
            return true;
    }
    return false;
}

bool isHighSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}

bool isLowSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

// One character; moves the index behind it. A surrogate without its other half stands for itself.
wchar_t nextCharacter(Bytes text, std::size_t &index, std::size_t count)
{
    const char16_t unit = unitAt(text, index++);
    if (!isHighSurrogate(unit) || index == count)
        return wchar_t(unit);
    const char16_t low = unitAt(text, index);
    if (!isLowSurrogate(low))
        return wchar_t(unit);
    ++index;
    return wchar_t(0x10000 + ((unit & 0x3FF) << 10) + (low & 0x3FF));
}

std::size_t copyUnits(Bytes text, wchar_t *buffer, std::size_t room)
{
    const std::size_t count = std::min(text.size / 2, room);
    for (std::size_t i = 0; i < count; ++i)
        buffer[i] = wchar_t(unitAt(text, i));
    return count;
}

std::size_t copyPairs(Bytes text, wchar_t *buffer, std::size_t room)
{
    const std::size_t units = text.size / 2;
    std::size_t copied = 0;
    for (std::size_t index = 0; index < units && copied < room;)
        buffer[copied++] = nextCharacter(text, index, units);
    return copied;
}
} // namespace

StringTable::StringTable(const std::vector<ResourceImage> &images, LanguageId language)
{
    for (const ResourceImage &image : images) {
        for (const ResourceImage::Resource &resource : image.stringBlocks(language))
            add(resource);
    }
}

void StringTable::add(const ResourceImage::Resource &resource)
{
    const std::size_t number = resource.name.number;
    if (number == 0 || number > blockCount || !resource.name.text.empty())
        return;
    std::uint16_t &place = m_blockOf[number - 1];
    if (place == 0) {
        m_blocks.emplace_back();
        place = std::uint16_t(m_blocks.size());
    }
    fill(m_blocks[place - 1], resource.data);
}

void StringTable::fill(Block &block, Bytes data)
{
    std::size_t offset = 0;
    for (String &string : block) {
        const std::size_t size = 2 * std::size_t(data.word(offset));
        const Bytes text = data.part(offset + 2, size);
        if (string.units.isEmpty())
            string = {text, containsSurrogates(text)};
        offset += 2 + size;
    }
}

int StringTable::copy(unsigned id, wchar_t *buffer, int room) const
{
    *buffer = L'\0';
    const std::size_t number = id / stringsPerBlock;
    if (number >= blockCount || m_blockOf[number] == 0)
        return 0;

    const String &string = m_blocks[m_blockOf[number] - 1u][id % stringsPerBlock];
    const auto copyText = string.hasSurrogates ? copyPairs : copyUnits;
    const std::size_t copied = copyText(string.units, buffer, std::size_t(room) - 1);
    buffer[copied] = L'\0';
    return int(copied);
}
