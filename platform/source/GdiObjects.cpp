#include "BuiltInServices.h"

#include <QImage>
#include <climits>
#include <unordered_map>
#include <variant>

namespace {
// GDI bitmaps have no transparency.
constexpr QImage::Format bitmapFormat = QImage::Format_RGB32;
constexpr int bytesPerPixel = 4;

class GdiObjects final : public KxGdiObjectService
{
public:
    QPaintDevice *bitmapDevice(HANDLE handle) override { return find<QImage>(handle); }
    QImage bitmapImage(HANDLE handle) override;
    std::optional<COLORREF> brushColor(HANDLE handle) override;
    HANDLE createBitmap(UINT flags, int width, int height) override;
    HANDLE createSolidBrush(COLORREF color) override { return insert(color); }
    int deleteObject(HANDLE handle) override;

private:
    using Object = std::variant<QImage, COLORREF>;

    template <class T> T *find(HANDLE handle);
    HANDLE insert(Object object);

    // Paint devices keep their address while other objects come and go.
    std::unordered_map<HANDLE, Object> m_objects;
    // Above the resource identifiers, and never used twice.
    std::uintptr_t m_nextHandle = 0x10000;
};

template <class T> T *GdiObjects::find(HANDLE handle)
{
    const auto found = m_objects.find(handle);
    return found == m_objects.end() ? nullptr : std::get_if<T>(&found->second);
}

HANDLE GdiObjects::insert(Object object)
{
    const auto handle = reinterpret_cast<HANDLE>(m_nextHandle++);
    m_objects.emplace(handle, std::move(object));
    return handle;
}

QImage GdiObjects::bitmapImage(HANDLE handle)
{
    const auto *bitmap = find<QImage>(handle);
    return bitmap ? *bitmap : QImage();
}

std::optional<COLORREF> GdiObjects::brushColor(HANDLE handle)
{
    const auto *color = find<COLORREF>(handle);
    return color ? std::optional<COLORREF>(*color) : std::nullopt;
}

HANDLE GdiObjects::createBitmap(UINT, int width, int height)
{
    if (width <= 0 || height <= 0 || width > INT_MAX / bytesPerPixel / height)
        return nullptr;
    QImage bitmap(width, height, bitmapFormat);
    if (bitmap.isNull())
        return nullptr;
    bitmap.fill(Qt::black);
    return insert(std::move(bitmap));
}

int GdiObjects::deleteObject(HANDLE handle)
{
    const auto *bitmap = find<QImage>(handle);
    if (bitmap && bitmap->paintingActive())
        return 0;
    return int(m_objects.erase(handle));
}

class Images final : public KxImageService
{
public:
    explicit Images(KxGdiObjectService &gdiObjects)
        : m_gdiObjects(gdiObjects)
    {
    }
    QImage image(HANDLE handle) override { return m_gdiObjects.bitmapImage(handle); }

private:
    KxGdiObjectService &m_gdiObjects;
};
} // namespace

std::unique_ptr<KxGdiObjectService> makeGdiObjectService()
{
    return std::make_unique<GdiObjects>();
}

std::unique_ptr<KxImageService> makeImageService(KxGdiObjectService &gdiObjects)
{
    return std::make_unique<Images>(gdiObjects);
}
