#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A language and its variant, as a Win32 LANGID: the language in the low ten bits.
using LanguageId = std::uint16_t;

/// Bytes that belong to someone else. Numbers in them are little-endian and need no alignment.
struct Bytes
{
    const std::uint8_t *data = nullptr;
    std::size_t size = 0;

    bool isEmpty() const { return size == 0; }
    /// @return the part, or nothing when it is not inside entirely.
    Bytes part(std::size_t offset, std::size_t count) const
    {
        return offset <= size && count <= size - offset ? Bytes{data + offset, count} : Bytes{};
    }
    Bytes from(std::size_t offset) const { return part(offset, offset <= size ? size - offset : 0); }
    /// @return the number; 0 when it is not inside entirely.
    std::uint16_t word(std::size_t offset) const;
    std::uint32_t doubleWord(std::size_t offset) const;
};

enum class ResourceType : std::uint16_t { Bitmap = 2, Icon = 3, String = 6, IconGroup = 14 };

/// What a resource is called: a number, or a text in capital letters.
struct ResourceName
{
    std::uint16_t number = 0;
    std::u16string text;

    bool operator==(const ResourceName &other) const { return number == other.number && text == other.text; }
};

/// The resources in a .res image, found by type, name and language. It reads the bytes that it was made of.
class ResourceImage
{
public:
    /// A damaged image has no resources.
    explicit ResourceImage(Bytes image);

    struct Resource
    {
        ResourceType type;
        ResourceName name;
        LanguageId language;
        Bytes data;
    };

    /// @return the resources of that type and name, in the order in which a user of @p language wants them.
    std::vector<Resource> find(ResourceType type, const ResourceName &name, LanguageId language) const;

    /// @return all blocks of strings, for each name in the order of find().
    std::vector<Resource> stringBlocks(LanguageId language) const;

private:
    std::vector<Resource> m_resources;
};
