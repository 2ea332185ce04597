#include "ResourceImage.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <tuple>

#if __BYTE_ORDER__ != __ORDER_LITTLE_ENDIAN__
#error "Resource images are read in place and are little-endian."
#endif

namespace {
constexpr std::size_t alignment = 4;
constexpr std::size_t sizesLength = 8;
constexpr std::size_t attributesLength = 16;
constexpr std::uint16_t numberMark = 0xFFFF;

template <class Number> Number numberAt(Bytes bytes, std::size_t offset)
{
    const Bytes part = bytes.part(offset, sizeof(Number));
    Number number = 0;
    if (!part.isEmpty())
        std::memcpy(&number, part.data, sizeof number);
    return number;
}

std::size_t aligned(std::size_t offset)
{
    return (offset + alignment - 1) / alignment * alignment;
}

char16_t toCapital(char16_t unit)
{
    return unit >= u'a' && unit <= u'z' ? char16_t(unit - u'a' + u'A') : unit;
}

// Moves the offset behind the type or name there; nothing when the header ends within it.
std::optional<ResourceName> readName(Bytes header, std::size_t &offset)
{
    ResourceName name;
    if (header.word(offset) == numberMark) {
        name.number = header.word(offset + 2);
        offset += 4;
        return offset <= header.size ? std::optional(name) : std::nullopt;
    }
    for (; offset + 2 <= header.size; offset += 2) {
        const char16_t unit = header.word(offset);
        if (unit == 0) {
            offset += 2;
            return name;
        }
        name.text.push_back(toCapital(unit));
    }
    return std::nullopt;
}

bool isWanted(const ResourceName &type)
{
    return type.text.empty() && (type.number == std::uint16_t(ResourceType::Bitmap) ||
                                 type.number == std::uint16_t(ResourceType::Icon) ||
                                 type.number == std::uint16_t(ResourceType::String) ||
                                 type.number == std::uint16_t(ResourceType::IconGroup));
}

// Appends the resource of a record when it is of a kind that is looked up. False when the record is damaged.
bool readRecord(Bytes header, Bytes data, std::vector<ResourceImage::Resource> &resources)
{
    std::size_t offset = sizesLength;
    const auto type = readName(header, offset);
    if (!type)
        return false;
    const auto name = readName(header, offset);
    offset = aligned(offset);
    if (!name || header.part(offset, attributesLength).isEmpty())
        return false;
    const LanguageId language = header.word(offset + 6);
    if (isWanted(*type))
        resources.push_back({ResourceType(type->number), *name, language, data});
    return true;
}

auto sortKey(const ResourceImage::Resource &resource)
{
    return std::tie(resource.type, resource.name.number, resource.name.text);
}

int distance(LanguageId wanted, LanguageId language)
{
    constexpr LanguageId primary = 0x3FF;
    if (language == wanted)
        return 0;
    if ((language & primary) == (wanted & primary))
        return 1;
    return (language & primary) == 0 ? 2 : 3;
}

using Resources = std::vector<ResourceImage::Resource>;

void sortByDistance(Resources::iterator begin, Resources::iterator end, LanguageId language)
{
    std::stable_sort(begin, end, [&](const auto &left, const auto &right) {
        return distance(language, left.language) < distance(language, right.language);
    });
}
} // namespace

std::uint16_t Bytes::word(std::size_t offset) const
{
    return numberAt<std::uint16_t>(*this, offset);
}

std::uint32_t Bytes::doubleWord(std::size_t offset) const
{
    return numberAt<std::uint32_t>(*this, offset);
}

ResourceImage::ResourceImage(Bytes image)
{
    Resources resources;
    std::size_t offset = 0;
    while (offset < image.size) {
        const std::size_t dataSize = image.from(offset).doubleWord(0);
        const std::size_t headerSize = image.from(offset).doubleWord(4);
        const Bytes header = image.part(offset, headerSize);
        const Bytes data = image.part(offset + headerSize, dataSize);
        if (header.isEmpty() || (data.isEmpty() && dataSize > 0) || !readRecord(header, data, resources))
            return;
        offset = aligned(offset + headerSize + dataSize);
    }
    std::stable_sort(resources.begin(), resources.end(),
                     [](const auto &left, const auto &right) { return sortKey(left) < sortKey(right); });
    m_resources = std::move(resources);
}

std::vector<ResourceImage::Resource> ResourceImage::find(ResourceType type, const ResourceName &name,
                                                         LanguageId language) const
{
    const Resource wanted{type, name, 0, {}};
    const auto [begin, end] =
        std::equal_range(m_resources.begin(), m_resources.end(), wanted,
                         [](const auto &left, const auto &right) { return sortKey(left) < sortKey(right); });
    Resources found(begin, end);
    sortByDistance(found.begin(), found.end(), language);
    return found;
}

std::vector<ResourceImage::Resource> ResourceImage::stringBlocks(LanguageId language) const
{
    Resources blocks;
    std::copy_if(m_resources.begin(), m_resources.end(), std::back_inserter(blocks),
                 [](const Resource &resource) { return resource.type == ResourceType::String; });
    sortByDistance(blocks.begin(), blocks.end(), language);
    return blocks;
}
