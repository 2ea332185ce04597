#ifndef RESOURCEFIXTURE_H
#define RESOURCEFIXTURE_H

#include <KxPlatform.h>
#include <KxPlatformServices.h>
#include <QImage>
#include <QLocale>
#include <QString>

#include <array>

/// The default locale for as long as the object lives; the former one after it.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QString &name) { set(QLocale(name)); }
    DefaultLocale(const DefaultLocale &) = delete;
    DefaultLocale &operator=(const DefaultLocale &) = delete;
    ~DefaultLocale() { set(m_former); }

private:
    static void set(const QLocale &locale)
    {
        QLocale::setDefault(locale);
        SetThreadUILanguage(0);
    }

    const QLocale m_former;
};

/// A module that is released with the object.
class LoadedModule
{
public:
    explicit LoadedModule(const char *file)
        : m_handle(LoadLibraryW(QString::fromUtf8(file).toStdWString().c_str()))
    {
    }
    LoadedModule(const LoadedModule &) = delete;
    LoadedModule &operator=(const LoadedModule &) = delete;
    ~LoadedModule() { FreeLibrary(m_handle); }
    operator HINSTANCE() const { return m_handle; }

private:
    const HINSTANCE m_handle;
};

/// @return the text of a string resource, null characters included.
inline QString loadString(HINSTANCE module, UINT id)
{
    std::array<wchar_t, 5000> buffer;
    const int count = LoadStringW(module, id, buffer.data(), int(buffer.size()));
    return QString::fromWCharArray(buffer.data(), count);
}

/// @return the image that LoadImageW() gives, whose handle is released again; null when it gives none.
inline QImage loadImage(HINSTANCE module, const wchar_t *name, UINT type = IMAGE_BITMAP, int cx = 0,
                        int cy = 0, UINT flags = 0)
{
    const HANDLE handle = LoadImageW(module, name, type, cx, cy, flags);
    QImage image = platformServices().image().image(handle);
    platformServices().gdiObjects().deleteObject(handle);
    return image;
}

// What res/arrow.bmp shows.
inline QImage arrow()
{
    QImage image(3, 2, QImage::Format_RGB32);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x)
            image.setPixelColor(x, y, QColor(x * 100, y * 200, 50));
    }
    return image;
}

#endif
