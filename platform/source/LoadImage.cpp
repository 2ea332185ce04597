#include "FileNames.h"
#include "ImageFormats.h"
#include "ResourceModules.h"

#include <KxPlatform.h>
#include <KxPlatformServices.h>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <tuple>

namespace {
constexpr int maxLength = 8192;

// Lower is better: the size that is nearest, then the one with the most colours.
auto rank(const QSize &size, int bitsPerPixel, const QSize &wanted)
{
    const int width = wanted.width() ? std::abs(size.width() - wanted.width()) : 0;
    const int height = wanted.height() ? std::abs(size.height() - wanted.height()) : 0;
    return std::tuple(width + height, wanted.isNull() ? 0 : -bitsPerPixel);
}

ResourceName numberName(std::uint16_t number)
{
    return {number, {}};
}

// A name in capital letters, as the resource compiler writes them.
ResourceName toResourceName(const wchar_t *name)
{
    const auto address = reinterpret_cast<std::uintptr_t>(name);
    if (address <= 0xFFFF)
        return numberName(std::uint16_t(address));
    if (*name == L'#')
        return numberName(QString::fromWCharArray(name + 1).toUShort());
    QString text = QString::fromWCharArray(name);
    for (QChar &character : text) {
        if (character.unicode() < 0x80)
            character = character.toUpper();
    }
    return {0, text.toStdU16String()};
}

QImage bitmapOf(const ResourceModule &module, const ResourceName &name)
{
    return readBitmap(findResource(module, ResourceType::Bitmap, name));
}

QImage iconOf(const ResourceModule &module, const ResourceName &name, const QSize &wanted)
{
    const auto entries = readIconGroup(findResource(module, ResourceType::IconGroup, name));
    const auto best =
        std::min_element(entries.begin(), entries.end(), [&](const auto &left, const auto &right) {
            return rank(left.size, left.bitsPerPixel, wanted) < rank(right.size, right.bitsPerPixel, wanted);
        });
    if (best == entries.end())
        return {};
    return readIcon(findResource(module, ResourceType::Icon, numberName(best->id)));
}

QImage imageOfModule(HINSTANCE handle, const wchar_t *name, UINT type, const QSize &wanted)
{
    const ResourceModule *module = resourceModule(handle);
    const ResourceName resourceName = toResourceName(name);
    if (!module || resourceName == numberName(0))
        return {};
    return type == IMAGE_BITMAP ? bitmapOf(*module, resourceName) : iconOf(*module, resourceName, wanted);
}

QImage bitmapOfFile(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly) || file.isSequential())
        return {};
    const QByteArray content = file.readAll();
    return readBitmapFile(
        {reinterpret_cast<const std::uint8_t *>(content.data()), std::size_t(content.size())});
}

QImage iconOfFile(const QString &name, const QSize &wanted)
{
    QImageReader reader(name, "ico");
    QImage best = reader.read();
    while (!wanted.isNull() && reader.jumpToNextImage()) {
        const QImage next = reader.read();
        if (!next.isNull() && rank(next.size(), 0, wanted) < rank(best.size(), 0, wanted))
            best = next;
    }
    return best;
}

QImage imageOfFile(const wchar_t *name, UINT type, const QSize &wanted)
{
    const auto file = toFileName(name);
    if (!file || file->isEmpty())
        return {};
    return type == IMAGE_BITMAP ? bitmapOfFile(*file) : iconOfFile(*file, wanted);
}

QImage scaled(const QImage &image, const QSize &wanted)
{
    const QSize size(wanted.width() ? wanted.width() : image.width(),
                     wanted.height() ? wanted.height() : image.height());
    const QImage result =
        size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return result.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

// Gives the image to the service that the handle is looked up in.
HANDLE keep(const QImage &image)
{
    KxGdiObjectService &service = platformServices().gdiObjects();
    const HANDLE handle = service.createBitmap(0, image.width(), image.height());
    QPaintDevice *device = service.bitmapDevice(handle);
    if (!device)
        return nullptr;
    if (device->devType() == QInternal::Image) {
        *static_cast<QImage *>(device) = image;
        return handle;
    }
    QPainter painter(device);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(0, 0, image);
    return handle;
}
} // namespace

HANDLE LoadImageW(HINSTANCE module, const wchar_t *name, UINT type, int cx, int cy, UINT flags)
{
    if (type > IMAGE_ICON || cx < 0 || cy < 0 || cx > maxLength || cy > maxLength)
        return nullptr;
    const QSize wanted(cx, cy);
    const bool fromFile = flags & LR_LOADFROMFILE;
    if (fromFile && reinterpret_cast<std::uintptr_t>(name) <= 0xFFFF)
        return nullptr;
    const QImage image =
        fromFile ? imageOfFile(name, type, wanted) : imageOfModule(module, name, type, wanted);
    return image.isNull() ? nullptr : keep(scaled(image, wanted));
}
