/// @file KxDoubleBuffer.h
/// @brief Double-buffered images of windows, and temporary drawing.
#pragma once

#include "KxPainter.h"
#include "KxWinTypes.h"

#include <memory>

class QImage;
class QPalette;

/// The device behind a window's context: a memory image to draw on, and a front image to show.
///
/// Ported code calls createImages(), draws with memPainter() and publishes with repairFrontBuffer(). The
/// window's own paint event shows the front image:
/// @code
/// void Canvas::paintEvent(QPaintEvent *)
/// {
///     QPainter(this).drawImage(0, 0, *m_buffer->frontImage());
/// }
/// @endcode
/// Both images have the format QImage::Format_ARGB32_Premultiplied and start transparent.
class KX_MFC_EXPORT KxGrQtDoubleBufferImage : public KxQtPaintDeviceWrapper
{
public:
    /// @name Construction
    /// @{

    /// Makes an object without a destination and without images.
    KxGrQtDoubleBufferImage();
    /// Makes an object for @p device, the window's widget, which it does not own. Unless @p device is null,
    /// the front image has its size.
    explicit KxGrQtDoubleBufferImage(QPaintDevice *device);
    KxGrQtDoubleBufferImage(const KxGrQtDoubleBufferImage &) = delete;
    KxGrQtDoubleBufferImage &operator=(const KxGrQtDoubleBufferImage &) = delete;
    /// Destroys the images and painters.
    ~KxGrQtDoubleBufferImage() override;
    /// @}

    /// @name Images
    /// @{

    /// Makes the memory image and a new front image, in place of those that are there.
    ///
    /// When createImages() made the images before and @p w and @p h are the size that the destination has
    /// now, nothing is done, whatever size the images have. After the widget was resized, a call with its new
    /// size therefore leaves the images in the old one: call destroyImages() first.
    /// @param w width in pixels.
    /// @param h height in pixels.
    /// @param bytesPerPixel 4; with more, the lines of the memory image are longer than their pixels, and
    /// have to be a multiple of 4 bytes.
    /// @return memBits(); null when a size is not positive, is too small or too large, or when memory is
    /// short: all stays as it was then.
    unsigned char *createImages(int w, int h, int bytesPerPixel);
    /// Destroys what createImages() made: memImage(), memBits() and frontImage() are null then.
    void destroyImages();
    /// Publishes the memory image: draws it over the front image, where its transparent pixels change
    /// nothing. Then the front image is drawn over the front buffer's memory image; without a front buffer,
    /// the destination is told to repaint if it is a QWidget whose updates are enabled. An image that does
    /// not exist, or that is being painted on, is left out.
    void repairFrontBuffer();
    /// Sets the buffer that repairFrontBuffer() publishes to, which takes part in a chain of buffers.
    /// @param other that buffer, not owned, which must outlive its use; its destination becomes that of this
    /// object. Null: publish to the destination, which stays.
    void setFrontBuffer(KxGrQtDoubleBufferImage *other);
    /// @}

    /// @name Access
    /// What they return belongs to this object.
    /// @{
    KxQtPainterWrapper *memPainter() const; ///< @return the painter on the memory image; never null.
    QImage *memImage() const;               ///< @return the memory image; null when there is none.
    unsigned char *memBits() const;         ///< @return the memory image's pixels; null when there are none.
    KxQtPainterWrapper *frontPainter() const; ///< @return the painter on the front image; never null.
    QImage *frontImage() const;               ///< @return the front image; null when there is none.
    unsigned char *backupBits() const;        ///< @return null.
    QPalette *getHPalette() const;            ///< @return a palette, the application's default one at first.
    /// @}

private:
    void setFrontImage(std::unique_ptr<QImage> image);

    unsigned char *m_pMemBits = nullptr;
    const std::unique_ptr<KxQtPainterWrapper> m_pMemPainter;
    std::unique_ptr<QImage> m_pMemImage;
    const std::unique_ptr<KxQtPainterWrapper> m_pFrontPainter;
    std::unique_ptr<QImage> m_pFrontImage;
    unsigned char *const m_pBackupBits = nullptr;
    const std::unique_ptr<QPalette> m_pPalette;
    bool m_bImagesCreated = false;
    KxGrQtDoubleBufferImage *m_pFrontBuffer = nullptr;
};

/// Undoes temporary drawing (rubber bands, previews): keeps a copy of an image for as long as it lives, and
/// paints that back in the end.
///
/// The copy is painted over the image, within the painter's clip region: what became opaque where the copy is
/// transparent stays. Make and destroy it while the painter does not draw, that is outside of its
/// KxQtPainterWrapper::beginDraw() and KxQtPainterWrapper::endDraw().
class KX_MFC_EXPORT KxQtGrDCAutoSaver
{
public:
    /// Copies the image that a painter draws on.
    /// @param h a KxQtPainterWrapper, unlike other device contexts, whose device must outlive this object;
    /// null, and a painter whose device is not a QImage, are allowed: nothing is done then.
    explicit KxQtGrDCAutoSaver(HDC h);
    KxQtGrDCAutoSaver(const KxQtGrDCAutoSaver &) = delete;
    KxQtGrDCAutoSaver &operator=(const KxQtGrDCAutoSaver &) = delete;
    /// Paints the copy over the whole image that the painter has now, if its device is still a QImage.
    ~KxQtGrDCAutoSaver();

private:
    KxQtPainterWrapper *m_pPainter = nullptr;
    std::unique_ptr<QImage> m_pSaved;
};
