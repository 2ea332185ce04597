#include "KxDoubleBuffer.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QWidget>

#include <climits>
#include <cstdlib>

static constexpr QImage::Format imageFormat = QImage::Format_ARGB32_Premultiplied;

// Destroying an image under an active painter would leave that painter with a dangling device.
static void setDevice(KxQtPainterWrapper &painter, QImage *image)
{
    // Not by endDraw(): ported code may have taken the device away while it draws.
    if (painter.wrappedPainter()->isActive()) {
        painter.restore();
        painter.wrappedPainter()->end();
    }
    painter.setWrappedDevice(image);
}

static std::unique_ptr<QImage> transparentImage(int w, int h)
{
    auto image = std::make_unique<QImage>(w, h, imageFormat);
    image->fill(0);
    return image;
}

KxGrQtDoubleBufferImage::KxGrQtDoubleBufferImage()
    : KxGrQtDoubleBufferImage(nullptr)
{
}

KxGrQtDoubleBufferImage::KxGrQtDoubleBufferImage(QPaintDevice *device)
    : KxQtPaintDeviceWrapper(device)
    , m_pMemPainter(std::make_unique<KxQtPainterWrapper>())
    , m_pFrontPainter(std::make_unique<KxQtPainterWrapper>())
    , m_pPalette(std::make_unique<QPalette>())
{
    if (device)
        setFrontImage(transparentImage(device->width(), device->height()));
}

KxGrQtDoubleBufferImage::~KxGrQtDoubleBufferImage()
{
    destroyImages();
    setFrontImage(nullptr);
}

void KxGrQtDoubleBufferImage::setFrontImage(std::unique_ptr<QImage> image)
{
    setDevice(*m_pFrontPainter, image.get());
    m_pFrontImage = std::move(image);
}

// Lines of the image are read and written as 32-bit words, and the bytes of it are counted by an int.
static bool isImageSize(int w, int h, int bytesPerPixel)
{
    constexpr int wordSize = 4;
    if (w <= 0 || h <= 0 || bytesPerPixel < wordSize || w > INT_MAX / bytesPerPixel)
        return false;
    const int bytesPerLine = w * bytesPerPixel;
    return bytesPerLine % wordSize == 0 && h <= INT_MAX / bytesPerLine;
}

unsigned char *KxGrQtDoubleBufferImage::createImages(int w, int h, int bytesPerPixel)
{
    // The size of the images does not count: after a resize they keep the former one until destroyImages().
    if (m_bImagesCreated && destinationDevice() && w == width() && h == height())
        return m_pMemBits;
    if (!isImageSize(w, h, bytesPerPixel))
        return nullptr;
    auto front = transparentImage(w, h);
    auto *bits = static_cast<unsigned char *>(std::calloc(std::size_t(h), std::size_t(w) * bytesPerPixel));
    if (front->isNull() || !bits) {
        std::free(bits);
        return nullptr;
    }

    destroyImages();
    m_pMemBits = bits;
    m_pMemImage = std::make_unique<QImage>(bits, w, h, w * bytesPerPixel, imageFormat);
    setDevice(*m_pMemPainter, m_pMemImage.get());
    setFrontImage(std::move(front));
    m_bImagesCreated = true;
    return m_pMemBits;
}

void KxGrQtDoubleBufferImage::destroyImages()
{
    if (!m_bImagesCreated)
        return;
    setDevice(*m_pMemPainter, nullptr);
    m_pMemImage.reset();
    std::free(m_pMemBits);
    m_pMemBits = nullptr;
    setFrontImage(nullptr);
    m_bImagesCreated = false;
}

static void drawImage(QImage *target, const QImage *source)
{
    // Qt warns of a device that is being painted on.
    if (target && source && !target->paintingActive())
        QPainter(target).drawImage(0, 0, *source);
}

void KxGrQtDoubleBufferImage::repairFrontBuffer()
{
    drawImage(m_pFrontImage.get(), m_pMemImage.get());
    if (m_pFrontBuffer) {
        drawImage(m_pFrontBuffer->memImage(), m_pFrontImage.get());
        return;
    }
    auto *widget = dynamic_cast<QWidget *>(destinationDevice());
    if (widget && widget->updatesEnabled())
        widget->update();
}

void KxGrQtDoubleBufferImage::setFrontBuffer(KxGrQtDoubleBufferImage *other)
{
    m_pFrontBuffer = other;
    if (other)
        setDestinationDevice(other->destinationDevice());
}

KxQtPainterWrapper *KxGrQtDoubleBufferImage::memPainter() const
{
    return m_pMemPainter.get();
}

QImage *KxGrQtDoubleBufferImage::memImage() const
{
    return m_pMemImage.get();
}

unsigned char *KxGrQtDoubleBufferImage::memBits() const
{
    return m_pMemBits;
}

KxQtPainterWrapper *KxGrQtDoubleBufferImage::frontPainter() const
{
    return m_pFrontPainter.get();
}

QImage *KxGrQtDoubleBufferImage::frontImage() const
{
    return m_pFrontImage.get();
}

unsigned char *KxGrQtDoubleBufferImage::backupBits() const
{
    return m_pBackupBits;
}

QPalette *KxGrQtDoubleBufferImage::getHPalette() const
{
    return m_pPalette.get();
}
