#include "PictureBitmap.h"

#include <KxPlatformServices.h>
#include <QPainter>

PictureBitmap::PictureBitmap()
    : m_handle(platformServices().gdiObjects().createBitmap(0, 48, 48))
{
    QPainter painter(platformServices().gdiObjects().bitmapDevice(m_handle));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(0, 0, 48, 48, QColor(0xF3, 0xEA, 0xD0));
    painter.setPen(QPen(QColor(0x2E, 0x6E, 0x78), 2));
    painter.setBrush(QColor(0x8F, 0xD0, 0xCE));
    painter.drawEllipse(QPointF(24, 24), 14, 19);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x7A, 0x50, 0x30));
    for (const QPointF spot : {QPointF(20, 16), QPointF(28, 20), QPointF(18, 26), QPointF(26, 31)})
        painter.drawEllipse(spot, 2, 2);
}

PictureBitmap::~PictureBitmap()
{
    platformServices().gdiObjects().deleteObject(m_handle);
}
