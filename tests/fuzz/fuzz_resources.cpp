#include "ImageFormats.h"
#include "ResourceImage.h"
#include "StringTable.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

static void readStrings(const ResourceImage &image, LanguageId language)
{
    const StringTable table({image}, language);
    for (unsigned id = 0; id < 0x10010; id += id < 64 ? 1 : 2011) {
        wchar_t buffer[20];
        const int count = table.copy(id, buffer, 20);
        if (count < 0 || count > 19 || buffer[count] != L'\0')
            std::abort();
    }
}

static void readImages(const ResourceImage &image)
{
    for (std::uint16_t number = 0; number < 4; ++number) {
        for (const auto &bitmap : image.find(ResourceType::Bitmap, {number, {}}, 0))
            readBitmap(bitmap.data);
        for (const auto &icon : image.find(ResourceType::Icon, {number, {}}, 0))
            readIcon(icon.data);
        for (const auto &group : image.find(ResourceType::IconGroup, {number, {}}, 0))
            readIconGroup(group.data);
    }
}

// The input is a resource image, and after that the parts of one.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const Bytes bytes{data, size};
    const ResourceImage image(bytes);
    readStrings(image, 0x407);
    readImages(image);
    image.find(ResourceType::Bitmap, {0, u"NAMED"}, 0x409);
    readBitmap(bytes);
    readIcon(bytes);
    readIconGroup(bytes);
    return 0;
}
