#include "KxDoubleBuffer.h"

#include <QImage>

static QImage *imageOf(const KxQtPainterWrapper *painter)
{
    auto *image = painter ? dynamic_cast<QImage *>(painter->wrappedDevice()) : nullptr;
    return image && !image->isNull() ? image : nullptr;
}

KxQtGrDCAutoSaver::KxQtGrDCAutoSaver(HDC h)
{
    auto *painter = reinterpret_cast<KxQtPainterWrapper *>(h);
    const QImage *image = imageOf(painter);
    if (!image)
        return;
    m_pPainter = painter;
    m_pSaved = std::make_unique<QImage>(image->copy());
}

KxQtGrDCAutoSaver::~KxQtGrDCAutoSaver()
{
    const QImage *image = imageOf(m_pPainter);
    if (!image)
        return;
    m_pPainter->beginDraw();
    m_pPainter->drawImage(image->rect(), *m_pSaved);
    m_pPainter->endDraw();
}
